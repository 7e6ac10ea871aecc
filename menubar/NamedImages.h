#pragma once

#include <map>
#include <memory>

#include <QString>

namespace quindle {

class Image;

/// Images by name, one shared object for each: what is set on it once (size, template mark) is there again
/// the next time the name is asked for.
class NamedImages
{
public:
    std::shared_ptr<Image> imageNamed(const QString& name);

private:
    std::map<QString, std::shared_ptr<Image>> m_images;
};

} // namespace quindle
