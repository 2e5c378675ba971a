#ifndef IOMANAGER_H
#define IOMANAGER_H

#include <QMetaType>
#include <QtGlobal>

class MessageReceiver;

#if defined(__GNUC__)
#define IOMANAGER_PRINTF(formatIndex, firstArgument)                                               \
    __attribute__((format(printf, formatIndex, firstArgument)))
#else
#define IOMANAGER_PRINTF(formatIndex, firstArgument)
#endif

// The host's channel to the tracking controller and to the other modules.
//
// Every command is a printf-style format plus arguments; the channel formats
// it, frames it and waits for the reply. All calls are synchronous and are
// made from the GUI thread only. Each command operation returns 0 on success
// and any other value on failure.
class IOManager
{
public:
    // Size in bytes of the reply buffer that callers of sendCommand and
    // getString provide. The channel never writes more than this, including
    // the terminating zero byte.
    static constexpr int ReplyBufferSize = 200;

    virtual ~IOManager() = default;

    // The middle value is the reply time-out in milliseconds.
    virtual void setReplyTimeout(int reserved1, int milliseconds, int reserved2) = 0;

    // Sends a meta command ("velora2 ..."); the reply text goes into reply.
    virtual int sendCommand(char *reply, const char *format, ...) IOMANAGER_PRINTF(3, 4) = 0;

    // Read one controller parameter, named by its path.
    virtual int getString(char *reply, const char *format, ...) IOMANAGER_PRINTF(3, 4) = 0;
    virtual int getInt(qint32 *value, const char *format, ...) IOMANAGER_PRINTF(3, 4) = 0;
    virtual int getDouble(double *value, const char *format, ...) IOMANAGER_PRINTF(3, 4) = 0;
    virtual int getBool(bool *value, const char *format, ...) IOMANAGER_PRINTF(3, 4) = 0;

    // Writes one controller parameter: its path, one blank, the value(s).
    virtual int setParameter(const char *format, ...) IOMANAGER_PRINTF(2, 3) = 0;

    // Message service: to the host's message log (receiver "standard") or to
    // other modules. Texts are zero-terminated Latin-1.
    virtual void sendMessage(const char *receiver, const char *sender, int level, const char *text)
        = 0;
    virtual void registerReceiver(const char *name, MessageReceiver *receiver) = 0;
    virtual void unregisterReceiver(const char *name, MessageReceiver *receiver) = 0;
};

Q_DECLARE_METATYPE(IOManager *)

#endif // IOMANAGER_H
