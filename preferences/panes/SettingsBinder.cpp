#include "preferences/panes/SettingsBinder.h"

#include "preferences/panes/BoundSettings.h"

namespace quindle {

namespace {

QByteArray shownPropertyOf(const QWidget& control)
{
    const QByteArray named = control.property("keyPathProperty").toString().toUtf8();
    return named.isEmpty() ? QByteArray(control.metaObject()->userProperty().name()) : named;
}

} // namespace

SettingsBinder::SettingsBinder(QWidget& root, BoundSettings& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
{
    for (QWidget* control : root.findChildren<QWidget*>())
        bind(*control);
    connect(&settings, &BoundSettings::changed, this, &SettingsBinder::showChanges);
    fill();
}

void SettingsBinder::bind(QWidget& control)
{
    const QString path = control.property("keyPath").toString();
    if (path.isEmpty())
        return;
    const QMetaObject& settings = BoundSettings::staticMetaObject;
    const int setting = settings.indexOfProperty(path.toUtf8().constData());
    if (setting < 0)
        m_unresolved.append(path);
    else
        m_bindings.push_back({&control, shownPropertyOf(control), settings.property(setting), {}});
}

void SettingsBinder::fill()
{
    for (Binding& binding : m_bindings)
        show(binding, binding.setting.read(&m_settings));
}

// A control whose setting has not changed keeps what the user has entered.
void SettingsBinder::showChanges()
{
    for (Binding& binding : m_bindings) {
        const QVariant value = binding.setting.read(&m_settings);
        if (value != binding.shown)
            show(binding, value);
    }
}

void SettingsBinder::show(Binding& binding, const QVariant& value)
{
    binding.shown = value;
    if (binding.control)
        binding.control->setProperty(binding.shownProperty.constData(), value);
}

QStringList SettingsBinder::paths() const
{
    QStringList paths;
    for (const Binding& binding : m_bindings)
        paths.append(QString::fromLatin1(binding.setting.name()));
    paths.removeDuplicates();
    paths.sort();
    return paths;
}

} // namespace quindle

#include "moc_SettingsBinder.cpp"
