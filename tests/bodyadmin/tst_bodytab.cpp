#include "bodyadminfixture.h"
#include "bodytablefiller.h"
#include "busycursor.h"

#include <QLineEdit>

// The tab framework as an operator meets it, on the standard tab: cells
// filled by role, every way to change a cell, the spin box, the lock.
class TestBodyTab : public QObject
{
    Q_OBJECT

private slots:
    void init() { f.init(); }
    void cleanup() { FIXTURE_CLEANUP(f); }

    void cellsByRole_data();
    void cellsByRole();
    void sensorResetNeedsNoWarmup();
    void checkCells_data();
    void checkCells();
    void iconCells_data();
    void iconCells();
    void unknownReset();
    void rename_data();
    void rename();
    void numberOfBodies_data();
    void numberOfBodies();
    void moveBodies_data();
    void moveBodies();
    void lockClosesEveryPath();
    void filterRuleFollowsTheCurrentBody_data();
    void filterRuleFollowsTheCurrentBody();
    void busyCursorOnASlowReload();

private:
    enum {
        Id = 0,
        Active = 1,
        Reference = 2,
        Name = 3,
        Calibration = 6,
        Filter = 7,
        Delete = 8,
        Reset = 9
    };
    // The check states of a column, rows 1 to 3: "y" checked, "n" not, "-" none.
    QString checks(int column) const
    {
        QString text;
        for (int row = 0; row < 3; ++row) {
            const QTableWidgetItem *item = f.table()->item(row, column);
            text += !item->data(Qt::CheckStateRole).isValid() ? '-'
                : item->checkState() == Qt::Checked           ? 'y'
                                                              : 'n';
        }
        return text;
    }

    BodyAdminFixture f;
};

void TestBodyTab::cellsByRole_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("texts"); // id, name, calibration, filter
    QTest::addColumn<QString>("boxes"); // active and reference
    QTest::addColumn<QString>("usable"); // delete and reset
    QTest::addColumn<QStringList>("tips"); // calibration, delete, reset

    QTest::newRow("library, re-calibrated")
        << 0 << QStringList { "1", "Glasses", "Target Library, re-calibrated", "Default" } << "yn"
        << "11"
        << QStringList { "Calibrated", "Click to delete the geometry of this body",
               "Click to reset the body to its target-library geometry" };
    QTest::newRow("custom reference")
        << 1 << QStringList { "2", "Room reference", "Custom", "0.50/12ms/Static" } << "yy"
        << "10"
        << QStringList { "Calibrated", "Click to delete the geometry of this body",
               "Nothing to reset: the body has no target-library geometry and no sensor" };
    QTest::newRow("sensor with hand-eye")
        << 2 << QStringList { "3", "Handheld", "Full", "Medium prediction" } << "yn"
        << "11"
        << QStringList { "Calibrated",
               "Click to delete the geometry and the sensor assignment of this body",
               "Click to reset the body's inertial sensor" };
    QTest::newRow("empty") << 3 << QStringList { "4", "", "not calibrated", "Default" } << "--"
                           << "00"
                           << QStringList {
                                  "Not calibrated: assign a library target or run a custom "
                                  "calibration",
                                  "Nothing to delete: the body has no geometry and no inertial "
                                  "sensor",
                                  "Nothing to reset: the body has no target-library geometry "
                                  "and no sensor"
                              };
}

