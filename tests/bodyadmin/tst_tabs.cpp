#include "bodyadminfixture.h"
#include "bodytabfactory.h"
#include "fingertrackingadministration.h"
#include "mtadministration.h"

#include <QComboBox>
#include <QLabel>
#include <QProgressBar>

// What the four tabs do on their own: the target search and assignment,
// their devices, heads, hands and references, their limits.
class TestTabs : public QObject
{
    Q_OBJECT

private slots:
    void init() { f.init(); }
    void cleanup() { FIXTURE_CLEANUP(f); }

    void searchStart_data();
    void searchStart();
    void searchRunsToTheEnd_data();
    void searchRunsToTheEnd();
    void searchAbortedAndStopped();
    void controlsDuringSearch_data();
    void controlsDuringSearch();
    void categories();
    void assignment_data();
    void assignment();
    void limits_data();
    void limits();
    void globalFilter_data();
    void globalFilter();
    void gripwandDevices_data();
    void gripwandDevices();
    void headsFollowTheGripwands_data();
    void headsFollowTheGripwands();
    void handsByVersion_data();
    void handsByVersion();
    void measurementToolsByVersion_data();
    void measurementToolsByVersion();
    void deletingAReference_data();
    void deletingAReference();
    void deactivatingAReference_data();
    void deactivatingAReference();

private:
    // Shows the target's category (where the tab has a combo) and makes
    // the target current.
    void chooseTarget(const QString &id)
    {
        if (auto *combo = f.widget<QComboBox>("comboBox_filter")) {
            if (f.tab->findChild<QComboBox *>("comboBox_filter"))
                combo = f.tab->findChild<QComboBox *>("comboBox_filter");
            const QString group = f.controller->value("targetlib group_name g0"
                + QString::number(id == "t03" ? 2
                        : id < "t03"          ? 1
                                              : 3));
            combo->setCurrentIndex(combo->findText(QString(group).remove('"')));
        }
        QTableWidget *targets = f.tab->findChild<QTableWidget *>("tableWidget_targetlibrary");
        for (int row = 0; row < targets->rowCount(); ++row) {
            if (targets->item(row, 0)->text() == id)
                BodyAdminFixture::click(targets, row, 0);
        }
    }
    QPushButton *tabButton(const char *name) const { return f.tab->findChild<QPushButton *>(name); }
    static QStringList L(const char *items) { return BodyAdminFixture::L(items); }
    bool enabled(const QString &name) const
    {
        return f.tab->findChild<QWidget *>(name)->isEnabled();
    }

    BodyAdminFixture f;
};

void TestTabs::searchStart_data()
{
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<QStringList>("events");

    const QString refused = "! Error: Unable to start target library calibration";
    QTest::newRow("calibration type missing")
        << L("cal available targetlib = no")
        << QStringList { refused + ". Calibration type is not available" };
    QTest::newRow("availability unknown")
        << L("!cal available targetlib") << QStringList { refused };
    QTest::newRow("already active") << L("status active = cal targetlib")
                                    << QStringList { refused + ". Calibration is already active." };
    QTest::newRow("status unknown") << L("!status active") << QStringList { refused };
    QTest::newRow("err lets it start")
        << L("status active = err")
        << L("velora2 cal targetlib start | ! target library calibration started");
    QTest::newRow("the controller refuses") << L(
        "!velora2 cal targetlib start") << QStringList { "velora2 cal targetlib start", refused };
}

void TestTabs::searchStart()
{
    QFETCH(QStringList, setUp);
    QFETCH(QStringList, events);

    f.setUp(setUp);
    f.open();
    f.clickButton("pushButton_start");
    QCOMPARE(f.events, events);
    const bool searching = events.last().endsWith("started");
    QCOMPARE(f.tab->isSearching(), searching);
    QCOMPARE(enabled("pushButton_start"), !searching);
    // A refused start keeps Stop and the locked controls until the next refresh.
    QCOMPARE(enabled("pushButton_stop"), events.size() == 2);
}

