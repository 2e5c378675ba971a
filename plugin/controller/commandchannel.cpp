#include "commandchannel.h"

#include <iomanager.h>

namespace
{

// A reply buffer that is terminated whatever the channel wrote into it.
class ReplyBuffer
{
public:
    ReplyBuffer() { m_data[0] = '\0'; }
    char *data() { return m_data; }
    // The reply up to its zero byte, or the buffer's end, as it came: a reply
    // with a stray control character is no "yes" and no "velora2 ok".
    QString text()
    {
        m_data[IOManager::ReplyBufferSize - 1] = '\0';
        return QString::fromLatin1(m_data);
    }

private:
    char m_data[IOManager::ReplyBufferSize];
};

constexpr const char *ReportReceiver = "standard";
constexpr const char *ReportSender = "VELORA4";
constexpr int ReportLevel = 1;

} // namespace

CommandChannel::CommandChannel(IOManager *ioManager, const BackendVersions *versions)
    : m_io(ioManager)
    , m_versions(versions)
    , m_gate(versions)
{
}

QByteArray CommandChannel::outgoing(const QString &text) const
{
    // Replies end up in commands ("inertial sensor_handeye <sensor>") and in
    // requests to other modules, and so does what the user types (a body's
    // description); a line break there would end the line early and make the
    // rest a command of its own, a zero byte would cut the command short (a
    // description without its closing quote). No control character leaves.
    QByteArray bytes = text.toLatin1();
    for (char &c : bytes) {
        if (uchar(c) < ' ')
            c = ' ';
    }
    return bytes;
}

// A typed read: the neutral value unless the controller answered.
template<typename Value, typename Read>
int CommandChannel::read(const QString &path, Value *value, Read ioRead) const
{
    *value = Value();
    if (!m_io)
        return Failed;
    Value reply = Value();
    const int result = ioRead(outgoing(path).constData(), &reply);
    if (result == 0)
        *value = reply;
    return result;
}

int CommandChannel::getString(const QString &path, QString *value) const
{
    return read(path, value, [this](const char *command, QString *reply) {
        ReplyBuffer buffer;
        const int result = m_io->getString(buffer.data(), "%s", command);
        *reply = buffer.text();
        return result;
    });
}

int CommandChannel::getInt(const QString &path, int *value) const
{
    return read(path, value, [this](const char *command, int *reply) {
        qint32 number = 0;
        const int result = m_io->getInt(&number, "%s", command);
        *reply = number;
        return result;
    });
}

int CommandChannel::getCount(const QString &path, int *count) const
{
    const int result = getInt(path, count);
    *count = qMax(*count, 0);
    return result;
}

int CommandChannel::getDouble(const QString &path, double *value) const
{
    return read(path, value, [this](const char *command, double *reply) {
        return m_io->getDouble(reply, "%s", command);
    });
}

int CommandChannel::getBool(const QString &path, bool *value) const
{
    return read(path, value,
        [this](const char *command, bool *reply) { return m_io->getBool(reply, "%s", command); });
}

int CommandChannel::setParameter(const QString &command) const
{
    if (!m_io)
        return Failed;
    return m_io->setParameter("%s", outgoing(command).constData());
}

int CommandChannel::sendCommand(const QString &command, QString *reply) const
{
    if (reply)
        reply->clear();
    if (!m_io)
        return Failed;
    ReplyBuffer buffer;
    const int result = m_io->sendCommand(buffer.data(), "%s", outgoing(command).constData());
    if (reply && result == 0)
        *reply = buffer.text();
    return result;
}

int CommandChannel::sendMetaCommand(const QString &command) const
{
    QString reply;
    const int result = sendCommand(command, &reply);
    if (result != 0)
        return result;
    return CommandText::isMetaOk(reply) ? 0 : Failed;
}

void CommandChannel::setReplyTimeout(int reserved1, int milliseconds, int reserved2) const
{
    if (m_io)
        m_io->setReplyTimeout(reserved1, milliseconds, reserved2);
}

void CommandChannel::report(const QString &text) const
{
    // The message log takes lines of its own (a parse error names its line
    // and column on the next one).
    if (m_io)
        m_io->sendMessage(ReportReceiver, ReportSender, ReportLevel, text.toLatin1().constData());
}

void CommandChannel::sendMessage(
    const char *receiver, const char *sender, const QString &text) const
{
    if (!m_io)
        return;
    m_io->sendMessage(receiver, sender, ReportLevel, outgoing(text).constData());
}

void CommandChannel::registerReceiver(const char *name, MessageReceiver *receiver) const
{
    if (m_io)
        m_io->registerReceiver(name, receiver);
}

void CommandChannel::unregisterReceiver(const char *name, MessageReceiver *receiver) const
{
    if (m_io)
        m_io->unregisterReceiver(name, receiver);
}

QString CommandChannel::stringOf(const QString &path) const
{
    QString value;
    getString(path, &value);
    return value;
}
