#include "ui/guiyield.h"

#include <QCoreApplication>

namespace tf::ui {

bool EventLoopYield::yield()
{
    if (m_last.elapsed() < 30)
        return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    m_last.restart();
    return false;
}

} // namespace tf::ui
