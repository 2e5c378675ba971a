#include "trackingdlg.h"
#include "trackingsettingbodyadminmodule.h"

#include "temporaryhome.h"

#include <modaldriver.h>
#include <simulatedcontroller.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

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
    void autoRestartForced_data();
    void autoRestartForced();
    void okAndCancel_data();
    void okAndCancel();
    void advancedButton_data();
    void advancedButton();
    void singleMarkersEntryEndToEnd();
    void screenshots();

private:
    using Action = std::function<void(QWidget *dialog)>;
    // Opens the dialog, runs action on it while shown, then presses the button.
    int open(TrackingDlg &dialog, const Action &action, const char *button = "pushButton_cancel");
    TrackingDlg *newDialog(const BackendVersions::Version &version = { 1, 24, 0 });

    sim::SimulatedController *controller = nullptr;
};

namespace
{

const QByteArray OptionShown("<VELORA><AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/></VELORA>");

template<typename T = QWidget> T *child(QWidget *dialog, const QString &name)
{
    return dialog->findChild<T *>(name);
}

void clickLater(QWidget *dialog, const char *name)
{
    // Queued: the button may open a modal loop of its own.
    QMetaObject::invokeMethod(child(dialog, name), "click", Qt::QueuedConnection);
}

QImage imageOf(const QIcon &icon)
{
    return icon.pixmap(16).toImage();
}

} // namespace

void TestTrackingDlg::init()
{
    removePreferences();
    controller = new sim::SimulatedController;
    QVERIFY(controller->loadScenario(sim::SimulatedController::defaultScenario()));
}

void TestTrackingDlg::cleanup()
{
    ModalDriver::closeAllModals();
    delete controller;
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(),
        qPrintable(ModalDriver::topLevelWidgetNames().join(", ")));
}

TrackingDlg *TestTrackingDlg::newDialog(const BackendVersions::Version &version)
{
    controller->backendVersions().backendVersion = version;
    return new TrackingDlg(controller, nullptr, &controller->backendVersions(), "v3.0.5");
}

int TestTrackingDlg::open(TrackingDlg &dialog, const Action &action, const char *buttonName)
{
    // A driver answers each dialog only once; reopening needs a new one.
    ModalDriver driver;
    driver.answer([=](QWidget *modal) {
        if (action)
            action(modal);
        clickLater(modal, buttonName);
    });
    return dialog.update_and_exec();
}

void TestTrackingDlg::lock_data()
{
    QTest::addColumn<QString>("changeable");
    QTest::newRow("controller says no: locked") << "no";
    QTest::newRow("controller says yes") << "yes";
}

void TestTrackingDlg::lock()
{
    QFETCH(QString, changeable);
    const bool locked = changeable == "no";

    QVERIFY(writePreferences(OptionShown));
    controller->setValue("config is_changeable", changeable);
    QScopedPointer<TrackingDlg> dialog(newDialog());
    QStringList enabled;
    QImage icon;
    open(*dialog, [&](QWidget *modal) {
        for (const char *name : { "checkBox_force3d", "checkBox_autoReStart", "comboBox_5dofAxis",
                 "pushButton_advanced", "pushButton_ok", "pushButton_cancel" })
            if (child(modal, name)->isEnabled())
                enabled << name;
        icon = imageOf(modal->windowIcon());
    });
    QCOMPARE(enabled.join(' '),
        QString(locked ? "pushButton_cancel"
                       : "checkBox_force3d checkBox_autoReStart comboBox_5dofAxis "
                         "pushButton_advanced pushButton_ok pushButton_cancel"));
    QCOMPARE(icon == imageOf(QIcon(":/lock.png")), locked);
}

void TestTrackingDlg::axis_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("display");

    QTest::newRow("z up") << "0.000 0.000 1.000" << QString("z") << QString();
    QTest::newRow("-x") << "-1 0 0" << QString("-x") << QString();
    QTest::newRow("tilted, in mm")
        << "0.5 0 0.866" << QString() << "x = 0.500 mm, y = 0.000 mm, z = 0.866 mm";
    QTest::newRow("trailing blank") << "0 0 1 " << QString() << QString();
    QTest::newRow("query fails") << QString() << QString() << QString();
}

void TestTrackingDlg::axis()
{
    QFETCH(QString, reply);
    QFETCH(QString, selected);
    QFETCH(QString, display);

    QScopedPointer<TrackingDlg> dialog(newDialog());
    // A first opening selects an axis, so that clearing it shows.
    controller->setValue("tracking axis_5dof_central", "0 1 0");
    open(*dialog, {});
    if (reply.isNull())
        controller->failCommand("tracking axis_5dof_central");
    controller->setValue("tracking axis_5dof_central", reply);
    QString shownAxis = "not run", shownDisplay;
    open(*dialog, [&](QWidget *modal) {
        shownAxis = child<QComboBox>(modal, "comboBox_5dofAxis")->currentText();
        shownDisplay = child<QLabel>(modal, "label_display5dof")->text();
    });
    QCOMPARE(shownAxis, selected);
    QCOMPARE(shownDisplay, display);
}

