#include "hostchannel.h"

#include <iomanager.h>

#include <cstdio>
#include <cstring>

namespace sim
{

namespace
{
constexpr int BufferSize = IOManager::ReplyBufferSize;
}

QString HostChannel::format(const char *format, va_list args)
{
    if (!format)
        return QString();
    // Commands are short: formatted once on the stack, twice only when long.
    char shortText[256];
    va_list first;
    va_copy(first, args);
    const int size = std::vsnprintf(shortText, sizeof shortText, format, first);
    va_end(first);
    if (size <= 0)
        return QString();
    if (size < int(sizeof shortText))
        return QString::fromLatin1(shortText, size);
    QByteArray text(size, Qt::Uninitialized); // holds size + 1 bytes with the zero
    std::vsnprintf(text.data(), size_t(size) + 1, format, args);
    return QString::fromLatin1(text);
}

QByteArray HostChannel::writeReply(char *buffer, const QByteArray &reply, bool unterminated)
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

QByteArray HostChannel::readable(const QByteArray &written)
{
    const int zero = written.indexOf('\0');
    return zero < 0 ? written : written.left(zero);
}

} // namespace sim
