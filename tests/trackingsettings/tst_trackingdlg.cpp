#include "fixedangledlg.h"
#include "helpdialog.h"
#include "trackingdlg.h"
#include "trackingsettingbodyadminmodule.h"

#include "temporaryhome.h"

#include <modaldriver.h>
#include <simulatedcontroller.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include <functional>

class TestTrackingDlg : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void lock_data();
    void lock();
    void axis_data();
    void axis();
    void orbiluxConstruction_data();
    void orbiluxConstruction();
    void hiddenAutoRestartForcesYes_data();
    void hiddenAutoRestartForcesYes();
    void okWithoutChangesSendsNothing();
    void okSendsTouchedValues_data();
    void okSendsTouchedValues();
    void cancelResendsOpeningValues_data();
    void cancelResendsOpeningValues();
    void advancedButton_data();
    void advancedButton();
    void pulse_data();
    void pulse();
    void badPreferencesReported();
    void singleMarkersEntryEndToEnd();
    void screenshots();

private:
    using Action = std::function<void(QWidget *dialog)>;
    // Opens the dialog, runs action on it while shown, then presses the button.
    int open(TrackingDlg &dialog, const Action &action, const char *button = "pushButton_cancel");
    TrackingDlg *newDialog();

    SimulatedController *controller = nullptr;
    ModalDriver *driver = nullptr;
};

namespace
{

const QByteArray AutoRestartShown("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VELORA>\n"
                                  "    <FIXED_ANGLE/>\n"
                                  "    <AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>\n"
                                  "</VELORA>\n");

template<typename T> T *child(QWidget *dialog, const char *name)
{
    return dialog->findChild<T *>(QLatin1String(name));
}

QCheckBox *force3d(QWidget *dialog)
{
    return child<QCheckBox>(dialog, "checkBox_force3d");
}

QCheckBox *autoRestartBox(QWidget *dialog)
{
    return child<QCheckBox>(dialog, "checkBox_autoReStart");
}

QComboBox *axisCombo(QWidget *dialog)
{
    return child<QComboBox>(dialog, "comboBox_5dofAxis");
}

QPushButton *button(QWidget *dialog, const char *name)
{
    return child<QPushButton>(dialog, name);
}

void clickLater(QWidget *dialog, const char *name)
{
    // Queued: the button may open a modal loop of its own.
    QMetaObject::invokeMethod(button(dialog, name), "click", Qt::QueuedConnection);
}

bool sameIcon(const QIcon &a, const QIcon &b)
{
    return a.pixmap(16).toImage() == b.pixmap(16).toImage();
}

} // namespace

void TestTrackingDlg::init()
{
    removePreferences();
    controller = new SimulatedController;
    QVERIFY(controller->loadScenario(SimulatedController::defaultScenario()));
    driver = new ModalDriver;
}

void TestTrackingDlg::cleanup()
{
    ModalDriver::closeAllModals();
    delete driver;
    delete controller;
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(),
        qPrintable(ModalDriver::topLevelWidgetNames().join(", ")));
    removePreferences();
}

TrackingDlg *TestTrackingDlg::newDialog()
{
    return new TrackingDlg(controller, nullptr, &controller->backendVersions(), "v3.0.5");
}

int TestTrackingDlg::open(TrackingDlg &dialog, const Action &action, const char *buttonName)
{
    // A driver of its own: a driver answers the same dialog only once.
    ModalDriver opening;
    opening.answer([=](QWidget *modal) {
        if (action)
            action(modal);
        clickLater(modal, buttonName);
    });
    return dialog.update_and_exec();
}

void TestTrackingDlg::lock_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("changeable");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("asked");

    QTest::newRow("controller says no") << 24 << "no" << true << true;
    QTest::newRow("controller says yes") << 24 << "yes" << false << true;
    QTest::newRow("only exactly no locks") << 24 << "No" << false << true;
    QTest::newRow("before 1.9 not asked") << 8 << "no" << false << false;
}

