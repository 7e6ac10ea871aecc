#include "application/snapshots/CompareDialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "application/snapshots/SnapshotRows.h"
#include "common/Translation.h"
#include "widgets/PlainLabel.h"

namespace quindle {

namespace {

void addCell(QGridLayout& grid, int row, int column, const QString& text, bool isQuiet)
{
    auto* label = new PlainLabel;
    label->setText(isolatedText(text));
    label->setQuiet(isQuiet);
    label->setAlignment(column == 0 ? Qt::AlignLeft : Qt::AlignRight);
    label->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    label->setMinimumWidth(label->sizeHint().width());
    grid.addWidget(label, row, column);
}

} // namespace

CompareDialog::CompareDialog(const QVariantMap& one, const QVariantMap& other, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Compare Snapshots"));
    const int line = fontMetrics().height();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(line, line, line, line);
    layout->setSpacing(line);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(line * 3 / 2);
    grid->setVerticalSpacing(line / 2);
    int row = 0;
    for (const ComparedRow& compared : comparedSnapshots(one, other)) {
        addCell(*grid, row, 0, compared.caption, true);
        addCell(*grid, row, 1, compared.older, false);
        addCell(*grid, row, 2, compared.newer, false);
        addCell(*grid, row, 3, compared.difference, true);
        ++row;
    }
    layout->addLayout(grid);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    // As all other buttons are; some desktops give it a picture.
    buttons->button(QDialogButtonBox::Close)->setIcon({});
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

} // namespace quindle

#include "moc_CompareDialog.cpp"