void TestTrackingDlg::autoRestartForced_data()
{
    QTest::addColumn<QString>("systemType");
    QTest::addColumn<bool>("optionShown");
    QTest::addColumn<QString>("changeable");
    QTest::addColumn<QString>("autoRestart");
    QTest::addColumn<QStringList>("atConstruction");
    QTest::addColumn<int>("forcedAtOpenings");

    const QStringList asked { "tracking auto_restart" };
    QTest::newRow("ORBILUX, off: turned on")
        << "ORBILUX compact" << true << "yes"
        << "no" << asked + QStringList { "tracking auto_restart yes" } << 0;
    QTest::newRow("ORBILUX, on: left") << "ORBILUX compact" << true << "yes"
                                       << "yes" << asked << 0;
    QTest::newRow("hidden: forced at each opening") << "VELORA TX8" << false << "yes"
                                                    << "no" << QStringList() << 2;
    QTest::newRow("hidden but locked: not forced") << "VELORA TX8" << false << "no"
                                                   << "no" << QStringList() << 0;
    QTest::newRow("shown: the user decides") << "VELORA TX8" << true << "yes"
                                             << "no" << QStringList() << 0;
}

void TestTrackingDlg::autoRestartForced()
{
    QFETCH(QString, systemType);
    QFETCH(bool, optionShown);
    QFETCH(QString, changeable);
    QFETCH(QString, autoRestart);
    QFETCH(QStringList, atConstruction);
    QFETCH(int, forcedAtOpenings);

    if (optionShown)
        QVERIFY(writePreferences(OptionShown));
    controller->backendVersions().systemType = systemType;
    controller->setValue("config is_changeable", changeable);
    controller->setValue("tracking auto_restart", autoRestart);
    controller->clearLog();
    QScopedPointer<TrackingDlg> dialog(newDialog());
    QCOMPARE(controller->commands(), atConstruction);

    bool visible = !optionShown;
    controller->clearLog();
    open(*dialog, {});
    open(*dialog,
        [&](QWidget *modal) { visible = child(modal, "checkBox_autoReStart")->isVisible(); });
    QCOMPARE(controller->commands().count("tracking auto_restart yes"), forcedAtOpenings);
    // ORBILUX systems never offer the option.
    QCOMPARE(visible, optionShown && atConstruction.isEmpty());
}

void TestTrackingDlg::okAndCancel_data()
{
    QTest::addColumn<QString>("axis");
    QTest::addColumn<bool>("touch");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("commands");

    const QStringList touched { "standard calculate_marker no", "tracking auto_restart no" };
    QTest::newRow("OK untouched: nothing") << "0 -1 0" << false << "ok" << QStringList();
    QTest::newRow("OK sends all three")
        << "0 -1 0" << true << "ok"
        << touched + QStringList { "tracking axis_5dof_central 0.000 -1.000 0.000" };
    QTest::newRow("OK without axis item") << "0.5 0 0.866" << true << "ok" << touched;
    QTest::newRow("Cancel untouched: nothing") << "0 -1 0" << false << "cancel" << QStringList();
    QTest::newRow("Cancel sends the values read at opening")
        << "0 -1 0" << true << "cancel"
        << QStringList { "standard calculate_marker yes", "tracking auto_restart yes" };
}

void TestTrackingDlg::okAndCancel()
{
    QFETCH(QString, axis);
    QFETCH(bool, touch);
    QFETCH(QString, button);
    QFETCH(QStringList, commands);

    QVERIFY(writePreferences(OptionShown));
    QScopedPointer<TrackingDlg> dialog(newDialog());
    open(*dialog, {}, "pushButton_ok");
    // Refilling the controls at the next opening is no change.
    controller->setValue("standard calculate_marker", "yes");
    controller->setValue("tracking axis_5dof_central", axis);
    const int result = open(
        *dialog,
        [&](QWidget *modal) {
            controller->clearLog();
            if (touch) {
                child<QCheckBox>(modal, "checkBox_force3d")->click();
                child<QCheckBox>(modal, "checkBox_autoReStart")->click();
            }
        },
        qPrintable("pushButton_" + button));
    QCOMPARE(result, int(button == "ok" ? QDialog::Accepted : QDialog::Rejected));
    QCOMPARE(controller->commands(), commands);
}