void TestTrackingDlg::lock()
{
    QFETCH(int, minor);
    QFETCH(QString, changeable);
    QFETCH(bool, locked);
    QFETCH(bool, asked);

    QVERIFY(writePreferences(AutoRestartShown));
    controller->backendVersions().backendVersion = { 1, minor, 0 };
    controller->setValue("config is_changeable", changeable);
    QWidget parent;
    parent.setWindowIcon(QIcon(":/green.png"));
    TrackingDlg dialog(controller, &parent, &controller->backendVersions(), "v3.0.5");

    QMap<QString, bool> enabled;
    QIcon icon;
    controller->clearLog();
    open(dialog, [&](QWidget *modal) {
        for (const char *name : { "checkBox_force3d", "checkBox_autoReStart", "label_setAxis5dof",
                 "comboBox_5dofAxis", "pushButton_advanced", "pushButton_ok", "pushButton_cancel" })
            enabled[name] = child<QWidget>(modal, name)->isEnabled();
        icon = modal->windowIcon();
    });

    QCOMPARE(enabled["checkBox_force3d"], !locked);
    QCOMPARE(enabled["checkBox_autoReStart"], !locked);
    QCOMPARE(enabled["pushButton_advanced"], !locked);
    QCOMPARE(enabled["pushButton_ok"], !locked);
    QCOMPARE(enabled["pushButton_cancel"], true);
    // The axis comes with 1.12, which the old controller lacks anyway.
    QCOMPARE(enabled["label_setAxis5dof"], !locked && minor >= 12);
    QCOMPARE(enabled["comboBox_5dofAxis"], !locked && minor >= 12);
    QCOMPARE(sameIcon(icon, QIcon(":/lock.png")), locked);
    QCOMPARE(sameIcon(icon, parent.windowIcon()), !locked);
    QCOMPARE(controller->commands().contains("config is_changeable"), asked);
}

void TestTrackingDlg::axis_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("display");

    QTest::newRow("z up") << "0.000 0.000 1.000"
                          << "z" << QString();
    QTest::newRow("-x") << "-1 0 0"
                        << "-x" << QString();
    QTest::newRow("-y from negative zeros") << "-0.000 -1.000 -0.000"
                                            << "-y" << QString();
    QTest::newRow("tilted axis in mm")
        << "0.5 0 0.866" << QString() << "x = 0.500 mm, y = 0.000 mm, z = 0.866 mm";
    QTest::newRow("almost z is not z")
        << "0 0 0.9999" << QString() << "x = 0.000 mm, y = 0.000 mm, z = 1.000 mm";
    QTest::newRow("two numbers") << "0 1" << QString() << QString();
    QTest::newRow("trailing blank") << "0 0 1 " << QString() << QString();
    QTest::newRow("not numbers") << "up up up" << QString() << QString();
    QTest::newRow("query fails") << "FAIL" << QString() << QString();
}

void TestTrackingDlg::axis()
{
    QFETCH(QString, reply);
    QFETCH(QString, selected);
    QFETCH(QString, display);

    QScopedPointer<TrackingDlg> dialog(newDialog());
    QString shownAxis = "not run";
    QString shownDisplay;
    // A first opening selects an axis, so that clearing it shows.
    controller->setValue("tracking axis_5dof_central", "0 1 0");
    open(*dialog, {});
    if (reply == "FAIL")
        controller->failCommand("tracking axis_5dof_central");
    else
        controller->setValue("tracking axis_5dof_central", reply);
    open(*dialog, [&](QWidget *modal) {
        shownAxis = axisCombo(modal)->currentText();
        shownDisplay = child<QLabel>(modal, "label_display5dof")->text();
    });
    QCOMPARE(shownAxis, selected);
    QCOMPARE(shownDisplay, display);
    QCOMPARE(controller->reports(), QStringList());
}

void TestTrackingDlg::orbiluxConstruction_data()
{
    QTest::addColumn<QString>("systemType");
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("autoRestart");
    QTest::addColumn<QStringList>("commands");
    QTest::addColumn<bool>("optionShown");

    QTest::newRow("ORBILUX with restart off turns it on")
        << "ORBILUX compact" << 3 << "no"
        << QStringList { "tracking auto_restart", "tracking auto_restart yes" } << false;
    QTest::newRow("ORBILUX with restart on leaves it")
        << "ORBILUX compact" << 3 << "yes" << QStringList { "tracking auto_restart" } << false;
    QTest::newRow("ORBILUX before 0.14 is not asked")
        << "ORBILUX compact" << -1 << "no" << QStringList() << false;
    QTest::newRow("other system asks nothing")
        << "VELORA TX8" << 3 << "no" << QStringList() << true;
    QTest::newRow("ORBILUX must start the type")
        << "VELORA ORBILUX" << 3 << "no" << QStringList() << true;
}

