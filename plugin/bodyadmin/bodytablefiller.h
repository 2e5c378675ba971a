#ifndef TRACKING_BODYTABLEFILLER_H
#define TRACKING_BODYTABLEFILLER_H

#include "bodytypeentry.h"

#include <QCoreApplication>
#include <QIcon>

#include <functional>

class CommandChannel;
class QLabel;
class QSpinBox;
class QTableWidget;
class QTableWidgetItem;

// Fills a body table from the cache, each cell according to its column's
// role. Cells of other columns are left to the tab.
class BodyTableFiller
{
    Q_DECLARE_TR_FUNCTIONS(BodyTableFiller)

public:
    // Item data of the delete and reset cells: 1 when the action is usable.
    static constexpr int UsableRole = Qt::UserRole + 1;
    using ExtraColumnFiller = std::function<void(int index, int column, QTableWidgetItem *item)>;

    explicit BodyTableFiller(const CommandChannel &channel);

    void fill(const BodyTypeEntry &entry, const ExtraColumnFiller &extraColumn) const;

    // Header not clickable, no vertical header, single whole rows; names are
    // edited on a double click only.
    static void setUp(QTableWidget *table, const QStringList &headers);
    // From now on the column stretches over the room the others leave and
    // every other column resizes to its contents; the last section no longer
    // stretches.
    static void stretchColumn(QTableWidget *table, int column);
    // The table's header modes again, after a fill.
    static void applyHeaderModes(QTableWidget *table);
    // The red line under a spin box at its maximum.
    static void showMaximumReached(QLabel *label, const QSpinBox *spinBox, const QString &text);

    // The icon's first size, drawn disabled.
    static QIcon disabledLook(const QIcon &icon);

private:
    struct Icons;
    struct InertialState;
    // Decoded once a process, not for every tab: every dialog shows the same.
    static const Icons &icons();
    QTableWidgetItem *cell(
        const BodyTypeEntry &entry, int index, int role, const InertialState &inertial) const;
    InertialState inertialState() const;
    static bool sensorResetUsable(const BodyRecord &body, const InertialState &inertial);

    const CommandChannel &m_channel;
    const Icons &m_icons;
};

#endif // TRACKING_BODYTABLEFILLER_H
