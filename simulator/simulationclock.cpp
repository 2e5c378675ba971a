#include "simulationclock.h"

namespace sim
{

SimulationClock::SimulationClock()
{
    m_wall.start();
}

qint64 SimulationClock::now() const
{
    return m_manual ? m_manualNow : m_wall.elapsed() + m_wallOffset;
}

void SimulationClock::setManual(bool manual)
{
    if (manual == m_manual)
        return;
    if (manual)
        m_manualNow = now();
    else
        m_wallOffset = m_manualNow - m_wall.elapsed();
    m_manual = manual;
}

void SimulationClock::advance(qint64 milliseconds)
{
    if (m_manual && milliseconds > 0)
        m_manualNow += milliseconds;
}

} // namespace sim
