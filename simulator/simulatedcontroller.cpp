#include "simulatedcontroller.h"

#include "bodymodel.h"
#include "commanddispatcher.h"
#include "faultinjector.h"
#include "hostchannel.h"
#include "librarytargets.h"
#include "metacommands.h"
#include "parametertable.h"
#include "receiverregistry.h"
#include "scenario.h"
#include "settingrules.h"
#include "simulationclock.h"
#include "targetsearch.h"
#include "transcriptcheck.h"

#include <QDir>
#include <QFile>
#include <QHash>

#include <cstdarg>
#include <utility>

// The scenarios are compiled into this static library; its users do not
// know about them, so the controller registers them itself (from outside
// the namespace, as Q_INIT_RESOURCE requires).
static void initSimulatorResources()
{
    static bool done = false;
    if (!done) {
        Q_INIT_RESOURCE(simulator);
        done = true;
    }
}

namespace sim
{

class SimulatedController::Private
{
public:
    explicit Private(SimulatedController *owner)
        : q(owner)
        , bodies(table)
        , targets(table)
        , search(table, targets)
        , rules(table, bodies)
        , meta(table, bodies, targets, search)
        , dispatcher(table, rules, meta, search, clock, injector)
    {
    }

    void catchUp() { search.update(clock.now()); }
    int textExchange(LogEntry::Kind kind, const char *operation, const QString &text, char *reply);
    template<typename T, typename Parse, typename Show>
    int typedExchange(const char *operation, const QString &text, T *value, Parse parse, Show show);
    void record(LogEntry entry);
    static bool isCommand(const LogEntry &entry)
    {
        return entry.kind == LogEntry::Command || entry.kind == LogEntry::Query
            || entry.kind == LogEntry::Setting;
    }
    QStringList checkCounts(const Scenario &scenario, const QString &name) const;
    // Replaces the table, the versions, the search and the scenario's
    // injections with those of scenario.
    bool take(const Scenario &scenario, const QString &name, QStringList *errors);

