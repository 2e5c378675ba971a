#include "celltooltips.h"

QString CellToolTips::of(const BodyRecord &body, int role, bool usable)
{
    switch (role) {
    case CalibrationColumn:
        if (!body.calibrated)
            return tr("Not calibrated: assign a library target or run a custom calibration");
        if (body.hasInertialSensor() && !body.hybridCalibrated)
            return tr("Calibrated optically; the inertial sensor has no hand-eye calibration");
        return tr("Calibrated");
    case DeleteColumn:
        if (usable)
            return body.hasInertialSensor()
                ? tr("Click to delete the geometry and the sensor assignment of this body")
                : tr("Click to delete the geometry of this body");
        return tr("Nothing to delete: the body has no geometry and no inertial sensor");
    case ResetColumn:
        if (usable)
            return !body.targetLibraryName.isEmpty() && body.recalibrated
                ? tr("Click to reset the body to its target-library geometry")
                : tr("Click to reset the body's inertial sensor");
        if (body.hasInertialSensor())
            return tr("A sensor reset needs inertial tracking, and no warm-up running");
        if (!body.targetLibraryName.isEmpty())
            return tr("Nothing to reset: the body has its target-library geometry");
        return tr("Nothing to reset: the body has no target-library geometry and no sensor");
    default:
        return QString();
    }
}