void TestTabs::searchRunsToTheEnd_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<QString>("announced");

    // The standard and measurement-tool tabs count the tracked standard
    // targets when the search ends; the others announce the count of their
    // last refresh, which no refresh made here.
    QTest::newRow("standard") << 0 << QStringList() << "2 targets could be identified in library";
    QTest::newRow("standard, one") << 0 << QStringList { "targetlib target_bodytype t04 = 'x'" }
                                   << "One target could be identified in library";
    QTest::newRow("measurement tools")
        << 3 << QStringList() << "2 targets could be identified in library";
    QTest::newRow("Gripwand") << 1 << QStringList() << "No targets could be identified in library";
    QTest::newRow("hands") << 2 << QStringList() << "No targets could be identified in library";
}

void TestTabs::searchRunsToTheEnd()
{
    QFETCH(int, key);
    QFETCH(QStringList, setUp);
    QFETCH(QString, announced);

    f.setUp(setUp);
    f.open(key);
    f.answer();
    tabButton("pushButton_start")->click();
    f.controller->advanceClock(1824);
    f.searchTick();
    QCOMPARE(f.tab->findChild<QProgressBar *>()->value(), 45);
    if (key == 0) {
        QCOMPARE(f.widget<QLabel>("label_targetlibrary")->text(),
            QString(setUp.isEmpty() ? "found targets: 2, already calibrated: 1"
                                    : "found targets: 1, already calibrated: 1"));
        // GL-5, in use, is found again when the next search starts.
        f.clear();
        tabButton("pushButton_stop")->click();
        f.controller->advanceClock(5000);
        tabButton("pushButton_start")->click();
        QCOMPARE(f.events,
            L("velora2 cal targetlib stop | ! target library calibration cancelled")
                + QStringList { "? " + announced }
                + L("velora2 cal targetlib start | ! target library calibration started | ! GL-5 "
                    "already calibrated"));
    }
    QVERIFY(!f.controller->commands().contains("velora2 targetlib check_custom_calibration"));
    f.controller->advanceClock(5000);
    f.searchTick();
    QCOMPARE(f.driver->seen().last().title, QString("VELORA4"));
    QCOMPARE(f.events.mid(f.events.size() - 2),
        QStringList({ "! target library calibration stopped", "? " + announced }));
    QCOMPARE(f.tab->findChild<QProgressBar *>()->value(), 100);
    QVERIFY(enabled("pushButton_start"));
    QVERIFY(!enabled("pushButton_stop"));
}

void TestTabs::searchAbortedAndStopped()
{
    f.open();
    f.answer();
    f.clickButton("pushButton_start");
    f.controller->failCommand("status step_active", 1, 1);
    f.searchTick();
    // An abort sends no stop.
    QCOMPARE(f.events,
        L("velora2 cal targetlib start | ! target library calibration started | ! Error during "
          "target library calibration. Calibration aborted"));
    QVERIFY(!f.tab->isSearching());
    QVERIFY(enabled("pushButton_start"));
    QVERIFY(!enabled("pushButton_stop"));

    f.controller->advanceClock(10000); // the controller's search ends by itself
    f.clickButton("pushButton_start");
    f.clear();
    f.clickButton("pushButton_stop");
    QCOMPARE(f.events,
        L("velora2 cal targetlib stop | ! target library calibration cancelled | ? No targets "
          "could be identified in library"));
    QCOMPARE(f.widget<QProgressBar>("progressBar")->value(), 0);
}

void TestTabs::controlsDuringSearch_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("locked");
    QTest::addColumn<QStringList>("free");

    QTest::newRow("standard") << int(BodyTabFactory::Standard)
                              << QStringList { "spinBox_standard_bodies", "pushButton_filter",
                                     "pushButton_customCalibration", "comboBox_filter" }
                              << QStringList { "tableWidget_standard" };
    QTest::newRow("Gripwand") << int(BodyTabFactory::Gripwand) << QStringList()
                              << QStringList { "spinBox_gripwands", "pushButton_filter",
                                     "pushButton_calibration" };
    QTest::newRow("hands") << int(BodyTabFactory::Fingertracking) << QStringList()
                           << QStringList { "spinBox_fingertracking", "pushButton_calibration" };
    QTest::newRow("measurement tools")
        << int(BodyTabFactory::MeasurementTool)
        << QStringList { "spinBox_mtref", "comboBox_filter" } << QStringList { "spinBox_mt" };
}