void TestTrackingDlg::orbiluxConstruction()
{
    QFETCH(QString, systemType);
    QFETCH(int, minor);
    QFETCH(QString, autoRestart);
    QFETCH(QStringList, commands);
    QFETCH(bool, optionShown);

    QVERIFY(writePreferences(AutoRestartShown));
    controller->backendVersions().systemType = systemType;
    // minor -1 stands for 0.13.
    controller->backendVersions().backendVersion = minor < 0
        ? BackendVersions::Version { 0, 13, 0 }
        : BackendVersions::Version { 1, minor, 0 };
    controller->setValue("tracking auto_restart", autoRestart);
    controller->clearLog();
    QScopedPointer<TrackingDlg> dialog(newDialog());
    QCOMPARE(controller->commands(), commands);
    QCOMPARE(!autoRestartBox(dialog.data())->isHidden(), optionShown);
}

void TestTrackingDlg::hiddenAutoRestartForcesYes_data()
{
    QTest::addColumn<bool>("optionShown");
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("changeable");
    QTest::addColumn<bool>("forced");

    QTest::newRow("hidden: forced at each opening") << false << 24 << "yes" << true;
    QTest::newRow("hidden but locked: not forced") << false << 24 << "no" << false;
    QTest::newRow("hidden before 0.14: not forced") << false << -1 << "yes" << false;
    QTest::newRow("shown: the user decides") << true << 24 << "yes" << false;
}

void TestTrackingDlg::hiddenAutoRestartForcesYes()
{
    QFETCH(bool, optionShown);
    QFETCH(int, minor);
    QFETCH(QString, changeable);
    QFETCH(bool, forced);

    if (optionShown)
        QVERIFY(writePreferences(AutoRestartShown));
    controller->backendVersions().backendVersion = minor < 0
        ? BackendVersions::Version { 0, 13, 0 }
        : BackendVersions::Version { 1, minor, 0 };
    controller->setValue("config is_changeable", changeable);
    controller->setValue("tracking auto_restart", "no");
    QScopedPointer<TrackingDlg> dialog(newDialog());

    bool visible = !optionShown;
    controller->clearLog();
    open(*dialog, {});
    open(*dialog, [&](QWidget *modal) { visible = autoRestartBox(modal)->isVisible(); });
    QCOMPARE(controller->commands().count("tracking auto_restart yes"), forced ? 2 : 0);
    QCOMPARE(visible, optionShown);
}

void TestTrackingDlg::okWithoutChangesSendsNothing()
{
    QVERIFY(writePreferences(AutoRestartShown));
    controller->setValue("standard calculate_marker", "yes");
    QScopedPointer<TrackingDlg> dialog(newDialog());
    // A second opening refills every control from the controller.
    open(*dialog, {}, "pushButton_ok");
    controller->setValue("standard calculate_marker", "no");
    controller->setValue("tracking auto_restart", "no");
    controller->setValue("tracking axis_5dof_central", "1 0 0");
    const int result = open(
        *dialog, [&](QWidget *) { controller->clearLog(); }, "pushButton_ok");
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(controller->commands(), QStringList());
}

void TestTrackingDlg::okSendsTouchedValues_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("axisReply");
    QTest::addColumn<QString>("newAxis");
    QTest::addColumn<bool>("axisFails");
    QTest::addColumn<QStringList>("commands");
    QTest::addColumn<QStringList>("reports");

    QTest::newRow("all three") << 24 << "0 0 1"
                               << "-y" << false
                               << QStringList { "standard calculate_marker yes",
                                      "tracking auto_restart no",
                                      "tracking axis_5dof_central 0.000 -1.000 0.000" }
                               << QStringList();
    QTest::newRow("unchanged axis is sent too")
        << 24 << "0 0 1" << QString() << false
        << QStringList { "standard calculate_marker yes", "tracking auto_restart no",
               "tracking axis_5dof_central 0.000 0.000 1.000" }
        << QStringList();
    QTest::newRow("no axis selected, none sent")
        << 24 << "0.5 0 0.866" << QString() << false
        << QStringList { "standard calculate_marker yes", "tracking auto_restart no" }
        << QStringList();
    QTest::newRow("axis refused") << 24 << "0 0 1"
                                  << "x" << true
                                  << QStringList { "standard calculate_marker yes",
                                         "tracking auto_restart no",
                                         "tracking axis_5dof_central 1.000 0.000 0.000" }
                                  << QStringList {
                                         "Error: Unable to set values of the 5DOF central axis"
                                     };
    QTest::newRow("before 1.12 no axis")
        << 11 << "0 0 1" << QString() << false
        << QStringList { "standard calculate_marker yes", "tracking auto_restart no" }
        << QStringList();
    QTest::newRow("before 0.14 only 3DOF")
        << -1 << "0 0 1" << QString() << false << QStringList { "standard calculate_marker yes" }
        << QStringList();
}

