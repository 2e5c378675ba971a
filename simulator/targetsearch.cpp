#include "targetsearch.h"

#include "librarytargets.h"
#include "parametertable.h"

namespace sim
{

namespace
{

const QString ActivePath = QStringLiteral("status active");
const QString StepPath = QStringLiteral("status step_active");
const QString ProgressPath = QStringLiteral("status progress");
const QString SearchStatus = QStringLiteral("cal targetlib");

} // namespace

TargetSearch::TargetSearch(ParameterTable &table, LibraryTargets &targets)
    : m_table(table)
    , m_targets(targets)
{
}

void TargetSearch::configure(const QStringList &presentTargets, int durationMs)
{
    m_present = presentTargets;
    m_duration = durationMs > 0 ? durationMs : DefaultDuration;
}

QString TargetSearch::start(qint64 now)
{
    update(now);
    if (m_table.value(QStringLiteral("cal available targetlib")) != QLatin1String("yes"))
        return QStringLiteral("target library calibration not available");
    const QString active = m_table.value(ActivePath);
    if (active != QLatin1String("none") && active != QLatin1String("err"))
        return QStringLiteral("calibration already active");
    m_targets.clearTracked();
    m_started = now;
    m_running = true;
    setStatus(SearchStatus, 0.0);
    return QString();
}

void TargetSearch::stop(qint64 now)
{
    update(now);
    if (!m_running)
        return;
    m_running = false;
    m_table.update(ActivePath, QStringLiteral("none"));
    m_table.update(StepPath, QStringLiteral("none"));
}

void TargetSearch::update(qint64 now)
{
    if (!m_running)
        return;
    const qint64 elapsed = now - m_started;
    const double progress = qBound(0.0, double(elapsed) / m_duration, 1.0);
    // Target i of n is found at (i + 1) / (n + 1) of the time, so each one
    // shows up on its own and the last well before the end.
    const int count = m_present.size();
    for (int i = 0; i < count; ++i) {
        if (progress * (count + 1) >= i + 1)
            m_targets.setTracked(m_present.at(i), true);
    }
    if (elapsed >= m_duration) {
        m_running = false;
        setStatus(QStringLiteral("none"), 1.0);
    } else {
        setStatus(SearchStatus, progress);
    }
}

void TargetSearch::setStatus(const QString &active, double progress)
{
    m_table.update(ActivePath, active);
    m_table.update(StepPath, active);
    m_table.update(ProgressPath, QString::number(progress, 'f', 3));
}

} // namespace sim
