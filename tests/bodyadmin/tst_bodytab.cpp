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

    static QStringList L(const char *items) { return BodyAdminFixture::L(items); }
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
        << 0 << QStringList { "1", "Glasses", "Target Library, re-calibrated", "Default" }
        << QString("yn") << "11"
        << QStringList { "Calibrated", "Click to delete the geometry of this body",
               "Click to reset the body to its target-library geometry" };
    QTest::newRow("custom reference")
        << 1 << QStringList { "2", "Room reference", "Custom", "0.50/12ms/Static" } << QString("yy")
        << "10"
        << QStringList { "Calibrated", "Click to delete the geometry of this body",
               "Nothing to reset: the body has no target-library geometry and no sensor" };
    QTest::newRow("sensor with hand-eye")
        << 2 << QStringList { "3", "Handheld", "Full", "Medium prediction" } << QString("yn")
        << "11"
        << QStringList { "Calibrated",
               "Click to delete the geometry and the sensor assignment of this body",
               "Click to reset the body's inertial sensor" };
    QTest::newRow("empty") << 3 << QStringList { "4", "", "not calibrated", "Default" }
                           << QString("--") << "00"
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
    QTest::addColumn<QStringList>("events");
    QTest::addColumn<QString>("after"); // the column's check boxes, rows 1-3

    const QStringList none;
    const int no = QMessageBox::No;
    QTest::newRow("deactivate") << none << 0 << int(Active) << 0 << L("body active standard b01 no")
                                << "nyy";
    QTest::newRow("refused activation shows the controller's")
        << L("!body active standard b01 no") << 0 << int(Active) << 0
        << L("body active standard b01 no | ! Error: Unable to set activeness of body standard b00")
        << "yyy";
    QTest::newRow("activate an inactive calibrated body")
        << L("body active standard b03 = no") << 2 << int(Active) << 0
        << L("body active standard b03 yes") << "yyy";
    QTest::newRow("the reference stays active on No")
        << none << 1 << int(Active) << no
        << L("? After deactivating the reference target,\nall targets will not be "
             "tracked.|Continue?")
        << "yyy";
    QTest::newRow("the reference deactivated on Yes")
        << none << 1 << int(Active) << 0
        << L("? After deactivating the reference target,\nall targets will not be "
             "tracked.|Continue? | body active standard b02 no")
        << "yny";
    QTest::newRow("set the reference")
        << none << 0 << int(Reference) << 0 << L("tracking reference standard b01") << "ynn";
    QTest::newRow("refused reference shows the controller's")
        << L("!tracking reference standard b01") << 0 << int(Reference) << 0
        << L("tracking reference standard b01 | ! Error: Unable to set body standard b00 as "
             "reference body")
        << "nyn";
    QTest::newRow("clear the reference, with the leading blank")
        << none << 1 << int(Reference) << 0 << QStringList { " tracking reference none" } << "nnn";
    QTest::newRow("clearing refused") << L("!tracking reference none") << 1 << int(Reference) << 0
                                      << QStringList { " tracking reference none",
                                             "! Error: Unable to de-activate the reference body" }
                                      << "nyn";
    QTest::newRow("an inactive body cannot be the reference")
        << L("body active standard b01 = no") << 0 << int(Reference) << 0
        << L("? A de-activated body cannot be set as reference.\nPlease activate this body "
             "before.")
        << "nyn";
}

