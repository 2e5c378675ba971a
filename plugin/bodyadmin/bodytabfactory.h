#ifndef TRACKING_BODYTABFACTORY_H
#define TRACKING_BODYTABFACTORY_H

#include <QMap>

class BodyTypeAdministrationTab;
class IOManager;
class QWidget;
class Targetlibrary;
class VersionGate;
struct BackendVersions;

// Which body-type tabs the connected system offers, and building them.
// Keys: 0 standard, 1 Gripwand, 2 finger tracking, 3 measurement tool.
class BodyTabFactory
{
public:
    enum Key { Standard = 0, Gripwand = 1, Fingertracking = 2, MeasurementTool = 3 };

    static bool isOffered(int key, const VersionGate &gate);
    // The offered tabs, as Qt children of dialog.
    static QMap<int, BodyTypeAdministrationTab *> create(IOManager *ioManager, QWidget *dialog,
        BackendVersions *backendVersions, Targetlibrary *targetLibrary);
};

#endif // TRACKING_BODYTABFACTORY_H
