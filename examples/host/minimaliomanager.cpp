#include "minimaliomanager.h"

#include <messagereceiver.h>

#include <QTextStream>

#include <cstdio>

namespace
{

QByteArray format(const char *format, va_list args)
{
    va_list measure;
    va_copy(measure, args);
    const int size = std::vsnprintf(nullptr, 0, format, measure);
    va_end(measure);
    if (size < 0)
        return QByteArray();
    QByteArray text(size, '\0');
    std::vsnprintf(text.data(), size_t(size) + 1, format, args);
    return text;
}

// Turns a reply into what the caller asked for; false when it is no such value.
bool convert(const QByteArray &reply, char *buffer)
{
    qstrncpy(buffer, reply.constData(), IOManager::ReplyBufferSize);
    return true;
}

bool convert(const QByteArray &reply, qint32 *value)
{
    bool ok = false;
    *value = reply.trimmed().toInt(&ok);
    return ok;
}

bool convert(const QByteArray &reply, double *value)
{
    bool ok = false;
    *value = reply.trimmed().toDouble(&ok);
    return ok;
}

bool convert(const QByteArray &reply, bool *value)
{
    *value = reply == "yes";
    return *value || reply == "no";
}

} // namespace

void MinimalIOManager::setReplyTimeout(int, int milliseconds, int)
{
    m_timeout = milliseconds;
}

template<typename Value>
int MinimalIOManager::call(Kind kind, const char *format, va_list args, Value *value)
{
    QByteArray reply;
    const int result = exchange(kind, ::format(format, args), &reply);
    const bool converted = convert(reply, value);
    return result != 0 ? result : converted ? 0 : 1;
}

int MinimalIOManager::sendCommand(char *reply, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const int result = call(MetaCommand, format, args, reply);
    va_end(args);
    return result;
}

int MinimalIOManager::getString(char *reply, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const int result = call(Query, format, args, reply);
    va_end(args);
    return result;
}

int MinimalIOManager::getInt(qint32 *value, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const int result = call(Query, format, args, value);
    va_end(args);
    return result;
}

int MinimalIOManager::getDouble(double *value, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const int result = call(Query, format, args, value);
    va_end(args);
    return result;
}

int MinimalIOManager::getBool(bool *value, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const int result = call(Query, format, args, value);
    va_end(args);
    return result;
}

int MinimalIOManager::setParameter(const char *format, ...)
{
    va_list args;
    va_start(args, format);
    QByteArray reply;
    const int result = exchange(Setting, ::format(format, args), &reply);
    va_end(args);
    return result;
}

// Receiver "standard" is the host's message log; any other name goes to the
// modules subscribed under it.
void MinimalIOManager::sendMessage(
    const char *receiver, const char *sender, int level, const char *text)
{
    const QByteArray name(receiver);
    bool delivered = false;
    // A receiver may leave while it handles the message.
    const auto receivers = m_receivers;
    for (const auto &subscription : receivers) {
        if (subscription.first == name && m_receivers.contains(subscription)) {
            subscription.second->receiveMessage(receiver, sender, text);
            delivered = true;
        }
    }
    if (!delivered)
        QTextStream(stderr) << "[" << sender << " " << level << "] " << text << '\n';
}

void MinimalIOManager::registerReceiver(const char *name, MessageReceiver *receiver)
{
    m_receivers.append(qMakePair(QByteArray(name), receiver));
}

void MinimalIOManager::unregisterReceiver(const char *name, MessageReceiver *receiver)
{
    m_receivers.removeAll(qMakePair(QByteArray(name), receiver));
}

// The stand-in controller: a query is a parameter path, a setting is a path,
// one blank and the value(s), a meta command begins with "velora2". Replace
// this with the channel to the real controller and its framing.
int MinimalIOManager::exchange(Kind kind, const QByteArray &command, QByteArray *reply)
{
    switch (kind) {
    case Query:
        if (!parameters.contains(command))
            return 1;
        *reply = parameters.value(command);
        return 0;
    case Setting:
        // The longest known path the command begins with; the rest is the value.
        for (int blank = command.lastIndexOf(' '); blank > 0;
             blank = command.lastIndexOf(' ', blank - 1)) {
            const QByteArray path = command.left(blank);
            if (parameters.contains(path)) {
                parameters.insert(path, command.mid(blank + 1));
                return 0;
            }
        }
        return 1;
    case MetaCommand:
        *reply = "velora2 ok";
        return 0;
    }
    return 1;
}