// A click on the check box and Space on the cell take the same path.
void TestBodyTab::checkCells()
{
    QFETCH(QStringList, setUp);
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, answer);
    QFETCH(QStringList, events);
    QFETCH(QString, after);

    for (bool space : { false, true }) {
        f.setUp(setUp);
        f.open();
        f.answer({ answer });
        if (space) {
            BodyAdminFixture::go(f.table(), row, column);
            QTest::keyClick(f.table(), Qt::Key_Space);
        } else {
            BodyAdminFixture::click(f.table(), row, column);
        }
        QCOMPARE(f.events, events);
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
    QTest::addColumn<QStringList>("events");

    const QStringList none;
    const QString preset = "body filter6d_preset standard b0%1 preset6d_default";
    const QString markers = "body number_of_marker standard b0%1 0";
    const QString desc = "body desc standard b0%1 \"\"";
    const QStringList delete1 = L("? Delete geometry of Standard body 1?");
    const QStringList delete2 = L("? Delete geometry of Standard body 2?\nIf yes, the assignment "
                                  "as reference to other bodies will be deleted.");
    const QStringList delete3 = L("? Delete assignment of sensor VX IMU 'A1234' and \ndelete "
                                  "geometry of Standard body 3?");
    const QStringList toLibrary = L("? Reset Standard body 1\nto Target-Library geometry?");
    const QStringList toSensor = L("? Reset Standard body 3\nto sensor stored values?");
    const QStringList warm = L("@inertial warmup = yes");
    const QStringList noStorage = L("@inertial sensor_has_storage VX IMU 'A1234' = no");
    const QStringList calibrate = L("velora2 body calibrate_from_targetlib standard b01 GL-5");
    const QStringList storedValues = L("inertial warmup no | velora2 set inertial sensor_default "
                                       "VX IMU 'A1234'");
    const QStringList handEyeNone = L("inertial sensor_handeye VX IMU 'A1234' none");
    const QStringList sensorFailed = L("! Error: Unable to reset body to sensor stored values | ? "
                                       "Reset of Standard body 3 failed!");
    const auto deleted = [&](int body) {
        return QStringList { preset.arg(body), markers.arg(body), desc.arg(body) };
    };
    const auto failed = [](int body, const QString &report) {
        return QStringList { "! " + report.arg(body),
            "? Delete Standard body " + QString::number(body) + " failed" };
    };
    const int no = QMessageBox::No;

    QTest::newRow("delete: No changes nothing") << none << 0 << int(Delete) << no << delete1;
    QTest::newRow("delete a library body") << none << 0 << int(Delete) << 0 << delete1 + deleted(1);
    QTest::newRow("delete the reference")
        << none << 1 << int(Delete) << 0 << delete2 + L("tracking reference none") + deleted(2);
    QTest::newRow("delete a sensor body")
        << none << 2 << int(Delete) << 0
        << delete3 + QStringList { preset.arg(3), "body inertial_sensor standard b03 none" }
            + QStringList(deleted(3).mid(1));
    QTest::newRow("nothing to delete: the gate holds") << none << 3 << int(Delete) << 0 << none;
    QTest::newRow("delete: markers fail, the preset stays reset")
        << QStringList { "!" + markers.arg(1) } << 0 << int(Delete) << 0
        << delete1 + QStringList(deleted(1).mid(0, 2))
            + failed(1, "Unable to reset markers of Standard body %1");
    QTest::newRow("delete: description fails")
        << QStringList { "!" + desc.arg(1) } << 0 << int(Delete) << 0
        << delete1 + deleted(1) + failed(1, "Unable to reset description of Standard body %1");
    QTest::newRow("delete: preset fails first")
        << QStringList { "!" + preset.arg(3) } << 2 << int(Delete) << 0
        << delete3 + QStringList { preset.arg(3) }
            + failed(3, "Unable to reset filter6d of Standard body %1");
    QTest::newRow("delete: sensor fails")
        << L("!body inertial_sensor standard b03 none") << 2 << int(Delete) << 0
        << delete3 + QStringList { preset.arg(3), "body inertial_sensor standard b03 none" }
            + failed(3, "Unable to reset sensor of Standard body %1");
    QTest::newRow("delete: preset availability unknown, step skipped")
        << L("!body filter6d_preset_available standard b01 preset6d_default") << 0 << int(Delete)
        << 0
        << delete1 + L("! Error: Unable to get info preset available")
            + QStringList(deleted(1).mid(1));
    QTest::newRow("delete: reference unreadable, deletion goes on")
        << L("!tracking reference") << 1 << int(Delete) << 0
        << delete2 + L("! Unable to information of reference body") + deleted(2)
            + QString("! Error: Unable to info body reference|")
                  .repeated(5)
                  .split("|", Qt::SkipEmptyParts);
    QTest::newRow("delete: an uncalibrated sensor body has no markers to reset")
        << L("body inertial_sensor standard b04 = VX IMU 'A5678'") << 3 << int(Delete) << 0
        << L("? Delete assignment of sensor VX IMU 'A5678' and \ndelete geometry of Standard body "
             "4?")
            + QStringList { preset.arg(4), "body inertial_sensor standard b04 none" };
    QTest::newRow("delete: reference kept by the controller")
        << L("!tracking reference none") << 1 << int(Delete) << 0
        << delete2 + L("tracking reference none | ! Unable to reset reference body") + deleted(2);
    QTest::newRow("reset to the library") << none << 0 << int(Reset) << 0 << toLibrary + calibrate;
    QTest::newRow("reset: No") << none << 0 << int(Reset) << no << toLibrary;
    QTest::newRow("reset to the library fails")
        << L("!velora2 body calibrate_from_targetlib*") << 0 << int(Reset) << 0
        << toLibrary + calibrate
            + L("! Error: Unable to reset body from target library | ? Reset of Standard body 1 "
                "failed!");
    QTest::newRow("reset to the sensor's values, warm-up paused")
        << warm << 2 << int(Reset) << 0 << toSensor + storedValues + L("inertial warmup yes");
    QTest::newRow("sensor reset fails: warm-up restarted anyway")
        << warm + L("!velora2 set inertial*") << 2 << int(Reset) << 0
        << toSensor + storedValues + L("inertial warmup yes") + sensorFailed;
    QTest::newRow("warm-up cannot stop: the sensor refuses")
        << warm + L("!inertial warmup no") << 2 << int(Reset) << 0
        << toSensor + L("inertial warmup no | ! Could not stop warmup of sensors")
            + QStringList(storedValues.mid(1)) + sensorFailed;
    QTest::newRow("warm-up cannot start again")
        << warm + L("!inertial warmup yes") << 2 << int(Reset) << 0
        << toSensor + storedValues + L("inertial warmup yes | ! Could not start warmup of sensors");
    QTest::newRow("warm-up unknown")
        << L("!inertial warmup") << 2 << int(Reset) << 0
        << toSensor + L("! Could not get warmup status") + QStringList(storedValues.mid(1));
    QTest::newRow("no storage: the hand-eye calibration goes")
        << noStorage << 2 << int(Reset) << 0
        << L("? Reset Standard body 3?\nHand eye calibration will be deleted!") + handEyeNone;
    QTest::newRow("no storage, hand-eye reset fails")
        << noStorage + L("!inertial sensor_handeye VX IMU 'A1234' none") << 2 << int(Reset) << 0
        << L("? Reset Standard body 3?\nHand eye calibration will be deleted!") + handEyeNone
            + L("! Unable to reset sensor hand eye calibration") + sensorFailed;
    QTest::newRow("storage and hand-eye unknown")
        << L("!inertial sensor_has_storage* | !inertial sensor_handeye VX IMU 'A1234'") << 2
        << int(Reset) << 0
        << L("! Unable to get storage info from sensor | ! Unable to get info about hand eye "
             "calibration from sensor | ? Reset Standard body 3? | ! Error: Unable to get handeye "
             "status of sensor VX IMU 'A1234'");
    QTest::newRow("nothing to reset: the gate holds") << none << 1 << int(Reset) << 0 << none;
    QTest::newRow("the filter cell switches the filter")
        << none << 0 << int(Filter) << 0 << L("body filter6d_enabled standard b01 no");
    QTest::newRow("no filter for an uncalibrated body") << none << 3 << int(Filter) << 0 << none;
}

