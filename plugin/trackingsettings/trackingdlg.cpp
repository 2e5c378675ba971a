#include "trackingdlg.h"

#include "fixedangle.h"
#include "fixedangledlg.h"
#include "ui_trackingdialog.h"

namespace
{

// The items of the axis combo, in their order, and the room axis each stands for.
struct Axis {
    const char *name;
    double x, y, z;
};
constexpr Axis Axes[] = {
    { "x", 1, 0, 0 },
    { "-x", -1, 0, 0 },
    { "y", 0, 1, 0 },
    { "-y", 0, -1, 0 },
    { "z", 0, 0, 1 },
    { "-z", 0, 0, -1 },
};
constexpr int AxisCount = sizeof(Axes) / sizeof(Axes[0]);

const char *const AutoRestart = "tracking auto_restart";
const char *const CalculateMarker = "standard calculate_marker";
const char *const CentralAxis = "tracking axis_5dof_central";

} // namespace

TrackingDlg::TrackingDlg(IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions,
    const QString &moduleVersion)
    : QDialog(parent)
    , ui(new Ui::TrackingDialog)
    , channel(ioManager, backendVersions)
    , preferences(moduleVersion)
    , lockIcon(QStringLiteral(":/lock.png"))
{
    ui->setupUi(this);
    ui->Platzhalter_unsichtbar->hide();
    updatePulseEnabled();

    // Before the controller is asked anything.
    const QString error = preferences.read();
    if (!error.isEmpty())
        channel.report(error);

    setWindowTitle(tr("Single Markers"));

    // Compact systems always restart by themselves; the option is not theirs
    // to turn off.
    const bool orbilux = channel.gate().isOrbilux();
    if (orbilux && channel.atLeast(0, 14)) {
        autoRestartAtOpen = CommandText::isYes(channel.stringOf(QLatin1String(AutoRestart)));
        if (!autoRestartAtOpen)
            channel.setParameter(QLatin1String(AutoRestart) + QLatin1String(" yes"));
    }
    ui->checkBox_autoReStart->setVisible(!orbilux && preferences.autoRestartVisible());

    for (const Axis &axis : Axes)
        ui->comboBox_5dofAxis->addItem(QLatin1String(axis.name));
}

TrackingDlg::~TrackingDlg()
{
    const QString error = preferences.write();
    if (!error.isEmpty())
        channel.report(error);
    delete ui;
}

int TrackingDlg::update_and_exec()
{
    applyLock();
    applyAdvancedButton();

    // Hiding the option means the user relies on automatic restart.
    if (!preferences.autoRestartVisible()) {
        if (channel.atLeast(0, 14) && !locked)
            channel.setParameter(QLatin1String(AutoRestart) + QLatin1String(" yes"));
        ui->checkBox_autoReStart->hide();
    }

    calculateMarkerAtOpen = CommandText::isYes(channel.stringOf(QLatin1String(CalculateMarker)));
    ui->checkBox_force3d->setChecked(calculateMarkerAtOpen);

    if (channel.atLeast(0, 14)) {
        ui->checkBox_autoReStart->setEnabled(!locked);
        autoRestartAtOpen = CommandText::isYes(channel.stringOf(QLatin1String(AutoRestart)));
        ui->checkBox_autoReStart->setChecked(autoRestartAtOpen);
    } else {
        ui->checkBox_autoReStart->setEnabled(false);
    }

    if (channel.atLeast(1, 12)) {
        readAxis();
        ui->label_setAxis5dof->setEnabled(!locked);
        ui->comboBox_5dofAxis->setEnabled(!locked);
    } else {
        ui->label_setAxis5dof->setEnabled(false);
        ui->comboBox_5dofAxis->setEnabled(false);
    }

    ui->frame_trackingPulse->hide();
    singleMarkerChanged = false;
    return exec();
}

