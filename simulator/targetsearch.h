#ifndef TRACKING_SIM_TARGETSEARCH_H
#define TRACKING_SIM_TARGETSEARCH_H

#include <QString>
#include <QStringList>

namespace sim
{

class LibraryTargets;
class ParameterTable;

// The controller's search of the tracking volume for library targets. It
// runs for a fixed time; the targets that are in the volume are found one
// after another while "status progress" rises from 0 to 1. Nothing ticks:
// the state is brought up to date whenever someone looks.
class TargetSearch
{
public:
    static constexpr int DefaultDuration = 5000;

    TargetSearch(ParameterTable &table, LibraryTargets &targets);

    // What the volume holds and how long a search takes.
    void configure(const QStringList &presentTargets, int durationMs);
    QStringList presentTargets() const { return m_present; }
    int duration() const { return m_duration; }

    bool isRunning() const { return m_running; }
    // Returns an empty text when started, else why not.
    QString start(qint64 now);
    void stop(qint64 now);
    void update(qint64 now);
    // Forget a running search without touching the table (a new scenario).
    void reset() { m_running = false; }

private:
    void setStatus(const QString &active, double progress);

    ParameterTable &m_table;
    LibraryTargets &m_targets;
    QStringList m_present;
    int m_duration = DefaultDuration;
    qint64 m_started = 0;
    bool m_running = false;
};

} // namespace sim

#endif // TRACKING_SIM_TARGETSEARCH_H