void TestTabs::controlsDuringSearch()
{
    QFETCH(int, key);
    QFETCH(QStringList, locked);
    QFETCH(QStringList, free);

    f.open(key);
    tabButton("pushButton_start")->click();
    QVERIFY(f.tab->isSearching());
    for (const QString &name : locked)
        QVERIFY2(!enabled(name), qPrintable(name));
    for (const QString &name : free + QStringList { "pushButton_stop" })
        QVERIFY2(enabled(name), qPrintable(name));
    QVERIFY(!enabled("pushButton_select"));
    QVERIFY(!enabled("pushButton_deselect"));

    // Stopped by the user, the tab is usable again while the result shows.
    bool usableDuringResult = false;
    f.driver->answer([&](QWidget *modal) {
        usableDuringResult = enabled("pushButton_start") && !enabled("pushButton_stop");
        for (const QString &name : locked)
            usableDuringResult = usableDuringResult && enabled(name);
        static_cast<QDialog *>(modal)->accept();
    });
    tabButton("pushButton_stop")->click();
    QVERIFY(usableDuringResult);
}

void TestTabs::categories()
{
    // TR-5 leaves its group: it has no category, and no empty one appears.
    f.controller->setValue("targetlib number_of_group_members g03", "1");
    QCOMPARE(f.build()->tab(0)->findChild<QLabel *>("label_targetlibrary")->text(),
        QString("found targets: 0; already calibrated: 0"));
    f.open();
    auto *combo = f.widget<QComboBox>("comboBox_filter");
    QStringList entries;
    for (int i = 0; i < combo->count(); ++i)
        entries << combo->itemText(i);
    QCOMPARE(entries,
        QStringList({ "- Found Targets -", "Glasses Target", "HMD Target", "Tool Target" }));
    combo->setCurrentIndex(3);
    QTableWidget *targets = f.table("tableWidget_targetlibrary");
    QCOMPARE(targets->rowCount(), 1);
    QStringList row;
    for (int column = 0; column < 4; ++column)
        row << targets->horizontalHeaderItem(column)->text() + "="
                + targets->item(0, column)->text();
    QCOMPARE(row,
        QStringList({ "ID=t04", "Name=Tree target, 4 markers", "Short Name=TR-4", "Used=custom" }));
    combo->setCurrentIndex(1);
    QCOMPARE(targets->item(0, 3)->text(), QString("no"));
}

