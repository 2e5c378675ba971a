#ifndef TRACKING_HANDOVERREQUEST_H
#define TRACKING_HANDOVERREQUEST_H

#include <QString>

class CommandChannel;

// A request that hands the selected body over to another host module, which
// answers "reopen" when it is done. The custom calibration request names the
// body as "b%02d"; the two others send the bare number between bars. The
// other modules rely on exactly these texts.
class HandOverRequest
{
public:
    static HandOverRequest customCalibration(const QString &bodyType, int index);
    static HandOverRequest bodyAdjustment(
        const QString &bodyType, int index, const QString &calibrationText);
    static HandOverRequest hybridCalibration(
        const QString &bodyType, int index, const QString &calibrationText);

    const char *receiver() const { return m_receiver; }
    const QString &text() const { return m_text; }

    // Sent from "BodyAdministrationModule"; the caller hides its dialog first.
    void send(const CommandChannel &channel) const;

private:
    HandOverRequest(const char *receiver, const QString &text);

    const char *m_receiver;
    QString m_text;
};

#endif // TRACKING_HANDOVERREQUEST_H
