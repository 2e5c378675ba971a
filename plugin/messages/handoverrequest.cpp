#include "handoverrequest.h"

#include "bodyadminmessagereceiver.h"
#include "commandchannel.h"

HandOverRequest::HandOverRequest(const char *receiver, const QString &text)
    : m_receiver(receiver)
    , m_text(text)
{
}

HandOverRequest HandOverRequest::customCalibration(const QString &bodyType, int index)
{
    return HandOverRequest("BodyCalModule",
        QStringLiteral("OpenBodyCalDialog %1 %2").arg(bodyType, CommandText::bodyIdOfIndex(index)));
}

HandOverRequest HandOverRequest::bodyAdjustment(
    const QString &bodyType, int index, const QString &calibrationText)
{
    const QString state = calibrationText == QLatin1String("not calibrated")
        ? QStringLiteral("uncalibrated")
        : QStringLiteral("calibrated");
    return HandOverRequest("BodyAdjustmentModule",
        QStringLiteral("OpenBodyAdjustmentDialog %1|%2|%3")
            .arg(bodyType, QString::number(index + 1), state));
}

HandOverRequest HandOverRequest::hybridCalibration(
    const QString &bodyType, int index, const QString &calibrationText)
{
    return HandOverRequest("HybridBodyCalibration",
        QStringLiteral("OpenHybridBodyCalibration %1|%2|%3")
            .arg(bodyType, QString::number(index + 1), calibrationText));
}

void HandOverRequest::send(const CommandChannel &channel) const
{
    channel.sendMessage(m_receiver, BodyAdminMessageReceiver::ModuleName, m_text);
}
