#ifndef TRACKING_SIM_SIMULATIONCLOCK_H
#define TRACKING_SIM_SIMULATIONCLOCK_H

#include <QElapsedTimer>
#include <QtGlobal>

namespace sim
{

// Time as the simulated controller sees it: the wall clock for the demo, a
// clock that only moves when told to for tests. Switching keeps the time
// continuous so that a running search neither jumps nor stalls.
class SimulationClock
{
public:
    SimulationClock();

    qint64 now() const;
    bool isManual() const { return m_manual; }
    void setManual(bool manual);
    // Moves the manual clock; the wall clock moves by itself.
    void advance(qint64 milliseconds);

private:
    QElapsedTimer m_wall;
    qint64 m_wallOffset = 0;
    qint64 m_manualNow = 0;
    bool m_manual = false;
};

} // namespace sim

#endif // TRACKING_SIM_SIMULATIONCLOCK_H
