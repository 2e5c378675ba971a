#ifndef BACKENDVERSIONS_H
#define BACKENDVERSIONS_H

#include <QMetaType>
#include <QString>

// The host's record of what it is connected to. Owned by the host; modules
// receive a pointer through the "BackendVersions" property.
struct BackendVersions {
    struct Version {
        qint32 major = 0;
        qint32 minor = 0;
        qint32 patch = 0;
    };

    Version systemVersion; // of the tracking system; meaningful for ORBILUX systems
    Version backendVersion; // of the controller software; version gates compare it
    QString systemType; // model name of the tracking system
};

Q_DECLARE_METATYPE(BackendVersions *)

#endif // BACKENDVERSIONS_H
