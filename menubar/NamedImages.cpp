#include "menubar/NamedImages.h"

#include "platform/Image.h"

namespace quindle {

std::shared_ptr<Image> NamedImages::imageNamed(const QString& name)
{
    std::shared_ptr<Image>& image = m_images[name];
    if (!image)
        image = std::make_shared<Image>(name);
    return image;
}

} // namespace quindle
