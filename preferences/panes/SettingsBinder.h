#pragma once

#include <vector>

#include <QMetaProperty>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariant>
#include <QWidget>

namespace quindle {

class BoundSettings;

/// Fills the controls of an interface file from the settings. A control's dynamic property "keyPath" names
/// the property of BoundSettings that it shows in its USER property, or in the one that "keyPathProperty"
/// names. It only fills: what the user does is stored by whoever handles the control's signals.
class SettingsBinder : public QObject
{
    Q_OBJECT

public:
    /// Fills every control below `root` that has a key path, now and whenever its setting changes. The
    /// settings must outlive the binder; controls may go earlier.
    SettingsBinder(QWidget& root, BoundSettings& settings, QObject* parent = nullptr);

    /// Fills every control anew, also one that shows a change which could not be stored.
    void fill();

    /// Every key path that is bound, in alphabetical order.
    QStringList paths() const;

    /// The key paths that name no setting.
    QStringList unresolved() const { return m_unresolved; }

private:
    struct Binding
    {
        QPointer<QWidget> control;
        QByteArray shownProperty;
        QMetaProperty setting;
        QVariant shown;
    };

    void bind(QWidget& control);
    void show(Binding& binding, const QVariant& value);
    void showChanges();

    BoundSettings& m_settings;
    std::vector<Binding> m_bindings;
    QStringList m_unresolved;
};

} // namespace quindle