void TestTrackingDlg::okSendsTouchedValues()
{
    QFETCH(int, minor);
    QFETCH(QString, axisReply);
    QFETCH(QString, newAxis);
    QFETCH(bool, axisFails);
    QFETCH(QStringList, commands);
    QFETCH(QStringList, reports);

    QVERIFY(writePreferences(AutoRestartShown));
    controller->backendVersions().backendVersion = minor < 0
        ? BackendVersions::Version { 0, 13, 0 }
        : BackendVersions::Version { 1, minor, 0 };
    controller->setValue("tracking axis_5dof_central", axisReply);
    if (axisFails)
        controller->failCommand("tracking axis_5dof_central *");
    QScopedPointer<TrackingDlg> dialog(newDialog());
    const int result = open(
        *dialog,
        [&](QWidget *modal) {
            controller->clearLog();
            force3d(modal)->click();
            autoRestartBox(modal)->setChecked(false);
            if (!newAxis.isEmpty())
                axisCombo(modal)->setCurrentText(newAxis);
        },
        "pushButton_ok");
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(controller->commands(), commands);
    QCOMPARE(controller->reports(), reports);
}

void TestTrackingDlg::cancelResendsOpeningValues_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<bool>("touch");
    QTest::addColumn<QStringList>("commands");

    QTest::newRow("touched: values at opening go back")
        << 24 << true
        << QStringList { "standard calculate_marker no", "tracking auto_restart yes" };
    QTest::newRow("untouched: nothing") << 24 << false << QStringList();
    QTest::newRow("before 0.14 without auto restart")
        << -1 << true << QStringList { "standard calculate_marker no" };
}

void TestTrackingDlg::cancelResendsOpeningValues()
{
    QFETCH(int, minor);
    QFETCH(bool, touch);
    QFETCH(QStringList, commands);

    QVERIFY(writePreferences(AutoRestartShown));
    controller->backendVersions().backendVersion = minor < 0
        ? BackendVersions::Version { 0, 13, 0 }
        : BackendVersions::Version { 1, minor, 0 };
    QScopedPointer<TrackingDlg> dialog(newDialog());
    const int result = open(*dialog, [&](QWidget *modal) {
        // Meanwhile someone else changes the controller.
        controller->setValue("standard calculate_marker", "yes");
        controller->clearLog();
        if (touch) {
            force3d(modal)->click();
            axisCombo(modal)->setCurrentText("x");
        }
    });
    QCOMPARE(result, int(QDialog::Rejected));
    QCOMPARE(controller->commands(), commands);
}

void TestTrackingDlg::advancedButton_data()
{
    QTest::addColumn<bool>("remembered");
    QTest::addColumn<QString>("fixedAngle");
    QTest::addColumn<int>("minor");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QStringList>("reports");

    const QStringList old { "TrackingSettings: Old version of Pelicam Controller" };
    QTest::newRow("a body holds an angle")
        << false << "no 0 yes 2.5 no 0" << 24 << true << true << QStringList();
    QTest::newRow("no angle held")
        << false << "no 0 no 0 no 0" << 24 << false << false << QStringList();
    QTest::newRow("remembered from before")
        << true << "no 0 no 0 no 0" << 24 << true << true << QStringList();
    QTest::newRow("Yes is not yes")
        << false << "Yes 0 no 0 no 0" << 24 << false << false << QStringList();
    QTest::newRow("before 1.6 angles not asked")
        << false << "yes 1 yes 1 yes 1" << 5 << false << false << QStringList();
    QTest::newRow("remembered before 1.6: disabled and reported")
        << true << "no 0 no 0 no 0" << 5 << true << false << old;
}

