#include "trackingdlg.h"

#include "temporaryhome.h"

#include <modaldriver.h>
#include <testkit.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QRadioButton>

using testkit::child;

class TestTrackingDlg : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        removePreferences();
        testkit::useScenario(controller);
    }
    void cleanup() { testkit::closeAllAndCheck(); }
    void opening_data();
    void opening();
    void axis_data();
    void axis();
    void operatorPaths_data();
    void operatorPaths();
    void pulse_data();
    void pulse();
    void autoRestartForced_data();
    void autoRestartForced();
    void advancedButton_data();
    void advancedButton();

private:
    using Action = std::function<void(QWidget *dialog)>;
    // Opens the dialog, runs action on it while shown, then clicks the button.
    int open(TrackingDlg &dialog, const Action &action, const char *button = "pushButton_cancel");
    TrackingDlg *newDialog();

    sim::SimulatedController controller;
};

namespace
{
const QByteArray OptionShown("<VELORA><AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/></VELORA>");
const QStringList Controls { "checkBox_force3d", "checkBox_autoReStart", "comboBox_5dofAxis",
    "pushButton_advanced", "pushButton_ok", "pushButton_cancel" };
} // namespace

TrackingDlg *TestTrackingDlg::newDialog()
{
    return new TrackingDlg(&controller, nullptr, &controller.backendVersions(), "v3.0.5");
}

int TestTrackingDlg::open(TrackingDlg &dialog, const Action &action, const char *button)
{
    ModalDriver driver; // answers one opening only
    driver.answer([=](QWidget *modal) {
        if (action)
            action(modal);
        testkit::clickLater(modal, button);
    });
    return dialog.update_and_exec();
}

// Each gate appears at its version and just below it.
void TestTrackingDlg::opening_data()
{
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("changeable");
    QTest::addColumn<QString>("usable"); // controls visible and enabled
    QTest::addColumn<QString>("asked");

    const QString angles = "standard number_of_bodies, standard fixed_angle b01, "
                           "standard fixed_angle b02, standard fixed_angle b03, ";
    const QString read = "standard calculate_marker, tracking auto_restart";
    const QString all = "checkBox_force3d checkBox_autoReStart pushButton_advanced ";
    // clang-format off
    QTest::newRow("0.13") << 0 << 13 << "yes" << "checkBox_force3d pushButton_ok pushButton_cancel" << "standard calculate_marker";
    QTest::newRow("0.14") << 0 << 14 << "yes" << "checkBox_force3d checkBox_autoReStart pushButton_ok pushButton_cancel" << read;
    QTest::newRow("1.5") << 1 << 5 << "yes" << "checkBox_force3d checkBox_autoReStart pushButton_ok pushButton_cancel" << read;
    QTest::newRow("1.6") << 1 << 6 << "yes" << all + "pushButton_ok pushButton_cancel" << angles + read;
    QTest::newRow("1.8 never locked") << 1 << 8 << "no" << all + "pushButton_ok pushButton_cancel" << angles + read;
    QTest::newRow("1.9 locked") << 1 << 9 << "no" << "pushButton_cancel" << "config is_changeable, " + angles + read;
    QTest::newRow("1.11") << 1 << 11 << "yes" << all + "pushButton_ok pushButton_cancel" << "config is_changeable, " + angles + read;
    QTest::newRow("1.12") << 1 << 12 << "yes" << "checkBox_force3d checkBox_autoReStart comboBox_5dofAxis pushButton_advanced pushButton_ok pushButton_cancel" << "config is_changeable, " + angles + read + ", tracking axis_5dof_central";
    QTest::newRow("1.12 locked") << 1 << 12 << "no" << "pushButton_cancel" << "config is_changeable, " + angles + read + ", tracking axis_5dof_central";
    // clang-format on
}

void TestTrackingDlg::opening()
{
    QFETCH(int, major);
    QFETCH(int, minor);
    QFETCH(QString, changeable);
    QFETCH(QString, usable);
    QVERIFY(writePreferences(OptionShown));
    controller.backendVersions().backendVersion = { major, minor, 0 };
    controller.setValue("config is_changeable", changeable);
    QScopedPointer<TrackingDlg> dialog(newDialog());
    QStringList shown;
    bool lockIcon = false;
    open(*dialog, [&](QWidget *modal) {
        for (const QString &name : Controls)
            if (child(modal, qPrintable(name))->isVisibleTo(modal)
                && child(modal, qPrintable(name))->isEnabled())
                shown << name;
        lockIcon
            = modal->windowIcon().pixmap(16).toImage() == QIcon(":/lock.png").pixmap(16).toImage();
    });
    QCOMPARE(shown.join(' '), usable);
    QTEST(controller.commands().join(", "), "asked");
    QCOMPARE(lockIcon, changeable == "no" && minor >= 9);
}

