#include "bodyadminfixture.h"
#include "bodytablefiller.h"
#include "busycursor.h"

#include <QLineEdit>

// The tab framework as an operator meets it, on the standard tab: cells
// filled by role, every way to change a cell, the spin box, the lock.
class TestBodyTab : public QObject
{
    Q_OBJECT

    using Tab = BodyTypeAdministrationTab;
    static constexpr int Id = 0, Active = 1, Reference = 2, Name = 3, Calibration = 6, Filter = 7,
                         Delete = 8, Reset = 9;
    // A column's data of that role, rows joined by '|'; check states and
    // usability as numbers.
    QString cells(int column, int role = Qt::DisplayRole, int rows = 4) const
    {
        QStringList texts;
        for (int row = 0; row < rows; ++row)
            texts << f.table()->item(row, column)->data(role).toString();
        return texts.join('|');
    }
    BodyAdminFixture f;

private slots:
    void init() { f.init(); }
    void cleanup() { f.cleanup(); }

    // Rows: b01 from the library, b02 the custom reference, b03 with a
    // sensor, b04 empty.
    void cellsByRole()
    {
        f.open();
        QCOMPARE(cells(Id), QString("1|2|3|4"));
        QCOMPARE(cells(Name), QString("Glasses|Room reference|Handheld|"));
        QCOMPARE(cells(Calibration),
            QString("Target Library, re-calibrated|Custom|Full|not calibrated"));
        QCOMPARE(cells(Filter), QString("Default|0.50/12ms/Static|Medium prediction|Default"));
        QCOMPARE(cells(Active, Qt::CheckStateRole), QString("2|2|2|"));
        QCOMPARE(cells(Reference, Qt::CheckStateRole), QString("0|2|0|"));
        QCOMPARE(cells(Delete, BodyTableFiller::UsableRole), QString("1|1|1|0"));
        QCOMPARE(cells(Reset, BodyTableFiller::UsableRole), QString("1|0|1|0"));
        const QString noReset = "Nothing to reset: the body has no target-library geometry and no "
                                "sensor";
        QCOMPARE(cells(Calibration, Qt::ToolTipRole),
            "Calibrated|Calibrated|Calibrated|Not calibrated: assign a library target or run a "
            "custom calibration");
        QCOMPARE(cells(Delete, Qt::ToolTipRole),
            QString("Click to delete the geometry of this body|").repeated(2)
                + "Click to delete the geometry and the sensor assignment of this body|Nothing to "
                  "delete: the body has no geometry and no inertial sensor");
        QCOMPARE(cells(Reset, Qt::ToolTipRole),
            "Click to reset the body to its target-library geometry|" + noReset
                + "|Click to reset the body's inertial sensor|" + noReset);
        QVERIFY(!(f.table()->item(3, Active)->flags() & Qt::ItemIsUserCheckable));
    }