void TestTrackingDlg::advancedButton()
{
    QFETCH(bool, remembered);
    QFETCH(QString, fixedAngle);
    QFETCH(int, minor);
    QFETCH(bool, shown);
    QFETCH(bool, enabled);
    QFETCH(QStringList, reports);

    if (remembered)
        QVERIFY(writePreferences(
            "<?xml version=\"1.0\"?><VELORA><FIXED_ANGLE VISIBLE=\"true\"/></VELORA>"));
    controller->backendVersions().backendVersion = { 1, minor, 0 };
    for (const char *body : { "b01", "b02", "b03", "b04" })
        controller->setValue(QString("standard fixed_angle %1").arg(body), "no 0 no 0 no 0");
    controller->setValue("standard fixed_angle b02", fixedAngle);
    QScopedPointer<TrackingDlg> dialog(newDialog());
    bool visible = !shown;
    bool usable = !enabled;
    controller->clearLog();
    open(*dialog, [&](QWidget *modal) {
        visible = button(modal, "pushButton_advanced")->isVisible();
        usable = button(modal, "pushButton_advanced")->isEnabled();
    });
    QCOMPARE(visible, shown);
    QCOMPARE(visible && usable, enabled);
    QCOMPARE(controller->reports(), reports);
    // The controller is searched only when needed, up to the first body
    // holding an angle.
    QCOMPARE(controller->commands().contains("standard fixed_angle b03"),
        minor >= 6 && !remembered && !fixedAngle.contains("yes"));

    // Once shown, the button is remembered for the next start.
    dialog.reset();
    QCOMPARE(readPreferences().contains("<FIXED_ANGLE VISIBLE=\"true\"/>"), shown);
}

void TestTrackingDlg::pulse_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<bool>("fails");
    QTest::addColumn<QStringList>("commands");
    QTest::addColumn<QStringList>("reports");
    QTest::addColumn<bool>("sensorEnabled");
    QTest::addColumn<bool>("frequencyEnabled");

    QTest::newRow("cameras") << 24 << "radioButton_cameraSynchronous" << false
                             << QStringList { "tracking pulse synchronous_cameras" }
                             << QStringList() << false << false;
    QTest::newRow("sensor") << 24 << "radioButton_inertialSensor" << false
                            << QStringList { "tracking pulse inertial_sensor VX IMU 'A1234'" }
                            << QStringList() << true << false;
    QTest::newRow("frequency") << 24 << "radioButton_frequency" << false
                               << QStringList { "tracking pulse frequency 120.000000" }
                               << QStringList() << false << true;
    QTest::newRow("refused sensor")
        << 24 << "radioButton_inertialSensor" << true
        << QStringList { "tracking pulse inertial_sensor VX IMU 'A1234'" }
        << QStringList { "Error: Unable to set inertial tracking to sensor" } << true << false;
    QTest::newRow("refused frequency")
        << 24 << "radioButton_frequency" << true
        << QStringList { "tracking pulse frequency 120.000000" }
        << QStringList { "Error: Unable to set inertial tracking frequency" } << false << true;
    QTest::newRow("refused cameras")
        << 24 << "radioButton_cameraSynchronous" << true
        << QStringList { "tracking pulse synchronous_cameras" }
        << QStringList { "Error: Unable to set inertial tracking synchronous to cameras" } << false
        << false;
    QTest::newRow("before 1.21 nothing is sent")
        << 20 << "radioButton_frequency" << false << QStringList()
        << QStringList { "Error: Unable to set inertial tracking settings" } << false << true;
}

void TestTrackingDlg::pulse()
{
    QFETCH(int, minor);
    QFETCH(QString, choice);
    QFETCH(bool, fails);
    QFETCH(QStringList, commands);
    QFETCH(QStringList, reports);
    QFETCH(bool, sensorEnabled);
    QFETCH(bool, frequencyEnabled);

    controller->backendVersions().backendVersion = { 1, minor, 0 };
    if (fails)
        controller->failCommand("tracking pulse *");
    QScopedPointer<TrackingDlg> dialog(newDialog());
    bool frameHidden = false;
    bool sensor = !sensorEnabled;
    bool frequency = !frequencyEnabled;
    open(
        *dialog,
        [&](QWidget *modal) {
            frameHidden = !child<QWidget>(modal, "frame_trackingPulse")->isVisible();
            controller->clearLog();
            // The frame is never shown; its controls still work underneath.
            child<QComboBox>(modal, "comboBox_inertialSensor")
                ->addItem("VX-9 A1234", "VX IMU 'A1234'");
            child<QDoubleSpinBox>(modal, "doubleSpinBox_frequency")->setValue(120);
            child<QRadioButton>(modal, "radioButton_frequency")->setChecked(true);
            child<QRadioButton>(modal, qPrintable(choice))->setChecked(true);
            sensor = child<QWidget>(modal, "comboBox_inertialSensor")->isEnabled();
            frequency = child<QWidget>(modal, "doubleSpinBox_frequency")->isEnabled();
        },
        "pushButton_ok");
    QVERIFY(frameHidden);
    QCOMPARE(sensor, sensorEnabled);
    QCOMPARE(frequency, frequencyEnabled);
    QCOMPARE(controller->commands(), commands);
    QCOMPARE(controller->reports(), reports);
}