void TestBodyTab::cellsByRole()
{
    QFETCH(int, row);
    QFETCH(QStringList, texts);
    QFETCH(QString, boxes);
    QFETCH(QString, usable);
    QFETCH(QStringList, tips);

    f.open();
    QTableWidget *t = f.table();
    QStringList shown;
    for (int column : { Id, Name, Calibration, Filter })
        shown << t->item(row, column)->text();
    QCOMPARE(shown, texts);
    QString checks;
    for (int column : { Active, Reference }) {
        const QTableWidgetItem *item = t->item(row, column);
        checks += !(item->flags() & Qt::ItemIsUserCheckable) ? '-'
            : item->checkState() == Qt::Checked              ? 'y'
                                                             : 'n';
    }
    QCOMPARE(checks, boxes);
    QCOMPARE(QString::number(t->item(row, Delete)->data(BodyTableFiller::UsableRole).toInt())
            + QString::number(t->item(row, Reset)->data(BodyTableFiller::UsableRole).toInt()),
        usable);
    QCOMPARE(QStringList({ t->item(row, Calibration)->toolTip(), t->item(row, Delete)->toolTip(),
                 t->item(row, Reset)->toolTip() }),
        tips);
    QCOMPARE(
        t->item(row, Name)->flags(), Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled);
    QCOMPARE(t->item(row, Calibration)->flags(), Qt::ItemIsEnabled);
    QCOMPARE(f.widget<QSpinBox>("spinBox_standard_bodies")->maximum(), 20);
}

void TestBodyTab::sensorResetNeedsNoWarmup()
{
    f.setUp({ "inertial warmup = yes", "body inertial_sensor standard b04 = VX IMU 'A5678'",
        "inertial sensor_handeye VX IMU 'A1234' = none" });
    f.open();
    f.tab->update_tab();
    // Asked once per refresh, however many sensors there are.
    QCOMPARE(f.controller->commands().count("inertial available"), 1);
    QCOMPARE(f.controller->commands().count("inertial warmup"), 1);
    QCOMPARE(f.table()->item(2, Reset)->data(BodyTableFiller::UsableRole).toInt(), 0);
    QCOMPARE(f.table()->item(2, Reset)->toolTip(),
        QString("A sensor reset needs inertial tracking, and no warm-up running"));
    QCOMPARE(f.table()->item(2, Calibration)->text(), QString("Optical"));
    QCOMPARE(f.table()->item(2, Calibration)->toolTip(),
        QString("Calibrated optically; the inertial sensor has no hand-eye calibration"));
}

void TestBodyTab::checkCells_data()
{
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("boxes");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QStringList>("reports");
    QTest::addColumn<QString>("after"); // the column's check boxes, rows 1-3

    const QStringList none;
    const QString reference = "After deactivating the reference target,\nall targets will not be "
                              "tracked.|Continue?";
    QTest::newRow("deactivate") << none << 0 << int(Active) << 0 << none
                                << QStringList { "body active standard b01 no" } << none << "nyy";
    QTest::newRow("refused activation shows the controller's")
        << QStringList { "!body active standard b01 no" } << 0 << int(Active) << 0 << none
        << QStringList { "body active standard b01 no" }
        << QStringList { "Error: Unable to set activeness of body standard b00" } << "yyy";
    QTest::newRow("activate an inactive calibrated body")
        << QStringList { "body active standard b03 = no" } << 2 << int(Active) << 0 << none
        << QStringList { "body active standard b03 yes" } << none << "yyy";
    QTest::newRow("the reference stays active on No")
        << none << 1 << int(Active) << int(QMessageBox::No) << QStringList { reference } << none
        << none << "yyy";
    QTest::newRow("the reference deactivated on Yes")
        << none << 1 << int(Active) << int(QMessageBox::Yes) << QStringList { reference }
        << QStringList { "body active standard b02 no" } << none << "yny";
    QTest::newRow("set the reference")
        << none << 0 << int(Reference) << 0 << none
        << QStringList { "tracking reference standard b01" } << none << "ynn";
    QTest::newRow("refused reference shows the controller's")
        << QStringList { "!tracking reference standard b01" } << 0 << int(Reference) << 0 << none
        << QStringList { "tracking reference standard b01" }
        << QStringList { "Error: Unable to set body standard b00 as reference body" } << "nyn";
    QTest::newRow("clear the reference, with the leading blank")
        << none << 1 << int(Reference) << 0 << none << QStringList { " tracking reference none" }
        << none << "nnn";
    QTest::newRow("clearing refused")
        << QStringList { "!tracking reference none" } << 1 << int(Reference) << 0 << none
        << QStringList { " tracking reference none" }
        << QStringList { "Error: Unable to de-activate the reference body" } << "nyn";
    QTest::newRow("an inactive body cannot be the reference")
        << QStringList { "body active standard b01 = no" } << 0 << int(Reference) << 0
        << QStringList { "A de-activated body cannot be set as reference.\nPlease activate this "
                         "body before." }
        << none << none << "nyn";
}

