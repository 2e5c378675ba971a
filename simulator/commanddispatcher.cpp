#include "commanddispatcher.h"

#include "faultinjector.h"
#include "metacommands.h"
#include "parametertable.h"
#include "settingrules.h"
#include "simulationclock.h"
#include "targetsearch.h"

#include <QThread>

namespace sim
{

using Kind = SimulatedController::LogEntry::Kind;

CommandDispatcher::CommandDispatcher(ParameterTable &table, SettingRules &rules, MetaCommands &meta,
    TargetSearch &search, SimulationClock &clock, FaultInjector &injector)
    : m_table(table)
    , m_rules(rules)
    , m_meta(meta)
    , m_search(search)
    , m_clock(clock)
    , m_injector(injector)
{
}

CommandDispatcher::Answer CommandDispatcher::answer(Kind kind, const QString &text)
{
    if (m_latency > 0) {
        QThread::msleep(ulong(m_latency));
        m_clock.advance(m_latency);
    }
    m_search.update(m_clock.now());
    const QString command = text.trimmed();

    FaultInjector::Injection injection;
    if (m_injector.take(command, kind == Kind::Setting, &injection)) {
        if (injection.fails)
            return { injection.result, QByteArray(), false, QStringLiteral("injected failure") };
        return { 0, injection.reply, injection.unterminated, QString() };
    }

    switch (kind) {
    case Kind::Command:
        return { 0, m_meta.execute(command, m_clock.now()).toLatin1(), false, QString() };
    case Kind::Setting: {
        QString error;
        switch (m_rules.apply(command, &error)) {
        case SettingRules::Accepted:
            return {};
        case SettingRules::UnknownParameter:
            return { SimulatedController::UnknownParameter, QByteArray(), false, error };
        case SettingRules::InvalidValue:
            return { SimulatedController::InvalidValue, QByteArray(), false, error };
        case SettingRules::Refused:
            return { SimulatedController::Refused, QByteArray(), false, error };
        }
        return {};
    }
    default:
        if (!m_table.contains(command))
            return { SimulatedController::UnknownParameter, QByteArray(), false,
                QStringLiteral("unknown parameter") };
        return { 0, m_table.value(command).toLatin1(), false, QString() };
    }
}

} // namespace sim
