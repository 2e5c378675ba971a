#include "faultinjector.h"

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
