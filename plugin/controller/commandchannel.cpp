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
    // The reply up to its zero byte, or the buffer's end. Line breaks and
    // other control characters belong to no value; a reply that carries them
    // is garbled, and they must never find their way into a later command.
    QString text()
    {
        m_data[IOManager::ReplyBufferSize - 1] = '\0';
        QString reply;
        for (const char *c = m_data; *c; ++c) {
            const uchar code = uchar(*c);
            if (code >= 0x20 && code != 0x7f)
                reply.append(QLatin1Char(*c));
        }
        return reply;
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

int CommandChannel::getString(const QString &path, QString *value) const
{
    ReplyBuffer reply;
    const int result
        = m_io ? m_io->getString(reply.data(), "%s", path.toLatin1().constData()) : Failed;
    *value = result == 0 ? reply.text() : QString();
    return result;
}

int CommandChannel::getInt(const QString &path, int *value) const
{
    qint32 reply = 0;
    const int result = m_io ? m_io->getInt(&reply, "%s", path.toLatin1().constData()) : Failed;
    *value = result == 0 ? reply : 0;
    return result;
}

int CommandChannel::getCount(const QString &path, int *count) const
{
    const int result = getInt(path, count);
    if (result != 0)
        return result;
    if (*count < 0 || *count > CommandText::MaxCount) {
        *count = 0;
        return Failed;
    }
    return 0;
}

int CommandChannel::getDouble(const QString &path, double *value) const
{
    double reply = 0.0;
    const int result = m_io ? m_io->getDouble(&reply, "%s", path.toLatin1().constData()) : Failed;
    *value = result == 0 ? reply : 0.0;
    return result;
}

int CommandChannel::getBool(const QString &path, bool *value) const
{
    bool reply = false;
    const int result = m_io ? m_io->getBool(&reply, "%s", path.toLatin1().constData()) : Failed;
    *value = result == 0 && reply;
    return result;
}

int CommandChannel::setParameter(const QString &command) const
{
    return m_io ? m_io->setParameter("%s", command.toLatin1().constData()) : Failed;
}

int CommandChannel::sendCommand(const QString &command, QString *reply) const
{
    ReplyBuffer buffer;
    const int result
        = m_io ? m_io->sendCommand(buffer.data(), "%s", command.toLatin1().constData()) : Failed;
    if (reply)
        *reply = result == 0 ? buffer.text() : QString();
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
    sendMessage(ReportReceiver, ReportSender, text);
}

void CommandChannel::sendMessage(
    const char *receiver, const char *sender, const QString &text) const
{
    if (m_io)
        m_io->sendMessage(receiver, sender, ReportLevel, text.toLatin1().constData());
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
