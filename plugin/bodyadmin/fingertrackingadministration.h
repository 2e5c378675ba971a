#ifndef TRACKING_FINGERTRACKINGADMINISTRATION_H
#define TRACKING_FINGERTRACKINGADMINISTRATION_H

#include "bodytypeadministrationtab.h"

namespace Ui
{
class FingertrackingAdministrationClass;
}

// The tab of the finger-tracking hands. It is always there, but usable only
// once the controller offers finger tracking; until then a red notice says so.
class FingertrackingAdministration : public BodyTypeAdministrationTab
{
    Q_OBJECT

public:
    FingertrackingAdministration(IOManager *ioManager, QWidget *parent,
        BackendVersions *backendVersions, const QString &text, Targetlibrary *targetLibrary);
    ~FingertrackingAdministration() override;

    QString tabTitle() const override;
    bool isTypeAvailable() const override;
    bool canAdjustSelected() const override;
    int currentRow() const override;
    int maxNumberOfBodies(const QString &btype) override;
    void setNumberOfBodies(const QString &btype, int count) override;

signals:
    void selection_changed();

public slots:
    void updateView() override;
    void update_tab() override;

    void on_pushButton_select_clicked();
    void on_pushButton_deselect_clicked();
    void on_pushButton_start_clicked();
    void on_pushButton_stop_clicked();
    void on_pushButton_calibration_clicked();
    void on_tableWidget_fingertracking_itemSelectionChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    enum Column { IdCol, ActiveCol, NameCol, CalibrationCol, DeleteCol, ResetCol };

    void testAvailability();

    Ui::FingertrackingAdministrationClass *ui;
    bool fingertrackingAvailable = false;
};

#endif // TRACKING_FINGERTRACKINGADMINISTRATION_H
