#include "editdelegate.h"
#include "target.h"
#include "targetlibrary.h"
#include "testtab.h"

#include <modaldriver.h>
#include <simulatedcontroller.h>

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QStandardItemModel>
#include <QtTest>

// The tab framework against the simulated controller's default scenario:
// four standard bodies, b02 the reference, b03 with an inertial sensor.
class TestBodyTab : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void fillsCellsByRole();
    void inertialStateAskedOncePerRefresh();
    void numberOfBodies_data();
    void numberOfBodies();
    void activation();
    void renameCutsTo100();
    void reference_data();
    void reference();
    void deleteBody_data();
    void deleteBody();
    void resetBody_data();
    void resetBody();
    void switchBodies();
    void enableRules_data();
    void enableRules();
    void searchRefused_data();
    void searchRefused();
    void searchRunsToTheEnd();
    void searchAbortedAndStopped();
    void assignFreesOtherBodies();
    void delegate_data();
    void delegate();

private:
    // What changed the controller: settings and meta commands, in order.
    QStringList changes() const;

    sim::SimulatedController *controller = nullptr;
    Targetlibrary *library = nullptr;
    TestTab *tab = nullptr;
};

void TestBodyTab::init()
{
    controller = new sim::SimulatedController;
    controller->setManualClock(true);
    library = new Targetlibrary(controller, &controller->backendVersions(), nullptr);
    tab = new TestTab(controller, &controller->backendVersions(), library);
    tab->update_tab();
    controller->clearLog();
    // What the test changes in the controller comes after the tab was built.
    QCoreApplication::processEvents();
}

void TestBodyTab::cleanup()
{
    ModalDriver::closeAllModals();
    delete tab;
    delete library;
    delete controller;
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(),
        qPrintable(ModalDriver::topLevelWidgetNames().join(", ")));
}

QStringList TestBodyTab::changes() const
{
    QStringList texts;
    for (const sim::SimulatedController::LogEntry &entry : controller->log()) {
        if (entry.kind == sim::SimulatedController::LogEntry::Setting
            || entry.kind == sim::SimulatedController::LogEntry::Command)
            texts << entry.text;
    }
    return texts;
}

void TestBodyTab::fillsCellsByRole()
{
    QTableWidget *t = tab->table;
    QCOMPARE(t->rowCount(), 4);
    QCOMPARE(t->columnCount(), 9);
    const auto text = [t](int row, int column) { return t->item(row, column)->text(); };
    const auto usable = [t](int row, int column) {
        return t->item(row, column)->data(BodyTableFiller::UsableRole).toInt();
    };

    QCOMPARE(text(0, TestTab::Id), QString("1"));
    QCOMPARE(text(3, TestTab::Id), QString("4"));
    QCOMPARE(text(0, TestTab::Name), QString("Glasses"));
    QCOMPARE(text(2, TestTab::Extra), QString("extra 2/4"));
    QCOMPARE(text(0, TestTab::Calibration), QString("Target Library, re-calibrated"));
    QCOMPARE(text(1, TestTab::Calibration), QString("Custom"));
    QCOMPARE(text(2, TestTab::Calibration), QString("Full"));
    QCOMPARE(text(3, TestTab::Calibration), QString("not calibrated"));
    QCOMPARE(text(0, TestTab::Filter), QString("Default"));
    QCOMPARE(text(1, TestTab::Filter), QString("0.50/12ms/Static"));

    QCOMPARE(t->item(1, TestTab::Reference)->checkState(), Qt::Checked);
    QCOMPARE(t->item(0, TestTab::Reference)->checkState(), Qt::Unchecked);
    QCOMPARE(t->item(0, TestTab::Active)->checkState(), Qt::Checked);
    // An uncalibrated, inactive body has no check boxes.
    QVERIFY(!(t->item(3, TestTab::Active)->flags() & Qt::ItemIsUserCheckable));
    QVERIFY(t->item(0, TestTab::Name)->flags() & Qt::ItemIsEditable);
    QCOMPARE(t->item(0, TestTab::Calibration)->flags(), Qt::ItemIsEnabled);
    QVERIFY(!t->item(3, TestTab::Calibration)->icon().isNull());

    QCOMPARE(usable(0, TestTab::Delete), 1);
    QCOMPARE(usable(3, TestTab::Delete), 0);
    QCOMPARE(usable(0, TestTab::Reset), 1); // library and re-calibrated
    QCOMPARE(usable(1, TestTab::Reset), 0); // custom
    QCOMPARE(usable(2, TestTab::Reset), 1); // sensor, no warm-up
    QCOMPARE(usable(3, TestTab::Reset), 0);
    QCOMPARE(tab->spinBox->value(), 4);
    QCOMPARE(tab->spinBox->maximum(), 20);
}