    void sensorResetNeedsNoWarmup()
    {
        f.open(0,
            { "inertial warmup = yes", "body inertial_sensor standard b04 = VX IMU 'A5678'",
                "inertial sensor_handeye VX IMU 'A1234' = none" });
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

    void changeACell_data()
    {
        // after: the column's check states, rows 1-3
        columns<QStringList, int, int, int, QStringList, QString>(
            { "setUp", "row", "column", "answer", "events", "after" });
        const auto add = [](const char *name, const QStringList &setUp, int row, int column,
                             const QStringList &events, const QString &after = {}, int answer = 0) {
            ::row(name, setUp, row, column, answer, events, after);
        };
        const QStringList none;
        const int no = QMessageBox::No;
        const QStringList offReference = L("? After deactivating the reference target,\nall "
                                           "targets will not be tracked.|Continue?");
        add("deactivate", none, 0, Active, L("body active standard b01 no"), "0|2|2");
        add("activation refused, index named", L("!body active standard b01 no"), 0, Active,
            L("body active standard b01 no | ! Error: Unable to set activeness of body standard "
              "b00"),
            "0|2|2");
        add("the reference stays active on No", none, 1, Active, offReference, "2|2|2", no);
        add("the reference deactivated on Yes", none, 1, Active,
            offReference + L("body active standard b02 no"), "2|0|2");
        add("set the reference", none, 0, Reference, L("tracking reference standard b01"), "2|0|0");
        add("reference refused, index named", L("!tracking reference standard b01"), 0, Reference,
            L("tracking reference standard b01 | ! Error: Unable to set body standard b00 as "
              "reference body"),
            "2|0|0");
        add("clear the reference, with the leading blank", none, 1, Reference,
            { " tracking reference none" }, "0|0|0");
        add("clearing refused", L("!tracking reference none"), 1, Reference,
            { " tracking reference none", "! Error: Unable to de-activate the reference body" },
            "0|0|0");
        add("no reference while inactive", L("body active standard b01 = no"), 0, Reference,
            L("? A de-activated body cannot be set as reference.\nPlease activate this body "
              "before."),
            "0|2|0");

        const QString preset = "body filter6d_preset standard b0%1 preset6d_default";
        const QString markers = "body number_of_marker standard b0%1 0";
        const QString desc = "body desc standard b0%1 \"\"";
        const QStringList delete1 = L("? Delete geometry of Standard body 1?");
        const QStringList delete2 = L("? Delete geometry of Standard body 2?\nIf yes, the "
                                      "assignment as reference to other bodies will be deleted.");
        const QStringList delete3 = L("? Delete assignment of sensor VX IMU 'A1234' and \ndelete "
                                      "geometry of Standard body 3?");
        const QStringList toLibrary = L("? Reset Standard body 1\nto Target-Library geometry?");
        const QStringList toSensor = L("? Reset Standard body 3\nto sensor stored values?");
        const QStringList warm = L("@inertial warmup = yes");
        const QStringList noStorage = L("@inertial sensor_has_storage VX IMU 'A1234' = no");
        const QStringList calibrate = L("velora2 body calibrate_from_targetlib standard b01 GL-5");
        const QStringList storedValues = L("inertial warmup no | velora2 set inertial "
                                           "sensor_default VX IMU 'A1234'");
        const QStringList handEye = L("? Reset Standard body 3?\nHand eye calibration will be "
                                      "deleted! | inertial sensor_handeye VX IMU 'A1234' none");
        const QStringList sensorFailed = L("! Error: Unable to reset body to sensor stored values "
                                           "| ? Reset of Standard body 3 failed!");
        const auto deleted = [&](int body) {
            return QStringList { preset.arg(body), markers.arg(body), desc.arg(body) };
        };
        const auto failed = [](int body, const QString &report) {
            return QStringList { "! " + report.arg(body),
                "? Delete Standard body " + QString::number(body) + " failed" };
        };
        add("delete: No changes nothing", none, 0, Delete, delete1, {}, no);
        add("nothing to delete: the gate holds", none, 3, Delete, none);
        add("delete: markers fail, the preset stays reset", { "!" + markers.arg(1) }, 0, Delete,
            delete1 + deleted(1).mid(0, 2)
                + failed(1, "Unable to reset markers of Standard body %1"));
        add("delete: description fails", { "!" + desc.arg(1) }, 0, Delete,
            delete1 + deleted(1) + failed(1, "Unable to reset description of Standard body %1"));
        add("delete: preset fails first", { "!" + preset.arg(3) }, 2, Delete,
            delete3 + QStringList { preset.arg(3) }
                + failed(3, "Unable to reset filter6d of Standard body %1"));
        add("delete: sensor fails", L("!body inertial_sensor standard b03 none"), 2, Delete,
            delete3 + QStringList { preset.arg(3), "body inertial_sensor standard b03 none" }
                + failed(3, "Unable to reset sensor of Standard body %1"));
        add("delete: preset availability unknown, step skipped",
            L("!body filter6d_preset_available standard b01 preset6d_default"), 0, Delete,
            delete1 + L("! Error: Unable to get info preset available") + deleted(1).mid(1));
        add("delete: reference unreadable, deletion goes on", L("!tracking reference"), 1, Delete,
            delete2 + L("! Unable to information of reference body") + deleted(2)
                + L(QString("! Error: Unable to info body reference | ").repeated(5)));
        add("delete: an uncalibrated sensor body has no markers to reset",
            L("body inertial_sensor standard b04 = VX IMU 'A5678'"), 3, Delete,
            L("? Delete assignment of sensor VX IMU 'A5678' and \ndelete geometry of Standard "
              "body 4?")
                + QStringList { preset.arg(4), "body inertial_sensor standard b04 none" });
        add("delete: reference kept by the controller", L("!tracking reference none"), 1, Delete,
            delete2 + L("tracking reference none | ! Unable to reset reference body") + deleted(2));
        add("reset to the library", none, 0, Reset, toLibrary + calibrate);
        add("reset to the library fails", L("!velora2 body calibrate_from_targetlib*"), 0, Reset,
            toLibrary + calibrate
                + L("! Error: Unable to reset body from target library | ? Reset of Standard body "
                    "1 failed!"));
        add("sensor reset fails: warm-up restarted anyway", warm + L("!velora2 set inertial*"), 2,
            Reset, toSensor + storedValues + L("inertial warmup yes") + sensorFailed);
        add("warm-up cannot stop: the sensor refuses", warm + L("!inertial warmup no"), 2, Reset,
            toSensor + L("inertial warmup no | ! Could not stop warmup of sensors")
                + storedValues.mid(1) + sensorFailed);
        add("warm-up cannot start again", warm + L("!inertial warmup yes"), 2, Reset,
            toSensor + storedValues
                + L("inertial warmup yes | ! Could not start warmup of sensors"));
        add("warm-up unknown", L("!inertial warmup"), 2, Reset,
            toSensor + L("! Could not get warmup status") + storedValues.mid(1));
        add("no storage: the hand-eye calibration goes", noStorage, 2, Reset, handEye);
        add("no storage, hand-eye reset fails",
            noStorage + L("!inertial sensor_handeye VX IMU 'A1234' none"), 2, Reset,
            handEye + L("! Unable to reset sensor hand eye calibration") + sensorFailed);
        add("storage and hand-eye unknown",
            L("!inertial sensor_has_storage* | !inertial sensor_handeye VX IMU 'A1234'"), 2, Reset,
            L("! Unable to get storage info from sensor | ! Unable to get info about hand eye "
              "calibration from sensor | ? Reset Standard body 3? | ! Error: Unable to get "
              "handeye status of sensor VX IMU 'A1234'"));
        add("nothing to reset: the gate holds", none, 1, Reset, none);
        add("the filter cell switches the filter", none, 0, Filter,
            L("body filter6d_enabled standard b01 no"));
        add("no filter for an uncalibrated body", none, 3, Filter, none);
    }
    // A click on the cell (on its check box where it has one); then the
    // keyboard's way to the same change: Space on a check cell, the Delete
    // key on the row.
    void changeACell()
    {
        const int row = fetch<int>("row");
        const int column = fetch<int>("column");
        const QStringList events = fetch<QStringList>("events");
        for (bool key : { false, true }) {
            if (key && column != Active && column != Reference && column != Delete)
                break;
            f.open(0, fetch<QStringList>("setUp"));
            f.answer({ fetch<int>("answer") });
            if (key)
                BodyAdminFixture::go(f.table(), row, column == Delete ? Id : column,
                    column == Delete ? Qt::Key_Delete : Qt::Key_Space);
            else
                BodyAdminFixture::click(f.table(), row, column);
            QCOMPARE(f.events, events);
            if (column == Active || column == Reference)
                QCOMPARE(cells(column, Qt::CheckStateRole, 3), fetch<QString>("after"));
            if (events.contains(QString("body desc standard b0%1 \"\"").arg(row + 1))
                && !events.last().startsWith('!'))
                QCOMPARE(f.table()->item(row, Calibration)->text(), QString("not calibrated"));
            if (column == Filter && !events.isEmpty())
                QCOMPARE(f.table()->item(row, Filter)->text(), QString("not active"));
            f.cleanup();
            f.init();
        }
    }

    void rename_data()
    {
        // how: "F2", "Enter" or "double click"
        columns<QStringList, QString, QString, QString, QStringList>(
            { "setUp", "how", "typed", "shown", "events" });
        // Neither a double quote nor a backslash can be typed, and at most
        // 100 characters: the allowed ones and 81 x.
        const QString allowed = "a-b_c+d=e.f,g;h:i/j";
        const QString kept = allowed + QString(81, 'x');
        row("F2", QStringList(), QString("F2"), "Tool 4", "Tool 4",
            L("body desc standard b04 \"Tool 4\""));
        row("Enter edits the name as in a spreadsheet", QStringList(), QString("Enter"), "T", "T",
            L("body desc standard b04 \"T\""));
        row("double click, what can be typed", QStringList(), QString("double click"),
            allowed + "\"\\" + QString(100, 'x'), kept,
            QStringList { "body desc standard b04 \"" + kept + '"' });
        row("a refused rename is reported", L("!body desc standard b04 *"), QString("F2"), "X", "X",
            L("body desc standard b04 \"X\" | ! Error: Unable to set description of body "
              "standard b04"));
    }
    void rename()
    {
        f.open(0, fetch<QStringList>("setUp"));
        const QString how = fetch<QString>("how");
        if (how == "double click")
            BodyAdminFixture::click(f.table(), 3, Name, true);
        else
            BodyAdminFixture::go(f.table(), 3, 0, how == "F2" ? Qt::Key_F2 : Qt::Key_Return);
        auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(editor);
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, fetch<QString>("typed"));
        QTest::keyClick(editor, Qt::Key_Return);
        QApplication::processEvents();

        QCOMPARE(f.table()->item(3, Name)->text(), fetch<QString>("shown"));
        QVERIFY(f.dialog->isVisible()); // Enter ended the edit, not the dialog
        QTest::keyClick(f.table(), Qt::Key_Tab); // and Tab leaves the table
        QVERIFY(QApplication::focusWidget() != f.table());
        f.tab->update_tab();
        QCOMPARE(f.events, fetch<QStringList>("events")); // a refill sends no name
    }

