#pragma once

#include <utility>

#include <QSizeF>
#include <QString>

namespace quindle {

/// A picture known by its asset name. There is one shared object for each name (see NamedImages), so a size
/// or a template mark that is set once stays with the name. Back ends turn it into pixels.
class Image
{
public:
    explicit Image(QString name)
        : m_name(std::move(name))
    {
    }

    const QString& name() const { return m_name; }

    /// The size in points at which it is shown.
    QSizeF size() const { return m_size; }
    void setSize(QSizeF size) { m_size = size; }

    /// A template image takes the panel's text colour.
    bool isTemplate() const { return m_isTemplate; }
    void setTemplate(bool isTemplate) { m_isTemplate = isTemplate; }

private:
    QString m_name;
    QSizeF m_size;
    bool m_isTemplate = false;
};

} // namespace quindle