void TrackingDlg::applyLock()
{
    locked = channel.atLeast(1, 9)
        && channel.stringOf(QStringLiteral("config is_changeable")) == CommandText::no();
    if (locked) {
        setWindowIcon(lockIcon);
    } else {
        setWindowIcon(parentWidget() ? parentWidget()->windowIcon() : QIcon());
    }
    ui->checkBox_force3d->setEnabled(!locked);
    ui->pushButton_ok->setEnabled(!locked);
    ui->pushButton_advanced->setEnabled(!locked);
    if (locked) {
        ui->checkBox_autoReStart->setEnabled(false);
        ui->label_setAxis5dof->setEnabled(false);
        ui->comboBox_5dofAxis->setEnabled(false);
    }
}

void TrackingDlg::applyAdvancedButton()
{
    // Once offered, the button stays offered: the preferences remember it.
    preferences.setAdvancedShown(preferences.fixedAngleVisible() || anyFixedAngle());
    ui->pushButton_advanced->setVisible(preferences.advancedShown());
    if (!preferences.advancedShown())
        return;
    if (channel.atLeast(1, 6)) {
        ui->pushButton_advanced->setEnabled(!locked);
    } else {
        ui->pushButton_advanced->setEnabled(false);
        channel.report(QStringLiteral("TrackingSettings: Old version of Pelicam Controller"));
    }
}

bool TrackingDlg::anyFixedAngle() const
{
    if (!channel.atLeast(1, 6))
        return false;
    int count = 0;
    channel.getInt(QStringLiteral("standard number_of_bodies"), &count);
    for (int number = 1; number <= count; ++number) {
        FixedAngle body;
        body.setFromReply(channel.stringOf(
            QStringLiteral("standard fixed_angle ") + CommandText::bodyId(number)));
        if (body.anyHeld())
            return true;
    }
    return false;
}

void TrackingDlg::readAxis()
{
    QString reply;
    const bool answered = channel.getString(QLatin1String(CentralAxis), &reply) == 0;
    // Controllers may add fields after the vector; only the first three count.
    const QStringList fields = reply.split(QLatin1Char(' '));
    double value[3] = { 0, 0, 0 };
    bool numbers = answered && fields.size() >= 3;
    for (int i = 0; numbers && i < 3; ++i)
        value[i] = fields.at(i).toDouble(&numbers);

    ui->comboBox_5dofAxis->setCurrentIndex(-1);
    // An unreadable reply shows nothing rather than a made-up axis, nor the
    // vector of an earlier opening.
    if (!numbers) {
        ui->label_display5dof->clear();
        return;
    }
    for (int index = 0; index < AxisCount; ++index) {
        const Axis &axis = Axes[index];
        if (value[0] == axis.x && value[1] == axis.y && value[2] == axis.z) {
            ui->label_display5dof->clear();
            ui->comboBox_5dofAxis->setCurrentIndex(index);
            return;
        }
    }
    ui->label_display5dof->setText(tr("x = %1 mm, y = %2 mm, z = %3 mm")
                                       .arg(value[0], 0, 'f', 3)
                                       .arg(value[1], 0, 'f', 3)
                                       .arg(value[2], 0, 'f', 3));
}

void TrackingDlg::sendAxis()
{
    const QString current = ui->comboBox_5dofAxis->currentText();
    for (const Axis &axis : Axes) {
        if (current != QLatin1String(axis.name))
            continue;
        if (channel.setParameter(QLatin1String(CentralAxis)
                + QString::asprintf(" %.3f %.3f %.3f", axis.x, axis.y, axis.z))
            != 0)
            channel.report(QStringLiteral("Error: Unable to set values of the 5DOF central axis"));
        return;
    }
}