// A click on a delete, reset or filter cell; for delete, the Delete key too.
void TestBodyTab::iconCells()
{
    QFETCH(QStringList, setUp);
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, answer);
    QFETCH(QStringList, events);

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
        QCOMPARE(f.events, events);
        if (events.contains(QString("body desc standard b0%1 \"\"").arg(row + 1))
            && !events.last().startsWith('!'))
            QCOMPARE(f.table()->item(row, Calibration)->text(), QString("not calibrated"));
        if (column == Filter && !events.isEmpty())
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
    QCOMPARE(f.events, L("? Unknown reset of Standard body 2!"));
}

void TestBodyTab::rename_data()
{
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<bool>("doubleClick");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("events");
    QTest::addColumn<QString>("shown");

    const QString allowed = "a-b_c+d=e.f,g;h:i/j";
    QTest::newRow("F2") << QStringList() << false << 3 << "Tool 4"
                        << L("body desc standard b04 \"Tool 4\"") << "Tool 4";
    QTest::newRow("double click") << QStringList() << true << 3 << allowed
                                  << QStringList { "body desc standard b04 \"" + allowed + '"' }
                                  << allowed;
    QTest::newRow("a double quote cannot be typed")
        << QStringList() << false << 3 << "a\"b\\c" << L("body desc standard b04 \"abc\"") << "abc";
    QTest::newRow("at most 100 characters")
        << QStringList() << false << 3 << QString(150, 'x')
        << QStringList { "body desc standard b04 \"" + QString(100, 'x') + '"' }
        << QString(100, 'x');
    QTest::newRow("refused rename shows the controller's")
        << L("!body desc standard b01 *") << false << 0 << "X"
        << L("body desc standard b01 \"X\" | ! Error: Unable to set description of body standard "
             "b01")
        << "Glasses";
}

