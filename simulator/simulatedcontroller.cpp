#include "simulatedcontroller.h"

#include "bodymodel.h"
#include "faultinjector.h"
#include "librarytargets.h"
#include "messagereceiver.h"
#include "metacommands.h"
#include "parametertable.h"
#include "scenario.h"
#include "settingrules.h"
#include "simulationclock.h"
#include "targetsearch.h"

#include <QDir>
#include <QFile>
#include <QPair>
#include <QPointer>
#include <QThread>

#include <cstdarg>
#include <cstdio>
#include <cstring>

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

namespace
{

constexpr int BufferSize = IOManager::ReplyBufferSize;

QString formatText(const char *format, va_list args)
{
    if (!format)
        return QString();
    va_list measure;
    va_copy(measure, args);
    const int size = std::vsnprintf(nullptr, 0, format, measure);
    va_end(measure);
    if (size <= 0)
        return QString();
    QByteArray text(size, Qt::Uninitialized); // holds size + 1 bytes with the zero
    std::vsnprintf(text.data(), size_t(size) + 1, format, args);
    return QString::fromLatin1(text);
}

// What a reader of the buffer sees: up to the first zero byte, and never
// beyond the buffer.
QByteArray readable(const QByteArray &written)
{
    const int zero = written.indexOf('\0');
    return zero < 0 ? written : written.left(zero);
}

// Writes a reply the way the host's channel does: never more than the
// buffer, normally cut to leave room for the zero byte.
QByteArray writeReply(char *buffer, const QByteArray &reply, bool unterminated)
{
    QByteArray written;
    if (unterminated) {
        written = reply.left(BufferSize);
        written.append(QByteArray(BufferSize - written.size(), ' '));
    } else {
        written = reply.left(BufferSize - 1);
    }
    if (buffer) {
        std::memcpy(buffer, written.constData(), size_t(written.size()));
        if (!unterminated)
            buffer[written.size()] = '\0';
    }
    return written;
}

} // namespace

class SimulatedController::Private
{
public:
    struct Answer {
        int result = 0;
        QByteArray reply;
        bool unterminated = false;
        QString error;
    };

    explicit Private(SimulatedController *owner)
        : q(owner)
        , bodies(table)
        , targets(table)
        , search(table, targets)
        , rules(table, bodies)
        , meta(table, bodies, targets, search)
    {
    }

    void catchUp() { search.update(clock.now()); }
    Answer exchange(LogEntry::Kind kind, const QString &text);
    int textExchange(LogEntry::Kind kind, const char *operation, const QString &text, char *reply);
    template<typename T, typename Parse, typename Show>
    int typedExchange(const char *operation, const QString &text, T *value, Parse parse, Show show);
    void record(LogEntry entry);
    bool isRegistered(const QString &name, MessageReceiver *receiver) const;
    QStringList checkCounts(const Scenario &scenario, const QString &name) const;

    SimulatedController *q;
    ParameterTable table;
    BodyModel bodies;
    LibraryTargets targets;
    TargetSearch search;
    SettingRules rules;
    MetaCommands meta;
    SimulationClock clock;
    FaultInjector injector;
    BackendVersions versions;
    QString note;
    QList<LogEntry> log;
    struct Registration {
        QString name;
        MessageReceiver *receiver;
        // Set for receivers that are QObjects: a host would call freed
        // memory if one is destroyed while still registered.
        QPointer<QObject> object;
        bool isObject;
        bool operator==(const Registration &other) const
        {
            return name == other.name && receiver == other.receiver;
        }
    };
    QList<Registration> receivers;
    int latency = 0;
    int replyTimeout = 0;
};

SimulatedController::Private::Answer SimulatedController::Private::exchange(
    LogEntry::Kind kind, const QString &text)
{
    if (latency > 0) {
        QThread::msleep(ulong(latency));
        clock.advance(latency);
    }
    catchUp();
    const QString command = text.trimmed();

    FaultInjector::Injection injection;
    if (injector.take(command, kind == LogEntry::Setting, &injection)) {
        if (injection.fails)
            return { injection.result, QByteArray(), false, QStringLiteral("injected failure") };
        return { 0, injection.reply, injection.unterminated, QString() };
    }

    switch (kind) {
    case LogEntry::Command:
        return { 0, meta.execute(command, clock.now()).toLatin1(), false, QString() };
    case LogEntry::Setting: {
        QString error;
        switch (rules.apply(command, &error)) {
        case SettingRules::Accepted:
            return {};
        case SettingRules::UnknownParameter:
            return { UnknownParameter, QByteArray(), false, error };
        case SettingRules::InvalidValue:
            return { InvalidValue, QByteArray(), false, error };
        case SettingRules::Refused:
            return { Refused, QByteArray(), false, error };
        }
        return {};
    }
    default:
        if (!table.contains(command))
            return { UnknownParameter, QByteArray(), false, QStringLiteral("unknown parameter") };
        return { 0, table.value(command).toLatin1(), false, QString() };
    }
}