void TrackingDlg::sendPulse()
{
    if (!channel.atLeast(1, 21)) {
        channel.report(QStringLiteral("Error: Unable to set inertial tracking settings"));
        return;
    }
    if (ui->radioButton_cameraSynchronous->isChecked()) {
        if (channel.setParameter(QStringLiteral("tracking pulse synchronous_cameras")) != 0)
            channel.report(
                QStringLiteral("Error: Unable to set inertial tracking synchronous to cameras"));
    } else if (ui->radioButton_inertialSensor->isChecked()) {
        if (channel.setParameter(QStringLiteral("tracking pulse inertial_sensor ")
                + ui->comboBox_inertialSensor->currentData().toString())
            != 0)
            channel.report(QStringLiteral("Error: Unable to set inertial tracking to sensor"));
    } else if (ui->radioButton_frequency->isChecked()) {
        if (channel.setParameter(QStringLiteral("tracking pulse frequency ")
                + QString::asprintf("%f", ui->doubleSpinBox_frequency->value()))
            != 0)
            channel.report(QStringLiteral("Error: Unable to set inertial tracking frequency"));
    }
}

void TrackingDlg::touchSingleMarker()
{
    // Filling the controls before the dialog shows is no change.
    if (isVisible())
        singleMarkerChanged = true;
}

void TrackingDlg::touchPulse()
{
    if (pulseEditable)
        pulseChanged = true;
}

void TrackingDlg::updatePulseEnabled()
{
    ui->doubleSpinBox_frequency->setEnabled(ui->radioButton_frequency->isChecked());
    ui->comboBox_inertialSensor->setEnabled(ui->radioButton_inertialSensor->isChecked());
}

void TrackingDlg::on_checkBox_force3d_stateChanged(int)
{
    touchSingleMarker();
}

void TrackingDlg::on_checkBox_autoReStart_stateChanged(int)
{
    touchSingleMarker();
}

void TrackingDlg::on_comboBox_5dofAxis_currentIndexChanged(int)
{
    touchSingleMarker();
}

void TrackingDlg::on_radioButton_inertialSensor_toggled(bool)
{
    updatePulseEnabled();
    touchPulse();
}

void TrackingDlg::on_radioButton_frequency_toggled(bool)
{
    updatePulseEnabled();
    touchPulse();
}

void TrackingDlg::on_radioButton_cameraSynchronous_toggled(bool)
{
    updatePulseEnabled();
    touchPulse();
}

void TrackingDlg::on_comboBox_inertialSensor_currentIndexChanged(int)
{
    touchPulse();
}

void TrackingDlg::on_doubleSpinBox_frequency_valueChanged(double)
{
    touchPulse();
}

void TrackingDlg::on_pushButton_advanced_clicked()
{
    FixedAngleDlg dialog(channel.ioManager(), this, channel.backendVersions());
    dialog.update_and_exec();
}

void TrackingDlg::on_pushButton_ok_clicked()
{
    if (singleMarkerChanged) {
        channel.setParameter(QLatin1String(CalculateMarker) + QLatin1Char(' ')
            + CommandText::yesNo(ui->checkBox_force3d->isChecked()));
        if (channel.atLeast(0, 14))
            channel.setParameter(QLatin1String(AutoRestart) + QLatin1Char(' ')
                + CommandText::yesNo(ui->checkBox_autoReStart->isChecked()));
        // Older controllers cannot show the axis, but the combo holds one all
        // the same: its first item, and that one is sent.
        sendAxis();
    }
    if (pulseChanged)
        sendPulse();
    accept();
}

void TrackingDlg::on_pushButton_cancel_clicked()
{
    // Nothing was applied, yet the values read at opening are sent back on
    // purpose: whatever happened meanwhile, the controller ends as it was.
    if (singleMarkerChanged) {
        channel.setParameter(QLatin1String(CalculateMarker) + QLatin1Char(' ')
            + CommandText::yesNo(calculateMarkerAtOpen));
        if (channel.atLeast(0, 14))
            channel.setParameter(QLatin1String(AutoRestart) + QLatin1Char(' ')
                + CommandText::yesNo(autoRestartAtOpen));
    }
    reject();
}
