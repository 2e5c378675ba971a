#ifndef TRACKING_BODYLOADER_H
#define TRACKING_BODYLOADER_H

#include "bodyrecord.h"

#include <QCoreApplication>
#include <QString>

class CommandChannel;

// Reads bodies and body types from the controller, asking only what the
// controller's version understands. Failed queries are reported and leave
// the field at its default.
class BodyLoader
{
    Q_DECLARE_TR_FUNCTIONS(BodyLoader)

public:
    explicit BodyLoader(const CommandChannel &channel);

    int numberOfBodies(const QString &type) const;
    // A type's maximum number of bodies, or the fallback after the report.
    int maximum(
        const QString &query, const QString &type, int fallback, const QString &error) const;
    QString typeDescription(const QString &type) const;
    bool filterAvailable(const QString &type) const;

    BodyRecord load(const QString &type, int index) const;
    QString filterText(const QString &type, int index) const;
    // The number of the standard body that is the tracking reference, 0 for
    // none; only the controller's own words, as the loading reads them.
    int referenceNumber() const;
    // The calibration state in the controller's and the other modules'
    // words; displayed() gives it in the user's language.
    static QString calibrationText(const BodyRecord &body);
    static QString displayedCalibrationText(const BodyRecord &body);

private:
    QString bodyQuery(const char *parameter, const QString &type, int index) const;
    static QString calibrationText(const BodyRecord &body, bool translated);

    const CommandChannel &m_channel;
};

#endif // TRACKING_BODYLOADER_H
