#include "bodyadminfixture.h"
#include "bodytabfactory.h"

class TestBodyAdministrationDlg : public QObject
{
    Q_OBJECT

    QPushButton *button(const char *name) const { return f.widget<QPushButton>(name); }
    QTabWidget *tabs() const { return f.widget<QTabWidget>("tabWidget"); }
    BodyAdminFixture f;

private slots:
    void init() { f.init(); }
    void cleanup() { f.cleanup(); }

    void form()
    {
        f.build();
        QCOMPARE(f.dialog->windowTitle(), QString("Body Administration"));
        for (const char *name : { "pushButton_filter", "pushButton_calibration",
                 "pushButton_hybridCalibration", "pushButton_body_adjustment" }) {
            QVERIFY2(button(name)->isHidden(), name);
            QVERIFY2(!button(name)->autoDefault(), name);
        }
        QVERIFY(button("pushButton_exit")->autoDefault());
        QCOMPARE(button("pushButton_calibration")->shortcut(), QKeySequence("Alt+C"));
        // F8 moves to the next tab, round.
        for (int next : { 1, 2, 3, 0 }) {
            QTest::keyClick(f.dialog, Qt::Key_F8);
            QCOMPARE(tabs()->currentIndex(), next);
        }
    }

    void tabSets_data()
    {
        columns<QString, int, int, int, int, QStringList>(
            { "system", "systemMinor", "systemPatch", "major", "minor", "titles" });
        const QString s = "&Standard", g = "&Gripwand", i = "F&ingertracking",
                      m = "&Measurement Tool";
        row("0.16", QString("VELORA TX8"), 1, 0, 0, 16, QStringList { s, g });
        row("0.17", QString("VELORA TX8"), 1, 0, 0, 17, QStringList { s, g, i });
        row("1.3", QString("VELORA TX8"), 1, 0, 1, 3, QStringList { s, g, i, m });
        row("ORBILUX 2.9.3", QString("ORBILUX compact"), 9, 3, 1, 24, QStringList { s, g });
        row("ORBILUX 2.9.4", QString("ORBILUX compact"), 9, 4, 1, 3, QStringList { s, g, m });
        row("ORBILUX 2.10.0, 1.2", QString("ORBILUX"), 10, 0, 1, 2, QStringList { s, g });
    }
    void tabSets()
    {
        BackendVersions &versions = f.controller->backendVersions();
        versions.systemType = fetch<QString>("system");
        versions.systemVersion = { 2, fetch<int>("systemMinor"), fetch<int>("systemPatch") };
        versions.backendVersion = { fetch<int>("major"), fetch<int>("minor"), 0 };
        f.build();
        QStringList shown;
        for (int i = 0; i < tabs()->count(); ++i)
            shown << tabs()->tabText(i);
        QCOMPARE(shown, fetch<QStringList>("titles"));

        // The third tab of an ORBILUX is the measurement tool's, with its button.
        if (shown.size() == 3 && shown.last() == "&Measurement Tool") {
            f.dialog->show();
            tabs()->setCurrentIndex(2);
            QVERIFY(button("pushButton_calibration")->isVisible());
            QCOMPARE(f.dialog->currentTab(), f.dialog->tab(BodyTabFactory::MeasurementTool));
        }
    }

    void lock_data()
    {
        // changes: "PATH=VALUE" sets, a bare query fails
        columns<int, int, QString, bool>({ "minor", "patch", "changes", "locked" });
        row("1.9.-1 passes the gate", 9, -1, "config is_changeable=no", true);
        row("1.9.-2 fails it", 9, -2, "config is_changeable=no", false);
        row("1.24, No", 24, 0, "config is_changeable=No", false);
        row("query fails", 24, 0, "config is_changeable", false);
    }
    void lock()
    {
        const bool locked = fetch<bool>("locked");
        f.controller->backendVersions().backendVersion
            = { 1, fetch<int>("minor"), fetch<int>("patch") };
        testkit::apply(*f.controller, fetch<QString>("changes"));
        f.build();

        f.driver->reject(); // the operator closes it
        QCOMPARE(f.dialog->update_and_exec(), int(QDialog::Accepted));

        QCOMPARE(
            f.dialog->windowIcon().pixmap(16).toImage() == QIcon(":/lock.png").pixmap(16).toImage(),
            locked);
        // The first body is selected: Up stays off, Down follows the lock.
        for (const QString &name :
            L("spinBox_standard_bodies | pushButton_down | tableWidget_standard"))
            QVERIFY2(f.enabled(name) != locked, qPrintable(name));
        QVERIFY(!f.enabled("pushButton_up"));
    }