void TestTrackingDlg::advancedButton_data()
{
    QTest::addColumn<bool>("remembered");
    QTest::addColumn<QString>("fixedAngle");
    QTest::addColumn<int>("minor");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QStringList>("reports");

    QTest::newRow("a body holds an angle")
        << false << "no 0 yes 2.5 no 0" << 24 << true << QStringList();
    QTest::newRow("no angle held") << false << "no 0 no 0 no 0" << 24 << false << QStringList();
    QTest::newRow("remembered from before")
        << true << "no 0 no 0 no 0" << 24 << true << QStringList();
    QTest::newRow("remembered before 1.6: disabled, reported")
        << true << "no 0 no 0 no 0" << 5 << false
        << QStringList { "TrackingSettings: Old version of Pelicam Controller" };
}

void TestTrackingDlg::advancedButton()
{
    QFETCH(bool, remembered);
    QFETCH(QString, fixedAngle);
    QFETCH(int, minor);
    QFETCH(bool, enabled);
    QFETCH(QStringList, reports);

    const bool shown = remembered || fixedAngle.contains("yes");
    if (remembered)
        QVERIFY(writePreferences("<VELORA><FIXED_ANGLE VISIBLE=\"true\"/></VELORA>"));
    controller->setValue("standard fixed_angle b03", "no 0 no 0 no 0");
    controller->setValue("standard fixed_angle b02", fixedAngle);
    QScopedPointer<TrackingDlg> dialog(newDialog({ 1, minor, 0 }));
    bool visible = !shown, usable = !enabled;
    controller->clearLog();
    open(*dialog, [&](QWidget *modal) {
        visible = child(modal, "pushButton_advanced")->isVisible();
        usable = child(modal, "pushButton_advanced")->isEnabled();
    });
    QCOMPARE(visible, shown);
    QCOMPARE(visible && usable, enabled);
    QCOMPARE(controller->reports(), reports);
    // The search ends at the first body holding an angle.
    QCOMPARE(controller->commands().contains("standard fixed_angle b03"), !shown);

    // Once shown, the button stays offered at the next start.
    dialog.reset();
    QCOMPARE(readPreferences().contains("<FIXED_ANGLE VISIBLE=\"true\"/>"), shown);
}

void TestTrackingDlg::singleMarkersEntryEndToEnd()
{
    QVERIFY(writePreferences("<VELORA><FIXED_ANGLE/></VELORA"));
    QWidget window;
    TrackingSettingBodyAdminModule module;
    module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(controller));
    module.setModuleProperty("ModuleParent", QVariant::fromValue(&window));
    module.setModuleProperty(
        "BackendVersions", QVariant::fromValue(&controller->backendVersions()));
    QAction *singleMarkers = module.menuEntries().at(0)->action;
    QCOMPARE(controller->reports(),
        QStringList { "Error: Loading tracking settings preferences while parsing "
            + preferencesFile()
            + " (Line 1, Column 31) :\nunexpected end of file. Using built-in values" });

    ModalDriver driver;
    QString axis;
    driver.answer([&](QWidget *modal) {
        axis = child<QComboBox>(modal, "comboBox_5dofAxis")->currentText();
        child<QCheckBox>(modal, "checkBox_force3d")->click();
        clickLater(modal, "pushButton_ok");
    });
    singleMarkers->trigger();
    QCOMPARE(driver.seen().size(), 1);
    QCOMPARE(driver.seen().at(0).title, QString("Single Markers"));
    QCOMPARE(axis, QString("z"));
    QCOMPARE(controller->value("standard calculate_marker"), QString("yes"));

    module.cleanup();
    QCOMPARE(readPreferences(),
        QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VELORA>\n"
                   "    <FIXED_ANGLE VISIBLE=\"true\"/>\n"
                   "    <AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"true\"/>\n</VELORA>\n"));
}

// Pictures of the three dialogs for the documentation:
// SCREENSHOT_DIR=$PWD/docs ctest -R tst_trackingdlg
void TestTrackingDlg::screenshots()
{
    const QString directory = qEnvironmentVariable("SCREENSHOT_DIR");
    if (directory.isEmpty())
        QSKIP("SCREENSHOT_DIR not set");
    QVERIFY(writePreferences(OptionShown));
    QScopedPointer<TrackingDlg> dialog(newDialog());
    bool saved = true;
    const auto shoot = [&](const char *next, const char *file) {
        return [=, &saved](QWidget *modal) {
            saved = modal->grab().save(QDir(directory).filePath(file)) && saved;
            clickLater(modal, next);
        };
    };
    ModalDriver driver;
    driver.answer(shoot("pushButton_advanced", "trackingdialog.png"));
    driver.answer(shoot("pushButton_help", "fixedangledialog.png"));
    driver.answer(shoot("pushButton_exit", "helpdialog.png"));
    driver.reject();
    driver.reject();
    dialog->update_and_exec();
    QCOMPARE(driver.pending(), 0);
    QVERIFY(saved);
}

TRACKING_TEST_MAIN_WITH_TEMPORARY_HOME(TestTrackingDlg)
#include "tst_trackingdlg.moc"
