#ifndef TRACKING_BODYADMINMESSAGERECEIVER_H
#define TRACKING_BODYADMINMESSAGERECEIVER_H

#include <messagereceiver.h>

#include <QObject>

class CommandChannel;

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
    // leaves them in the opposite order; leaving twice sends nothing more.
    void subscribe(const CommandChannel &channel);
    void unsubscribe(const CommandChannel &channel);

signals:
    void BodyCalAvailable();
    void BodyAdjustmentAvailable();
    void dialogReopen();
    void activeConfigurationChanged();

private:
    bool subscribed = false;
};

#endif // TRACKING_BODYADMINMESSAGERECEIVER_H