void TestBodyTab::inertialStateAskedOncePerRefresh()
{
    controller->setValue("body inertial_sensor standard b04", "VX IMU 'A5678'");
    controller->setValue("inertial warmup", "yes");
    tab->update_tab();
    QCOMPARE(controller->commands().count("inertial available"), 1);
    QCOMPARE(controller->commands().count("inertial warmup"), 1);
    // Warming up: no sensor reset.
    QCOMPARE(tab->table->item(2, TestTab::Reset)->data(BodyTableFiller::UsableRole).toInt(), 0);
}

void TestBodyTab::numberOfBodies_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("answer"); // 0: no question expected
    QTest::addColumn<int>("rows");
    QTest::addColumn<QStringList>("sent");

    QTest::newRow("grow") << "standard b02" << 6 << 0 << 6
                          << QStringList { "standard number_of_bodies 6" };
    QTest::newRow("shrink, last body is the reference, No")
        << "standard b04" << 3 << int(QMessageBox::No) << 4 << QStringList();
    QTest::newRow("shrink, last body is the reference, Yes")
        << "standard b04" << 3 << int(QMessageBox::Yes) << 3
        << QStringList { "standard number_of_bodies 3" };
    QTest::newRow("only the last body is looked at")
        << "standard b03" << 2 << 0 << 2 << QStringList { "standard number_of_bodies 2" };
}

void TestBodyTab::numberOfBodies()
{
    QFETCH(QString, reference);
    QFETCH(int, count);
    QFETCH(int, answer);
    QFETCH(int, rows);
    QFETCH(QStringList, sent);

    controller->setValue("tracking reference", reference);
    tab->update_tab();
    controller->clearLog();
    ModalDriver driver;
    if (answer)
        driver.pressButton(answer);

    tab->spinBox->setValue(count);

    QCOMPARE(driver.pending(), 0);
    QCOMPARE(driver.seen().size(), answer ? 1 : 0);
    if (answer) {
        QCOMPARE(driver.seen().first().title, QString("VELORA4"));
        QCOMPARE(driver.seen().first().text,
            QString("Decreasing the number of standard bodies will disable the "
                    "reference!\n\nContinue?"));
    }
    QCOMPARE(changes(), sent);
    QCOMPARE(tab->table->rowCount(), rows);
    QCOMPARE(tab->spinBox->value(), rows);
    if (count > 4)
        QVERIFY(controller->commands().contains("body desc standard b06"));
}

void TestBodyTab::activation()
{
    controller->failCommand("body active standard b01 no");
    tab->setBodyActive("standard", 0, false);
    tab->setBodyActive("standard", 3, true); // uncalibrated: nothing happens
    QCOMPARE(changes(), QStringList { "body active standard b01 no" });
    // The report names the index, the command the number.
    QCOMPARE(controller->reports(),
        QStringList { "Error: Unable to set activeness of body standard b00" });
    QVERIFY(!tab->body(0).active); // the cache keeps the new value
}

void TestBodyTab::renameCutsTo100()
{
    const QString name = QString(60, 'a') + QString(90, 'b');
    tab->setBodyDescription("standard", 3, name);
    QCOMPARE(changes(), QStringList { "body desc standard b04 \"" + name.left(100) + '"' });
    QCOMPARE(tab->body(3).description, name.left(100));
}