void TestTabs::assignment_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<int>("bodyRow");
    QTest::addColumn<QString>("target"); // empty: Deselect
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("events");

    const QStringList none;
    const QString bends = "? %1 can bend\ntherefore a re-calibration is strongly recommended!\n\n"
                          "(To avoid any changes of the geometry\nmount the target to the device "
                          "prior re-calibration)";
    const QStringList free1
        = L("body number_of_marker standard b01 0 | body desc standard b01 \"\"");
    const QStringList preset1 = L("body filter6d_preset standard b01 preset6d_default");
    const QString calibrate = "velora2 body calibrate_from_targetlib standard b04 %1";
    const QStringList overwrite = L("? Overwrite body calibration data of Room reference?");
    const QStringList mr1 = L("? This target is already calibrated as Measurement Tool Reference "
                              "MR1.|Delete the Measurement Tool Reference MR1?");
    const QStringList std1 = L("? This target is already calibrated as standard target ID "
                               "1.|Delete the standard target ID 1?");
    const int cancel = QMessageBox::Cancel;

    QTest::newRow("GL-5 moves from body 1, which bends")
        << 0 << none << 3 << "t01" << 0
        << free1 + QStringList { calibrate.arg("GL-5"), bends.arg("Glasses 5 markers") };
    QTest::newRow("a named body is asked about, Cancel")
        << 0 << none << 1 << "t04" << cancel << overwrite;
    QTest::newRow("a named body is asked about, Ok")
        << 0 << none << 1 << "t04" << 0
        << overwrite + L("velora2 body calibrate_from_targetlib standard b02 TR-4");
    QTest::newRow("measurement-tool reference, Cancel") << 0 << none << 3 << "t05" << cancel << mr1;
    QTest::newRow("measurement-tool reference, Ok") << 0 << none << 3 << "t05" << 0
                                                    << mr1
            + L("body number_of_marker measurementtool_reference b01 0 | body desc "
                "measurementtool_reference b01 \"\"")
            + QStringList { calibrate.arg("TR-5") };
    QTest::newRow("HMD bends") << 0 << none << 3 << "t03" << 0
                               << QStringList { calibrate.arg("HMD-7"),
                                      bends.arg("Head-mounted display frame") };
    QTest::newRow("another letter case does not warn")
        << 0 << L("targetlib group_name g02 = \"hmd Target\"") << 3 << "t03" << 0
        << QStringList { calibrate.arg("HMD-7") };
    QTest::newRow("the calibration fails")
        << 0 << L("!velora2 body calibrate_from_targetlib*") << 3 << "t04" << 0
        << QStringList { calibrate.arg("TR-4"),
               "! Error: Unable to calibrate body from target library" };
    QTest::newRow("freeing the other body fails")
        << 0 << L("!body number_of_marker standard b01 0 | !body desc standard b01 *") << 3 << "t01"
        << 0
        << QStringList { free1.at(0), "! Unable to reset markers of target standard 1", free1.at(1),
               "! Unable to reset description of target standard standard", calibrate.arg("GL-5"),
               bends.arg("Glasses 5 markers") };
    QTest::newRow("the other bodies' targets unknown")
        << 0 << L("!body targetlib_name standard b01") << 3 << "t04" << 0
        << L("! Unable to get info targetlib ID of body")
            + QStringList { calibrate.arg("TR-4"),
                  "! Error: Unable to get targetlib name of body standard b01" };
    QTest::newRow("deselect deletes the body")
        << 0 << none << 0 << "" << 0
        << L("? Delete geometry of Standard body 1?") + preset1 + free1;
    QTest::newRow("standard body on a reference, Cancel")
        << 3 << none << 1 << "t01" << cancel << std1;
    QTest::newRow("standard body on a reference, Ok") << 3 << none << 1 << "t01" << 0
                                                      << std1 + preset1 + free1
            + L("velora2 body calibrate_from_targetlib measurementtool_reference b02 GL-5");
    QTest::newRow("Gripwand")
        << 1 << none << 1 << "t06" << 0
        << L("body number_of_marker gripwand b01 0 | body desc gripwand b01 \"\" | velora2 body "
             "calibrate_from_targetlib gripwand b02 GW-3");
}

void TestTabs::assignment()
{
    QFETCH(int, key);
    QFETCH(QStringList, setUp);
    QFETCH(int, bodyRow);
    QFETCH(QString, target);
    QFETCH(int, answer);
    QFETCH(QStringList, events);

    f.setUp(setUp);
    f.open(key);
    const QStringList tables { "tableWidget_standard", "tableWidget_gripwand",
        "tableWidget_fingertracking", "tableWidget_mtref" };
    BodyAdminFixture::click(f.table(tables.at(key)), bodyRow, 0);
    if (!target.isEmpty())
        chooseTarget(target);
    f.clear();
    f.answer({ answer });
    tabButton(target.isEmpty() ? "pushButton_deselect" : "pushButton_select")->click();
    QCOMPARE(f.events, events);
}

