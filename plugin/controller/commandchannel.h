#ifndef TRACKING_COMMANDCHANNEL_H
#define TRACKING_COMMANDCHANNEL_H

#include "commandtext.h"
#include "versiongate.h"

#include <QString>

class IOManager;
class MessageReceiver;
struct BackendVersions;

// The module's side of the controller link: sends one command at a time
// through the host's IOManager, turns replies into Qt values and reports
// failures to the host's message log.
//
// Every command operation returns the IOManager's result: 0 on success, any
// other value on failure. On failure the value is set to a neutral value
// (empty text, 0, false) so that callers can go on with it. Command texts are
// complete: the channel passes them through "%s", never as a format.
//
// Every read goes to the controller: nothing is remembered here, since any
// other module or the operator at the controller may change a value between
// two reads. Replies reach callers as the controller wrote them; only where a text leaves the
// module, in a command or a request to another module, are line breaks made blanks, so that no
// reply can end a line early.
class CommandChannel
{
public:
    static constexpr int Failed = -1; // result when there is no IOManager

    CommandChannel(IOManager *ioManager, const BackendVersions *versions);

    IOManager *ioManager() const { return m_io; }
    const BackendVersions *backendVersions() const { return m_versions; }
    const VersionGate &gate() const { return m_gate; }
    bool atLeast(int major, int minor) const { return m_gate.atLeast(major, minor); }

    int getString(const QString &path, QString *value) const;
    int getInt(const QString &path, int *value) const;
    // A count that sizes a list: a negative reply means an empty list.
    int getCount(const QString &path, int *count) const;
    int getDouble(const QString &path, double *value) const;
    int getBool(const QString &path, bool *value) const;
    int setParameter(const QString &command) const;
    // Meta commands ("velora2 ..."); reply may be null.
    int sendCommand(const QString &command, QString *reply = nullptr) const;
    // A meta command whose outcome counts: the result is 0 only when the
    // channel succeeded and the reply is exactly "velora2 ok".
    int sendMetaCommand(const QString &command) const;
    void setReplyTimeout(int reserved1, int milliseconds, int reserved2) const;

    // Error and notice reports to the host's message log.
    void report(const QString &text) const;
    // Requests to other modules; the text goes out as Latin-1.
    void sendMessage(const char *receiver, const char *sender, const QString &text) const;
    void registerReceiver(const char *name, MessageReceiver *receiver) const;
    void unregisterReceiver(const char *name, MessageReceiver *receiver) const;

    // Getters returning the value alone, for callers that only need the
    // neutral value on failure.
    QString stringOf(const QString &path) const;

private:
    QByteArray outgoing(const QString &text) const;
    template<typename Value, typename Read>
    int read(const QString &path, Value *value, Read ioRead) const;

    IOManager *m_io;
    const BackendVersions *m_versions;
    VersionGate m_gate;
};

#endif // TRACKING_COMMANDCHANNEL_H
