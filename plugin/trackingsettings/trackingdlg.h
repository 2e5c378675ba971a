#ifndef TRACKING_TRACKINGDLG_H
#define TRACKING_TRACKINGDLG_H

#include "commandchannel.h"
#include "trackingpreferences.h"

#include <QDialog>
#include <QIcon>

class IOManager;
struct BackendVersions;

namespace Ui
{
class TrackingDialog;
}

// The single-marker settings: 3DOF marker calculation, automatic restart
// after loss of sync, the 5DOF central axis, and the way to the fixed-angle
// settings. Edits reach the controller only with OK. Two display preferences
// are kept in a file that is read on construction and written on destruction.
class TrackingDlg : public QDialog
{
    Q_OBJECT

public:
    TrackingDlg(IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions,
        const QString &moduleVersion);
    ~TrackingDlg() override;

public slots:
    int update_and_exec();

private slots:
    void on_checkBox_force3d_stateChanged(int state);
    void on_checkBox_autoReStart_stateChanged(int state);
    void on_comboBox_5dofAxis_currentIndexChanged(int index);
    void on_radioButton_inertialSensor_toggled(bool checked);
    void on_radioButton_frequency_toggled(bool checked);
    void on_radioButton_cameraSynchronous_toggled(bool checked);
    void on_comboBox_inertialSensor_currentIndexChanged(int index);
    void on_doubleSpinBox_frequency_valueChanged(double value);
    void on_pushButton_advanced_clicked();
    void on_pushButton_ok_clicked();
    void on_pushButton_cancel_clicked();

private:
    void applyLock();
    void applyAdvancedButton();
    bool anyFixedAngle() const;
    void readAxis();
    void sendAxis();
    void sendPulse();
    void touchSingleMarker();
    void touchPulse();
    void updatePulseEnabled();

    Ui::TrackingDialog *ui;
    CommandChannel channel;
    TrackingPreferences preferences;
    QIcon lockIcon;

    bool calculateMarkerAtOpen = false;
    bool autoRestartAtOpen = false;
    bool locked = false;
    bool singleMarkerChanged = false;
    bool pulseEditable = true;
    bool pulseChanged = false;
};

#endif // TRACKING_TRACKINGDLG_H