int SimulatedController::Private::textExchange(
    LogEntry::Kind kind, const char *operation, const QString &text, char *reply)
{
    const Answer answer = exchange(kind, text);
    QByteArray written;
    if (answer.result == 0)
        written = writeReply(reply, answer.reply, answer.unterminated);
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
    Answer answer = exchange(LogEntry::Query, text);
    LogEntry entry;
    entry.kind = LogEntry::Query;
    entry.operation = QLatin1String(operation);
    entry.text = text;
    if (answer.result == 0) {
        // The channel reads the reply out of its own buffer first.
        const QString reply
            = QString::fromLatin1(readable(writeReply(nullptr, answer.reply, answer.unterminated)));
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
    // A copy: a listener may clear the log while others still read the entry.
    emit q->logged(entry);
}

bool SimulatedController::Private::isRegistered(
    const QString &name, MessageReceiver *receiver) const
{
    return receivers.contains({ name, receiver, nullptr, false });
}

// The two names of a type's count must agree, or the module would see two
// different controllers depending on which one it asks.
QStringList SimulatedController::Private::checkCounts(
    const Scenario &scenario, const QString &name) const
{
    QStringList errors;
    const QMap<QString, QString> &parameters = scenario.parameters();
    for (const QString &type : BodyModel::types()) {
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
    for (const QString &name :
        folder.entryList({ QStringLiteral("*.scn") }, QDir::Files, QDir::Name))
        scenarios << folder.filePath(name);
    return scenarios;
}

bool SimulatedController::loadScenario(const QString &fileName, QStringList *errors)
{
    initSimulatorResources();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        if (errors)
            *errors << QStringLiteral("%1: cannot be read: %2").arg(fileName, file.errorString());
        return false;
    }
    return loadScenarioText(QString::fromUtf8(file.readAll()), fileName, errors);
}

bool SimulatedController::loadScenarioText(
    const QString &text, const QString &name, QStringList *errors)
{
    Scenario scenario;
    scenario.parse(text, name);
    QStringList problems = scenario.errors();
    problems += d->checkCounts(scenario, name);

    d->table.replace(scenario.parameters());
    d->versions.systemVersion = scenario.versions().systemVersion;
    d->versions.backendVersion = scenario.versions().backendVersion;
    d->versions.systemType = scenario.versions().systemType;
    d->search.reset();
    d->search.configure(scenario.presentTargets(), scenario.searchDuration());
    d->injector.clearScenarioInjections();
    for (const FaultInjector::Injection &injection : scenario.injections())
        d->injector.add(injection);
    d->note = scenario.note();

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
    for (const LogEntry &entry : d->log) {
        if (entry.kind == LogEntry::Command || entry.kind == LogEntry::Query
            || entry.kind == LogEntry::Setting)
            texts << entry.text;
    }
    return texts;
}

QStringList SimulatedController::messages() const
{
    QStringList texts;
    for (const LogEntry &entry : d->log) {
        if (entry.kind == LogEntry::Message && entry.operation == QLatin1String("sendMessage"))
            texts << entry.text;
    }
    return texts;
}

QStringList SimulatedController::reports() const
{
    QStringList texts;
    for (const LogEntry &entry : d->log) {
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
    d->latency = qMax(0, milliseconds);
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
    const QString text = formatText(format, args);
    va_end(args);
    return d->textExchange(LogEntry::Command, "sendCommand", text, reply);
}

int SimulatedController::getString(char *reply, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const QString text = formatText(format, args);
    va_end(args);
    return d->textExchange(LogEntry::Query, "getString", text, reply);
}

int SimulatedController::getInt(qint32 *value, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const QString text = formatText(format, args);
    va_end(args);
    return d->typedExchange("getInt", text, value, ParameterTable::toInt,
        [](qint32 number) { return QString::number(number); });
}

int SimulatedController::getDouble(double *value, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const QString text = formatText(format, args);
    va_end(args);
    return d->typedExchange("getDouble", text, value, ParameterTable::toDouble,
        [](double number) { return QString::number(number); });
}

int SimulatedController::getBool(bool *value, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const QString text = formatText(format, args);
    va_end(args);
    return d->typedExchange("getBool", text, value, ParameterTable::toBool,
        [](bool flag) { return flag ? QStringLiteral("true") : QStringLiteral("false"); });
}

int SimulatedController::setParameter(const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const QString text = formatText(format, args);
    va_end(args);
    return d->textExchange(LogEntry::Setting, "setParameter", text, nullptr);
}

void SimulatedController::sendMessage(
    const char *receiver, const char *sender, int level, const char *text)
{
    const QString name = QString::fromLatin1(receiver);
    LogEntry entry;
    entry.kind = LogEntry::Message;
    entry.operation = QStringLiteral("sendMessage");
    entry.text = QString::fromLatin1(text);
    entry.receiver = name;
    entry.sender = QString::fromLatin1(sender);
    entry.level = level;
    d->record(entry);

    // A receiver may leave (or make another leave) while it is being
    // called; only those still registered get the message.
    const QList<Private::Registration> receivers = d->receivers;
    for (const Private::Registration &registration : receivers) {
        if (registration.name != name || !d->isRegistered(name, registration.receiver))
            continue;
        if (registration.isObject && !registration.object)
            qFatal("Message \"%s\" to \"%s\" for a receiver that was destroyed while "
                   "registered",
                text ? text : "", receiver);
        registration.receiver->receiveMessage(receiver, sender, text);
    }
}

void SimulatedController::registerReceiver(const char *name, MessageReceiver *receiver)
{
    const QString receiverName = QString::fromLatin1(name);
    LogEntry entry;
    entry.kind = LogEntry::Message;
    entry.operation = QStringLiteral("registerReceiver");
    entry.receiver = receiverName;
    d->record(entry);
    if (receiver && !d->isRegistered(receiverName, receiver)) {
        QObject *object = dynamic_cast<QObject *>(receiver);
        d->receivers.append({ receiverName, receiver, object, object != nullptr });
    }
}

void SimulatedController::unregisterReceiver(const char *name, MessageReceiver *receiver)
{
    const QString receiverName = QString::fromLatin1(name);
    LogEntry entry;
    entry.kind = LogEntry::Message;
    entry.operation = QStringLiteral("unregisterReceiver");
    entry.receiver = receiverName;
    d->record(entry);
    d->receivers.removeAll({ receiverName, receiver, nullptr, false });
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
