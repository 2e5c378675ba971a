#ifndef BENCHCLOCK_H
#define BENCHCLOCK_H

#include <QVector>
#include <QtGlobal>

// Collects the times of repeated runs of one piece of work. The tables print
// the fastest: on a machine shared with other builds a run can only be
// slowed down by them, never sped up, so the fastest is the least disturbed.
class BenchClock
{
public:
    void add(qint64 nanoseconds) { m_samples.append(nanoseconds); }
    int count() const { return m_samples.size(); }
    qint64 minimum() const;

private:
    QVector<qint64> m_samples;
};

#endif // BENCHCLOCK_H