void TestBodyTab::reference_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("set");
    QTest::addColumn<bool>("active");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<int>("checkedRow");

    QTest::newRow("set on an active body")
        << 0 << true << true << QStringList { "tracking reference standard b01" } << 0;
    QTest::newRow("set on an inactive body warns") << 0 << true << false << QStringList() << 1;
    QTest::newRow("clear with a leading blank")
        << 1 << false << true << QStringList { " tracking reference none" } << -1;
    QTest::newRow("uncalibrated body: nothing") << 3 << true << true << QStringList() << 1;
}

void TestBodyTab::reference()
{
    QFETCH(int, index);
    QFETCH(bool, set);
    QFETCH(bool, active);
    QFETCH(QStringList, sent);
    QFETCH(int, checkedRow);

    if (!active) {
        controller->setValue("body active standard b01", "no");
        tab->update_tab();
        controller->clearLog();
    }
    ModalDriver driver;
    if (!active)
        driver.pressButton(QMessageBox::Ok);

    tab->setReference(index, set);

    QCOMPARE(driver.pending(), 0);
    if (!active)
        QCOMPARE(driver.seen().first().text,
            QString("A de-activated body cannot be set as reference.\nPlease activate this "
                    "body before."));
    QCOMPARE(changes(), sent);
    for (int row = 0; row < 3; ++row)
        QCOMPARE(tab->table->item(row, TestTab::Reference)->checkState() == Qt::Checked,
            row == checkedRow);
}

void TestBodyTab::deleteBody_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("failing");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("question");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QStringList>("reports");
    QTest::addColumn<bool>("deleted");

    const QString preset = "body filter6d_preset standard b%1 preset6d_default";
    QTest::newRow("No changes nothing")
        << 0 << "" << int(QMessageBox::No) << "Delete geometry of Standard body 1?" << QStringList()
        << QStringList() << false;
    QTest::newRow("library body") << 0 << "" << int(QMessageBox::Yes)
                                  << "Delete geometry of Standard body 1?"
                                  << QStringList { preset.arg("01"),
                                         "body number_of_marker standard b01 0",
                                         "body desc standard b01 \"\"" }
                                  << QStringList() << true;
    QTest::newRow("the reference")
        << 1 << "" << int(QMessageBox::Yes)
        << "Delete geometry of Standard body 2?\nIf yes, the assignment as reference to other "
           "bodies will be deleted."
        << QStringList { "tracking reference none", preset.arg("02"),
               "body number_of_marker standard b02 0", "body desc standard b02 \"\"" }
        << QStringList() << true;
    QTest::newRow("a sensor body")
        << 2 << "" << int(QMessageBox::Yes)
        << "Delete assignment of sensor VX IMU 'A1234' and \ndelete geometry of Standard body 3?"
        << QStringList { preset.arg("03"), "body inertial_sensor standard b03 none",
               "body number_of_marker standard b03 0", "body desc standard b03 \"\"" }
        << QStringList() << true;
    QTest::newRow("uncalibrated: no markers, no description")
        << 3 << "" << int(QMessageBox::Yes) << "Delete geometry of Standard body 4?"
        << QStringList { preset.arg("04") } << QStringList() << true;
    QTest::newRow("markers fail: the preset stays reset")
        << 0 << "body number_of_marker standard b01 0" << int(QMessageBox::Yes)
        << "Delete geometry of Standard body 1?"
        << QStringList { preset.arg("01"), "body number_of_marker standard b01 0" }
        << QStringList { "Unable to reset markers of Standard body 1" } << false;
    QTest::newRow("preset fails first")
        << 2 << preset.arg("03") << int(QMessageBox::Yes)
        << "Delete assignment of sensor VX IMU 'A1234' and \ndelete geometry of Standard body 3?"
        << QStringList { preset.arg("03") }
        << QStringList { "Unable to reset filter6d of Standard body 3" } << false;
    QTest::newRow("preset availability unknown: step skipped")
        << 0 << "body filter6d_preset_available standard b01 preset6d_default"
        << int(QMessageBox::Yes) << "Delete geometry of Standard body 1?"
        << QStringList { "body number_of_marker standard b01 0", "body desc standard b01 \"\"" }
        << QStringList { "Error: Unable to get info preset available" } << true;
    QTest::newRow("reference read fails: reported, deletion goes on")
        << 1 << "tracking reference" << int(QMessageBox::Yes)
        << "Delete geometry of Standard body 2?\nIf yes, the assignment as reference to other "
           "bodies will be deleted."
        << QStringList { preset.arg("02"), "body number_of_marker standard b02 0",
               "body desc standard b02 \"\"" }
        << QStringList { "Unable to information of reference body",
               "Error: Unable to info body reference" } // the reload asks again
        << true;
}