// A click on the check box and Space on the cell take the same path.
void TestBodyTab::checkCells()
{
    QFETCH(QStringList, setUp);
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, answer);
    QFETCH(QStringList, boxes);
    QFETCH(QStringList, sent);
    QFETCH(QStringList, reports);
    QFETCH(QString, after);

    for (bool space : { false, true }) {
        f.setUp(setUp);
        f.open();
        f.answer(answer ? QList<int> { answer } : QList<int>());
        if (space) {
            BodyAdminFixture::go(f.table(), row, column);
            QTest::keyClick(f.table(), Qt::Key_Space);
        } else {
            BodyAdminFixture::click(f.table(), row, column);
        }
        QCOMPARE(f.seen(), boxes);
        QCOMPARE(f.changes(), sent);
        QCOMPARE(f.controller->reports(), reports);
        QCOMPARE(checks(column), after);
        FIXTURE_CLEANUP(f);
        f.init();
    }
}

void TestBodyTab::iconCells_data()
{
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("boxes");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QStringList>("reports"); // the first reports

    const QStringList none;
    const QString preset = "body filter6d_preset standard b0%1 preset6d_default";
    const QString markers = "body number_of_marker standard b0%1 0";
    const QString desc = "body desc standard b0%1 \"\"";
    const QString delete1 = "Delete geometry of Standard body 1?";
    const QString delete3
        = "Delete assignment of sensor VX IMU 'A1234' and \ndelete geometry of Standard body 3?";
    const QString sensor = "VX IMU 'A1234'";
    const QString toSensor = "Reset Standard body 3\nto sensor stored values?";
    const QString handEye = "Reset Standard body 3?\nHand eye calibration will be deleted!";
    const QStringList warm { "@inertial warmup = yes" };
    const QStringList noStorage { "@inertial sensor_has_storage VX IMU 'A1234' = no" };
    const int yes = QMessageBox::Yes;

    QTest::newRow("delete: No changes nothing") << none << 0 << int(Delete) << int(QMessageBox::No)
                                                << QStringList { delete1 } << none << none;
    QTest::newRow("delete a library body")
        << none << 0 << int(Delete) << yes << QStringList { delete1 }
        << QStringList { preset.arg(1), markers.arg(1), desc.arg(1) } << none;
    QTest::newRow("delete the reference")
        << none << 1 << int(Delete) << yes
        << QStringList { "Delete geometry of Standard body 2?\nIf yes, the assignment as "
                         "reference to other bodies will be deleted." }
        << QStringList { "tracking reference none", preset.arg(2), markers.arg(2), desc.arg(2) }
        << none;
    QTest::newRow("delete a sensor body")
        << none << 2 << int(Delete) << yes << QStringList { delete3 }
        << QStringList { preset.arg(3), "body inertial_sensor standard b03 none", markers.arg(3),
               desc.arg(3) }
        << none;
    QTest::newRow("nothing to delete: the gate holds")
        << none << 3 << int(Delete) << yes << none << none << none;
    QTest::newRow("delete: an uncalibrated sensor body keeps no markers to reset")
        << QStringList { "body inertial_sensor standard b04 = VX IMU 'A5678'" } << 3 << int(Delete)
        << yes
        << QStringList { "Delete assignment of sensor VX IMU 'A5678' and \ndelete geometry of "
                         "Standard body 4?" }
        << QStringList { preset.arg(4), "body inertial_sensor standard b04 none" } << none;
    QTest::newRow("delete: markers fail, the preset stays reset")
        << QStringList { "!" + markers.arg(1) } << 0 << int(Delete) << yes
        << QStringList { delete1, "Delete Standard body 1 failed" }
        << QStringList { preset.arg(1), markers.arg(1) }
        << QStringList { "Unable to reset markers of Standard body 1" };
    QTest::newRow("delete: description fails")
        << QStringList { "!" + desc.arg(1) } << 0 << int(Delete) << yes
        << QStringList { delete1, "Delete Standard body 1 failed" }
        << QStringList { preset.arg(1), markers.arg(1), desc.arg(1) }
        << QStringList { "Unable to reset description of Standard body 1" };
    QTest::newRow("delete: preset fails first")
        << QStringList { "!" + preset.arg(3) } << 2 << int(Delete) << yes
        << QStringList { delete3, "Delete Standard body 3 failed" } << QStringList { preset.arg(3) }
        << QStringList { "Unable to reset filter6d of Standard body 3" };
    QTest::newRow("delete: sensor fails")
        << QStringList { "!body inertial_sensor standard b03 none" } << 2 << int(Delete) << yes
        << QStringList { delete3, "Delete Standard body 3 failed" }
        << QStringList { preset.arg(3), "body inertial_sensor standard b03 none" }
        << QStringList { "Unable to reset sensor of Standard body 3" };
    QTest::newRow("delete: preset availability unknown, step skipped")
        << QStringList { "!body filter6d_preset_available standard b01 preset6d_default" } << 0
        << int(Delete) << yes << QStringList { delete1 }
        << QStringList { markers.arg(1), desc.arg(1) }
        << QStringList { "Error: Unable to get info preset available" };
    QTest::newRow("delete: reference unreadable, deletion goes on")
        << QStringList { "!tracking reference" } << 1 << int(Delete) << yes
        << QStringList { "Delete geometry of Standard body 2?\nIf yes, the assignment as "
                         "reference to other bodies will be deleted." }
        << QStringList { preset.arg(2), markers.arg(2), desc.arg(2) }
        << QStringList { "Unable to information of reference body" };
    QTest::newRow("delete: reference kept by the controller")
        << QStringList { "!tracking reference none" } << 1 << int(Delete) << yes
        << QStringList { "Delete geometry of Standard body 2?\nIf yes, the assignment as "
                         "reference to other bodies will be deleted." }
        << QStringList { "tracking reference none", preset.arg(2), markers.arg(2), desc.arg(2) }
        << QStringList { "Unable to reset reference body" };
    QTest::newRow("delete: the body's target unknown")
        << QStringList { "!body targetlib_name standard b01" } << 0 << int(Delete) << yes
        << QStringList { delete1 } << QStringList { preset.arg(1), markers.arg(1), desc.arg(1) }
        << QStringList { "Unable to get info targetlib ID of body" };
    QTest::newRow("reset to the library")
        << none << 0 << int(Reset) << yes
        << QStringList { "Reset Standard body 1\nto Target-Library geometry?" }
        << QStringList { "velora2 body calibrate_from_targetlib standard b01 GL-5" } << none;
    QTest::newRow("reset to the library fails")
        << QStringList { "!velora2 body calibrate_from_targetlib*" } << 0 << int(Reset) << yes
        << QStringList { "Reset Standard body 1\nto Target-Library geometry?",
               "Reset of Standard body 1 failed!" }
        << QStringList { "velora2 body calibrate_from_targetlib standard b01 GL-5" }
        << QStringList { "Error: Unable to reset body from target library" };
    QTest::newRow("reset: No")
        << none << 0 << int(Reset) << int(QMessageBox::No)
        << QStringList { "Reset Standard body 1\nto Target-Library geometry?" } << none << none;
    QTest::newRow("reset to the sensor's values, warm-up paused")
        << warm << 2 << int(Reset) << yes << QStringList { toSensor }
        << QStringList { "inertial warmup no", "velora2 set inertial sensor_default " + sensor,
               "inertial warmup yes" }
        << none;
    QTest::newRow("sensor reset fails: warm-up restarted anyway")
        << warm + QStringList { "!velora2 set inertial*" } << 2 << int(Reset) << yes
        << QStringList { toSensor, "Reset of Standard body 3 failed!" }
        << QStringList { "inertial warmup no", "velora2 set inertial sensor_default " + sensor,
               "inertial warmup yes" }
        << QStringList { "Error: Unable to reset body to sensor stored values" };
    QTest::newRow("warm-up cannot stop: the sensor refuses")
        << warm + QStringList { "!inertial warmup no" } << 2 << int(Reset) << yes
        << QStringList { toSensor, "Reset of Standard body 3 failed!" }
        << QStringList { "inertial warmup no", "velora2 set inertial sensor_default " + sensor }
        << QStringList { "Could not stop warmup of sensors",
               "Error: Unable to reset body to sensor stored values" };
    QTest::newRow("warm-up cannot start again")
        << warm + QStringList { "!inertial warmup yes" } << 2 << int(Reset) << yes
        << QStringList { toSensor }
        << QStringList { "inertial warmup no", "velora2 set inertial sensor_default " + sensor,
               "inertial warmup yes" }
        << QStringList { "Could not start warmup of sensors" };
    QTest::newRow("warm-up unknown")
        << QStringList { "!inertial warmup" } << 2 << int(Reset) << yes << QStringList { toSensor }
        << QStringList { "velora2 set inertial sensor_default " + sensor }
        << QStringList { "Could not get warmup status" };
    QTest::newRow("no storage: the hand-eye calibration goes")
        << noStorage << 2 << int(Reset) << yes << QStringList { handEye }
        << QStringList { "inertial sensor_handeye " + sensor + " none" } << none;
    QTest::newRow("no storage, hand-eye reset fails")
        << noStorage + QStringList { "!inertial sensor_handeye " + sensor + " none" } << 2
        << int(Reset) << yes << QStringList { handEye, "Reset of Standard body 3 failed!" }
        << QStringList { "inertial sensor_handeye " + sensor + " none" }
        << QStringList { "Unable to reset sensor hand eye calibration",
               "Error: Unable to reset body to sensor stored values" };
    QTest::newRow("storage unknown, hand-eye unknown")
        << QStringList { "!inertial sensor_has_storage*", "!inertial sensor_handeye " + sensor }
        << 2 << int(Reset) << yes << QStringList { "Reset Standard body 3?" } << none
        << QStringList { "Unable to get storage info from sensor",
               "Unable to get info about hand eye calibration from sensor" };
    QTest::newRow("nothing to reset: the gate holds")
        << none << 1 << int(Reset) << yes << none << none << none;
    QTest::newRow("the filter cell switches the filter")
        << none << 0 << int(Filter) << yes << none
        << QStringList { "body filter6d_enabled standard b01 no" } << none;
    QTest::newRow("no filter for an uncalibrated body")
        << none << 3 << int(Filter) << yes << none << none << none;
}

