#include "preferences/panes/SentDataDialog.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quindle {

namespace {

QPlainTextEdit* makeTextView(const QString& text, QWidget* parent)
{
    auto* view = new QPlainTextEdit(text, parent);
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    view->setAccessibleName(SentDataDialog::tr("What is sent"));
    const int line = view->fontMetrics().height();
    view->setMinimumSize(line * 24, line * 16);
    return view;
}

} // namespace

SentDataDialog::SentDataDialog(const QString& sentText, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("What is sent"));
    auto* column = new QVBoxLayout(this);
    auto* explanation = new QLabel(this);
    explanation->setWordWrap(true);
    column->addWidget(explanation);
    if (sentText.isEmpty()) {
        explanation->setText(tr("Nothing would be sent: no host of the statistics service is configured."));
    } else {
        explanation->setText(tr("This is what would be sent now, once a day at most:"));
        QPlainTextEdit* view = makeTextView(sentText, this);
        explanation->setBuddy(view);
        column->addWidget(view, 1);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    // As all other buttons are; some desktops give it a picture.
    buttons->button(QDialogButtonBox::Close)->setIcon({});
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
}

} // namespace quindle

#include "moc_SentDataDialog.cpp"
