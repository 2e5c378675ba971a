#ifndef TRACKING_TARGETSTATUS_H
#define TRACKING_TARGETSTATUS_H

#include <QCoreApplication>
#include <QIcon>
#include <QString>
#include <QStringList>

class CommandChannel;
class QTableWidget;
class Target;
class Targetlibrary;

// What the controller says about library targets right now (tracked in the
// volume, used by a body, custom-calibrated) and the found-targets table
// that shows them.
class TargetStatus
{
    Q_DECLARE_TR_FUNCTIONS(TargetStatus)

public:
    // The group entry that stands for the targets of the last search.
    static const QString FoundTargets;
    enum TargetColumn { IdColumn = 0, NameColumn = 1, ShortNameColumn = 2, CustomColumn = 3 };

    TargetStatus(const CommandChannel &channel, Targetlibrary *library);

    // Asked one by one; a failed query counts as not tracked / "none".
    bool isTracked(const QString &id) const;
    void refreshTracked(const QString &bodyType) const;
    void refreshCalibrated(const QString &id) const;
    void refreshCalibratedOfGroup(const QString &bodyType, const QString &group) const;
    // The targets a table lists, by the id in each row.
    void refreshCalibratedOfRows(const QTableWidget *table) const;
    // Targets of the type that are tracked now.
    int countTracked(const QString &bodyType) const;

    // Sorted, distinct categories of the type's targets.
    QStringList categories(const QString &bodyType) const;
    // The library targets of the type in a group: all for an empty group,
    // the tracked ones for FoundTargets.
    QList<Target *> targetsOf(const QString &bodyType, const QString &group) const;

    static void setUpTable(QTableWidget *table);
    void fillTable(QTableWidget *table, const QString &bodyType, const QString &group) const;
    // Asks the tracked state of each listed target, keeps it in the
    // library and colours the row's name cell by it.
    void showTracked(QTableWidget *table) const;

private:
    QString customCalibrationOf(const QString &id) const;

    const CommandChannel &m_channel;
    Targetlibrary *m_library;
    QIcon m_customIcon;
};

#endif // TRACKING_TARGETSTATUS_H