    void numberOfBodies_data()
    {
        // typed: "Up" for the arrow key
        columns<QStringList, QString, int, QStringList, int>(
            { "setUp", "typed", "answer", "events", "rows" });
        const QStringList lastIsReference = L("tracking reference = standard b04");
        const QStringList question = L("? Decreasing the number of standard bodies will disable "
                                       "the reference!\n\nContinue?");
        row("typing 10 sends 10 once", lastIsReference, "10", 0, L("standard number_of_bodies 10"),
            10);
        row("the meant value is asked about, No", lastIsReference, "2", int(QMessageBox::No),
            question, 4);
        row("the meant value is asked about, Yes", lastIsReference, "2", 0,
            question + L("standard number_of_bodies 2"), 2);
        row("only the last body is looked at", L("tracking reference = standard b03"), "2", 0,
            L("standard number_of_bodies 2"), 2);
        row("arrow up", QStringList(), "Up", 0, L("standard number_of_bodies 5"), 5);
        row("typed past the maximum: the maximum", QStringList(), "25", 0,
            L("standard number_of_bodies 20"), 20);
        row("pasted past the maximum: the maximum", QStringList(), "paste 99", 0,
            L("standard number_of_bodies 20"), 20);
        row("a refused count stays, reported", L("!standard number_of_bodies 5"), "5", 0,
            L("standard number_of_bodies 5 | ! Error: Unable to set number of standard bodies to 5 "
              "| ! Error: Unable to get description of body standard b05  | ! Error: Unable to get "
              "targetlib name of body standard b05 | ! Error: Unable to get activeness of body "
              "standard b05 | ! Error: Unable to get calibration state of body standard b05 | ! "
              "Error: Unable to get recalibrated state of body standard b05 | ! Error: Unable to "
              "get inertial sensor of body standard b05"),
            5);
    }
    void numberOfBodies()
    {
        const QString typed = fetch<QString>("typed");
        const int rows = fetch<int>("rows");
        f.open(0, fetch<QStringList>("setUp"));
        f.answer({ fetch<int>("answer") });
        auto *spinBox = f.widget<QSpinBox>("spinBox_standard_bodies");
        spinBox->setFocus();
        if (typed == "Up") {
            QTest::keyClick(spinBox, Qt::Key_Up);
        } else if (typed.startsWith("paste ")) {
            QApplication::clipboard()->setText(typed.mid(6));
            spinBox->selectAll();
            QTest::keyClick(spinBox, Qt::Key_V, Qt::ControlModifier);
            QTest::keyClick(spinBox, Qt::Key_Return);
        } else {
            spinBox->selectAll();
            QTest::keyClicks(spinBox, typed);
            QVERIFY(f.events.isEmpty()); // nothing before the value is finished
            QTest::keyClick(spinBox, Qt::Key_Return);
        }

        QCOMPARE(f.events, fetch<QStringList>("events"));
        if (fetch<int>("answer"))
            QCOMPARE(f.driver->seen().first().title, QString("VELORA4"));
        QCOMPARE(f.table()->rowCount(), rows);
        QCOMPARE(spinBox->value(), rows);
        QVERIFY(f.dialog->isVisible()); // Enter committed the count only
        if (rows > 4)
            QVERIFY(f.controller->commands().contains(
                QString("body desc standard b%1").arg(rows, 2, 10, QChar('0'))));
    }