void TestTrackingDlg::axis_data()
{
    QTest::addColumn<QString>("reply"); // null: the query fails
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("display");

    QTest::newRow("z up") << "0.000 0.000 1.000"
                          << "z"
                          << "";
    QTest::newRow("-x") << "-1 0 0"
                        << "-x"
                        << "";
    QTest::newRow("tilted, in mm") << "0.5 0 0.866"
                                   << ""
                                   << "x = 0.500 mm, y = 0.000 mm, z = 0.866 mm";
    QTest::newRow("split at blanks") << " 0  -1 0 "
                                     << "-y"
                                     << "";
    QTest::newRow("first three fields used") << "0 0 -1 extra"
                                             << "-z"
                                             << "";
    QTest::newRow("too few fields") << "0 1"
                                    << ""
                                    << "";
    QTest::newRow("no number") << "0 up 1"
                               << ""
                               << "";
    QTest::newRow("query fails") << QString() << ""
                                 << "";
}

void TestTrackingDlg::axis()
{
    QFETCH(QString, reply);
    QScopedPointer<TrackingDlg> dialog(newDialog());
    // A first opening shows a vector, so that clearing it shows.
    controller.setValue("tracking axis_5dof_central", "0.1 0.2 0.3");
    open(*dialog, {});
    if (reply.isNull())
        controller.failCommand("tracking axis_5dof_central");
    controller.setValue("tracking axis_5dof_central", reply);
    QString axis = "not run", display;
    open(*dialog, [&](QWidget *modal) {
        axis = child<QComboBox>(modal, "comboBox_5dofAxis")->currentText();
        display = child<QLabel>(modal, "label_display5dof")->text();
    });
    QTEST(axis, "selected");
    QTEST(display, "display");
}

void TestTrackingDlg::operatorPaths_data()
{
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("keys"); // "down": axis combo, "space": 3DOF box
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QString>("report");

    const QString marker = "standard calculate_marker ", restart = "tracking auto_restart ";
    const QString axis = "tracking axis_5dof_central ";
    const QStringList toggled { marker + "yes", restart + "yes", axis + "0.000 0.000 1.000" };
    const QString axisError = "Error: Unable to set values of the 5DOF central axis";
    // clang-format off
    QTest::newRow("OK untouched sends nothing") << 1 << 24 << "" << "ok" << "" << QStringList() << "";
    QTest::newRow("only the axis changed") << 1 << 24 << "down" << "ok" << "" << QStringList { marker + "no", restart + "yes", axis + "0.000 0.000 -1.000" } << "";
    QTest::newRow("3DOF box by keyboard") << 1 << 24 << "space" << "ok" << "" << toggled << "";
    QTest::newRow("axis refused") << 1 << 24 << "space" << "ok" << axis + "*" << toggled << axisError;
    QTest::newRow("before 1.12 no axis") << 1 << 11 << "space" << "ok" << "" << QStringList(toggled.mid(0, 2)) << "";
    QTest::newRow("before 0.14 only the 3DOF box") << 0 << 13 << "space" << "ok" << "" << QStringList(toggled.mid(0, 1)) << "";
    QTest::newRow("Cancel untouched sends nothing") << 1 << 24 << "" << "cancel" << "" << QStringList() << "";
    QTest::newRow("Cancel sends what was read") << 1 << 24 << "space down" << "cancel" << "" << QStringList { marker + "no", restart + "yes" } << "";
    QTest::newRow("Cancel before 0.14") << 0 << 13 << "space" << "cancel" << "" << QStringList { marker + "no" } << "";
    // clang-format on
}