void TestBodyTab::deleteBody()
{
    QFETCH(int, index);
    QFETCH(QString, failing);
    QFETCH(int, answer);
    QFETCH(QString, question);
    QFETCH(QStringList, sent);
    QFETCH(QStringList, reports);
    QFETCH(bool, deleted);

    if (!failing.isEmpty())
        controller->failCommand(failing);
    ModalDriver driver;
    driver.pressButton(answer);
    const bool failed = answer == QMessageBox::Yes && !deleted;
    if (failed)
        driver.pressButton(QMessageBox::Ok);

    const bool result = tab->deleteBody("standard", index);

    QCOMPARE(driver.pending(), 0);
    QCOMPARE(result, deleted);
    QCOMPARE(driver.seen().first().title, QString("Warning"));
    QCOMPARE(driver.seen().first().text, question);
    if (failed)
        QCOMPARE(
            driver.seen().last().text, QString("Delete Standard body %1 failed").arg(index + 1));
    QCOMPARE(changes(), sent);
    QCOMPARE(controller->reports(), reports);
    if (deleted && index < 3)
        QCOMPARE(tab->table->item(index, TestTab::Calibration)->text(), QString("not calibrated"));
}

void TestBodyTab::resetBody_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("sensor");
    QTest::addColumn<QString>("warmup");
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QString>("question"); // empty: only a warning
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<bool>("reset");

    const QString a1234 = "VX IMU 'A1234'";
    const QString a5678 = "VX IMU 'A5678'";
    QTest::newRow("library geometry")
        << 0 << ""
        << "no"
        << ""
        << "Reset Standard body 1\nto Target-Library geometry?" << int(QMessageBox::Yes)
        << QStringList { "velora2 body calibrate_from_targetlib standard b01 GL-5" } << true;
    QTest::newRow("library geometry refused")
        << 0 << ""
        << "no"
        << ""
        << "Reset Standard body 1\nto Target-Library geometry?" << int(QMessageBox::No)
        << QStringList() << false;
    QTest::newRow("library geometry fails")
        << 0 << ""
        << "no"
        << "velora2 body calibrate_from_targetlib*"
        << "Reset Standard body 1\nto Target-Library geometry?" << int(QMessageBox::Yes)
        << QStringList { "velora2 body calibrate_from_targetlib standard b01 GL-5" } << false;
    QTest::newRow("sensor storage, warm-up paused")
        << 2 << a1234 << "yes"
        << ""
        << "Reset Standard body 3\nto sensor stored values?" << int(QMessageBox::Yes)
        << QStringList { "inertial warmup no", "velora2 set inertial sensor_default " + a1234,
               "inertial warmup yes" }
        << true;
    QTest::newRow("sensor storage fails: warm-up restarted anyway")
        << 2 << a1234 << "yes"
        << "velora2 set inertial*"
        << "Reset Standard body 3\nto sensor stored values?" << int(QMessageBox::Yes)
        << QStringList { "inertial warmup no", "velora2 set inertial sensor_default " + a1234,
               "inertial warmup yes" }
        << false;
    QTest::newRow("no storage, no hand-eye")
        << 2 << a5678 << "no"
        << ""
        << "Reset Standard body 3?" << int(QMessageBox::Yes) << QStringList() << true;
    QTest::newRow("no storage, hand-eye deleted")
        << 2 << a5678 << "no"
        << "handeye"
        << "Reset Standard body 3?\nHand eye calibration will be deleted!" << int(QMessageBox::Yes)
        << QStringList { "inertial sensor_handeye " + a5678 + " none" } << true;
    QTest::newRow("neither: unknown reset") << 1 << ""
                                            << "no"
                                            << ""
                                            << "" << int(QMessageBox::Ok) << QStringList() << false;
}

