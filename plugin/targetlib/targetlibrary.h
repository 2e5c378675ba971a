#ifndef TRACKING_TARGETLIBRARY_H
#define TRACKING_TARGETLIBRARY_H

#include "commandchannel.h"

#include <QMap>
#include <QObject>

class IOManager;
class Target;
struct BackendVersions;

// The module's copy of the controller's target library, loaded once when the
// body administration dialog is built and shared by all its tabs. The tabs
// update the calibrated and tracked flags of the targets themselves.
class Targetlibrary : public QObject
{
    Q_OBJECT

public:
    Targetlibrary(IOManager *ioManager, BackendVersions *backendVersions, QObject *parent);

    // Ordered by the id text, so "t100" sorts between "t10" and "t11".
    QMap<QString, Target *> targets;

    QString groupOf(const QString &id) const;
    QString descriptionOf(const QString &id) const;
    // The id of the first target (in id order) with exactly this name.
    QString idOfName(const QString &name) const;
    Target *target(const QString &id) const { return targets.value(id); }

private:
    void loadTargets();
    void loadGroups();
    void assignGroups();

    IOManager *ioManager;
    BackendVersions *backendVersions;
    QMap<QString, QString> groups; // target id -> group name
    CommandChannel channel;
};

#endif // TRACKING_TARGETLIBRARY_H