    void moveBodies_data()
    {
        columns<int, QString, QStringList, int>({ "row", "button", "events", "selected" });
        row("up", 1, "pushButton_up", L("velora2 body switch standard b02 standard b01"), 0);
        row("down", 2, "pushButton_down", L("velora2 body switch standard b03 standard b04"), 3);
        row("refused", 2, "pushButton_up",
            L("velora2 body switch standard b03 standard b02 | ! Error: Unable to switch bodies | "
              "? Switching Standard body 3 and 2 failed!"),
            1);
    }
    void moveBodies()
    {
        const int row = fetch<int>("row");
        const bool refused = fetch<QStringList>("events").size() > 1;
        const int selected = fetch<int>("selected");
        f.open(0, refused ? QStringList { "!velora2 body switch*" } : QStringList());
        f.answer();
        BodyAdminFixture::click(f.table(), row, 0);
        const QString moved = f.table()->item(row, Name)->text();
        QSignalSpy selections(f.tab, QOverload<const QString &, int>::of(&Tab::selection_changed));
        f.clickButton(fetch<QString>("button"));

        QCOMPARE(f.events, fetch<QStringList>("events"));
        QCOMPARE(f.table()->item(refused ? row : selected, Name)->text(), moved);
        QCOMPARE(f.table()->selectedItems().first()->row(), selected);
        QCOMPARE(selections.last().at(1).toInt(), selected);
        QCOMPARE(f.enabled("pushButton_up"), selected > 0);
        QCOMPARE(f.enabled("pushButton_down"), selected < 3);
    }

