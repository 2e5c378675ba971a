#include "benchclock.h"

#include <algorithm>

qint64 BenchClock::minimum() const
{
    return m_samples.isEmpty() ? 0 : *std::min_element(m_samples.cbegin(), m_samples.cend());
}