void TestBodyTab::resetBody()
{
    QFETCH(int, index);
    QFETCH(QString, sensor);
    QFETCH(QString, warmup);
    QFETCH(QString, failing);
    QFETCH(QString, question);
    QFETCH(int, answer);
    QFETCH(QStringList, sent);
    QFETCH(bool, reset);

    controller->setValue("inertial warmup", warmup);
    if (!sensor.isEmpty())
        controller->setValue("body inertial_sensor standard b03", sensor);
    if (failing == "handeye")
        controller->setValue("inertial sensor_handeye VX IMU 'A5678'", "available");
    else if (!failing.isEmpty())
        controller->failCommand(failing);
    tab->update_tab();
    controller->clearLog();

    ModalDriver driver;
    driver.pressButton(answer);
    const bool failed = !question.isEmpty() && answer == QMessageBox::Yes && !reset;
    if (failed)
        driver.pressButton(QMessageBox::Ok);

    QCOMPARE(tab->resetBody("standard", index), reset);
    QCOMPARE(driver.pending(), 0);
    QCOMPARE(driver.seen().first().text,
        question.isEmpty() ? QString("Unknown reset of Standard body %1!").arg(index + 1)
                           : question);
    if (failed)
        QCOMPARE(
            driver.seen().last().text, QString("Reset of Standard body %1 failed!").arg(index + 1));
    QCOMPARE(changes(), sent);
}

void TestBodyTab::switchBodies()
{
    QVERIFY(tab->switchBodies("standard", 0, 1));
    QCOMPARE(changes(), QStringList { "velora2 body switch standard b01 standard b02" });
    QCOMPARE(tab->table->item(0, TestTab::Name)->text(), QString("Room reference"));
    QCOMPARE(tab->table->item(1, TestTab::Name)->text(), QString("Glasses"));

    controller->clearLog();
    controller->replaceReply("velora2 body switch*", "velora2 error: busy");
    ModalDriver driver;
    driver.pressButton(QMessageBox::Ok);
    QVERIFY(!tab->switchBodies("standard", 2, 3));
    QCOMPARE(driver.seen().first().text, QString("Switching Standard body 3 and 4 failed!"));
    QCOMPARE(controller->reports(), QStringList { "Error: Unable to switch bodies" });
    QVERIFY(!tab->switchBodies("standard", 3, 4)); // out of range: nothing sent
    QCOMPARE(changes().size(), 1);
}

void TestBodyTab::enableRules_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<bool>("adjust");
    QTest::addColumn<bool>("filter");
    QTest::addColumn<bool>("hybrid");

    QTest::newRow("nothing selected") << -1 << false << false << false << false << false;
    QTest::newRow("out of range") << 4 << false << false << false << false << false;
    QTest::newRow("custom body") << 1 << false << true << true << true << false;
    QTest::newRow("sensor body") << 2 << false << true << true << true << true;
    QTest::newRow("uncalibrated body") << 3 << false << true << false << false << false;
    QTest::newRow("locked") << 2 << true << false << false << false << false;
}

void TestBodyTab::enableRules()
{
    QFETCH(int, index);
    QFETCH(bool, locked);
    QFETCH(bool, selected);
    QFETCH(bool, adjust);
    QFETCH(bool, filter);
    QFETCH(bool, hybrid);

    tab->selectBody("standard", index);
    tab->setLocked(locked);
    QCOMPARE(tab->isBodySelected(), selected);
    QCOMPARE(tab->canAdjustSelected(), adjust);
    QCOMPARE(tab->canFilterSelected(), filter);
    QCOMPARE(tab->canHybridCalibrateSelected(), hybrid);
}

