#pragma once

#include <utility>

#include <QSizeF>
#include <QString>

namespace quindle {

/// A picture known by its asset name. There is one shared object for each name (see NamedImages), so a size
/// or a template mark that is set once stays with the name. It holds no pixels: a back end finds them by the
/// name, and shows nothing where there are none. Main thread only.
class Image
{
public:
    explicit Image(QString name)
        : m_name(std::move(name))
    {
    }

    /// The asset's name without folder and suffix; any text.
    const QString& name() const { return m_name; }

    /// The size in points at which it is shown; 0 by 0 until it is set.
    QSizeF size() const { return m_size; }
    void setSize(QSizeF size) { m_size = size; }

    /// A template image takes the panel's text colour.
    /// False until it is set.
    bool isTemplate() const { return m_isTemplate; }
    void setTemplate(bool isTemplate) { m_isTemplate = isTemplate; }

private:
    QString m_name;
    QSizeF m_size;
    bool m_isTemplate = false;
};

} // namespace quindle
