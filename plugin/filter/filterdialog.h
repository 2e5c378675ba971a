#ifndef TRACKING_FILTERDIALOG_H
#define TRACKING_FILTERDIALOG_H

#include "commandchannel.h"

#include <QDialog>
#include <QList>
#include <QMap>
#include <QString>

class IOManager;
class QComboBox;
struct BackendVersions;

namespace Ui
{
class FilterDialog;
}

// The 6DOF output filter of one body: on or off, its preset and, for custom
// presets, strength, prediction and mode. The controller holds every value;
// the dialog reads them back after each change so that it shows the
// controller's state. Made afresh for each use.
class FilterDialog : public QDialog
{
    Q_OBJECT

public:
    FilterDialog(IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions);
    ~FilterDialog() override;

    // bodyId as the controller writes it: "standard b03".
    void setFilterEnabled(const QString &bodyId, bool enabled);

public slots:
    // iTabIndex 0 for standard bodies, 1 for Gripwands; iBodyindex is the
    // 0-based body to show, or negative to offer every calibrated body.
    int update_and_exec(int iTabIndex, int iBodyindex);

private slots:
    void on_comboBox_body_currentIndexChanged(int index);
    void on_checkBox_active_stateChanged(int state);
    void on_comboBox_preset_currentIndexChanged(int index);
    void on_doubleSpinBox_strength_editingFinished();
    void on_spinBox_prediction_editingFinished();
    void on_comboBox_mode_currentIndexChanged(int index);
    void on_pushButton_help_clicked();
    void on_pushButton_exit_clicked();

private:
    struct Preset {
        QString id;
        QString description;
        bool usableWithInertialSensor = false;
    };
    enum class ListKind { Presets, Modes };

    QList<Preset> readList(ListKind kind) const;
    void readLimits();
    bool isAvailable(int tabIndex) const;
    void setControlsEnabled(bool enabled);
    void fillBodies(int tabIndex, int bodyIndex);
    void addBody(const QString &type, int number);

    QString currentBody() const;
    QString currentPreset() const;
    void readActive();
    void readPreset();
    // Strength, prediction and mode, and what of them the preset lets the user change.
    void readCustomSettings();
    void readMode(const QString &body);
    void refillPresets(const QString &body);
    void refillForBody(ListKind kind, const QString &body, QComboBox *combo);
    void send(const QString &body, const char *setting, const QString &value, const char *error);

    Ui::FilterDialog *ui;
    CommandChannel channel;
    bool initialised = false;
    bool locked = false;
    // Body id -> the body has an inertial sensor.
    QMap<QString, bool> bodies;
    QList<Preset> presets;
};

#endif // TRACKING_FILTERDIALOG_H