void TestTabs::limits_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("spinBox");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QString>("report"); // of the maximum
    QTest::addColumn<QString>("line"); // at the maximum
    QTest::addColumn<QString>("command"); // of the next count, "" for none
    QTest::addColumn<QString>("refused");

    const QString red = "<b><font color=red>Max. number of %1 is reached!</font></b>";
    const QString unknown = "Error: Unable to get max number of %1 bodies";
    QTest::newRow("standard, maximum unknown")
        << 0 << QString("spinBox_standard_bodies") << "label_error"
        << QStringList { "!standard max_number_of_bodies" } << 4 << unknown.arg("standard")
        << red.arg("bodies") << QString("") << "";
    QTest::newRow("Gripwands, maximum unknown")
        << 1 << QString("spinBox_gripwands") << "label_error"
        << QStringList { "!gripwand max_number_of_devices" } << 20 << unknown.arg("gripwand")
        << QString("") << QString("gripwand number_of_devices %1")
        << "Error: Unable to set number of gripwand bodies to %1";
    QTest::newRow("Gripwands at the maximum")
        << 1 << QString("spinBox_gripwands") << "label_error"
        << QStringList { "gripwand max_number_of_devices = 2" } << 2 << "" << red.arg("gripwands")
        << QString("") << "";
    QTest::newRow("hands, maximum unknown")
        << 2 << QString("spinBox_fingertracking") << "label_error_fingertracking"
        << QStringList { "!fingertracking max_number_of_hands" } << 4
        << QString("Error: Unable to get max number of fingertracking hand bodies") << ""
        << QString("fingertracking number_of_hands %1")
        << "Error: Unable to set number of fingertracking hand bodies to %1";
    QTest::newRow("hands at the maximum")
        << 2 << QString("spinBox_fingertracking") << "label_error_fingertracking"
        << QStringList { "fingertracking max_number_of_hands = 2" } << 2 << "" << red.arg("Hands")
        << QString("") << "";
    QTest::newRow("tools, maximum unknown")
        << 3 << QString("spinBox_mt") << "label_error_mt"
        << QStringList { "!measurementtool max_number_of_tools" } << 4
        << unknown.arg("measurementtool") << QString("")
        << QString("measurementtool number_of_tools %1")
        << "Error: Unable to set number of measurementtool bodies to %1";
    QTest::newRow("tools at the maximum")
        << 3 << QString("spinBox_mt") << "label_error_mt"
        << QStringList { "measurementtool max_number_of_tools = 2" } << 2 << ""
        << red.arg("Measurement Tools") << QString("") << "";
    QTest::newRow("references, maximum unknown")
        << 3 << QString("spinBox_mtref") << "label_error_mtref"
        << QStringList { "!measurementtool max_number_of_references" } << 4
        << unknown.arg("measurementtool_reference") << QString("")
        << QString("measurementtool number_of_references %1")
        << "Error: Unable to set number of measurementtool_reference bodies to %1";
    QTest::newRow("references at the maximum")
        << 3 << QString("spinBox_mtref") << "label_error_mtref"
        << QStringList { "measurementtool max_number_of_references = 2" } << 2 << ""
        << red.arg("Measurement references") << QString("") << "";
}

void TestTabs::limits()
{
    QFETCH(int, key);
    QFETCH(QString, spinBox);
    QFETCH(QString, label);
    QFETCH(QStringList, setUp);
    QFETCH(int, maximum);
    QFETCH(QString, report);
    QFETCH(QString, line);
    QFETCH(QString, command);
    QFETCH(QString, refused);

    f.setUp(setUp);
    f.open(key);
    f.tab->update_tab();
    auto *spin = f.tab->findChild<QSpinBox *>(spinBox);
    QCOMPARE(spin->maximum(), maximum);
    if (!report.isEmpty())
        QVERIFY(f.controller->reports().contains(report));
    QCOMPARE(f.tab->findChild<QLabel *>(label)->text(), line);
    if (command.isEmpty())
        return;
    const int count = spin->value();
    spin->setFocus();
    f.clear();
    QTest::keyClick(spin, Qt::Key_Up);
    QCOMPARE(f.events.first(), command.arg(count + 1));
    f.controller->failCommand(command.arg(count + 2));
    f.clear();
    QTest::keyClick(spin, Qt::Key_Up);
    QCOMPARE(
        f.events.mid(0, 2), QStringList({ command.arg(count + 2), "! " + refused.arg(count + 2) }));
    QCOMPARE(spin->value(), count + 1);
}

void TestTabs::globalFilter_data()
{
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<QStringList>("events");

    const QStringList off = L("standard filter_bodies = no | gripwand filter = no");
    QTest::newRow("switched back on")
        << off << L("standard filter_bodies yes | gripwand filter yes");
    QTest::newRow("already on") << QStringList() << QStringList();
    QTest::newRow("locked") << off + L("config is_changeable = no") << QStringList();
    QTest::newRow("before 1.12") << off + L("@version 1.11") << QStringList();
    QTest::newRow("standard unknown")
        << L("!standard filter_bodies")
        << L("! Error: Unable to get global filter6d status of standard bodies");
    QTest::newRow("standard refused")
        << off + L("!standard filter_bodies yes")
        << L("standard filter_bodies yes | ! Error: Unable to set global filter6d status of "
             "standard bodies | gripwand filter yes");
    QTest::newRow("Gripwand unknown")
        << L("!gripwand filter")
        << L("! Error: Unable to get global filter6d status of Gripwand bodies");
    QTest::newRow("Gripwand refused")
        << off + L("!gripwand filter yes")
        << L("standard filter_bodies yes | gripwand filter yes | ! Error: Unable to set global "
             "filter6d status of Gripwand bodies");
}

