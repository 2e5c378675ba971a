#ifndef TRACKING_SIM_HOSTCHANNEL_H
#define TRACKING_SIM_HOSTCHANNEL_H

#include <QByteArray>
#include <QString>

#include <cstdarg>

namespace sim
{

// What the host's channel does around an exchange: it formats the command
// from the caller's printf arguments and writes the reply into the caller's
// buffer of IOManager::ReplyBufferSize bytes.
class HostChannel
{
public:
    static QString format(const char *format, va_list args);
    // Never more than the buffer, normally cut to leave room for the zero
    // byte; unterminated fills the whole buffer without one. buffer may be
    // null to learn what would be written.
    static QByteArray writeReply(char *buffer, const QByteArray &reply, bool unterminated);
    // What a reader of the buffer sees: up to the first zero byte.
    static QByteArray readable(const QByteArray &written);
};

} // namespace sim

#endif // TRACKING_SIM_HOSTCHANNEL_H
