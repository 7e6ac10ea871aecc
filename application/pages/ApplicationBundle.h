#pragma once

#include "platform/Bundle.h"

namespace quindle {

/// The application's bundle as its panes see it: by its name alone. The folder that it is installed in has
/// the helper's name, and a pane takes a bundle with that name in its path for the helper's, in which start
/// at login cannot be switched.
class ApplicationBundle : public Bundle
{
public:
    /// `bundle` is the application's own; it must outlive this one.
    explicit ApplicationBundle(const Bundle& bundle)
        : m_bundle(bundle)
    {
    }

    QString path() const override { return QStringLiteral("Quindle.app"); }
    std::optional<QVariantMap> infoDictionary() const override { return m_bundle.infoDictionary(); }
    QString resourcesPath() const override { return m_bundle.resourcesPath(); }

private:
    const Bundle& m_bundle;
};

} // namespace quindle