// Another module switched the active configuration.
void TestTabs::globalFilter()
{
    QFETCH(QStringList, setUp);
    QFETCH(QStringList, events);

    f.setUp(setUp);
    f.open();
    if (setUp.contains("@version 1.11"))
        f.controller->backendVersions().backendVersion = { 1, 11, 0 };
    f.controller->sendMessage(
        "GlobalEvent", "ConfigurationModule", 1, "ActiveConfigurationChanged");
    QCOMPARE(f.events, events);
}

void TestTabs::gripwandDevices_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("serial");
    QTest::addColumn<QString>("report");

    QTest::newRow("short serial padded")
        << 24 << QString("wpan 0x0021 0x0003 7") << "Gripwand 3" << QString("00007") << "";
    QTest::newRow("long serial cut") << 24 << QString("wpan 0x0021 0x0004 1234567")
                                     << "Gripwand 3 Pro" << QString("12345") << "";
    QTest::newRow("no device") << 24 << QString("none") << "none" << QString("") << "";
    QTest::newRow("before 1.3 the model is unknown")
        << 2 << QString("wpan 0x0021 0x0003 4711") << "unknown" << QString("04711") << "";
    QTest::newRow("unknown model: the vendor named twice")
        << 24 << QString("wpan 0x0042 0x0009 4711") << "unknown" << QString("04711")
        << "Error: Unable to get model description of vendor 0x0042 model 0x0042";
}

void TestTabs::gripwandDevices()
{
    QFETCH(int, minor);
    QFETCH(QString, device);
    QFETCH(QString, model);
    QFETCH(QString, serial);
    QFETCH(QString, report);

    f.controller->backendVersions().backendVersion = { 1, minor, 0 };
    f.setUp({ "gripwand device b01 = " + device });
    f.open(1);
    f.tab->update_tab();
    QTableWidget *gripwands = f.table("tableWidget_gripwand");
    QCOMPARE(QStringList({ gripwands->item(0, 0)->text(), gripwands->item(0, 3)->text(),
                 gripwands->item(0, 4)->text() }),
        QStringList({ "G1", model, serial }));
    QCOMPARE(
        f.controller->commands().contains("zemwpan device_model_desc " + device.section(' ', 1, 2)),
        minor >= 3 && device != "none");
    QCOMPARE(f.controller->reports().contains(report), !report.isEmpty());
}

void TestTabs::headsFollowTheGripwands_data()
{
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<int>("minor");
    QTest::addColumn<QStringList>("asked"); // the multi-user queries
    QTest::addColumn<QString>("report");
    QTest::addColumn<bool>("shown");

    const QStringList all { "gripwand multiuser_available",
        "gripwand multiuser_with_head_available", "gripwand multiuser",
        "gripwand multiuser_with_head" };
    QTest::newRow("multi-user with head") << QStringList() << 24 << all << "" << true;
    QTest::newRow("0.12 skips the head question")
        << QStringList() << 12 << QStringList { all.at(0), all.at(2), all.at(3) } << "" << true;
    QTest::newRow("head switched off")
        << QStringList { "gripwand multiuser_with_head = no" } << 24 << all << "" << false;
    QTest::newRow("multi-user off") << QStringList { "gripwand multiuser = no" } << 24
                                    << QStringList(all.mid(0, 3)) << "" << false;
    QTest::newRow("multi-user unknown")
        << QStringList { "!gripwand multiuser_available" } << 24 << QStringList(all.mid(0, 1))
        << "Error: Unable to get info whether multiuser gripwand is available" << false;
    QTest::newRow("head availability unknown")
        << QStringList { "!gripwand multiuser_with_head_available" } << 24
        << QStringList(all.mid(0, 2))
        << "Error: Unable to get info multiuser gripwand with head available" << false;
    QTest::newRow("multi-user state unknown")
        << QStringList { "!gripwand multiuser" } << 24 << QStringList(all.mid(0, 3))
        << "Error: Unable to get info whether multiuser gripwand is activated" << false;
    QTest::newRow("head state unknown")
        << QStringList { "!gripwand multiuser_with_head" } << 24 << all
        << "Error: Unable to get info whether multiuser gripwand with head is activated" << false;
}

