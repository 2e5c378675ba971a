#ifndef TRACKING_BODYTYPEENTRY_H
#define TRACKING_BODYTYPEENTRY_H

#include "bodyrecord.h"

#include <QString>
#include <QVector>

class QSpinBox;
class QTableWidget;

// How the tab framework fills and reacts to a column of a body table. Any
// other value marks a column that the tab fills itself.
enum ColumnRole {
    ExtraColumn = 0,
    IdColumn = 1,
    ActiveColumn = 2,
    ReferenceColumn = 3,
    NameColumn = 4,
    CalibrationColumn = 5,
    FilterColumn = 6,
    DeleteColumn = 7,
    ResetColumn = 8,
};

// The cache and the widgets of one body type that a tab manages.
struct BodyTypeEntry {
    QVector<BodyRecord> bodies; // its length is the number of bodies
    QSpinBox *numberSpinBox = nullptr; // null when the tab has none for the type
    QTableWidget *table = nullptr;
    QVector<int> columnRoles; // one ColumnRole per column of table
    QString idFormat; // "%1", "G%1", ...: filled with the body number
    QString typeDescription; // "body type_desc"
    bool filterAvailable = false; // "filter6d available"

    bool contains(int index) const { return index >= 0 && index < bodies.size(); }
    int columnOf(int role) const { return columnRoles.indexOf(role); }
};

#endif // TRACKING_BODYTYPEENTRY_H
