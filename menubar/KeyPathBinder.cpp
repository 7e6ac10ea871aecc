#include "menubar/KeyPathBinder.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QWidget>

#include "menubar/DisplayPattern.h"
#include "menubar/KeyPathWatcher.h"
#include "menubar/ObjectController.h"
#include "menubar/PlainText.h"
#include "menubar/ValueTexts.h"

namespace quindle {

namespace {

QString textProperty(const QWidget* widget, const char* name)
{
    return widget->property(name).toString();
}

QByteArray shownProperty(const QWidget* widget)
{
    const QString named = textProperty(widget, "keyPathProperty");
    if (!named.isEmpty())
        return named.toUtf8();
    const QMetaProperty user = widget->metaObject()->userProperty();
    return user.isValid() ? QByteArray(user.name()) : QByteArrayLiteral("text");
}

// The object that has the method of a click path; null when there is none.
QObject* clickTarget(QObject* content, const QString& path)
{
    if (!path.contains(u'.'))
        return content;
    const KeyPath object(path.section(u'.', 0, -2));
    return object.resolve(content).value.value<QObject*>();
}

QByteArray clickSignature(const QString& path)
{
    return path.section(u'.', -1).toUtf8() + "()";
}

} // namespace

KeyPathBinder::KeyPathBinder(QWidget& root, ObjectController& controller, QObject* parent)
    : QObject(parent)
    , m_controller(controller)
{
    bind(&root);
    for (QWidget* widget : root.findChildren<QWidget*>())
        bind(widget);
    controller.setObserver([this] { setContent(); });
    setContent();
}

KeyPathBinder::~KeyPathBinder()
{
    m_controller.setObserver({});
}

void KeyPathBinder::bind(QWidget* widget)
{
    const auto showAs = [widget](const QByteArray& property, const QString& text) {
        widget->setProperty(property.constData(), text);
    };
    if (const QString path = textProperty(widget, "keyPath"); !path.isEmpty())
        bindKeyPath(widget, path);
    bindPattern(widget, textProperty(widget, "displayPattern"),
                [this, widget, showAs](const DisplayPattern& p) {
                    const auto text = p.text([this](const KeyPath& path) { return valueOf(path); });
                    showAs(shownProperty(widget), text.value_or(missingValueText()));
                });
    const QString ownCaption = textProperty(widget, "caption");
    bindPattern(widget, textProperty(widget, "captionPattern"),
                [this, ownCaption, showAs](const DisplayPattern& p) {
                    const auto text = p.text([this](const KeyPath& path) { return valueOf(path); });
                    showAs(QByteArrayLiteral("caption"), text.value_or(ownCaption));
                });
    bindPattern(widget, textProperty(widget, "toolTipPattern"), [this, widget](const DisplayPattern& p) {
        const auto text = p.text([this](const KeyPath& path) { return valueOf(path); });
        widget->setToolTip(literalToolTip(text.value_or(QString())));
    });
    bindCondition(textProperty(widget, "visibleKeyPath"),
                  [widget](bool tells) { widget->setVisible(tells); });
    bindCondition(textProperty(widget, "enabledKeyPath"),
                  [widget](bool tells) { widget->setEnabled(tells); });
    if (const QString path = textProperty(widget, "clickKeyPath"); !path.isEmpty())
        bindClick(widget, path);
}

void KeyPathBinder::bindKeyPath(QWidget* widget, const QString& path)
{
    KeyPathWatcher* watcher = watch(KeyPath(path));
    const QByteArray property = shownProperty(widget);
    connect(watcher, &KeyPathWatcher::changed, widget, [widget, watcher, property] {
        widget->setProperty(property.constData(), watcher->current().value);
    });
}

void KeyPathBinder::bindPattern(QWidget* widget, const QString& text,
                                const std::function<void(const DisplayPattern&)>& show)
{
    if (text.isEmpty())
        return;
    const DisplayPattern pattern(text);
    m_unknownFormats += pattern.unknownFormats();
    for (const KeyPath& path : pattern.paths())
        connect(watch(path), &KeyPathWatcher::changed, widget, [pattern, show] { show(pattern); });
    show(pattern);
}

void KeyPathBinder::bindCondition(const QString& paths, const std::function<void(bool)>& apply)
{
    if (paths.isEmpty())
        return;
    std::vector<KeyPath> conditions;
    for (const QString& path : paths.split(u','))
        conditions.emplace_back(path.trimmed());
    const auto evaluate = [this, conditions, apply] {
        bool tells = false;
        for (const KeyPath& path : conditions)
            tells = tells || tellsSomething(valueOf(path));
        apply(tells);
    };
    for (const KeyPath& path : conditions)
        connect(watch(path), &KeyPathWatcher::changed, this, evaluate);
    evaluate();
}

void KeyPathBinder::bindClick(QWidget* widget, const QString& path)
{
    m_clickPaths.append(path);
    const int signal = widget->metaObject()->indexOfSignal("clicked()");
    const int performSlot = staticMetaObject.indexOfSlot("performClick()");
    connect(widget, widget->metaObject()->method(signal), this, staticMetaObject.method(performSlot));
}

void KeyPathBinder::performClick()
{
    const QString path = textProperty(qobject_cast<QWidget*>(sender()), "clickKeyPath");
    if (QObject* target = clickTarget(m_controller.content(), path))
        QMetaObject::invokeMethod(target, path.section(u'.', -1).toUtf8().constData());
}

void KeyPathBinder::setContent()
{
    for (const auto& [path, watcher] : m_watchers)
        watcher->setRoot(m_controller.content());
}

KeyPathWatcher* KeyPathBinder::watch(const KeyPath& path)
{
    KeyPathWatcher*& watcher = m_watchers[path.text()];
    if (!watcher)
        watcher = new KeyPathWatcher(path, this);
    return watcher;
}

QVariant KeyPathBinder::valueOf(const KeyPath& path) const
{
    return m_watchers.at(path.text())->current().value;
}

QStringList KeyPathBinder::paths() const
{
    QStringList paths;
    for (const auto& [path, watcher] : m_watchers)
        paths.append(path);
    return paths;
}

QStringList KeyPathBinder::unresolved() const
{
    QStringList unresolved = m_unknownFormats;
    for (const auto& [path, watcher] : m_watchers) {
        if (watcher->current().state == KeyPathValue::State::Unknown)
            unresolved.append(path);
    }
    for (const QString& path : m_clickPaths) {
        const QObject* target = clickTarget(m_controller.content(), path);
        if (target && target->metaObject()->indexOfMethod(clickSignature(path).constData()) < 0)
            unresolved.append(path);
    }
    return unresolved;
}

} // namespace quindle