void TestTabs::headsFollowTheGripwands()
{
    QFETCH(QStringList, setUp);
    QFETCH(int, minor);
    QFETCH(QStringList, asked);
    QFETCH(QString, report);
    QFETCH(bool, shown);

    f.setUp(setUp);
    f.open(1);
    f.controller->backendVersions().backendVersion = { 0, minor, 0 };
    f.tab->update_tab();
    QStringList multiUser;
    for (const QString &command : f.controller->commands()) {
        if (command.startsWith("gripwand multiuser"))
            multiUser << command;
    }
    QCOMPARE(multiUser, asked);
    QCOMPARE(f.controller->reports().contains(report), !report.isEmpty());
    QTableWidget *heads = f.table("tableWidget_head");
    QCOMPARE(heads->isVisible(), shown);
    QCOMPARE(f.widget("label_head")->isVisible(), shown);

    f.controller->backendVersions().backendVersion = { 1, 24, 0 };
    f.clear();
    auto *spin = f.widget<QSpinBox>("spinBox_gripwands");
    spin->setFocus();
    QTest::keyClick(spin, Qt::Key_Up);
    QCOMPARE(f.events, L("gripwand number_of_devices 3"));
    QCOMPARE(f.table("tableWidget_gripwand")->rowCount(), 3);
    if (shown) {
        // The heads follow once the Gripwands have changed.
        QCOMPARE(heads->rowCount(), 3);
        QVERIFY(heads->isColumnHidden(3));
    }
}

void TestTabs::handsByVersion_data()
{
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("reply");
    QTest::addColumn<bool>("asked");
    QTest::addColumn<bool>("available");

    QTest::newRow("0.16: never asked") << 0 << 16 << "yes" << false << false;
    QTest::newRow("0.17: asked, yes") << 0 << 17 << "yes" << true << true;
    QTest::newRow("1.21: asked, Yes is not yes") << 1 << 21 << "Yes" << true << false;
    QTest::newRow("1.22: available without asking") << 1 << 22 << "no" << false << true;
}

void TestTabs::handsByVersion()
{
    QFETCH(int, major);
    QFETCH(int, minor);
    QFETCH(QString, reply);
    QFETCH(bool, asked);
    QFETCH(bool, available);

    // Built on its own: the dialog offers the tab from 0.17 only.
    f.controller->backendVersions().backendVersion = { major, minor, 0 };
    f.controller->setValue("fingertracking available", reply);
    auto *tab = new FingertrackingAdministration(
        f.controller, nullptr, &f.controller->backendVersions(), QString(), nullptr);
    QCOMPARE(f.controller->commands().contains("fingertracking available"), asked);
    tab->show();
    tab->update_tab();
    QCOMPARE(tab->isTypeAvailable(), available);
    auto *notice = tab->findChild<QLabel *>("label_error");
    QCOMPARE(notice->isVisible(), !available);
    QCOMPARE(
        notice->text(), QString("<b><font color=red>Fingertracking is not available!</font></b>"));
    QCOMPARE(tab->findChild<QSpinBox *>()->isEnabled(), available);
    auto *hands = tab->findChild<QTableWidget *>("tableWidget_fingertracking");
    QCOMPARE(
        hands->rowCount() ? hands->item(0, 0)->text() : QString(), QString(available ? "H1" : ""));
    // Asked again only while not available; once available, it stays so.
    f.controller->setValue("fingertracking available", "no");
    f.controller->clearLog();
    tab->update_tab();
    QCOMPARE(f.controller->commands().contains("fingertracking available"), asked && !available);
    QCOMPARE(tab->isTypeAvailable(), available);
    delete tab;
}

void TestTabs::measurementToolsByVersion_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("reply");
    QTest::addColumn<bool>("available");

    QTest::newRow("1.2 never asks") << 2 << "yes" << false;
    QTest::newRow("1.3 asks, yes") << 3 << "yes" << true;
    QTest::newRow("1.3 asks, no") << 3 << "no" << false;
}