    void lockClosesEveryPath()
    {
        f.open();
        f.answer();
        BodyAdminFixture::click(f.table(), 1, 0);
        QVERIFY(f.enabled("pushButton_down"));
        f.controller->setValue("config is_changeable", "no");
        f.controller->sendMessage(
            "GlobalEvent", "ConfigurationModule", 1, "ActiveConfigurationChanged");
        f.tab->update_tab();
        f.clear();

        for (const QString &name : L("pushButton_up | pushButton_down | spinBox_standard_bodies | "
                                     "tableWidget_standard | pushButton_start | pushButton_filter"))
            QVERIFY2(!f.enabled(name), qPrintable(name));
        BodyAdminFixture::go(f.table(), 0, Active);
        for (Qt::Key key : { Qt::Key_Space, Qt::Key_F2, Qt::Key_Delete })
            QTest::keyClick(f.table(), key);
        // A path that reaches the tab anyway changes nothing on the controller
        // and leaves the screen as it was; a click still selects.
        QSignalSpy selections(f.tab, QOverload<const QString &, int>::of(&Tab::selection_changed));
        emit f.table()->cellClicked(2, Delete);
        f.widget<QSpinBox>("spinBox_standard_bodies")->setValue(2);
        QCOMPARE(f.events, QStringList());
        QCOMPARE(cells(Active, Qt::CheckStateRole, 3), QString("2|2|2"));
        QCOMPARE(f.table()->rowCount(), 4);
        QCOMPARE(selections.last().at(1).toInt(), 2);

        f.controller->setValue("config is_changeable", "yes");
        f.controller->sendMessage(
            "GlobalEvent", "ConfigurationModule", 1, "ActiveConfigurationChanged");
        // The message only unlocks; the controls follow at the next refresh.
        QVERIFY(!f.enabled("tableWidget_standard"));
        f.tab->update_tab();
        QVERIFY(f.enabled("tableWidget_standard"));
        QVERIFY(f.enabled("pushButton_up"));
    }

    void filterRuleFollowsTheCurrentBody_data()
    {
        // calibratedRow: the next row is not calibrated
        columns<int, QString, int>({ "key", "table", "calibratedRow" });
        row("standard", 0, "tableWidget_standard", 2);
        row("Gripwand", 1, "tableWidget_gripwand", 0);
    }
    void filterRuleFollowsTheCurrentBody()
    {
        const int calibratedRow = fetch<int>("calibratedRow");
        f.open(fetch<int>("key"));
        QTableWidget *bodies = f.table(fetch<QString>("table"));
        BodyAdminFixture::go(bodies, calibratedRow, 0);
        QWidget *filter = f.widget("pushButton_filter");
        QVERIFY(filter->isEnabled());
        QTest::keyClick(bodies, Qt::Key_Down);
        QVERIFY(!filter->isEnabled());
        bodies->setCurrentCell(calibratedRow, 0); // by code
        QVERIFY(filter->isEnabled());
    }

    void busyCursorOnASlowReload()
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
};

QTEST_MAIN(TestBodyTab)
#include "tst_bodytab.moc"
