#include "faultinjector.h"

#include <algorithm>

namespace sim
{

bool FaultInjector::matches(const QString &pattern, const QString &command)
{
    if (pattern.endsWith(QLatin1Char('*')))
        return command.startsWith(pattern.leftRef(pattern.size() - 1));
    return command == pattern;
}

void FaultInjector::clearScenarioInjections()
{
    for (int i = m_injections.size() - 1; i >= 0; --i) {
        if (m_injections.at(i).fromScenario)
            m_injections.removeAt(i);
    }
}

int FaultInjector::lift(const QString &pattern)
{
    const int before = m_injections.size();
    m_injections.erase(
        std::remove_if(m_injections.begin(), m_injections.end(),
            [&pattern](const Injection &injection) { return matches(pattern, injection.pattern); }),
        m_injections.end());
    return before - m_injections.size();
}

bool FaultInjector::take(const QString &command, bool settingOnly, Injection *injection)
{
    for (int i = m_injections.size() - 1; i >= 0; --i) {
        Injection &candidate = m_injections[i];
        // A setting has no reply to replace, only a result to spoil.
        if ((settingOnly && !candidate.fails) || !matches(candidate.pattern, command))
            continue;
        *injection = candidate;
        if (candidate.times > 0 && --candidate.times == 0)
            m_injections.removeAt(i);
        return true;
    }
    return false;
}

} // namespace sim
