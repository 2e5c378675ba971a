#include "bodyadministrationdlg.h"

#include "bodyadminmessagereceiver.h"
#include "bodytabfactory.h"
#include "bodytypeadministrationtab.h"
#include "filterdialog.h"
#include "handoverrequest.h"
#include "targetlibrary.h"
#include "ui_bodyadmindialog.h"

#include <QKeyEvent>

BodyAdministrationDlg::BodyAdministrationDlg(
    IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions)
    : QDialog(parent)
    , parentWidget(parent)
    , form(new Ui::BodyAdminDialog)
    , ioManager(ioManager)
    , backendVersions(backendVersions)
    , channel(ioManager, backendVersions)
{
    form->setupUi(this);
    // The tabs carry their own buttons for these actions; the dialog's stay
    // hidden but keep their enabled state. Custom Calibration shows on the
    // measurement-tool tab only.
    form->pushButton_filter->setVisible(false);
    form->pushButton_calibration->setVisible(false);
    form->pushButton_hybridCalibration->setVisible(false);
    form->pushButton_body_adjustment->setVisible(false);

    targetLibrary = new Targetlibrary(ioManager, backendVersions, this);
    lockIcon = QIcon(QStringLiteral(":/lock.png"));
    tabs = BodyTabFactory::create(ioManager, this, backendVersions, targetLibrary);

    update_config_locked();

    receiver = new BodyAdminMessageReceiver(this);
    receiver->subscribe(channel);
    connect(receiver, &BodyAdminMessageReceiver::dialogReopen, this,
        &BodyAdministrationDlg::onReceiveReopen, Qt::QueuedConnection);
    connect(receiver, &BodyAdminMessageReceiver::BodyCalAvailable, this,
        &BodyAdministrationDlg::onReceiveBodyCalAvailable);
    connect(receiver, &BodyAdminMessageReceiver::BodyAdjustmentAvailable, this,
        &BodyAdministrationDlg::onReceiveBodyAdjustmentAvailable);
    connect(receiver, &BodyAdminMessageReceiver::activeConfigurationChanged, this,
        &BodyAdministrationDlg::update_config_locked);
    for (BodyTypeAdministrationTab *tab : qAsConst(tabs))
        connect(receiver, &BodyAdminMessageReceiver::activeConfigurationChanged, tab,
            &BodyTypeAdministrationTab::ON_activeConfigurationChanged);

    while (form->tabWidget->count() > 0) {
        QWidget *placeholder = form->tabWidget->widget(0);
        form->tabWidget->removeTab(0);
        delete placeholder;
    }
    for (BodyTypeAdministrationTab *tab : qAsConst(tabs)) {
        connect(tab, &BodyTypeAdministrationTab::selection_changed, this,
            &BodyAdministrationDlg::onAdminTabWidget_selectionChanged);
        form->tabWidget->addTab(tab, tab->tabTitle());
    }
    bodyCalAvailable = false;
    bodyAdjustmentAvailable = false;
}

BodyAdministrationDlg::~BodyAdministrationDlg()
{
    // The host would otherwise deliver the next message to a freed receiver
    // when it was deleted without the module's shutdown() first.
    unsubscribe();
    delete form;
}

void BodyAdministrationDlg::unsubscribe()
{
    receiver->unsubscribe();
}

void BodyAdministrationDlg::update_config_locked()
{
    QString changeable;
    locked = channel.atLeast(1, 9)
        && channel.getString(QStringLiteral("config is_changeable"), &changeable) == 0
        && changeable == CommandText::no();
    for (BodyTypeAdministrationTab *tab : qAsConst(tabs))
        tab->setLocked(locked);
}

int BodyAdministrationDlg::update_and_exec()
{
    update_config_locked();
    if (locked)
        setWindowIcon(lockIcon);
    else
        setWindowIcon(parentWidget ? parentWidget->windowIcon() : QIcon());
    for (QPushButton *button : { form->pushButton_filter, form->pushButton_calibration,
             form->pushButton_hybridCalibration, form->pushButton_body_adjustment })
        button->setEnabled(!locked);

    BodyTypeAdministrationTab *gripwandTab = tabs.value(BodyTabFactory::Gripwand);
    if (!channel.gate().isOrbilux() && gripwandTab)
        multiUserGripwand = gripwandTab->isMultiUserActive();
    if (!bodyCalAvailable)
        form->pushButton_calibration->setEnabled(false);
    if (!bodyAdjustmentAvailable || multiUserGripwand)
        form->pushButton_body_adjustment->setEnabled(false);

    BodyTypeAdministrationTab *tab = currentTab();
    if (tab)
        tab->update_tab();
    inertialAvailable = channel.atLeast(1, 12)
        && CommandText::isYes(channel.stringOf(QStringLiteral("inertial available")));
    if (tab) {
        form->pushButton_filter->setEnabled(tab->canFilterSelected());
        form->pushButton_hybridCalibration->setEnabled(tab->canHybridCalibrateSelected());
    }
    return exec();
}

