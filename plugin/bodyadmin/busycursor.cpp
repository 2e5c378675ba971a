#include "busycursor.h"

#include <QCursor>
#include <QGuiApplication>

BusyCursor::BusyCursor()
{
    m_elapsed.start();
}

BusyCursor::~BusyCursor()
{
    if (m_shown)
        QGuiApplication::restoreOverrideCursor();
}

void BusyCursor::poll()
{
    if (m_shown || m_elapsed.elapsed() < Delay)
        return;
    m_shown = true;
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
}
