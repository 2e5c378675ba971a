#include "bodytabfactory.h"

#include "fingertrackingadministration.h"
#include "gripwandadministration.h"
#include "mtadministration.h"
#include "standardadministration.h"
#include "versiongate.h"

bool BodyTabFactory::isOffered(int key, const VersionGate &gate)
{
    switch (key) {
    case Standard:
    case Gripwand:
        return true;
    case Fingertracking:
        return !gate.isOrbilux() && gate.atLeast(0, 17);
    case MeasurementTool:
        return (!gate.isOrbilux() || gate.systemVersionAbove(2, 9, 3)) && gate.atLeast(1, 3);
    default:
        return false;
    }
}

QMap<int, BodyTypeAdministrationTab *> BodyTabFactory::create(IOManager *ioManager, QWidget *dialog,
    BackendVersions *backendVersions, Targetlibrary *targetLibrary)
{
    const VersionGate gate(backendVersions);
    QMap<int, BodyTypeAdministrationTab *> tabs;
    // Built in this order; the measurement tools before the hands.
    for (int key : { Standard, Gripwand, MeasurementTool, Fingertracking }) {
        if (!isOffered(key, gate))
            continue;
        BodyTypeAdministrationTab *tab = nullptr;
        switch (key) {
        case Standard:
            tab = new StandardAdministration(
                ioManager, dialog, backendVersions, QString(), targetLibrary);
            break;
        case Gripwand:
            tab = new GripwandAdministration(
                ioManager, dialog, backendVersions, QString(), targetLibrary);
            break;
        case MeasurementTool:
            tab = new MtAdministration(
                ioManager, dialog, backendVersions, QString(), targetLibrary);
            break;
        case Fingertracking:
            tab = new FingertrackingAdministration(
                ioManager, dialog, backendVersions, QString(), targetLibrary);
            break;
        }
        tabs.insert(key, tab);
    }
    return tabs;
}