void TestBodyTab::searchRefused_data()
{
    QTest::addColumn<QString>("available");
    QTest::addColumn<QString>("active");
    QTest::addColumn<QString>("report"); // empty: the search starts

    QTest::newRow("calibration type missing")
        << "no"
        << "none"
        << "Error: Unable to start target library calibration. Calibration type is not available";
    QTest::newRow("already active")
        << "yes"
        << "cal targetlib"
        << "Error: Unable to start target library calibration. Calibration is already active.";
    QTest::newRow("err lets it start") << "yes"
                                       << "err"
                                       << "";
    QTest::newRow("none lets it start") << "yes"
                                        << "none"
                                        << "";
}

void TestBodyTab::searchRefused()
{
    QFETCH(QString, available);
    QFETCH(QString, active);
    QFETCH(QString, report);

    controller->setValue("cal available targetlib", available);
    controller->setValue("status active", active);
    tab->startSearch();

    QCOMPARE(tab->isSearching(), report.isEmpty());
    QCOMPARE(tab->start->isEnabled(), !report.isEmpty());
    if (report.isEmpty()) {
        QVERIFY(tab->stop->isEnabled());
        QCOMPARE(changes(), QStringList { "velora2 cal targetlib start" });
        QCOMPARE(controller->reports().first(), QString("target library calibration started"));
    } else {
        QCOMPARE(controller->reports(), QStringList { report });
        QVERIFY(changes().isEmpty());
    }
    tab->about_to_exit();
}

void TestBodyTab::searchRunsToTheEnd()
{
    // GL-5 is found again and is in use already.
    library->target("t01")->tracked = true;
    tab->startSearch();
    QVERIFY(controller->reports().contains("GL-5 already calibrated"));

    controller->advanceClock(1824);
    tab->measurementStep();
    QCOMPARE(tab->progressBar->value(), 45);
    // While searching, the custom-calibration check stays away.
    QVERIFY(!controller->commands().contains("velora2 targetlib check_custom_calibration"));
    QVERIFY(tab->isSearching());

    controller->advanceClock(5000);
    QCoreApplication::processEvents(); // the next tick of the timer
    ModalDriver driver;
    driver.pressButton(QMessageBox::Ok);
    tab->measurementStep();

    QCOMPARE(driver.pending(), 0);
    QCOMPARE(driver.seen().first().title, QString("VELORA4"));
    QCOMPARE(driver.seen().first().text, QString("2 targets could be identified in library"));
    QVERIFY(controller->reports().contains("target library calibration stopped"));
    QCOMPARE(tab->foundTargetCount(), 2);
    QCOMPARE(tab->progressBar->value(), tab->progressBar->maximum());
    QVERIFY(!tab->isSearching());
    QVERIFY(tab->start->isEnabled());
    QVERIFY(!tab->stop->isEnabled());
    tab->about_to_exit();
}

void TestBodyTab::searchAbortedAndStopped()
{
    tab->startSearch();
    controller->failCommand("status step_active", 1, 1);
    tab->measurementStep();
    QVERIFY(controller->reports().contains(
        "Error during target library calibration. Calibration aborted"));
    QVERIFY(!tab->isSearching());
    QVERIFY(tab->start->isEnabled());
    QVERIFY(!tab->stop->isEnabled());
    QVERIFY(!changes().contains("velora2 cal targetlib stop")); // an abort sends no stop

    controller->advanceClock(10000); // the controller's search ends by itself
    controller->clearLog();
    tab->startSearch();
    ModalDriver driver;
    driver.pressButton(QMessageBox::Ok);
    tab->stopSearch();
    QCOMPARE(driver.seen().first().text, QString("No targets could be identified in library"));
    QCOMPARE(
        changes(), QStringList({ "velora2 cal targetlib start", "velora2 cal targetlib stop" }));
    QCOMPARE(controller->reports(),
        QStringList(
            { "target library calibration started", "target library calibration cancelled" }));
    QCOMPARE(tab->progressBar->value(), 0);
    tab->about_to_exit();
}