void TestTrackingDlg::badPreferencesReported()
{
    QVERIFY(writePreferences("<VELORA><FIXED_ANGLE VISIBLE=\"true\"></VELORA>"));
    controller->clearLog();
    QScopedPointer<TrackingDlg> dialog(newDialog());
    QCOMPARE(controller->reports(),
        QStringList { QString("Error: Loading tracking settings preferences while parsing %1 (Line "
                              "1, Column 45) :\ntag mismatch. Using built-in values")
                          .arg(preferencesFile()) });
    QVERIFY(controller->log().last().receiver == "standard");
    QVERIFY(controller->log().last().sender == "VELORA4");
    QCOMPARE(controller->log().last().level, 1);
}

void TestTrackingDlg::singleMarkersEntryEndToEnd()
{
    QWidget window;
    TrackingSettingBodyAdminModule module;
    module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(controller));
    module.setModuleProperty("ModuleParent", QVariant::fromValue(&window));
    module.setModuleProperty(
        "BackendVersions", QVariant::fromValue(&controller->backendVersions()));
    QAction *singleMarkers = module.menuEntries().at(0)->action;

    QString axis;
    driver->answer([&](QWidget *modal) {
        axis = axisCombo(modal)->currentText();
        force3d(modal)->click();
        clickLater(modal, "pushButton_ok");
    });
    singleMarkers->trigger();
    QCOMPARE(driver->seen().size(), 1);
    QCOMPARE(driver->seen().at(0).className, QString("TrackingDlg"));
    QCOMPARE(driver->seen().at(0).title, QString("Single Markers"));
    QCOMPARE(axis, QString("z"));
    QCOMPARE(controller->value("standard calculate_marker"), QString("yes"));

    QVERIFY(!QFile::exists(preferencesFile()));
    module.cleanup();
    QCOMPARE(readPreferences(),
        QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VELORA>\n"
                   "    <FIXED_ANGLE VISIBLE=\"true\"/>\n"
                   "    <AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"true\"/>\n</VELORA>\n"));
}

// Pictures of the three dialogs for the documentation:
// SCREENSHOT_DIR=docs ctest -R tst_trackingdlg
void TestTrackingDlg::screenshots()
{
    const QString directory = qEnvironmentVariable("SCREENSHOT_DIR");
    if (directory.isEmpty())
        QSKIP("SCREENSHOT_DIR not set");
    QVERIFY(QDir().mkpath(directory));
    QVERIFY(writePreferences(AutoRestartShown));
    QScopedPointer<TrackingDlg> dialog(newDialog());

    bool saved = true;
    const auto shoot = [&](QWidget *modal, const char *name) {
        saved = modal->grab().save(QDir(directory).filePath(name)) && saved;
    };
    driver->answer([&](QWidget *modal) {
        shoot(modal, "trackingdialog.png");
        clickLater(modal, "pushButton_advanced");
    });
    driver->answer([&](QWidget *modal) {
        shoot(modal, "fixedangledialog.png");
        clickLater(modal, "pushButton_help");
    });
    driver->answer([&](QWidget *modal) {
        shoot(modal, "helpdialog.png");
        clickLater(modal, "pushButton_exit");
    });
    driver->reject();
    driver->reject();
    dialog->update_and_exec();
    QCOMPARE(driver->pending(), 0);
    QCOMPARE(driver->seen().at(1).title, QString("Fixed Angle Settings"));
    QVERIFY(saved);
}

TRACKING_TEST_MAIN_WITH_TEMPORARY_HOME(TestTrackingDlg)
#include "tst_trackingdlg.moc"
