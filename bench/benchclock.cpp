#include "benchclock.h"

#include <algorithm>

qint64 BenchClock::median() const
{
    if (m_samples.isEmpty())
        return 0;
    QVector<qint64> sorted = m_samples;
    std::sort(sorted.begin(), sorted.end());
    const int middle = sorted.size() / 2;
    return sorted.size() % 2 ? sorted.at(middle) : (sorted.at(middle - 1) + sorted.at(middle)) / 2;
}

qint64 BenchClock::minimum() const
{
    return m_samples.isEmpty() ? 0 : *std::min_element(m_samples.cbegin(), m_samples.cend());
}