    SimulatedController *q;
    ParameterTable table;
    BodyModel bodies;
    LibraryTargets targets;
    TargetSearch search;
    SettingRules rules;
    MetaCommands meta;
    SimulationClock clock;
    FaultInjector injector;
    CommandDispatcher dispatcher;
    BackendVersions versions;
    QString note;
    QList<LogEntry> log;
    ReceiverRegistry receivers;
    TranscriptCheck transcript;
    int replyTimeout = 0;
};

int SimulatedController::Private::textExchange(
    LogEntry::Kind kind, const char *operation, const QString &text, char *reply)
{
    const CommandDispatcher::Answer answer = dispatcher.answer(kind, text);
    QByteArray written;
    if (answer.result == 0)
        written = HostChannel::writeReply(reply, answer.reply, answer.unterminated);
    else if (reply)
        reply[0] = '\0';
    LogEntry entry;
    entry.kind = kind;
    entry.operation = QLatin1String(operation);
    entry.text = text;
    entry.reply = QString::fromLatin1(written);
    entry.result = answer.result;
    entry.error = answer.error;
    record(entry);
    return answer.result;
}

template<typename T, typename Parse, typename Show>
int SimulatedController::Private::typedExchange(
    const char *operation, const QString &text, T *value, Parse parse, Show show)
{
    CommandDispatcher::Answer answer = dispatcher.answer(LogEntry::Query, text);
    LogEntry entry;
    entry.kind = LogEntry::Query;
    entry.operation = QLatin1String(operation);
    entry.text = text;
    if (answer.result == 0) {
        // The channel reads the reply out of its own buffer first.
        const QString reply = QString::fromLatin1(HostChannel::readable(
            HostChannel::writeReply(nullptr, answer.reply, answer.unterminated)));
        T parsed {};
        if (parse(reply, &parsed)) {
            if (value)
                *value = parsed;
            entry.reply = show(parsed);
        } else {
            answer.result = InvalidValue;
            entry.error
                = QStringLiteral("%1 cannot read \"%2\"").arg(QLatin1String(operation), reply);
        }
    } else {
        entry.error = answer.error;
    }
    entry.result = answer.result;
    record(entry);
    return answer.result;
}

void SimulatedController::Private::record(LogEntry entry)
{
    log.append(entry);
    if (isCommand(entry))
        transcript.sent(entry.text);
    // A copy: a listener may clear the log while others still read the entry.
    emit q->logged(entry);
}

// The two names of a type's count must agree, or the module would see two
// different controllers depending on which one it asks.
QStringList SimulatedController::Private::checkCounts(
    const Scenario &scenario, const QString &name) const
{
    QStringList errors;
    const QMap<QString, QString> &parameters = scenario.parameters();
    const QStringList types = BodyModel::types();
    for (const QString &type : types) {
        const QStringList paths = BodyModel::countPaths(type);
        for (const QString &path : paths) {
            if (!parameters.contains(path))
                continue;
            bool number = false;
            const int count = parameters.value(path).toInt(&number);
            if (!number || count < 0 || count > BodyModel::MaxBodyNumber)
                errors << QStringLiteral("%1:%2: \"%3\" must be a count from 0 to %4")
                              .arg(name)
                              .arg(scenario.lineOf(path))
                              .arg(path)
                              .arg(BodyModel::MaxBodyNumber);
        }
        for (int i = 1; i < paths.size(); ++i) {
            if (!parameters.contains(paths.at(0)) || !parameters.contains(paths.at(i))
                || parameters.value(paths.at(0)) == parameters.value(paths.at(i)))
                continue;
            const QString later = scenario.lineOf(paths.at(0)) > scenario.lineOf(paths.at(i))
                ? paths.at(0)
                : paths.at(i);
            errors << QStringLiteral("%1:%2: \"%3\" and \"%4\" disagree")
                          .arg(name)
                          .arg(scenario.lineOf(later))
                          .arg(paths.at(0), paths.at(i));
        }
    }
    return errors;
}

SimulatedController::SimulatedController(QObject *parent)
    : QObject(parent)
    , d(new Private(this))
{
    initSimulatorResources();
    qRegisterMetaType<SimulatedController::LogEntry>();
    loadScenario(defaultScenario());
}

SimulatedController::~SimulatedController()
{
    delete d;
}

QString SimulatedController::defaultScenario()
{
    return QStringLiteral(":/scenarios/default.scn");
}

QStringList SimulatedController::builtInScenarios()
{
    initSimulatorResources();
    QStringList scenarios;
    const QDir folder(QStringLiteral(":/scenarios"));
    const QStringList names
        = folder.entryList({ QStringLiteral("*.scn") }, QDir::Files, QDir::Name);
    for (const QString &name : names)
        scenarios << folder.filePath(name);
    return scenarios;
}

bool SimulatedController::loadScenario(const QString &fileName, QStringList *errors)
{
    initSimulatorResources();
    // The built-in scenarios never change, and the tests and fuzzers load
    // them thousands of times: each is parsed once.
    static QHash<QString, Scenario> builtIn;
    const bool isBuiltIn = fileName.startsWith(QLatin1String(":/"));
    if (isBuiltIn && builtIn.contains(fileName))
        return d->take(builtIn[fileName], fileName, errors);
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        if (errors)
            *errors << QStringLiteral("%1: cannot be read: %2").arg(fileName, file.errorString());
        return false;
    }
    Scenario scenario;
    scenario.parse(QString::fromUtf8(file.readAll()), fileName);
    if (isBuiltIn)
        builtIn.insert(fileName, scenario);
    return d->take(scenario, fileName, errors);
}

bool SimulatedController::loadScenarioText(
    const QString &text, const QString &name, QStringList *errors)
{
    Scenario scenario;
    scenario.parse(text, name);
    return d->take(scenario, name, errors);
}

bool SimulatedController::Private::take(
    const Scenario &scenario, const QString &name, QStringList *errors)
{
    QStringList problems = scenario.errors();
    problems += checkCounts(scenario, name);

    table.replace(scenario.parameters());
    versions.systemVersion = scenario.versions().systemVersion;
    versions.backendVersion = scenario.versions().backendVersion;
    versions.systemType = scenario.versions().systemType;
    search.reset();
    search.configure(scenario.presentTargets(), scenario.searchDuration());
    injector.clearScenarioInjections();
    for (const FaultInjector::Injection &injection : scenario.injections())
        injector.add(injection);
    note = scenario.note();

    if (errors)
        *errors += problems;
    return problems.isEmpty();
}

BackendVersions &SimulatedController::backendVersions()
{
    return d->versions;
}

QString SimulatedController::value(const QString &path) const
{
    d->catchUp();
    return d->table.value(path);
}

bool SimulatedController::contains(const QString &path) const
{
    return d->table.contains(path);
}

void SimulatedController::setValue(const QString &path, const QString &value)
{
    d->table.set(path, value);
}