void BodyAdministrationDlg::onAdminTabWidget_selectionChanged(const QString &btype, int bid)
{
    selectedType = btype;
    selectedBody = bid;
    applyButtonRules();
    BodyTypeAdministrationTab *tab = currentTab();
    static const QStringList withTargets { "standard", "gripwand", "fingertracking",
        "measurementtool_reference" };
    if (tab && withTargets.contains(btype))
        tab->applySelectionRules();
}

void BodyAdministrationDlg::applyButtonRules()
{
    update_calibration_button();
    update_body_adjustment_button();
    update_body_filter_button();
    update_body_hybridCalibration_button();
}

void BodyAdministrationDlg::update_calibration_button()
{
    if (bodyCalAvailable && currentTab())
        form->pushButton_calibration->setEnabled(currentTab()->isBodySelected());
}

void BodyAdministrationDlg::update_body_adjustment_button()
{
    if (bodyAdjustmentAvailable && !multiUserGripwand && currentTab())
        form->pushButton_body_adjustment->setEnabled(currentTab()->canAdjustSelected());
}

void BodyAdministrationDlg::update_body_filter_button()
{
    if (currentTab())
        form->pushButton_filter->setEnabled(currentTab()->canFilterSelected());
}

void BodyAdministrationDlg::update_body_hybridCalibration_button()
{
    if (currentTab())
        form->pushButton_hybridCalibration->setEnabled(currentTab()->canHybridCalibrateSelected());
}

void BodyAdministrationDlg::onReceiveBodyCalAvailable()
{
    bodyCalAvailable = true;
}

void BodyAdministrationDlg::onReceiveBodyAdjustmentAvailable()
{
    bodyAdjustmentAvailable = true;
}

void BodyAdministrationDlg::onReceiveReopen()
{
    if (BodyTypeAdministrationTab *tab = currentTab()) {
        tab->refreshTargetStatus();
        tab->update_tab();
    }
    exec();
}

void BodyAdministrationDlg::on_pushButton_exit_clicked()
{
    reject();
}

void BodyAdministrationDlg::on_pushButton_calibration_clicked()
{
    if (selectedBody < 0)
        return;
    hide();
    HandOverRequest::customCalibration(selectedType, selectedBody).send(channel);
}

void BodyAdministrationDlg::on_pushButton_body_adjustment_clicked()
{
    if (selectedBody < 0)
        return;
    const QString calibration
        = currentTab() ? currentTab()->calibrationText(selectedType, selectedBody) : QString();
    hide();
    HandOverRequest::bodyAdjustment(selectedType, selectedBody, calibration).send(channel);
}

void BodyAdministrationDlg::on_pushButton_hybridCalibration_clicked()
{
    if (selectedBody < 0)
        return;
    const QString calibration
        = currentTab() ? currentTab()->calibrationText(selectedType, selectedBody) : QString();
    hide();
    HandOverRequest::hybridCalibration(selectedType, selectedBody, calibration).send(channel);
}

void BodyAdministrationDlg::on_pushButton_filter_clicked()
{
    const int tabIndex = form->tabWidget->currentIndex();
    int bodyIndex = -1;
    if (tabIndex == BodyTabFactory::Standard || tabIndex == BodyTabFactory::Gripwand) {
        if (BodyTypeAdministrationTab *tab = tabs.value(tabIndex))
            bodyIndex = tab->currentRow();
    }
    {
        FilterDialog filter(ioManager, this, backendVersions);
        filter.update_and_exec(tabIndex, bodyIndex);
    }
    if (BodyTypeAdministrationTab *tab = currentTab())
        tab->update_tab();
}

void BodyAdministrationDlg::on_tabWidget_currentChanged(int index)
{
    if (!isVisible())
        return;
    currentKey = index;
    if (!tabs.contains(currentKey) && channel.gate().isOrbilux() && currentKey == 2)
        currentKey = BodyTabFactory::MeasurementTool;
    if (!tabs.contains(currentKey))
        currentKey = BodyTabFactory::Standard;

    BodyTypeAdministrationTab *tab = currentTab();
    if (tab) {
        tab->update_tab();
        if (bodyCalAvailable)
            form->pushButton_calibration->setEnabled(tab->isBodySelected());
        update_body_adjustment_button();
        form->pushButton_hybridCalibration->setEnabled(tab->canHybridCalibrateSelected());
        form->pushButton_filter->setEnabled(tab->canFilterSelected());
    }
    form->pushButton_calibration->setVisible(currentKey == BodyTabFactory::MeasurementTool);
}

void BodyAdministrationDlg::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F8 && form->tabWidget->count() > 0) {
        form->tabWidget->setCurrentIndex(
            (form->tabWidget->currentIndex() + 1) % form->tabWidget->count());
        return;
    }
    QDialog::keyPressEvent(event);
}

void BodyAdministrationDlg::reject()
{
    QString active;
    if (channel.getString(QStringLiteral("status active"), &active) == 0
        && !CommandText::isNone(active)) {
        channel.report(QStringLiteral("Unable to close dialog during calibration is running"));
        return;
    }
    for (BodyTypeAdministrationTab *tab : qAsConst(tabs))
        tab->about_to_exit();
    // Closing always counts as accepted, whichever way the user closed.
    accept();
}
