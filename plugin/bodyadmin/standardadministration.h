#ifndef TRACKING_STANDARDADMINISTRATION_H
#define TRACKING_STANDARDADMINISTRATION_H

#include "bodytypeadministrationtab.h"

namespace Ui
{
class StandardAdministrationClass;
}

// The tab of the rigid 6DOF bodies: their number and order, activation,
// the reference body, names, target-library assignment and search, and the
// hand-over to the filter and the custom calibration.
class StandardAdministration : public BodyTypeAdministrationTab
{
    Q_OBJECT

public:
    StandardAdministration(IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions,
        const QString &text, Targetlibrary *targetLibrary);
    ~StandardAdministration() override;

    QString tabTitle() const override;
    bool isTypeAvailable() const override;
    int currentRow() const override;
    void setBodyActive(const QString &btype, int index, bool active) override;
    int maxNumberOfBodies(const QString &btype) override;
    void setNumberOfBodies(const QString &btype, int count) override;
    void updateExtraColumn(
        const QString &btype, int index, int column, QTableWidgetItem *item) override;
    void applySelectionRules() override;

signals:
    void selection_changed();

public slots:
    void updateView() override;
    void update_tab() override;
    void ON_activeConfigurationChanged() override;

    void on_pushButton_up_clicked();
    void on_pushButton_down_clicked();
    void on_tableWidget_standard_itemSelectionChanged();
    void on_pushButton_select_clicked();
    void on_pushButton_deselect_clicked();
    void on_pushButton_customCalibration_clicked();
    void on_pushButton_filter_clicked();
    void on_comboBox_filter_currentIndexChanged(const QString &group);
    void on_pushButton_start_clicked();
    void on_pushButton_stop_clicked();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void setSearchControlsEnabled(bool enabled) override;
    bool resolveTargetConflict(const QString &shortName) override;
    void targetAssigned(const QString &targetId) override;

private:
    enum Column {
        IdCol,
        ActiveCol,
        ReferenceCol,
        NameCol,
        ModelCol,
        DeviceCol,
        CalibrationCol,
        FilterCol,
        DeleteCol,
        ResetCol
    };

    void moveBody(int step);
    void updateColumnsAndStatus();
    void updateMoveButtons();
    void fillCategories();

    Ui::StandardAdministrationClass *ui;
    bool filterAvailable = false;
    int targetRow = -1;
};

#endif // TRACKING_STANDARDADMINISTRATION_H