void TestBodyTab::rename()
{
    QFETCH(QStringList, setUp);
    QFETCH(bool, doubleClick);
    QFETCH(int, row);
    QFETCH(QString, typed);
    QFETCH(QStringList, events);
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

    QCOMPARE(f.table()->item(row, Name)->text(), shown);
    QVERIFY(f.dialog->isVisible()); // Enter ended the edit, not the dialog
    f.tab->update_tab();
    QCOMPARE(f.events, events); // a refill sends no name
}

void TestBodyTab::numberOfBodies_data()
{
    QTest::addColumn<QStringList>("setUp");
    QTest::addColumn<QString>("typed"); // "Up": the arrow key
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("events");
    QTest::addColumn<int>("rows");

    const QStringList lastIsReference = L("tracking reference = standard b04");
    const QStringList question = L("? Decreasing the number of standard bodies will disable the "
                                   "reference!\n\nContinue?");
    QTest::newRow("typing 10 sends 10 once")
        << lastIsReference << "10" << 0 << L("standard number_of_bodies 10") << 10;
    QTest::newRow("the meant value is asked about, No")
        << lastIsReference << "2" << int(QMessageBox::No) << question << 4;
    QTest::newRow("the meant value is asked about, Yes")
        << lastIsReference << "2" << 0 << question + L("standard number_of_bodies 2") << 2;
    QTest::newRow("only the last body is looked at")
        << L("tracking reference = standard b03") << "2" << 0 << L("standard number_of_bodies 2")
        << 2;
    QTest::newRow("arrow up") << QStringList() << "Up" << 0 << L("standard number_of_bodies 5")
                              << 5;
    QTest::newRow("a refused count does not stay")
        << L("!standard number_of_bodies 10") << "10" << 0
        << L("standard number_of_bodies 10 | ! Error: Unable to set number of standard bodies to "
             "10")
        << 4;
}

void TestBodyTab::numberOfBodies()
{
    QFETCH(QStringList, setUp);
    QFETCH(QString, typed);
    QFETCH(int, answer);
    QFETCH(QStringList, events);
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
        QVERIFY(f.events.isEmpty()); // nothing before the value is finished
        QTest::keyClick(spinBox, Qt::Key_Return);
    }

    QCOMPARE(f.events, events);
    if (answer)
        QCOMPARE(f.driver->seen().first().title, QString("VELORA4"));
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

    QCOMPARE(f.events,
        QStringList { sent }
            + (refused ? L("! Error: Unable to switch bodies | ? Switching Standard body 3 and 2 "
                           "failed!")
                       : QStringList()));
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
    f.clear();

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
    QCOMPARE(f.events, QStringList());
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
    const auto watch = connect(f.controller, &sim::SimulatedController::logged, this, [&busy] {
        busy << (QGuiApplication::overrideCursor()
            && QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor);
    });
    f.controller->setLatency(BusyCursor::Delay / 5);
    f.tab->update_tab();
    f.controller->setLatency(0);
    disconnect(watch);
    QVERIFY(!busy.isEmpty() && !busy.first());
    QVERIFY(busy.contains(true));
    QVERIFY(!QGuiApplication::overrideCursor());
}

QTEST_MAIN(TestBodyTab)
#include "tst_bodytab.moc"
