#include "application/saved/BackgroundWork.h"

namespace quindle {

BackgroundWork::BackgroundWork()
    : m_here(std::make_unique<QObject>())
    , m_there(std::make_unique<QObject>())
{
    m_there->moveToThread(&m_thread);
    m_thread.start();
}

BackgroundWork::~BackgroundWork()
{
    // After what is already waiting: a change that the user has asked for is not dropped.
    QMetaObject::invokeMethod(
        m_there.get(), [this] { m_thread.quit(); }, Qt::QueuedConnection);
    m_thread.wait();
}

} // namespace quindle