// A click on a delete, reset or filter cell; for delete, the Delete key too.
void TestBodyTab::iconCells()
{
    QFETCH(QStringList, setUp);
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, answer);
    QFETCH(QStringList, boxes);
    QFETCH(QStringList, sent);
    QFETCH(QStringList, reports);

    for (bool key : { false, true }) {
        if (key && column != Delete)
            break;
        f.setUp(setUp);
        f.open();
        f.answer({ answer });
        if (key) {
            BodyAdminFixture::go(f.table(), row, 0);
            QTest::keyClick(f.table(), Qt::Key_Delete);
        } else {
            BodyAdminFixture::click(f.table(), row, column);
        }
        QCOMPARE(f.seen(), boxes);
        QCOMPARE(f.changes(), sent);
        QCOMPARE(f.controller->reports().mid(0, reports.size()), reports);
        if (reports.isEmpty()
            && sent.contains(QString("body number_of_marker standard b0%1 0").arg(row + 1)))
            QCOMPARE(f.table()->item(row, Calibration)->text(), QString("not calibrated"));
        if (column == Filter && !sent.isEmpty())
            QCOMPARE(f.table()->item(row, Filter)->text(), QString("not active"));
        FIXTURE_CLEANUP(f);
        f.init();
    }
}

// No cell leads here: a body with neither library geometry nor a sensor
// has no usable reset cell.
void TestBodyTab::unknownReset()
{
    f.open();
    f.answer();
    QVERIFY(!f.tab->resetBody("standard", 1));
    QCOMPARE(f.seen(), QStringList { "Unknown reset of Standard body 2!" });
    QVERIFY(f.changes().isEmpty());
}

