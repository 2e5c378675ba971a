#ifndef TRACKING_SIM_RECEIVERREGISTRY_H
#define TRACKING_SIM_RECEIVERREGISTRY_H

#include <QList>
#include <QPointer>
#include <QString>

class MessageReceiver;

namespace sim
{

// Who listens to messages under which name, as the host keeps it.
class ReceiverRegistry
{
public:
    void add(const QString &name, MessageReceiver *receiver);
    void remove(const QString &name, MessageReceiver *receiver);
    bool contains(const QString &name, MessageReceiver *receiver) const;
    // Hands the message to every receiver registered under its receiver name.
    void deliver(const char *receiver, const char *sender, const char *text);

private:
    struct Registration {
        QString name;
        MessageReceiver *receiver;
        // Set for receivers that are QObjects: a host would call freed
        // memory if one is destroyed while still registered.
        QPointer<QObject> object;
        bool isObject;
        bool operator==(const Registration &other) const
        {
            return name == other.name && receiver == other.receiver;
        }
    };
    QList<Registration> m_registrations;
};

} // namespace sim

#endif // TRACKING_SIM_RECEIVERREGISTRY_H