void TestBodyTab::assignFreesOtherBodies()
{
    tab->fillTargets(QString()); // every standard target
    QCOMPARE(tab->targets->item(0, TargetStatus::IdColumn)->text(), QString("t01"));
    QCOMPARE(tab->targets->item(3, TargetStatus::CustomColumn)->text(), QString("custom"));
    QCOMPARE(tab->targets->item(0, TargetStatus::CustomColumn)->text(), QString("no"));
    controller->clearLog();

    // Cancel on a named body keeps everything.
    ModalDriver cancel;
    cancel.pressButton(QMessageBox::Cancel);
    QVERIFY(!tab->assign(1, 0, "Room reference"));
    QCOMPARE(
        cancel.seen().first().text, QString("Overwrite body calibration data of Room reference?"));
    QVERIFY(controller->commands().isEmpty());

    // An unnamed body is not asked about; GL-5 leaves body 1 for body 4.
    QVERIFY(tab->assign(3, 0, QString()));
    QCOMPARE(changes(),
        QStringList({ "body number_of_marker standard b01 0", "body desc standard b01 \"\"",
            "velora2 body calibrate_from_targetlib standard b04 GL-5" }));
    QCOMPARE(tab->body(0).calibrationText, QString("not calibrated"));
    QCOMPARE(tab->body(3).calibrationText, QString("Target Library"));
    QVERIFY(library->target("t01")->calibrated);
}

void TestBodyTab::delegate_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("empty") << "" << true;
    QTest::newRow("every allowed sign") << "aZ09_-+=.,;:/ x" << true;
    QTest::newRow("double quote") << "a\"b" << false;
    QTest::newRow("backslash") << "a\\b" << false;
    QTest::newRow("umlaut") << QString::fromUtf8("M\xc3\xbcller") << false;
    QTest::newRow("tab") << "a\tb" << false;
    QTest::newRow("100 characters") << QString(100, 'x') << true;
}

void TestBodyTab::delegate()
{
    QFETCH(QString, text);
    QFETCH(bool, accepted);

    QCOMPARE(EditDelegate::NamePattern.size(), 24);
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), QString::fromUtf8("old \"name\" \xc3\xa4"));
    EditDelegate delegate;
    QWidget parent;
    QWidget *editor = delegate.createEditor(&parent, QStyleOptionViewItem(), model.index(0, 0));
    auto *lineEdit = qobject_cast<QLineEdit *>(editor);
    QVERIFY(lineEdit);
    delegate.setEditorData(editor, model.index(0, 0));
    // A name set by other means reaches the editor unchanged.
    QCOMPARE(lineEdit->text(), QString::fromUtf8("old \"name\" \xc3\xa4"));
    QCOMPARE(lineEdit->maxLength(), 100);

    QString input = text;
    int position = 0;
    QCOMPARE(lineEdit->validator()->validate(input, position) == QValidator::Acceptable, accepted);

    lineEdit->clear();
    if (text.toLatin1() == text.toUtf8()) { // key clicks know ASCII only
        QTest::keyClicks(lineEdit, text + "y"); // refused signs never arrive
        if (accepted)
            QCOMPARE(lineEdit->text(), (text + "y").left(100));
        else
            QVERIFY(lineEdit->text() != text + "y");
    }
    delegate.setModelData(editor, &model, model.index(0, 0));
    QCOMPARE(model.data(model.index(0, 0)).toString(), lineEdit->text());

    // Each edit gets its own validator.
    const QValidator *first = lineEdit->validator();
    delegate.setEditorData(editor, model.index(0, 0));
    QVERIFY(lineEdit->validator() != first);
}

QTEST_MAIN(TestBodyTab)
#include "tst_bodytab.moc"
