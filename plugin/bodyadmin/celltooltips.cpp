#include "celltooltips.h"

#include "bodytablefiller.h"

#include <QTableWidget>

void CellToolTips::apply(const BodyTypeEntry &entry)
{
    QTableWidget *table = entry.table;
    if (!table)
        return;
    for (int row = 0; row < table->rowCount() && row < entry.bodies.size(); ++row) {
        for (int column = 0; column < entry.columnRoles.size(); ++column) {
            QTableWidgetItem *item = table->item(row, column);
            if (!item)
                continue;
            const bool usable = item->data(BodyTableFiller::UsableRole).toInt() == 1;
            const QString tip = of(entry.bodies.at(row), entry.columnRoles.at(column), usable);
            if (!tip.isEmpty())
                item->setToolTip(tip);
        }
    }
}

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
