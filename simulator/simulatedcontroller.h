#ifndef TRACKING_SIM_SIMULATEDCONTROLLER_H
#define TRACKING_SIM_SIMULATEDCONTROLLER_H

#include <backendversions.h>
#include <iomanager.h>

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

namespace sim
{

// A tracking controller in software: an IOManager that answers from a table
// of controller parameters (path -> value text), changes that table the way a
// real controller would, and records every exchange.
//
// Tests, the demo host, the benchmarks and the fuzzers all use it; it is the
// only stand-in for the host and the controller that the project has.
class SimulatedController : public QObject, public IOManager
{
    Q_OBJECT

public:
    struct LogEntry {
        // ReplyTimeout: setReplyTimeout was called.
        enum Kind { Command, Query, Setting, Message, ReplyTimeout };
        Kind kind = Command;
        QString operation; // "sendCommand", "getString", ..., "sendMessage"
        QString text; // the formatted command, or the message text
        QString reply; // reply text as written into the buffer, or the typed value
        int result = 0; // what the operation returned
        QString receiver; // messages only
        QString sender; // messages only
        int level = 0; // messages only
        QString error; // why the controller refused, when it did
    };

    // Results of a refused command (0 is success; injected failures return
    // whatever they were given).
    enum Failure {
        UnknownParameter = 1, // no such path, or not a meta command the channel knows
        InvalidValue = 2, // the value does not fit the parameter, or a reply is no number
        Refused = 3 // read-only, or the configuration is locked
    };

    explicit SimulatedController(QObject *parent = nullptr);
    ~SimulatedController() override;

    // Scenarios. The built-in ones live in the resources as ":/scenarios/NAME.scn".
    static QString defaultScenario();
    static QStringList builtInScenarios();
    // Replaces the parameter table and the versions with those of the file.
    // Every bad line is reported in errors as "FILE:LINE: reason"; the good
    // lines are still taken. Returns false when the file could not be read
    // or had a bad line.
    bool loadScenario(const QString &fileName, QStringList *errors = nullptr);
    bool loadScenarioText(const QString &text, const QString &name, QStringList *errors = nullptr);

    BackendVersions &backendVersions();

    // One scenario line taken on top of the current state, as an operator
    // would type it: "PATH = VALUE" sets a parameter, a directive applies.
    // Returns false with the reason in error for a bad line.
    bool takeScenarioLine(const QString &line, QString *error = nullptr);
    // The scenario's @note: what it is for, for a host to show; empty when none.
    QString scenarioNote() const;
    // The current state as a scenario that loads back to the same state
    // (the search in progress and injections made through the API aside).
    QString scenarioText() const;

    // Direct access to the parameter table (no log, no injected failures).
    QString value(const QString &path) const;
    bool contains(const QString &path) const;
    void setValue(const QString &path, const QString &value);
    void removeValue(const QString &path);
    QMap<QString, QString> parameters() const;

    // What was exchanged, in order.
    const QList<LogEntry> &log() const;
    QStringList commands() const; // texts of every command and query, in order
    // commands() as C++ string literals, one a line: run a flow once and
    // paste this as its expected transcript.
    QString commandsAsCode() const;
    QStringList messages() const; // texts of every sendMessage, in order
    QStringList reports() const; // texts sent to the message log ("standard")
    void clearLog();

    // Strict mode: from now on every command and query (the texts commands()
    // lists) must be the next of these lines; a line ending in '*' matches
    // any command that begins with the rest. Commands are still answered as
    // usual, so a flow runs on past a difference. clearLog() leaves the
    // comparison alone; a new expectation starts it over.
    void expectTranscript(const QStringList &commands);
    // Empty while everything sent matches and nothing expected is missing;
    // otherwise names the first difference, with the commands around it.
    QString transcriptMismatch() const;
    // Leaves strict mode and forgets the expectation.
    void endTranscript();

    // Fault injection. A pattern is an exact command text, or a prefix when it
    // ends with '*'. times < 0 means for every matching command.
    void failCommand(const QString &pattern, int result = 1, int times = -1);
    // The reply is written as given (cut to the reply buffer), without
    // changing the table; for getInt/getDouble/getBool it is parsed as the
    // controller's reply would be. unterminated fills the whole buffer
    // without a terminating zero. Settings have no reply to replace.
    void replaceReply(
        const QString &pattern, const QByteArray &reply, int times = -1, bool unterminated = false);
    void setLatency(int milliseconds);
    void clearInjections();
    // The middle value of the last setReplyTimeout; 0 until one is set.
    int replyTimeout() const;

    // The target search progresses with time. Tests switch to a manual clock
    // and advance it; the demo uses the wall clock.
    void setManualClock(bool manual);
    void advanceClock(int milliseconds);

    // IOManager
    void setReplyTimeout(int reserved1, int milliseconds, int reserved2) override;
    int sendCommand(char *reply, const char *format, ...) override IOMANAGER_PRINTF(3, 4);
    int getString(char *reply, const char *format, ...) override IOMANAGER_PRINTF(3, 4);
    int getInt(qint32 *value, const char *format, ...) override IOMANAGER_PRINTF(3, 4);
    int getDouble(double *value, const char *format, ...) override IOMANAGER_PRINTF(3, 4);
    int getBool(bool *value, const char *format, ...) override IOMANAGER_PRINTF(3, 4);
    int setParameter(const char *format, ...) override IOMANAGER_PRINTF(2, 3);
    void sendMessage(
        const char *receiver, const char *sender, int level, const char *text) override;
    void registerReceiver(const char *name, MessageReceiver *receiver) override;
    void unregisterReceiver(const char *name, MessageReceiver *receiver) override;

signals:
    void logged(const SimulatedController::LogEntry &entry);

private:
    class Private;
    Private *d;
};

} // namespace sim

Q_DECLARE_METATYPE(sim::SimulatedController::LogEntry)

#endif // TRACKING_SIM_SIMULATEDCONTROLLER_H
