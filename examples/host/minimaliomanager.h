#ifndef MINIMALIOMANAGER_H
#define MINIMALIOMANAGER_H

#include <iomanager.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPair>

#include <cstdarg>

// A host's IOManager to start from. It formats each command, hands it to
// exchange() and turns the reply into what the caller asked for; it keeps
// the message subscriptions and delivers messages to them. Replace
// exchange() with the transport to a real controller. Until then it answers
// reads from a table of parameter values, stores settings of the paths it
// holds and accepts every meta command, which is enough for every dialog to
// open.
class MinimalIOManager : public IOManager
{
public:
    enum Kind { Query, Setting, MetaCommand };

    // Parameter values by path, as the controller speaks:
    // parameters["standard number_of_bodies"] = "2".
    QMap<QByteArray, QByteArray> parameters;

    void setReplyTimeout(int reserved1, int milliseconds, int reserved2) override;
    int sendCommand(char *reply, const char *format, ...) override;
    int getString(char *reply, const char *format, ...) override;
    int getInt(qint32 *value, const char *format, ...) override;
    int getDouble(double *value, const char *format, ...) override;
    int getBool(bool *value, const char *format, ...) override;
    int setParameter(const char *format, ...) override;
    void sendMessage(
        const char *receiver, const char *sender, int level, const char *text) override;
    void registerReceiver(const char *name, MessageReceiver *receiver) override;
    void unregisterReceiver(const char *name, MessageReceiver *receiver) override;

protected:
    // One synchronous exchange with the controller, waiting at most
    // replyTimeout() milliseconds; 0 when it answered.
    virtual int exchange(Kind kind, const QByteArray &command, QByteArray *reply);
    int replyTimeout() const { return m_timeout; }

private:
    template<typename Value> int call(Kind kind, const char *format, va_list args, Value *value);

    int m_timeout = 5000;
    QList<QPair<QByteArray, MessageReceiver *>> m_receivers;
};

#endif // MINIMALIOMANAGER_H