    void handOverTexts_data()
    {
        // button: pushButton_ left off, none where the hybrid calibration is
        // not offered; report: the first one after the click on the row
        columns<QStringList, QString, int, QString, QString>(
            { "setUp", "button", "index", "message", "report" });
        const QStringList none;
        row("adjustment of an uncalibrated body", none, "body_adjustment", 3,
            "OpenBodyAdjustmentDialog standard|4|uncalibrated", QString());
        row("hybrid: body 3 carries a sensor", none, "hybridCalibration", 2,
            "OpenHybridBodyCalibration standard|3|Full", QString());
        row("hybrid, inertial tracking unknown", L("!inertial available"), "", 2, "",
            "Error: Unable to get info inertial tracking available");
        row("hybrid, sensor unknown", L("!inertial sensor_present*"), "", 2, "",
            "Error: Unable to get info inertial sensor is present");
        row("nothing selected", none, "calibration", -1, "", QString());
    }
    // The calibration state is data: with the German translation installed the
    // table speaks German, the other modules still get the controller's words.
    void handOverTexts()
    {
        const QString button = fetch<QString>("button"), message = fetch<QString>("message");
        const int index = fetch<int>("index");
        QTranslator german;
        QVERIFY(german.load(TRACKING_QM_FILE));
        QCoreApplication::installTranslator(&german);
        f.open(0, fetch<QStringList>("setUp"));
        QCOMPARE(f.table()->item(3, 6)->text(), QString("nicht kalibriert"));
        QCOMPARE(f.table()->item(2, 6)->text(), QString::fromUtf8("Vollst\xc3\xa4ndig"));
        if (index >= 0)
            BodyAdminFixture::click(f.table(), index, 0);
        QCOMPARE(f.enabled("pushButton_hybridCalibration"), button == "hybridCalibration");
        QCOMPARE(f.controller->reports().value(0), fetch<QString>("report"));
        f.clear();
        if (!button.isEmpty()) {
            f.dialog->onAdminTabWidget_selectionChanged("standard", index);
            QMetaObject::invokeMethod(f.dialog, qPrintable("on_pushButton_" + button + "_clicked"));
        }
        QCoreApplication::removeTranslator(&german);

        QCOMPARE(f.controller->messages(), L(message));
        QCOMPARE(f.dialog->isVisible(), message.isEmpty());
    }

    // The custom calibration is offered once its module has announced itself.
    void reopenRoundTrip()
    {
        f.build();
        QList<bool> calibration;
        f.driver->answer([&](QWidget *) {
            calibration << f.enabled("pushButton_calibration");
            f.controller->sendMessage(
                "GlobalEvent", "BodyCalModule", 1, "bodycalibration available");
            f.dialog->onAdminTabWidget_selectionChanged("standard", 0);
            calibration << f.enabled("pushButton_calibration");
            f.dialog->on_pushButton_calibration_clicked(); // hides: exec() returns
            f.controller->sendMessage("BodyAdministrationModule", "BodyCalModule", 1, "reopen");
        });
        f.driver->reject(); // the reopened dialog
        f.dialog->update_and_exec();
        QTRY_COMPARE(f.driver->seen().size(), 2);
        QTRY_VERIFY(!f.dialog->isVisible());
        QCOMPARE(calibration, QList<bool>({ false, true }));
        QCOMPARE(f.controller->messages().at(1), QString("OpenBodyCalDialog standard b01"));
    }

