#ifndef TRACKING_ANGLETABLEWIDGET_H
#define TRACKING_ANGLETABLEWIDGET_H

#include "fixedangle.h"

#include <QList>
#include <QTableWidget>

// The fixed-angle table: one row per standard body with its id, its name and
// an angle cell per room axis whose check box holds that axis. Angle cells
// only ever show a valid angle; ids and names are not editable.
class AngleTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    enum Column { IdColumn, NameColumn, XColumn, YColumn, ZColumn, ColumnCount };

    // The angles the controller accepts, in degrees.
    static constexpr double MaxAngle = 20.0;

    explicit AngleTableWidget(QWidget *parent = nullptr);

    void fill(const QList<FixedAngle> &records);

    static bool isAngleColumn(int column) { return column >= XColumn && column <= ZColumn; }
    // "%1.2f" of the value as the controller keeps it, in single precision.
    static QString angleText(double angle);
    // Text of an angle cell as a number; false when it is none.
    static bool parseAngle(const QString &text, double *angle);

public slots:
    void click_cell(int row, int column);
    void changed_cell(int row, int column);
};

#endif // TRACKING_ANGLETABLEWIDGET_H
