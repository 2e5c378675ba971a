#ifndef TRACKING_BODYADMINISTRATIONDLG_H
#define TRACKING_BODYADMINISTRATIONDLG_H

#include "commandchannel.h"
#include "editdelegate.h"

#include <QDialog>
#include <QIcon>
#include <QMap>

class BodyAdminMessageReceiver;
class BodyTypeAdministrationTab;
class IOManager;
class Targetlibrary;
struct BackendVersions;

namespace Ui
{
class BodyAdminDialog;
}

// Every tracked body of the system, one tab per kind. The dialog decides
// which tabs exist, locks them while the configuration may not change,
// keeps its action buttons in step with the selected body, hands bodies
// over to the calibration and adjustment modules, and will not close while
// a calibration runs.
class BodyAdministrationDlg : public QDialog
{
    Q_OBJECT

public:
    BodyAdministrationDlg(IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions);
    ~BodyAdministrationDlg() override;

    BodyAdminMessageReceiver *messageReceiver() const { return receiver; }
    // Leaves the message service (the module's shutdown).
    void unsubscribe();
    BodyTypeAdministrationTab *tab(int key) const { return tabs.value(key); }
    BodyTypeAdministrationTab *currentTab() const { return tabs.value(currentKey); }
    bool isLocked() const { return locked; }

public slots:
    int update_and_exec();
    void onAdminTabWidget_selectionChanged(const QString &btype, int bid);
    void onReceiveBodyCalAvailable();
    void onReceiveBodyAdjustmentAvailable();
    void onReceiveReopen();
    void on_pushButton_exit_clicked();
    void on_pushButton_calibration_clicked();
    void on_pushButton_body_adjustment_clicked();
    void on_pushButton_filter_clicked();
    void on_pushButton_hybridCalibration_clicked();
    void on_tabWidget_currentChanged(int index);
    void reject() override;
    void update_config_locked();
    void update_calibration_button();
    void update_body_adjustment_button();
    void update_body_filter_button();
    void update_body_hybridCalibration_button();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void applyButtonRules();

    QWidget *parentWidget;
    Ui::BodyAdminDialog *form;
    IOManager *ioManager;
    BackendVersions *backendVersions;
    EditDelegate delegate;
    int currentKey = 0;
    QMap<int, BodyTypeAdministrationTab *> tabs;
    QString selectedType;
    int selectedBody = -1;
    bool bodyCalAvailable = false;
    bool bodyAdjustmentAvailable = false;
    bool multiUserGripwand = false;
    bool inertialAvailable = false;
    BodyAdminMessageReceiver *receiver = nullptr;
    bool locked = false;
    QIcon lockIcon;
    Targetlibrary *targetLibrary;
    CommandChannel channel;
};

#endif // TRACKING_BODYADMINISTRATIONDLG_H