void SimulatedController::removeValue(const QString &path)
{
    d->table.remove(path);
}

QMap<QString, QString> SimulatedController::parameters() const
{
    d->catchUp();
    return d->table.values();
}

const QList<SimulatedController::LogEntry> &SimulatedController::log() const
{
    return d->log;
}

QStringList SimulatedController::commands() const
{
    QStringList texts;
    for (const LogEntry &entry : std::as_const(d->log)) {
        if (Private::isCommand(entry))
            texts << entry.text;
    }
    return texts;
}

QString SimulatedController::commandsAsCode() const
{
    return TranscriptCheck::asCode(commands());
}

QStringList SimulatedController::messages() const
{
    QStringList texts;
    for (const LogEntry &entry : std::as_const(d->log)) {
        if (entry.kind == LogEntry::Message && entry.operation == QLatin1String("sendMessage"))
            texts << entry.text;
    }
    return texts;
}

QStringList SimulatedController::reports() const
{
    QStringList texts;
    for (const LogEntry &entry : std::as_const(d->log)) {
        if (entry.kind == LogEntry::Message && entry.operation == QLatin1String("sendMessage")
            && entry.receiver == QLatin1String("standard"))
            texts << entry.text;
    }
    return texts;
}

void SimulatedController::clearLog()
{
    d->log.clear();
}

void SimulatedController::expectTranscript(const QStringList &commands)
{
    d->transcript.expect(commands);
}

QString SimulatedController::transcriptMismatch() const
{
    return d->transcript.mismatch();
}

void SimulatedController::endTranscript()
{
    d->transcript.end();
}

void SimulatedController::failCommand(const QString &pattern, int result, int times)
{
    if (times == 0)
        return;
    FaultInjector::Injection injection;
    injection.pattern = pattern;
    injection.fails = true;
    injection.result = result;
    injection.times = times;
    d->injector.add(injection);
}

void SimulatedController::replaceReply(
    const QString &pattern, const QByteArray &reply, int times, bool unterminated)
{
    if (times == 0)
        return;
    FaultInjector::Injection injection;
    injection.pattern = pattern;
    injection.reply = reply;
    injection.unterminated = unterminated;
    injection.times = times;
    d->injector.add(injection);
}

void SimulatedController::setLatency(int milliseconds)
{
    d->dispatcher.setLatency(milliseconds);
}

void SimulatedController::clearInjections()
{
    d->injector.clear();
}

int SimulatedController::replyTimeout() const
{
    return d->replyTimeout;
}

void SimulatedController::setManualClock(bool manual)
{
    d->clock.setManual(manual);
}

void SimulatedController::advanceClock(int milliseconds)
{
    d->clock.advance(milliseconds);
    d->catchUp();
}

void SimulatedController::setReplyTimeout(int reserved1, int milliseconds, int reserved2)
{
    d->replyTimeout = milliseconds;
    LogEntry entry;
    entry.kind = LogEntry::ReplyTimeout;
    entry.operation = QStringLiteral("setReplyTimeout");
    entry.text = QStringLiteral("%1 %2 %3").arg(reserved1).arg(milliseconds).arg(reserved2);
    d->record(entry);
}

int SimulatedController::sendCommand(char *reply, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const QString text = HostChannel::format(format, args);
    va_end(args);
    return d->textExchange(LogEntry::Command, "sendCommand", text, reply);
}

int SimulatedController::getString(char *reply, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const QString text = HostChannel::format(format, args);
    va_end(args);
    return d->textExchange(LogEntry::Query, "getString", text, reply);
}

int SimulatedController::getInt(qint32 *value, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const QString text = HostChannel::format(format, args);
    va_end(args);
    return d->typedExchange("getInt", text, value, ParameterTable::toInt,
        [](qint32 number) { return QString::number(number); });
}

int SimulatedController::getDouble(double *value, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const QString text = HostChannel::format(format, args);
    va_end(args);
    return d->typedExchange("getDouble", text, value, ParameterTable::toDouble,
        [](double number) { return QString::number(number); });
}

int SimulatedController::getBool(bool *value, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const QString text = HostChannel::format(format, args);
    va_end(args);
    return d->typedExchange("getBool", text, value, ParameterTable::toBool,
        [](bool flag) { return flag ? QStringLiteral("true") : QStringLiteral("false"); });
}

int SimulatedController::setParameter(const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const QString text = HostChannel::format(format, args);
    va_end(args);
    return d->textExchange(LogEntry::Setting, "setParameter", text, nullptr);
}

