#ifndef TRACKING_CELLTOOLTIPS_H
#define TRACKING_CELLTOOLTIPS_H

#include "bodytypeentry.h"

#include <QCoreApplication>

// Tool tips of the icon cells of a body table: what a click does, and why
// a cell drawn disabled does nothing.
class CellToolTips
{
    Q_DECLARE_TR_FUNCTIONS(CellToolTips)

public:
    // The tip of a calibration, delete or reset cell; empty for the other
    // roles.
    static QString of(const BodyRecord &body, int role, bool usable);
};

#endif // TRACKING_CELLTOOLTIPS_H
