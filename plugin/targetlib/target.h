#ifndef TRACKING_TARGET_H
#define TRACKING_TARGET_H

#include <QObject>
#include <QString>

// One target of the controller's target library: a marker arrangement with
// a stored geometry that bodies can be calibrated from.
class Target : public QObject
{
    Q_OBJECT

public:
    Target(const QString &id, const QString &name, const QString &description,
        const QString &bodyType, bool calibrated, QObject *parent);

    QString id; // "t01"
    QString name; // short name; bodies refer to their target by it
    QString description; // human-readable name
    QString bodyType; // body-type keyword, "none" when unknown
    QString group; // empty when in no group; shown as the category
    bool calibrated; // a body uses the target
    bool tracked; // seen in the tracking volume by the last search
};

#endif // TRACKING_TARGET_H
