#ifndef BENCHCLOCK_H
#define BENCHCLOCK_H

#include <QVector>
#include <QtGlobal>

// Collects the times of repeated runs of one piece of work. The median is
// what the tables print: a single slow run (a page fault, the machine's other
// core busy) moves it less than it moves the mean.
class BenchClock
{
public:
    void add(qint64 nanoseconds) { m_samples.append(nanoseconds); }
    int count() const { return m_samples.size(); }
    qint64 median() const;
    qint64 minimum() const;

private:
    QVector<qint64> m_samples;
};

#endif // BENCHCLOCK_H