void SimulatedController::sendMessage(
    const char *receiver, const char *sender, int level, const char *text)
{
    LogEntry entry;
    entry.kind = LogEntry::Message;
    entry.operation = QStringLiteral("sendMessage");
    entry.text = QString::fromLatin1(text);
    entry.receiver = QString::fromLatin1(receiver);
    entry.sender = QString::fromLatin1(sender);
    entry.level = level;
    d->record(entry);
    d->receivers.deliver(receiver, sender, text);
}

void SimulatedController::registerReceiver(const char *name, MessageReceiver *receiver)
{
    const QString receiverName = QString::fromLatin1(name);
    LogEntry entry;
    entry.kind = LogEntry::Message;
    entry.operation = QStringLiteral("registerReceiver");
    entry.receiver = receiverName;
    d->record(entry);
    d->receivers.add(receiverName, receiver);
}

void SimulatedController::unregisterReceiver(const char *name, MessageReceiver *receiver)
{
    const QString receiverName = QString::fromLatin1(name);
    LogEntry entry;
    entry.kind = LogEntry::Message;
    entry.operation = QStringLiteral("unregisterReceiver");
    entry.receiver = receiverName;
    d->record(entry);
    d->receivers.remove(receiverName, receiver);
}

bool SimulatedController::takeScenarioLine(const QString &line, QString *error)
{
    Scenario scenario;
    if (!scenario.parse(line, QStringLiteral("line"))) {
        if (error)
            *error = scenario.errors().first().section(QLatin1String(": "), 1);
        return false;
    }
    for (const QString &pattern : scenario.lifted()) {
        if (d->injector.lift(pattern) == 0) {
            if (error)
                *error = QStringLiteral("no @fail or @reply matches %1").arg(pattern);
            return false;
        }
    }
    const QMap<QString, QString> &parameters = scenario.parameters();
    for (auto it = parameters.cbegin(); it != parameters.cend(); ++it)
        d->table.set(it.key(), it.value());
    if (scenario.has(QStringLiteral("@note")))
        d->note = scenario.note();
    const BackendVersions &versions = scenario.versions();
    if (scenario.has(QStringLiteral("@backend-version")))
        d->versions.backendVersion = versions.backendVersion;
    if (scenario.has(QStringLiteral("@system-version")))
        d->versions.systemVersion = versions.systemVersion;
    if (scenario.has(QStringLiteral("@system-type")))
        d->versions.systemType = versions.systemType;
    if (scenario.has(QStringLiteral("@present"))
        || scenario.has(QStringLiteral("@search-duration")))
        d->search.configure(scenario.has(QStringLiteral("@present")) ? scenario.presentTargets()
                                                                     : d->search.presentTargets(),
            scenario.searchDuration() > 0 ? scenario.searchDuration() : d->search.duration());
    for (const FaultInjector::Injection &injection : scenario.injections())
        d->injector.add(injection);
    return true;
}

QString SimulatedController::scenarioNote() const
{
    return d->note;
}

QString SimulatedController::scenarioText() const
{
    d->catchUp();
    const auto version = [](const BackendVersions::Version &v) {
        return QStringLiteral("%1.%2.%3").arg(v.major).arg(v.minor).arg(v.patch);
    };
    QStringList lines { QStringLiteral(
                            "# The simulated controller's state, saved by the demo host"),
        QStringLiteral("@backend-version ") + version(d->versions.backendVersion),
        QStringLiteral("@system-version ") + version(d->versions.systemVersion) };
    if (!d->versions.systemType.isEmpty())
        lines << QStringLiteral("@system-type ") + d->versions.systemType;
    if (!d->note.isEmpty())
        lines << QStringLiteral("@note ") + d->note;
    if (!d->search.presentTargets().isEmpty())
        lines << QStringLiteral("@present ") + d->search.presentTargets().join(QLatin1Char(' '));
    lines << QStringLiteral("@search-duration %1").arg(d->search.duration());
    for (const FaultInjector::Injection &injection : d->injector.injections()) {
        if (!injection.fromScenario)
            continue;
        lines << (injection.fails
                ? QStringLiteral("@fail ") + injection.pattern
                : QStringLiteral("@reply %1 = %2")
                      .arg(injection.pattern, QString::fromLatin1(injection.reply)));
    }
    const QMap<QString, QString> &values = d->table.values();
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        lines << it.key() + QStringLiteral(" = ") + it.value();
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

} // namespace sim
