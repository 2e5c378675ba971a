#ifndef TRACKING_SIM_COMMANDDISPATCHER_H
#define TRACKING_SIM_COMMANDDISPATCHER_H

#include "simulatedcontroller.h"

#include <QByteArray>
#include <QString>

namespace sim
{

class FaultInjector;
class MetaCommands;
class ParameterTable;
class SettingRules;
class SimulationClock;
class TargetSearch;

// How the controller answers one command: after its latency, an injected
// fault or reply comes first; then meta commands go to MetaCommands,
// settings to SettingRules and queries to the parameter table. Writing the
// reply and logging the exchange are the caller's.
class CommandDispatcher
{
public:
    struct Answer {
        int result = 0;
        QByteArray reply;
        bool unterminated = false;
        QString error;
    };

    CommandDispatcher(ParameterTable &table, SettingRules &rules, MetaCommands &meta,
        TargetSearch &search, SimulationClock &clock, FaultInjector &injector);

    Answer answer(SimulatedController::LogEntry::Kind kind, const QString &text);
    void setLatency(int milliseconds) { m_latency = qMax(0, milliseconds); }

private:
    ParameterTable &m_table;
    SettingRules &m_rules;
    MetaCommands &m_meta;
    TargetSearch &m_search;
    SimulationClock &m_clock;
    FaultInjector &m_injector;
    int m_latency = 0;
};

} // namespace sim

#endif // TRACKING_SIM_COMMANDDISPATCHER_H