void TestBodyTab::rename_data()
{
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<bool>("doubleClick");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("report");
    QTest::addColumn<QString>("shown");

    QTest::newRow("F2") << QStringList() << false << 3 << "Tool 4"
                        << "body desc standard b04 \"Tool 4\""
                        << ""
                        << "Tool 4";
    QTest::newRow("double click") << QStringList() << true << 3 << "a-b_c+d=e.f,g;h:i/j"
                                  << "body desc standard b04 \"a-b_c+d=e.f,g;h:i/j\""
                                  << ""
                                  << "a-b_c+d=e.f,g;h:i/j";
    QTest::newRow("a double quote cannot be typed") << QStringList() << false << 3 << "a\"b\\c"
                                                    << "body desc standard b04 \"abc\""
                                                    << ""
                                                    << "abc";
    QTest::newRow("at most 100 characters")
        << QStringList() << false << 3 << QString(150, 'x')
        << "body desc standard b04 \"" + QString(100, 'x') + '"' << "" << QString(100, 'x');
    QTest::newRow("refused rename shows the controller's")
        << QStringList { "!body desc standard b01 *" } << false << 0 << "X"
        << "body desc standard b01 \"X\""
        << "Error: Unable to set description of body standard b01"
        << "Glasses";
}

void TestBodyTab::rename()
{
    QFETCH(QStringList, setUp);
    QFETCH(bool, doubleClick);
    QFETCH(int, row);
    QFETCH(QString, typed);
    QFETCH(QString, sent);
    QFETCH(QString, report);
    QFETCH(QString, shown);

    f.setUp(setUp);
    f.open();
    if (doubleClick) {
        BodyAdminFixture::click(f.table(), row, Name, true);
    } else {
        BodyAdminFixture::go(f.table(), row, 0);
        QTest::keyClick(f.table(), Qt::Key_F2);
    }
    auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, typed);
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();

    QCOMPARE(f.changes(), QStringList { sent });
    QCOMPARE(f.controller->reports(), report.isEmpty() ? QStringList() : QStringList { report });
    QCOMPARE(f.table()->item(row, Name)->text(), shown);
    QVERIFY(f.dialog->isVisible()); // Enter ended the edit, not the dialog
    f.tab->update_tab();
    QCOMPARE(f.changes(), QStringList { sent }); // a refill sends no name
}