    // The Parts' own flows, command by command, on three standard bodies:
    // nothing read from memory, nothing read back, nothing refreshed that
    // the flow does not refresh.
    void transcripts_data()
    {
        columns<QString, QStringList>({ "flow", "transcript" });
        // Loading one body: its fields, then the reference, asked each time.
        const auto load = [](int first, int last) {
            QStringList reads;
            for (int n = first; n <= last; ++n) {
                for (const char *field : { "desc", "targetlib_name", "active", "calibrated",
                         "recalibrated", "inertial_sensor", "filter6d_enabled" })
                    reads << QString("body %1 standard b0%2").arg(field).arg(n);
                reads << "tracking reference";
            }
            return reads;
        };
        const QStringList tableFill = L("inertial available | inertial warmup");
        const QStringList refresh = L("body number_of_bodies standard | standard "
                                      "max_number_of_bodies")
            + load(1, 3) + tableFill;
        row("open, Exit", QString("open"),
            L("config is_changeable | gripwand multiuser_available | status active | velora2 "
              "targetlib check_custom_calibration")
                + refresh + L("inertial available | status active"));
        row("locked before opening, Escape, close and Exit while a calibration runs, then Exit",
            QString("locked"),
            L("config is_changeable | gripwand multiuser_available | status active") + refresh
                + L("inertial available | status active | status active | status active | status "
                    "active"));
        row("count 3 -> 5", QString("count"),
            L("standard number_of_bodies 5 | standard max_number_of_bodies") + load(4, 5)
                + tableFill);
        row("rename", QString("rename"), QStringList { "body desc standard b03 \"Tool\"" });
        row("refused activation", QString("refused"), L("body active standard b01 no"));
        row("click beside the box", QString("beside"), L("body active standard b02 yes"));
        row("lock during a search", QString("search"),
            L("cal available targetlib | status active | velora2 cal targetlib start | config "
              "is_changeable"));
    }
    void transcripts()
    {
        const QString flow = fetch<QString>("flow");
        QVERIFY(f.controller->loadScenario(TRACKING_TEST_DATA "/threebodies.scn"));
        if (flow == "open" || flow == "locked") {
            f.build();
            const bool locked = flow == "locked";
            f.controller->setValue("config is_changeable", locked ? "no" : "yes");
            f.controller->setValue("status active", locked ? "cal targetlib" : "none");
            f.controller->expectTranscript(fetch<QStringList>("transcript"));
            bool stillOpen = false;
            f.driver->answer([&](QWidget *dialog) {
                if (locked) { // every way out is refused while the calibration runs
                    QTest::keyClick(dialog, Qt::Key_Escape);
                    dialog->close();
                }
                f.clickButton("pushButton_exit");
                stillOpen = dialog->isVisible();
                f.controller->setValue("status active", "none");
                QApplication::processEvents(); // the operator's next click comes later
                if (stillOpen)
                    f.clickButton("pushButton_exit");
            });
            QCOMPARE(f.dialog->update_and_exec(), int(QDialog::Accepted));
            QCOMPARE_TRANSCRIPT(*f.controller);
            QCOMPARE(stillOpen, locked);
            QCOMPARE(f.controller->reports().count(
                         "Unable to close dialog during calibration is running"),
                locked ? 3 : 0);
            QCOMPARE(f.dialog->windowIcon().isNull(), !locked);
            return;
        }
        f.open();
        f.controller->expectTranscript(fetch<QStringList>("transcript"));
        if (flow == "count") {
            auto *spinBox = f.widget<QSpinBox>("spinBox_standard_bodies");
            spinBox->setFocus();
            spinBox->selectAll();
            QTest::keyClicks(spinBox, "5");
            QTest::keyClick(spinBox, Qt::Key_Return);
        } else if (flow == "rename") {
            BodyAdminFixture::go(f.table(), 2, 0, Qt::Key_F2);
            QTest::keyClicks(QApplication::focusWidget(), "Tool");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QApplication::processEvents(); // the editor commits queued
        } else if (flow == "refused") {
            f.controller->failCommand("body active standard b01 no");
            BodyAdminFixture::click(f.table(), 0, 1);
            // The operator's choice stays on screen; the report tells the rest.
            QCOMPARE(f.table()->item(0, 1)->checkState(), Qt::Unchecked);
        } else if (flow == "beside") {
            const QRect cell = f.table()->visualItemRect(f.table()->item(1, 1));
            QTest::mouseClick(f.table()->viewport(), Qt::LeftButton, {},
                QPoint(cell.right() - 2, cell.center().y()));
            QCOMPARE(f.table()->item(1, 1)->checkState(), Qt::Checked);
        } else {
            f.clickButton("pushButton_start");
            f.controller->setValue("config is_changeable", "no");
            f.controller->sendMessage(
                "GlobalEvent", "ConfigurationModule", 1, "ActiveConfigurationChanged");
            QVERIFY(f.enabled("pushButton_stop"));
        }
        QCOMPARE_TRANSCRIPT(*f.controller);
    }
};

QTEST_MAIN(TestBodyAdministrationDlg)
#include "tst_bodyadministrationdlg.moc"
