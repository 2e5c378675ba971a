#ifndef TRACKING_BODYTYPEADMINISTRATIONTAB_H
#define TRACKING_BODYTYPEADMINISTRATIONTAB_H

#include "bodyloader.h"
#include "bodyoperations.h"
#include "bodytablefiller.h"
#include "bodytypeentry.h"
#include "commandchannel.h"
#include "targetassignment.h"
#include "targetsearch.h"
#include "targetstatus.h"

#include <QMap>
#include <QWidget>

class BodyTableInput;
class BusyCursor;
class EditDelegate;
class IOManager;
class QComboBox;
class QKeyEvent;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QTableWidget;
class QTableWidgetItem;
class Targetlibrary;
struct BackendVersions;

// The common base of the tabs of the body administration dialog. It keeps
// the controller's data of the bodies a tab shows, fills the body tables by
// column role, handles the number-of-bodies spin boxes and the table clicks,
// runs the body operations and the target-library search, and tells the
// dialog which body is selected. A tab builds its widgets, registers its
// body types and overrides what it does differently.
class BodyTypeAdministrationTab : public QWidget
{
    Q_OBJECT
    friend class BodyTableInput;
    friend class TargetAssignment;
    friend class TargetSearch;

public:
    BodyTypeAdministrationTab(IOManager *ioManager, QWidget *parent,
        BackendVersions *backendVersions, Targetlibrary *targetLibrary);
    ~BodyTypeAdministrationTab() override;

    virtual QString tabTitle() const;
    virtual bool isTypeAvailable() const = 0;
    virtual bool canFilterSelected() const;
    virtual bool isBodySelected() const;
    virtual bool canAdjustSelected() const;
    virtual bool canHybridCalibrateSelected() const;
    virtual int currentRow() const = 0;

    // The dialog's configuration lock; while set every edit path is closed.
    void setLocked(bool locked);
    bool isLocked() const { return locked; }
    const BodyTypeEntry *entry(const QString &type) const;
    // Empty when the body is unknown.
    QString calibrationText(const QString &type, int index) const;
    QString selectionType() const { return selectedType; }
    int selectionIndex() const { return selectedIndex; }
    bool isSearching() const { return targetSearch->isSearching(); }
    // Multi-user Gripwands are in effect (only the Gripwand tab knows).
    virtual bool isMultiUserActive() { return false; }
    // The tab's own buttons follow the current rows: Select and Deselect
    // while no search runs, and where a tab has one, its Filter button.
    virtual void applySelectionRules();
    // Reads the used state of the listed library targets again and refills
    // the target table, after another module may have calibrated a body.
    void refreshTargetStatus() { assignment.refreshListedTargets(); }
    int foundTargetCount() const { return targetSearch->foundTargets(); }

public slots:
    virtual void updateView() = 0;
    virtual void update_tab();
    virtual void about_to_exit();
    virtual void ON_activeConfigurationChanged();

    void ON_spinBox_valueChanged(int num);
    void ON_tableWidget_itemChanged(QTableWidgetItem *item);
    void ON_tableWidget_cellClicked(int iRow, int iCol);
    void ON_tableWidget_cellDoubleClicked(int iRow, int iCol);
    void ON_tableWidget_currentItemChanged(QTableWidgetItem *current, QTableWidgetItem *previous);

public:
    virtual void setBodyActive(const QString &btype, int index, bool active);
    virtual void setBodyDescription(const QString &btype, int index, const QString &text);
    virtual bool resetBody(const QString &btype, int index);
    virtual bool deleteBody(const QString &btype, int index);
    virtual bool switchBodies(const QString &btype, int indexA, int indexB);
    virtual int maxNumberOfBodies(const QString &btype) = 0;
    virtual void setNumberOfBodies(const QString &btype, int count) = 0;
    virtual void updateExtraColumn(
        const QString &btype, int index, int column, QTableWidgetItem *item);
    virtual void storeSelection();

signals:
    void selection_changed(const QString &btype, int bid);

protected slots:
    // Timer slots of the target search.
    virtual void doMeasurement_tl();
    virtual void updateTrackedAndAcceptStatus_tl();

protected:
    // Enter that a name editor has taken.
    void keyPressEvent(QKeyEvent *event) override;

    // Registers a body type: reads its description and filter availability,
    // and connects its spin box and table to the slots above.
    BodyTypeEntry &addBodyType(const QString &type, QTableWidget *table, QSpinBox *spinBox,
        const QVector<int> &columnRoles, const QString &idFormat);
    BodyTypeEntry *entry(const QString &type);
    QString typeOf(const QObject *widget) const;

    // Loading and showing the cache.
    void loadBody(const QString &type, int index);
    void reloadBodies(const QString &type);
    void refreshTable(const QString &type);
    void refreshSpinBox(const QString &type, bool reconnect);
    void changeNumberOfBodies(const QString &type, int count);
    void setReferenceBody(const QString &type, int index, bool set);

    // Pieces the tabs share for their own widgets.
    // Header not clickable, no vertical header, single whole rows, and the
    // name delegate on the name column.
    void setUpBodyTable(QTableWidget *table, const QStringList &headers, int nameColumn);
    // Hides the dialog and hands the body to the custom calibration.
    void handOverCustomCalibration(const QString &type, int row);

    // Target search and assignment; a tab overrides where it differs.
    void setSearchWidgets(const TargetSearch::Widgets &widgets);
    void fillTargetTable(const QString &group) { assignment.fillTargetTable(group); }
    void selectCurrentTarget(bool firstTargetWhenNone)
    {
        assignment.selectCurrent(firstTargetWhenNone);
    }
    void deselectCurrentTarget() { assignment.deselectCurrent(); }
    void showCategory(const QString &group) { assignment.showCategory(group); }
    // Around the base's update_tab: keep the current body and target rows
    // across the reload, then reset the search widgets.
    void beginRefresh() { assignment.beginRefresh(); }
    void endRefresh() { assignment.endRefresh(); }
    // A Select may be refused by the tab after the overwrite question, and
    // the tab may warn once the target is assigned.
    virtual bool resolveTargetConflict(const QString &shortName);
    virtual void targetAssigned(const QString &targetId);
    // Controls a tab locks while a search runs.
    virtual void setSearchControlsEnabled(bool enabled);

    IOManager *ioManager;
    BackendVersions *backendVersions;
    Targetlibrary *targetLibrary;
    CommandChannel channel;
    BodyLoader loader;
    BodyOperations operations;
    TargetStatus targetStatus;
    BodyTableFiller tableFiller;
    QMap<QString, BodyTypeEntry> types;
    bool locked = false;
    QString selectedType;
    int selectedIndex = -1;
    TargetSearch *targetSearch;
    QWidget *dialog; // the owning dialog, hidden during a hand-over
    int assignBodyRow = 0; // rows of the Select under way or of the refresh
    int assignTargetRow = -1;
    EditDelegate *delegate;
    BusyCursor *busyCursor = nullptr; // set while a reload runs
    BodyTableInput *input;
    TargetAssignment assignment;

private:
    void deleteFromTable(const QString &type, int index);
    void enableChildren();
    void toggleFilter(const QString &type, int index);
    const BodyRecord *selectedBody() const;
};

#endif // TRACKING_BODYTYPEADMINISTRATIONTAB_H
