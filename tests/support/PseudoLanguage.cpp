#include "tests/support/PseudoLanguage.h"

#include <algorithm>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTranslator>

namespace quindle::test {

namespace {

void addItems(QStringList& texts, const QAbstractItemModel& model, const QModelIndex& parent)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column)
            texts << model.index(row, column, parent).data().toString();
        addItems(texts, model, model.index(row, 0, parent));
    }
}

void addTextsOfView(QStringList& texts, const QWidget& widget)
{
    const QAbstractItemModel* model = nullptr;
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget))
        model = view->model();
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        model = box->model();
    if (!model)
        return;
    addItems(texts, *model, {});
    for (int column = 0; column < model->columnCount(); ++column)
        texts << model->headerData(column, Qt::Horizontal).toString();
}

QStringList textsOf(const QWidget& widget)
{
    QStringList texts{widget.toolTip(), widget.accessibleName(), widget.accessibleDescription()};
    if (widget.isWindow())
        texts << widget.windowTitle();
    // What is typed is the user's own.
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        texts << field->placeholderText();
    else
        for (const char* name : {"text", "title", "label", "heading", "caption"})
            texts << widget.property(name).toString();
    addTextsOfView(texts, widget);
    return texts;
}

QList<const QWidget*> seenIn(const QWidget& window)
{
    QList<const QWidget*> seen{&window};
    for (const QWidget* widget : window.findChildren<const QWidget*>()) {
        // The toolkit's own parts of a control have no words, or such that it translates itself.
        if (widget->isVisible() && !widget->objectName().startsWith(QStringLiteral("qt_")))
            seen.append(widget);
    }
    return seen;
}

bool holdsAny(const QString& text, const QStringList& words)
{
    return std::any_of(words.begin(), words.end(), [&](const QString& word) { return text.contains(word); });
}

bool hasTooLittleRoom(const QWidget& widget)
{
    if (widget.hasHeightForWidth())
        return widget.height() < widget.heightForWidth(widget.width());
    return widget.width() < widget.sizeHint().width();
}

} // namespace

class PseudoLanguage::Translator : public QTranslator
{
};

PseudoLanguage::PseudoLanguage()
    : m_translator(new Translator)
{
    if (!m_translator->load(QStringLiteral(QUINDLE_PSEUDO_TRANSLATION)))
        qFatal("the pseudo-language cannot be read");
    QCoreApplication::installTranslator(m_translator);
}

PseudoLanguage::~PseudoLanguage()
{
    QCoreApplication::removeTranslator(m_translator);
    delete m_translator;
}

QString untranslatedPart(const QString& text)
{
    static const QRegularExpression innermost(QStringLiteral("\\[[^][]*\\]"));
    // Three letters: units are shorter, or stand here.
    static const QRegularExpression word(QStringLiteral("(?!mAh)[A-Za-z]{3,}"));
    QString rest = text;
    for (QString before; rest != before;) {
        before = rest;
        rest.replace(innermost, QStringLiteral(" "));
    }
    return rest.contains(word) ? rest.simplified() : QString();
}

QStringList untranslatedTexts(const QWidget& window, const QStringList& data)
{
    QStringList found;
    for (const QWidget* widget : seenIn(window)) {
        for (const QString& text : textsOf(*widget)) {
            if (!untranslatedPart(text).isEmpty() && !holdsAny(text, data))
                found.append(QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName() +
                             QStringLiteral(": ") + text);
        }
    }
    found.removeDuplicates();
    return found;
}

QStringList cutTexts(const QWidget& window, const QStringList& mayBeCut)
{
    QStringList found;
    for (const QWidget* widget : seenIn(window)) {
        const bool showsText =
            qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget);
        const QString text = widget->property("text").toString();
        if (showsText && !text.isEmpty() && hasTooLittleRoom(*widget) && !holdsAny(text, mayBeCut))
            found.append(text);
    }
    return found;
}

} // namespace quindle::test