void TestTrackingDlg::operatorPaths()
{
    QFETCH(int, major);
    QFETCH(int, minor);
    QFETCH(QString, keys);
    QFETCH(QString, button);
    QFETCH(QString, failing);
    QVERIFY(writePreferences(OptionShown));
    controller.backendVersions().backendVersion = { major, minor, 0 };
    if (!failing.isEmpty())
        controller.failCommand(failing);
    QScopedPointer<TrackingDlg> dialog(newDialog());
    int mark = 0;
    const int result = open(
        *dialog,
        [&](QWidget *modal) {
            mark = controller.log().size();
            if (keys.contains("space"))
                QTest::keyClick(child(modal, "checkBox_force3d"), Qt::Key_Space);
            if (keys.contains("down"))
                QTest::keyClick(child(modal, "comboBox_5dofAxis"), Qt::Key_Down);
        },
        qPrintable("pushButton_" + button));
    QCOMPARE(result, int(button == "ok" ? QDialog::Accepted : QDialog::Rejected));
    QTEST(testkit::settingsOf(controller, mark), "sent");
    QTEST(controller.reports().join(""), "report");
}

void TestTrackingDlg::pulse_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("radio");
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QString>("report");

    const QString camera("tracking pulse synchronous_cameras");
    // clang-format off
    QTest::newRow("frequency") << 21 << "frequency" << "" << QStringList { "tracking pulse frequency 60.000000" } << "";
    QTest::newRow("frequency refused") << 21 << "frequency" << "tracking pulse*" << QStringList { "tracking pulse frequency 60.000000" } << "Error: Unable to set inertial tracking frequency";
    QTest::newRow("cameras refused") << 21 << "cameraSynchronous" << "tracking pulse*" << QStringList { camera } << "Error: Unable to set inertial tracking synchronous to cameras";
    QTest::newRow("sensor refused") << 21 << "inertialSensor" << "tracking pulse*" << QStringList { "tracking pulse inertial_sensor " } << "Error: Unable to set inertial tracking to sensor";
    QTest::newRow("before 1.21 nothing") << 20 << "frequency" << "" << QStringList() << "Error: Unable to set inertial tracking settings";
    // clang-format on
}

// The pulse frame is hidden at every opening; its rules still hold.
void TestTrackingDlg::pulse()
{
    QFETCH(int, minor);
    QFETCH(QString, radio);
    QFETCH(QString, failing);
    controller.backendVersions().backendVersion = { 1, minor, 0 };
    if (!failing.isEmpty())
        controller.failCommand(failing);
    QScopedPointer<TrackingDlg> dialog(newDialog());
    int mark = 0;
    open(
        *dialog,
        [&](QWidget *modal) {
            mark = controller.log().size();
            child<QRadioButton>(modal, "radioButton_frequency")->setChecked(true);
            child<QRadioButton>(modal, qPrintable("radioButton_" + radio))->setChecked(true);
            child<QDoubleSpinBox>(modal, "doubleSpinBox_frequency")->setValue(60);
        },
        "pushButton_ok");
    QTEST(testkit::settingsOf(controller, mark), "sent");
    QTEST(controller.reports().join(""), "report");
}

void TestTrackingDlg::autoRestartForced_data()
{
    QTest::addColumn<QString>("systemType");
    QTest::addColumn<int>("minor"); // of version 0 when below 14, else 1.24
    QTest::addColumn<bool>("optionShown");
    QTest::addColumn<QString>("changeable");
    QTest::addColumn<QString>("autoRestart");
    QTest::addColumn<QStringList>("atConstruction");
    QTest::addColumn<int>("forcedAtOpenings");
    QTest::addColumn<bool>("visible");

    const QStringList asked { "tracking auto_restart" };
    const QString orbilux("ORBILUX compact"), other("VELORA TX8");
    // clang-format off
    QTest::newRow("ORBILUX, off: turned on") << orbilux << 24 << true << "yes" << "no" << asked + QStringList { "tracking auto_restart yes" } << 0 << false;
    QTest::newRow("ORBILUX, on: left") << orbilux << 24 << true << "yes" << "yes" << asked << 0 << false;
    QTest::newRow("ORBILUX 0.14") << orbilux << 14 << true << "yes" << "yes" << asked << 0 << false;
    QTest::newRow("ORBILUX 0.13: not asked") << orbilux << 13 << true << "yes" << "no" << QStringList() << 0 << false;
    QTest::newRow("hidden: forced at each opening") << other << 24 << false << "yes" << "no" << QStringList() << 2 << false;
    QTest::newRow("hidden, 0.14: forced") << other << 14 << false << "yes" << "no" << QStringList() << 2 << false;
    QTest::newRow("hidden, 0.13: not forced") << other << 13 << false << "yes" << "no" << QStringList() << 0 << false;
    QTest::newRow("hidden but locked: not forced") << other << 24 << false << "no" << "no" << QStringList() << 0 << false;
    QTest::newRow("shown: the user decides") << other << 24 << true << "yes" << "no" << QStringList() << 0 << true;
    // clang-format on
}

