#include "bodyadminmessagereceiver.h"

#include <cstring>

BodyAdminMessageReceiver::BodyAdminMessageReceiver(QObject *parent)
    : QObject(parent)
{
}

int BodyAdminMessageReceiver::receiveMessage(
    const char * /*receiver*/, const char *sender, const char *text)
{
    // The first match wins; all comparisons are case-sensitive.
    const char *message = text ? text : "";
    const auto startsWith = [message](const char *prefix) {
        return std::strncmp(message, prefix, std::strlen(prefix)) == 0;
    };

    if (std::strcmp(message, "reopen") == 0)
        emit dialogReopen();
    else if (startsWith("bodycalibration available"))
        emit BodyCalAvailable();
    else if (startsWith("bodyadjustment available"))
        emit BodyAdjustmentAvailable();
    else if (sender && std::strcmp(sender, "ConfigurationModule") == 0
        && std::strcmp(message, "ActiveConfigurationChanged") == 0)
        emit activeConfigurationChanged();
    return 0;
}

void BodyAdminMessageReceiver::subscribe(const CommandChannel &link)
{
    channel = link;
    channel.registerReceiver(GlobalEventName, this);
    channel.registerReceiver(ModuleName, this);
    subscribed = true;
}

void BodyAdminMessageReceiver::unsubscribe()
{
    if (!subscribed)
        return;
    subscribed = false;
    channel.unregisterReceiver(ModuleName, this);
    channel.unregisterReceiver(GlobalEventName, this);
}