void TestTabs::measurementToolsByVersion()
{
    QFETCH(int, minor);
    QFETCH(QString, reply);
    QFETCH(bool, available);

    // Built on its own: the dialog offers the tab from 1.3 only.
    f.controller->backendVersions().backendVersion = { 1, minor, 0 };
    f.controller->setValue("measurementtool available", reply);
    MtAdministration *tab = new MtAdministration(
        f.controller, nullptr, &f.controller->backendVersions(), QString(), nullptr);
    QCOMPARE(tab->isTypeAvailable(), available);
    QCOMPARE(f.controller->commands().contains("measurementtool available"), minor >= 3);
    tab->show();
    tab->update_tab();
    auto *notice = tab->findChild<QLabel *>("label_error");
    QCOMPARE(notice->isVisible(), !available);
    if (!available)
        QCOMPARE(notice->text(),
            QString("<b><font color=red>Measurement Tool is not available!</font></b>"));
    auto *tools = tab->findChild<QTableWidget *>("tableWidget_mt");
    QCOMPARE(tools->rowCount() ? tools->item(0, 0)->text() + tools->item(0, 2)->text() : QString(),
        QString(available ? "M1MR1" : ""));
    delete tab;
}

void TestTabs::deletingAReference_data()
{
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("events");

    const QString question = "? Delete Measurement Tool reference body 01?";
    const QStringList linked { question
        + "\nIf yes, the assignment to the Measurement Tool will be deleted.|Continue?" };
    const QStringList clear = L("body number_of_marker measurementtool_reference b01 0 | body desc "
                                "measurementtool_reference b01 \"\"");
    const QStringList unlink = L("measurementtool reference_of_tool b01 none | measurementtool "
                                 "reference_of_tool b02 none");
    const QStringList linkedToM2 = L("measurementtool reference_of_tool b02 = 1");
    QTest::newRow("used by M1 and M2") << linkedToM2 << 0 << linked + clear + unlink;
    QTest::newRow("No leaves the controller alone") << linkedToM2 << int(QMessageBox::No) << linked;
    QTest::newRow("unused") << L("measurementtool reference_of_tool b01 = none") << 0
                            << QStringList { question + "|Continue?" } + clear;
    QTest::newRow("fails, the tools are unlinked anyway") << linkedToM2
            + L("!body desc measurementtool_reference b01 * | !measurementtool reference_of_tool "
                "b02 none") << 0
                                                          << linked + clear
            + L("! Unable to reset description of Measurement Tool reference 1 | measurementtool "
                "reference_of_tool b01 none | measurementtool reference_of_tool b02 none | ! "
                "Error: Unable to set ref. body | ? Delete body 1 failed");
}

// The Delete key on a reference row asks the tab's own question.
void TestTabs::deletingAReference()
{
    QFETCH(QStringList, setUp);
    QFETCH(int, answer);
    QFETCH(QStringList, events);

    f.setUp(setUp);
    f.open(3);
    f.answer({ answer });
    QTableWidget *references = f.table("tableWidget_mtref");
    BodyAdminFixture::go(references, 0, 0);
    QTest::keyClick(references, Qt::Key_Delete);
    QCOMPARE(f.events, events);
    if (events.size() > 1)
        QCOMPARE(f.table("tableWidget_mt")->item(0, 2)->text(), QString());
}

void TestTabs::deactivatingAReference_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("sent");

    QTest::newRow("No keeps it") << int(QMessageBox::No) << QStringList();
    QTest::newRow("Yes deactivates") << 0 << L("body active measurementtool_reference b01 no");
}

void TestTabs::deactivatingAReference()
{
    QFETCH(int, answer);
    QFETCH(QStringList, sent);

    f.open(3);
    f.answer({ answer });
    BodyAdminFixture::click(f.table("tableWidget_mtref"), 0, 1);
    QCOMPARE(f.events,
        L("? After deactivating the reference,\nthe corresponding Measurement Tool will not be "
          "tracked.|Continue?")
            + sent);
    QCOMPARE(f.table("tableWidget_mt")->item(0, 2)->foreground().color(), QColor(Qt::red));
    QCOMPARE(f.table("tableWidget_mtref")->item(0, 1)->checkState(),
        answer ? Qt::Checked : Qt::Unchecked);
}

QTEST_MAIN(TestTabs)
#include "tst_tabs.moc"
