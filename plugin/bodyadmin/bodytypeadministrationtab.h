#ifndef BODYTYPEADMINISTRATIONTAB_H
#define BODYTYPEADMINISTRATIONTAB_H

#include "bodyloader.h"
#include "bodyoperations.h"
#include "bodytablefiller.h"
#include "bodytypeentry.h"
#include "commandchannel.h"
#include "targetstatus.h"

#include <QMap>
#include <QTimer>
#include <QWidget>

class IOManager;
class QComboBox;
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

public:
    // The widgets of a tab's target search; null where the tab has none.
    struct SearchWidgets {
        QPushButton *start = nullptr;
        QPushButton *stop = nullptr;
        QPushButton *select = nullptr;
        QPushButton *deselect = nullptr;
        QProgressBar *progressBar = nullptr;
        QLabel *resultLabel = nullptr;
        QTableWidget *targetTable = nullptr;
        QComboBox *categoryCombo = nullptr;
        QString bodyType; // the type whose bodies get targets assigned
        // The body-table column whose text the Deselect rule tests when a
        // search starts; -1 for the name column. Some tabs test another one.
        int deselectColumnAtStart = -1;
    };

    static constexpr int MeasurementInterval = 600;
    static constexpr int StatusInterval = 603;

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
    void setLocked(bool locked) { this->locked = locked; }
    bool isLocked() const { return locked; }
    const BodyTypeEntry *entry(const QString &type) const;
    // Empty when the body is unknown.
    QString calibrationText(const QString &type, int index) const;
    QString selectionType() const { return selectedType; }
    int selectionIndex() const { return selectedIndex; }
    bool isSearching() const { return measurementTimer.isActive(); }
    // Multi-user Gripwands are in effect (only the Gripwand tab knows).
    virtual bool isMultiUserActive() { return false; }
    // Select and Deselect follow the current rows while no search runs.
    virtual void applySelectionRules();
    // Reads the used state of the type's library targets again and refills
    // the target table, after another module may have calibrated a body.
    void refreshTargetStatus(const QString &type);
    int foundTargetCount() const { return foundTargets; }

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

    // The target search. Start, a measurement step and Stop as every tab
    // runs them; a tab adjusts the widgets through the hooks below.
    void setSearchWidgets(const SearchWidgets &widgets);
    void on_start_search();
    void on_stop_search();
    void fillTargetTable(const QString &group);
    void announceFoundTargets(int count);
    // Asks before a named body's calibration is overwritten; no question for
    // an unnamed body.
    bool confirmOverwrite(const QString &bodyName);
    bool assignTarget(int bodyRow, int targetRow);
    void removeTarget(int bodyRow);
    void startStatusTimer();
    void stopStatusTimer();
    void startMeasurementTimer();
    void stopMeasurementTimer();
    void applySelectDeselectRules(int deselectColumn);
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
    SearchWidgets search;
    int foundTargets = 0;

private:
    void deleteFromTable(const QString &type, int index);
    void toggleFilter(const QString &type, int index);
    const BodyRecord *selectedBody() const;
    void restartStatusTimerAfterSearch();

    QTimer measurementTimer;
    QTimer statusTimer;
    int measurementTimerId = -1;
    int statusTimerId = -1;
};

#endif // BODYTYPEADMINISTRATIONTAB_H