void TestTrackingDlg::autoRestartForced()
{
    QFETCH(int, minor);
    QFETCH(bool, optionShown);
    QFETCH(QString, systemType);
    QFETCH(QString, changeable);
    QFETCH(QString, autoRestart);
    if (optionShown)
        QVERIFY(writePreferences(OptionShown));
    controller.backendVersions().systemType = systemType;
    controller.backendVersions().backendVersion = { minor < 24 ? 0 : 1, minor, 0 };
    controller.setValue("config is_changeable", changeable);
    controller.setValue("tracking auto_restart", autoRestart);
    QScopedPointer<TrackingDlg> dialog(newDialog());
    QTEST(controller.commands(), "atConstruction");
    bool visible = false;
    controller.clearLog();
    open(*dialog, {});
    open(*dialog,
        [&](QWidget *modal) { visible = child(modal, "checkBox_autoReStart")->isVisible(); });
    QTEST(int(controller.commands().count("tracking auto_restart yes")), "forcedAtOpenings");
    QTEST(visible, "visible");
}

void TestTrackingDlg::advancedButton_data()
{
    QTest::addColumn<bool>("remembered");
    QTest::addColumn<QString>("fixedAngle"); // of body 2
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("opened"); // by a click on the button
    QTest::addColumn<QStringList>("reports");

    // clang-format off
    QTest::newRow("a body holds an angle") << false << "no 0 yes 2.5 no 0" << 24 << "Fixed Angle Settings" << QStringList();
    QTest::newRow("no angle held: hidden") << false << "no 0 no 0 no 0" << 24 << "hidden" << QStringList();
    QTest::newRow("remembered from before") << true << "no 0 no 0 no 0" << 24 << "Fixed Angle Settings" << QStringList();
    QTest::newRow("remembered before 1.6: disabled") << true << "no 0 no 0 no 0" << 5 << "disabled" << QStringList { "TrackingSettings: Old version of Pelicam Controller" };
    // clang-format on
}

void TestTrackingDlg::advancedButton()
{
    QFETCH(bool, remembered);
    QFETCH(QString, fixedAngle);
    QFETCH(int, minor);
    if (remembered)
        QVERIFY(writePreferences("<VELORA><FIXED_ANGLE VISIBLE=\"true\"/></VELORA>"));
    controller.setValue("standard fixed_angle b03", "no 0 no 0 no 0");
    controller.setValue("standard fixed_angle b02", fixedAngle);
    controller.backendVersions().backendVersion = { 1, minor, 0 };
    QScopedPointer<TrackingDlg> dialog(newDialog());
    QString opened;
    QStringList asked;
    ModalDriver driver;
    driver.answer([&](QWidget *modal) {
        asked = controller.commands();
        QWidget *button = child(modal, "pushButton_advanced");
        opened = !button->isVisible() ? "hidden" : !button->isEnabled() ? "disabled" : "";
        testkit::clickLater(opened.isEmpty() ? button : child(modal, "pushButton_cancel"));
    });
    driver.answer([&](QWidget *fixedAngles) {
        opened = fixedAngles->windowTitle();
        fixedAngles->close();
        testkit::clickLater(dialog.data(), "pushButton_cancel");
    });
    dialog->update_and_exec();
    QTEST(opened, "opened");
    QTEST(controller.reports(), "reports");
    // The search ends at the first body holding an angle.
    QCOMPARE(asked.contains("standard fixed_angle b03"), opened == "hidden");

    // Once shown, the button stays offered at the next start.
    dialog.reset();
    QCOMPARE(readPreferences().contains("<FIXED_ANGLE VISIBLE=\"true\"/>"), opened != "hidden");
}

TRACKING_TEST_MAIN_WITH_TEMPORARY_HOME(TestTrackingDlg)
#include "tst_trackingdlg.moc"