void TestBodyTab::numberOfBodies_data()
{
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<QString>("typed"); // "Up": the arrow key
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QString>("report");
    QTest::addColumn<int>("rows");

    const QStringList lastIsReference { "tracking reference = standard b04" };
    QTest::newRow("typing 10 sends 10 once")
        << lastIsReference << "10" << 0 << QStringList { "standard number_of_bodies 10" } << ""
        << 10;
    QTest::newRow("the meant value is asked about, No")
        << lastIsReference << "2" << int(QMessageBox::No) << QStringList() << "" << 4;
    QTest::newRow("the meant value is asked about, Yes")
        << lastIsReference << "2" << int(QMessageBox::Yes)
        << QStringList { "standard number_of_bodies 2" } << "" << 2;
    QTest::newRow("only the last body is looked at")
        << QStringList { "tracking reference = standard b03" } << "2" << 0
        << QStringList { "standard number_of_bodies 2" } << "" << 2;
    QTest::newRow("arrow up") << QStringList() << "Up" << 0
                              << QStringList { "standard number_of_bodies 5" } << "" << 5;
    QTest::newRow("a refused count does not stay")
        << QStringList { "!standard number_of_bodies 10" } << "10" << 0
        << QStringList { "standard number_of_bodies 10" }
        << "Error: Unable to set number of standard bodies to 10" << 4;
}

