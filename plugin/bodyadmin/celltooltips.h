#ifndef TRACKING_CELLTOOLTIPS_H
#define TRACKING_CELLTOOLTIPS_H

#include "bodytypeentry.h"

#include <QCoreApplication>

class QTableWidgetItem;

// Tool tips of the icon cells of a body table: what a click does, and why
// a cell drawn disabled does nothing.
class CellToolTips
{
    Q_DECLARE_TR_FUNCTIONS(CellToolTips)

public:
    // Sets the tips of every calibration, delete and reset cell of the
    // entry's table; the table's signals must be blocked by the caller.
    static void apply(const BodyTypeEntry &entry);
    static QString of(const BodyRecord &body, int role, bool usable);
};

#endif // TRACKING_CELLTOOLTIPS_H
