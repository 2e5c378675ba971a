#ifndef TRACKING_BODYADMINMESSAGERECEIVER_H
#define TRACKING_BODYADMINMESSAGERECEIVER_H

#include "commandchannel.h"

#include <messagereceiver.h>

#include <QObject>

// Turns the messages of other host modules into Qt signals for the body
// administration dialog.
class BodyAdminMessageReceiver : public QObject, public MessageReceiver
{
    Q_OBJECT

public:
    static constexpr const char *ModuleName = "BodyAdministrationModule";
    static constexpr const char *GlobalEventName = "GlobalEvent";

    explicit BodyAdminMessageReceiver(QObject *parent = nullptr);

    int receiveMessage(const char *receiver, const char *sender, const char *text) override;

    // Subscribes under "GlobalEvent" and "BodyAdministrationModule", and
    // leaves them (through the same channel) in the opposite order; leaving
    // twice sends nothing more.
    void subscribe(const CommandChannel &link);
    void unsubscribe();

signals:
    void BodyCalAvailable();
    void BodyAdjustmentAvailable();
    void dialogReopen();
    void activeConfigurationChanged();

private:
    bool subscribed = false;
    // The channel subscribed with: it leaves through it, and a message voids
    // its remembered replies.
    CommandChannel channel { nullptr, nullptr };
};

#endif // TRACKING_BODYADMINMESSAGERECEIVER_H