void TestBodyTab::numberOfBodies()
{
    QFETCH(QStringList, setUp);
    QFETCH(QString, typed);
    QFETCH(int, answer);
    QFETCH(QStringList, sent);
    QFETCH(QString, report);
    QFETCH(int, rows);

    f.setUp(setUp);
    f.open();
    f.answer({ answer });
    auto *spinBox = f.widget<QSpinBox>("spinBox_standard_bodies");
    spinBox->setFocus();
    if (typed == "Up") {
        QTest::keyClick(spinBox, Qt::Key_Up);
    } else {
        spinBox->selectAll();
        QTest::keyClicks(spinBox, typed);
        QVERIFY(f.changes().isEmpty()); // nothing before the value is finished
        QTest::keyClick(spinBox, Qt::Key_Return);
    }

    QCOMPARE(f.seen().size(), answer ? 1 : 0);
    if (answer) {
        QCOMPARE(f.driver->seen().first().title, QString("VELORA4"));
        QCOMPARE(f.seen().first(),
            QString("Decreasing the number of standard bodies will disable the "
                    "reference!\n\nContinue?"));
    }
    QCOMPARE(f.changes(), sent);
    QCOMPARE(f.controller->reports(), report.isEmpty() ? QStringList() : QStringList { report });
    QCOMPARE(f.table()->rowCount(), rows);
    QCOMPARE(spinBox->value(), rows);
    QVERIFY(f.dialog->isVisible()); // Enter committed the count only
    if (rows > 4)
        QVERIFY(f.controller->commands().contains(
            QString("body desc standard b%1").arg(rows, 2, 10, QChar('0'))));
}

void TestBodyTab::moveBodies_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("refused");
    QTest::addColumn<QString>("sent");
    QTest::addColumn<int>("selected");

    QTest::newRow("up") << 1 << "pushButton_up" << false
                        << "velora2 body switch standard b02 standard b01" << 0;
    QTest::newRow("down") << 2 << "pushButton_down" << false
                          << "velora2 body switch standard b03 standard b04" << 3;
    QTest::newRow("refused") << 2 << "pushButton_up" << true
                             << "velora2 body switch standard b03 standard b02" << 1;
}

void TestBodyTab::moveBodies()
{
    QFETCH(int, row);
    QFETCH(QString, button);
    QFETCH(bool, refused);
    QFETCH(QString, sent);
    QFETCH(int, selected);

    f.setUp(refused ? QStringList { "!velora2 body switch*" } : QStringList());
    f.open();
    f.answer();
    BodyAdminFixture::click(f.table(), row, 0);
    const QString moved = f.table()->item(row, Name)->text();
    QSignalSpy selections(
        f.tab, QOverload<const QString &, int>::of(&BodyTypeAdministrationTab::selection_changed));
    f.clickButton(button);

    QCOMPARE(f.changes(), QStringList { sent });
    QCOMPARE(f.seen(),
        refused ? QStringList { "Switching Standard body 3 and 2 failed!" } : QStringList());
    QCOMPARE(f.controller->reports(),
        refused ? QStringList { "Error: Unable to switch bodies" } : QStringList());
    QCOMPARE(f.table()->item(refused ? row : selected, Name)->text(), moved);
    QCOMPARE(f.table()->selectedItems().first()->row(), selected);
    QCOMPARE(selections.last().at(1).toInt(), selected);
    QCOMPARE(f.widget("pushButton_up")->isEnabled(), selected > 0);
    QCOMPARE(f.widget("pushButton_down")->isEnabled(), selected < 3);
}

