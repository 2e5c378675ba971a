#include "receiverregistry.h"

#include "messagereceiver.h"

namespace sim
{

void ReceiverRegistry::add(const QString &name, MessageReceiver *receiver)
{
    if (!receiver || contains(name, receiver))
        return;
    QObject *object = dynamic_cast<QObject *>(receiver);
    m_registrations.append({ name, receiver, object, object != nullptr });
}

void ReceiverRegistry::remove(const QString &name, MessageReceiver *receiver)
{
    m_registrations.removeAll({ name, receiver, nullptr, false });
}

bool ReceiverRegistry::contains(const QString &name, MessageReceiver *receiver) const
{
    return m_registrations.contains({ name, receiver, nullptr, false });
}

void ReceiverRegistry::deliver(const char *receiver, const char *sender, const char *text)
{
    const QString name = QString::fromLatin1(receiver);
    // A receiver may leave (or make another leave) while it is being
    // called; only those still registered get the message.
    const QList<Registration> registrations = m_registrations;
    for (const Registration &registration : registrations) {
        if (registration.name != name || !contains(name, registration.receiver))
            continue;
        if (registration.isObject && !registration.object)
            qFatal("Message \"%s\" to \"%s\" for a receiver that was destroyed while "
                   "registered",
                text ? text : "", receiver);
        registration.receiver->receiveMessage(receiver, sender, text);
    }
}

} // namespace sim