void TestBodyTab::lockClosesEveryPath()
{
    f.open();
    f.answer();
    BodyAdminFixture::click(f.table(), 1, 0);
    QVERIFY(f.widget("pushButton_down")->isEnabled());
    const auto configurationChanged = [this](const char *changeable) {
        f.controller->setValue("config is_changeable", changeable);
        f.controller->sendMessage(
            "GlobalEvent", "ConfigurationModule", 1, "ActiveConfigurationChanged");
    };
    configurationChanged("no");
    f.tab->update_tab();
    f.controller->clearLog();

    for (const char *name : { "pushButton_up", "pushButton_down", "spinBox_standard_bodies",
             "tableWidget_standard", "pushButton_start", "pushButton_filter" })
        QVERIFY2(!f.widget(name)->isEnabled(), name);
    BodyAdminFixture::go(f.table(), 0, Active);
    for (Qt::Key key : { Qt::Key_Space, Qt::Key_F2, Qt::Key_Delete })
        QTest::keyClick(f.table(), key);
    // A path that reaches the tab anyway changes nothing on the controller
    // and leaves the screen as it was; a click still selects.
    f.table()->item(0, Active)->setCheckState(Qt::Unchecked);
    QSignalSpy selections(
        f.tab, QOverload<const QString &, int>::of(&BodyTypeAdministrationTab::selection_changed));
    emit f.table()->cellClicked(2, Delete);
    f.tab->findChild<QSpinBox *>("spinBox_standard_bodies")->setValue(2);
    QCOMPARE(f.seen(), QStringList());
    QCOMPARE(f.changes(), QStringList());
    QCOMPARE(checks(Active), QString("yyy"));
    QCOMPARE(f.table()->rowCount(), 4);
    QCOMPARE(selections.last().at(1).toInt(), 2);

    configurationChanged("yes");
    QVERIFY(f.widget("tableWidget_standard")->isEnabled());
    QVERIFY(f.widget("pushButton_up")->isEnabled());
}

void TestBodyTab::filterRuleFollowsTheCurrentBody_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("table");
    QTest::addColumn<int>("calibratedRow"); // the next row is not calibrated

    QTest::newRow("standard") << 0 << "tableWidget_standard" << 2;
    QTest::newRow("Gripwand") << 1 << "tableWidget_gripwand" << 0;
}

void TestBodyTab::filterRuleFollowsTheCurrentBody()
{
    QFETCH(int, key);
    QFETCH(QString, table);
    QFETCH(int, calibratedRow);

    f.open(key);
    QTableWidget *bodies = f.table(table);
    BodyAdminFixture::go(bodies, calibratedRow, 0);
    QWidget *filter = f.widget("pushButton_filter");
    QVERIFY(filter->isEnabled());
    QTest::keyClick(bodies, Qt::Key_Down);
    QVERIFY(!filter->isEnabled());
    QTest::keyClick(bodies, Qt::Key_Up);
    QVERIFY(filter->isEnabled());
    bodies->setCurrentCell(calibratedRow + 1, 0); // by code
    QVERIFY(!filter->isEnabled());
}

void TestBodyTab::busyCursorOnASlowReload()
{
    f.open();
    QList<bool> busy;
    connect(f.controller, &sim::SimulatedController::logged, this, [&busy] {
        busy << (QGuiApplication::overrideCursor()
            && QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor);
    });
    f.controller->setLatency(BusyCursor::Delay / 5);
    f.tab->update_tab();
    f.controller->setLatency(0);
    QVERIFY(!busy.first());
    QVERIFY(busy.contains(true));
    QVERIFY(!QGuiApplication::overrideCursor());
}

QTEST_MAIN(TestBodyTab)
#include "tst_bodytab.moc"
