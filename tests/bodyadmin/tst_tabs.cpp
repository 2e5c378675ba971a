#include "bodyadminfixture.h"
#include "fingertrackingadministration.h"
#include "mtadministration.h"

// What the four tabs do on their own: the target search and assignment,
// their devices, heads, hands and references, their limits.
class TestTabs : public QObject
{
    Q_OBJECT

    // Shows the target's category (where the tab has a combo), or the found
    // targets for "*id", and makes the target current.
    void chooseTarget(QString id)
    {
        const bool found = id.startsWith('*');
        id.remove('*');
        const QString group = id == "t03" ? "g02" : id < "t03" ? "g01" : "g03";
        if (auto *combo = f.widget<QComboBox>("comboBox_filter"))
            combo->setCurrentText(found
                    ? QString("- Found Targets -")
                    : f.controller->value("targetlib group_name " + group).remove('"'));
        if (found)
            QMetaObject::invokeMethod(f.tab, "updateTrackedAndAcceptStatus_tl");
        QTableWidget *targets = f.table("tableWidget_targetlibrary");
        for (int row = 0; row < targets->rowCount(); ++row) {
            if (targets->item(row, 0)->text() == id)
                BodyAdminFixture::click(targets, row, 0);
        }
    }
    // What emptying body 1 of that type sends.
    static QStringList freed(const QString &type)
    {
        return L(QString("body number_of_marker %1 b01 0 | body desc %1 b01 \"\"").arg(type));
    }
    BodyAdminFixture f;

private slots:
    void init() { f.init(); }
    void cleanup() { f.cleanup(); }

    void searchStart_data()
    {
        columns<QStringList, QStringList>({ "setUp", "events" });
        const QString refused = "! Error: Unable to start target library calibration";
        row("calibration type missing", L("cal available targetlib = no"),
            QStringList { refused + ". Calibration type is not available" });
        row("availability unknown", L("!cal available targetlib"), QStringList { refused });
        row("already active", L("status active = cal targetlib"),
            QStringList { refused + ". Calibration is already active." });
        row("status unknown", L("!status active"), QStringList { refused });
        row("err lets it start", L("status active = err"),
            L("velora2 cal targetlib start | ! target library calibration started"));
        row("the controller refuses", L("!velora2 cal targetlib start"),
            QStringList { "velora2 cal targetlib start", refused });
        // An abort sends no stop.
        row("aborted", L("!status step_active"),
            L("velora2 cal targetlib start | ! target library calibration started | ! Error during "
              "target library calibration. Calibration aborted"));
    }
    void searchStart()
    {
        const QStringList events = fetch<QStringList>("events");
        f.open(0, fetch<QStringList>("setUp"));
        f.answer();
        f.clickButton("pushButton_start");
        if (f.tab->isSearching())
            f.searchTick();
        QCOMPARE(f.events, events);
        const bool searching = events.last().endsWith("started");
        QCOMPARE(f.tab->isSearching(), searching);
        QCOMPARE(f.enabled("pushButton_start"), !searching);
        // A refused start keeps Stop and the locked controls until the next refresh.
        QCOMPARE(f.enabled("pushButton_stop"), events.size() == 2);
    }

    void search_data()
    {
        // locked: off while the search runs, free: on. The standard and
        // measurement-tool tabs count the tracked standard targets when the
        // search ends; the others announce the count of their last refresh,
        // which no refresh made here.
        columns<int, QStringList, QStringList, QStringList, QString>(
            { "key", "setUp", "locked", "free", "announced" });
        const QString two = "2 targets could be identified in library";
        const QString none = "No targets could be identified in library";
        const QStringList standard = L("spinBox_standard_bodies | pushButton_filter | "
                                       "pushButton_customCalibration | comboBox_filter");
        row("standard", 0, QStringList(), standard, L("tableWidget_standard"), two);
        row("standard, one", 0, L("targetlib target_bodytype t04 = 'x'"), standard,
            L("tableWidget_standard"), QString("One target could be identified in library"));
        row("Gripwand", 1, QStringList(), QStringList(),
            L("spinBox_gripwands | pushButton_filter | pushButton_calibration"), none);
        row("hands", 2, QStringList(), QStringList(),
            L("spinBox_fingertracking | pushButton_calibration"), none);
        row("measurement tools", 3, QStringList(), L("spinBox_mtref | comboBox_filter"),
            L("spinBox_mt"), two);
    }
    // Stopped by the user, started again and run to its end.
    void search()
    {
        const int key = fetch<int>("key");
        const QString announced = fetch<QString>("announced");
        const QStringList locked = fetch<QStringList>("locked");
        f.open(key, fetch<QStringList>("setUp"));
        // Stopped by the user, the tab is usable again while the result shows.
        // Answers are queued before the first click: a box nobody expected
        // then fails the test instead of hanging it.
        bool usableDuringResult = false;
        f.driver->answer([&](QWidget *modal) {
            usableDuringResult = f.enabled("pushButton_start") && !f.enabled("pushButton_stop");
            for (const QString &name : locked)
                usableDuringResult = usableDuringResult && f.enabled(name);
            f.events << "? " + static_cast<QMessageBox *>(modal)->text();
            static_cast<QDialog *>(modal)->accept();
        });
        f.answer();
        f.clickButton("pushButton_start");
        for (const QString &name : locked + L("pushButton_select | pushButton_deselect"))
            QVERIFY2(!f.enabled(name), qPrintable(name));
        for (const QString &name : fetch<QStringList>("free") + L("pushButton_stop"))
            QVERIFY2(f.enabled(name), qPrintable(name));
        f.controller->advanceClock(1824);
        f.searchTick();
        auto *progress = f.tab->findChild<QProgressBar *>();
        QCOMPARE(progress->value(), 45);
        if (key == 0)
            QCOMPARE(f.widget<QLabel>("label_targetlibrary")->text(),
                QString("found targets: %1, already calibrated: 1")
                    .arg(announced[0] == '2' ? 2 : 1));

        // GL-5, in use, is found again by the tabs that look for standard
        // targets when the next search starts.
        f.clear();
        f.clickButton("pushButton_stop");
        QVERIFY(usableDuringResult);
        f.controller->advanceClock(5000);
        f.clickButton("pushButton_start");
        QCOMPARE(f.events,
            L("velora2 cal targetlib stop | ! target library calibration cancelled")
                + QStringList { "? " + announced }
                + L("velora2 cal targetlib start | ! target library calibration started")
                + (key == 1 || key == 2 ? QStringList() : L("! GL-5 already calibrated")));
        QVERIFY(!f.controller->commands().contains("velora2 targetlib check_custom_calibration"));
        f.controller->advanceClock(5000);
        f.searchTick();
        QCOMPARE(f.driver->seen().last().title, QString("VELORA4"));
        QCOMPARE(f.events.mid(f.events.size() - 2),
            QStringList({ "! target library calibration stopped", "? " + announced }));
        QCOMPARE(progress->value(), 100);
        QVERIFY(f.enabled("pushButton_start"));
        QVERIFY(!f.enabled("pushButton_stop"));
    }

    void categories()
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
        QCOMPARE(entries, L("- Found Targets - | Glasses Target | HMD Target | Tool Target"));
        combo->setCurrentIndex(3);
        QTableWidget *targets = f.table("tableWidget_targetlibrary");
        QCOMPARE(targets->rowCount(), 1);
        QStringList row;
        for (int i = 0; i < 4; ++i)
            row << targets->horizontalHeaderItem(i)->text() + "=" + targets->item(0, i)->text();
        QCOMPARE(row, L("ID=t04 | Name=Tree target, 4 markers | Short Name=TR-4 | Used=custom"));
        combo->setCurrentIndex(1);
        QCOMPARE(targets->item(0, 3)->text(), QString("no"));
    }

    void assignment_data()
    {
        // target: empty for Deselect
        columns<int, QStringList, int, QString, int, QStringList>(
            { "key", "setUp", "bodyRow", "target", "answer", "events" });
        const QStringList none;
        const QString bends = "? %1 can bend\ntherefore a re-calibration is strongly "
                              "recommended!\n\n(To avoid any changes of the geometry\nmount the "
                              "target to the device prior re-calibration)";
        const QStringList free1 = freed("standard");
        const QStringList preset1 = L("body filter6d_preset standard b01 preset6d_default");
        const QString calibrate = "velora2 body calibrate_from_targetlib standard b04 %1";
        const QStringList overwrite = L("? Overwrite body calibration data of Room reference?");
        const QStringList mr1 = L("? This target is already calibrated as Measurement Tool "
                                  "Reference MR1.|Delete the Measurement Tool Reference MR1?");
        const QStringList std1 = L("? This target is already calibrated as standard target ID "
                                   "1.|Delete the standard target ID 1?");

        row("GL-5 moves from body 1, which bends", 0, none, 3, "t01", 0,
            free1 + QStringList { calibrate.arg("GL-5"), bends.arg("Glasses 5 markers") });
        row("a named body is asked about, Cancel", 0, none, 1, "t04", int(QMessageBox::Cancel),
            overwrite);
        row("a named body is asked about while the found targets refresh, Ok", 0,
            L("targetlib target_status_tracked t04 = yes"), 1, "*t04", 0,
            overwrite + L("velora2 body calibrate_from_targetlib standard b02 TR-4"));
        row("measurement-tool reference", 0, none, 3, "t05", 0,
            mr1 + freed("measurementtool_reference") + QStringList { calibrate.arg("TR-5") });
        row("HMD bends", 0, none, 3, "t03", 0,
            QStringList { calibrate.arg("HMD-7"), bends.arg("Head-mounted display frame") });
        row("another letter case does not warn", 0, L("targetlib group_name g02 = \"hmd Target\""),
            3, "t03", 0, QStringList { calibrate.arg("HMD-7") });
        row("the calibration fails", 0, L("!velora2 body calibrate_from_targetlib*"), 3, "t04", 0,
            L(calibrate.arg("TR-4") + " | ! Error: Unable to calibrate body from target library"));
        row("freeing the other body fails", 0,
            L("!body number_of_marker standard b01 0 | !body desc standard b01 *"), 3, "t01", 0,
            QStringList { free1.at(0), "! Unable to reset markers of target standard 1",
                free1.at(1), "! Unable to reset description of target standard standard",
                calibrate.arg("GL-5"), bends.arg("Glasses 5 markers") });
        row("the other bodies' targets unknown", 0, L("!body targetlib_name standard b01"), 3,
            "t04", 0,
            L("! Unable to get info targetlib ID of body")
                + QStringList { calibrate.arg("TR-4"),
                    "! Error: Unable to get targetlib name of body standard b01" });
        row("deselect deletes the body", 0, none, 0, "", 0,
            L("? Delete geometry of Standard body 1?") + preset1 + free1);
        row("standard body on a reference, Ok", 3, none, 1, "t01", 0,
            std1 + preset1 + free1
                + L("velora2 body calibrate_from_targetlib measurementtool_reference b02 GL-5"));
        row("Gripwand", 1, none, 1, "t06", 0,
            freed("gripwand") + L("velora2 body calibrate_from_targetlib gripwand b02 GW-3"));
    }
    void assignment()
    {
        const int key = fetch<int>("key");
        const QString target = fetch<QString>("target");
        f.open(key, fetch<QStringList>("setUp"));
        const QStringList tables = L("tableWidget_standard | tableWidget_gripwand | "
                                     "tableWidget_fingertracking | tableWidget_mtref");
        BodyAdminFixture::click(f.table(tables.at(key)), fetch<int>("bodyRow"), 0);
        if (!target.isEmpty())
            chooseTarget(target);
        f.clear();
        f.answer({ fetch<int>("answer") });
        f.clickButton(target.isEmpty() ? "pushButton_deselect" : "pushButton_select");
        QCOMPARE(f.events, fetch<QStringList>("events"));
    }

    void limits_data()
    {
        // count: the command that sets the count, its query with "max_"
        // inserted; bodies: the word of the reports; red: of the notice.
        columns<int, QString, QString, QString, QString, QString, int>(
            { "key", "spinBox", "label", "count", "bodies", "red", "unknownMax" });
        row("standard", 0, "spinBox_standard_bodies", "label_error", "standard number_of_bodies",
            "standard", "bodies", 4);
        row("Gripwands", 1, "spinBox_gripwands", "label_error", "gripwand number_of_devices",
            "gripwand", "gripwands", 20);
        row("hands", 2, "spinBox_fingertracking", "label_error_fingertracking",
            "fingertracking number_of_hands", "fingertracking hand", "Hands", 4);
        row("tools", 3, "spinBox_mt", "label_error_mt", "measurementtool number_of_tools",
            "measurementtool", "Measurement Tools", 4);
        row("references", 3, "spinBox_mtref", "label_error_mtref",
            "measurementtool number_of_references", "measurementtool_reference",
            "Measurement references", 4);
    }
    // At a maximum of 2, then with the maximum unknown; the notice shows
    // while the count is at the maximum.
    void limits()
    {
        const QString count = fetch<QString>("count");
        const QString maxQuery = QString(count).replace(" ", " max_");
        const QString bodies = fetch<QString>("bodies");
        const QString maxUnknown = "Error: Unable to get max number of " + bodies + " bodies";
        const QString red = "<b><font color=red>Max. number of " + fetch<QString>("red")
            + " is reached!</font></b>";
        f.open(fetch<int>("key"), { maxQuery + " = 2" });
        auto *spin = f.tab->findChild<QSpinBox *>(fetch<QString>("spinBox"));
        auto *label = f.tab->findChild<QLabel *>(fetch<QString>("label"));
        QCOMPARE(spin->maximum(), 2);
        QCOMPARE(label->text(), red);

        // The controller takes more than it can tell.
        f.controller->setValue(maxQuery, "20");
        f.controller->failCommand(maxQuery);
        f.tab->update_tab();
        const int value = spin->value();
        QCOMPARE(spin->maximum(), fetch<int>("unknownMax"));
        QCOMPARE(label->text(), value == spin->maximum() ? red : QString());
        QVERIFY(f.controller->reports().contains(maxUnknown));
        if (fetch<int>("key") == 0)
            return; // the standard count has a test of its own
        // The first step up is set, the second refused and reported; the
        // count stays as typed and each new body is loaded, each time with
        // the maximum asked again.
        const QString set = count + " %1";
        f.controller->failCommand(set.arg(value + 2));
        spin->setFocus();
        f.clear();
        QTest::keyClick(spin, Qt::Key_Up);
        QTest::keyClick(spin, Qt::Key_Up);
        QCOMPARE(f.events.mid(0, 5),
            QStringList({ set.arg(value + 1), "! " + maxUnknown, set.arg(value + 2),
                QString("! Error: Unable to set number of %1 bodies to %2")
                    .arg(bodies, QString::number(value + 2)),
                "! " + maxUnknown }));
        QCOMPARE(spin->value(), value + 2);
    }

    void globalFilter_data()
    {
        columns<QStringList, QStringList>({ "setUp", "events" });
        const QStringList off = L("standard filter_bodies = no | gripwand filter = no");
        row("switched back on", off, L("standard filter_bodies yes | gripwand filter yes"));
        row("already on", QStringList(), QStringList());
        row("locked", off + L("config is_changeable = no"), QStringList());
        row("from 1.12", off + L("@version 1.12"),
            L("standard filter_bodies yes | gripwand filter yes"));
        row("before 1.12", off + L("@version 1.11"), QStringList());
        row("standard unknown", L("!standard filter_bodies"),
            L("! Error: Unable to get global filter6d status of standard bodies"));
        row("standard refused", off + L("!standard filter_bodies yes"),
            L("standard filter_bodies yes | ! Error: Unable to set global filter6d status of "
              "standard bodies | gripwand filter yes"));
        row("Gripwand unknown", L("!gripwand filter"),
            L("! Error: Unable to get global filter6d status of Gripwand bodies"));
        row("Gripwand refused", off + L("!gripwand filter yes"),
            L("standard filter_bodies yes | gripwand filter yes | ! Error: Unable to set global "
              "filter6d status of Gripwand bodies"));
    }
    // Another module switched the active configuration.
    void globalFilter()
    {
        const QStringList setUp = fetch<QStringList>("setUp");
        f.open(0, setUp);
        for (const QString &version : setUp.filter("@version 1."))
            f.controller->backendVersions().backendVersion
                = { 1, version.section('.', 1).toInt(), 0 };
        f.controller->sendMessage(
            "GlobalEvent", "ConfigurationModule", 1, "ActiveConfigurationChanged");
        QCOMPARE(f.events, fetch<QStringList>("events"));
    }

    void gripwandDevices_data()
    {
        columns<int, QString, QString, QString, QString>(
            { "minor", "device", "model", "serial", "report" });
        row("short serial padded, 1.3 knows the model", 3, "wpan 0x0021 0x0003 7", "Gripwand 3",
            "00007", "");
        row("long serial cut", 24, "wpan 0x0021 0x0004 1234567", "Gripwand 3 Pro", "12345", "");
        row("no device", 24, "none", "none", "", "");
        row("before 1.3 the model is unknown", 2, "wpan 0x0021 0x0003 4711", "unknown", "04711",
            "");
        row("unknown model: the vendor named twice", 24, "wpan 0x0042 0x0009 4711", "unknown",
            "04711", "Error: Unable to get model description of vendor 0x0042 model 0x0042");
    }
    void gripwandDevices()
    {
        const int minor = fetch<int>("minor");
        const QString device = fetch<QString>("device");
        const QString report = fetch<QString>("report");
        f.controller->backendVersions().backendVersion = { 1, minor, 0 };
        f.open(1, { "gripwand device b01 = " + device });
        f.tab->update_tab();
        QTableWidget *gripwands = f.table("tableWidget_gripwand");
        QCOMPARE(QStringList({ gripwands->item(0, 0)->text(), gripwands->item(0, 3)->text(),
                     gripwands->item(0, 4)->text() }),
            QStringList({ "G1", fetch<QString>("model"), fetch<QString>("serial") }));
        QCOMPARE(f.controller->commands().contains(
                     "zemwpan device_model_desc " + device.section(' ', 1, 2)),
            minor >= 3 && device != "none");
        QCOMPARE(f.controller->reports().contains(report), !report.isEmpty());
    }

    void headsFollowTheGripwands_data()
    {
        // asked: the multi-user queries
        columns<QStringList, int, QStringList, QString, bool>(
            { "setUp", "minor", "asked", "report", "shown" });
        const QStringList all = L("gripwand multiuser_available | gripwand "
                                  "multiuser_with_head_available | gripwand multiuser | gripwand "
                                  "multiuser_with_head");
        row("multi-user with head", QStringList(), 24, all, "", true);
        row("0.12 skips the head question", QStringList(), 12,
            QStringList { all.at(0), all.at(2), all.at(3) }, "", true);
        row("head switched off", L("gripwand multiuser_with_head = no"), 24, all, "", false);
        row("multi-user off", L("gripwand multiuser = no"), 24, QStringList(all.mid(0, 3)), "",
            false);
        const char *unknown[] = { "whether multiuser gripwand is available",
            "multiuser gripwand with head available", "whether multiuser gripwand is activated",
            "whether multiuser gripwand with head is activated" };
        for (int i = 0; i < 4; ++i)
            QTest::addRow("%s unknown", qPrintable(all.at(i)))
                << QStringList { "!" + all.at(i) } << 24 << QStringList(all.mid(0, i + 1))
                << QString("Error: Unable to get info ") + unknown[i] << false;
    }
    void headsFollowTheGripwands()
    {
        const QString report = fetch<QString>("report");
        const bool shown = fetch<bool>("shown");
        f.open(1, fetch<QStringList>("setUp"));
        f.controller->backendVersions().backendVersion = { 0, fetch<int>("minor"), 0 };
        f.tab->update_tab();
        QCOMPARE(f.controller->commands().filter(QRegExp("^gripwand multiuser")),
            fetch<QStringList>("asked"));
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

    void availabilityByVersion_data()
    {
        columns<int, int, int, QString, bool, bool>(
            { "key", "major", "minor", "reply", "asked", "available" });
        row("hands 0.16: never asked", 2, 0, 16, "yes", false, false);
        row("hands 0.17: asked, yes", 2, 0, 17, "yes", true, true);
        row("hands 1.21: asked, Yes is not yes", 2, 1, 21, "Yes", true, false);
        row("hands 1.22: available without asking", 2, 1, 22, "no", false, true);
        row("tools 1.2 never asks", 3, 1, 2, "yes", false, false);
        row("tools 1.3 asks, yes", 3, 1, 3, "yes", true, true);
        row("tools 1.3 asks, no", 3, 1, 3, "no", true, false);
    }
    // Built on their own: the dialog offers these tabs from those versions only.
    void availabilityByVersion()
    {
        const bool hands = fetch<int>("key") == 2;
        const bool asked = fetch<bool>("asked");
        const bool available = fetch<bool>("available");
        const QString query = hands ? "fingertracking available" : "measurementtool available";
        BackendVersions *versions = &f.controller->backendVersions();
        versions->backendVersion = { fetch<int>("major"), fetch<int>("minor"), 0 };
        f.controller->setValue(query, fetch<QString>("reply"));
        QScopedPointer<BodyTypeAdministrationTab> tab(hands
                ? static_cast<BodyTypeAdministrationTab *>(
                    new FingertrackingAdministration(f.controller, nullptr, versions, {}, nullptr))
                : new MtAdministration(f.controller, nullptr, versions, {}, nullptr));
        QCOMPARE(f.controller->commands().contains(query), asked);
        tab->show();
        tab->update_tab();
        QCOMPARE(tab->findChild<QSpinBox *>()->isEnabled(), available);
        auto *notice = tab->findChild<QLabel *>("label_error");
        QCOMPARE(notice->isVisible(), !available);
        if (!available)
            QCOMPARE(notice->text(),
                QString("<b><font color=red>%1 is not available!</font></b>")
                    .arg(hands ? "Fingertracking" : "Measurement Tool"));
        auto *bodies = tab->findChild<QTableWidget *>(
            hands ? "tableWidget_fingertracking" : "tableWidget_mt");
        QCOMPARE(bodies->rowCount() ? bodies->item(0, 0)->text() + bodies->item(0, 2)->text()
                                    : QString(),
            QString(available ? (hands ? "H1Left hand" : "M1MR1") : ""));
        if (!hands)
            return;
        // Asked again only while not available; once available, it stays so.
        f.controller->setValue(query, "no");
        f.controller->clearLog();
        tab->update_tab();
        QCOMPARE(f.controller->commands().contains(query), asked && !available);
        QCOMPARE(tab->isTypeAvailable(), available);
    }

    void referenceRows_data()
    {
        // column: 0 the Delete key on the row, 1 a click on the Active box
        columns<QStringList, int, int, QStringList>({ "setUp", "column", "answer", "events" });
        const QString question = "? Delete Measurement Tool reference body 01?";
        const QStringList linked { question
            + "\nIf yes, the assignment to the Measurement Tool will be deleted.|Continue?" };
        const QStringList clear = freed("measurementtool_reference");
        const QStringList unlink = L("measurementtool reference_of_tool b01 none | measurementtool "
                                     "reference_of_tool b02 none");
        const QStringList linkedToM2 = L("measurementtool reference_of_tool b02 = 1");
        const QStringList deactivate = L("? After deactivating the reference,\nthe corresponding "
                                         "Measurement Tool will not be tracked.|Continue?");
        row("delete: used by M1 and M2", linkedToM2, 0, 0, linked + clear + unlink);
        row("delete: No leaves the controller alone", linkedToM2, 0, int(QMessageBox::No), linked);
        row("delete: unused", L("measurementtool reference_of_tool b01 = none"), 0, 0,
            QStringList { question + "|Continue?" } + clear);
        row("delete fails, the tools are unlinked anyway",
            linkedToM2
                + L("!body desc measurementtool_reference b01 * | !measurementtool "
                    "reference_of_tool b02 none"),
            0, 0,
            linked + clear + L("! Unable to reset description of Measurement Tool reference 1")
                + unlink + L("! Error: Unable to set ref. body | ? Delete body 1 failed"));
        row("deactivate: No keeps it", QStringList(), 1, int(QMessageBox::No), deactivate);
        row("deactivate: Yes", QStringList(), 1, 0,
            deactivate + L("body active measurementtool_reference b01 no"));
    }
    // A reference row asks the tab's own questions.
    void referenceRows()
    {
        const int column = fetch<int>("column");
        const QStringList events = fetch<QStringList>("events");
        f.open(3, fetch<QStringList>("setUp"));
        f.answer({ fetch<int>("answer") });
        QTableWidget *references = f.table("tableWidget_mtref");
        if (column == 0)
            BodyAdminFixture::go(references, 0, 0, Qt::Key_Delete);
        else
            BodyAdminFixture::click(references, 0, column);
        QCOMPARE(f.events, events);
        const QTableWidgetItem *tool = f.table("tableWidget_mt")->item(0, 2);
        if (column == 1) {
            QCOMPARE(tool->foreground().color(), QColor(Qt::red));
            QCOMPARE(references->item(0, 1)->checkState(),
                events.size() > 1 ? Qt::Unchecked : Qt::Checked);
        } else if (events.size() > 1) {
            QCOMPARE(tool->text(), QString());
        }
    }
};

QTEST_MAIN(TestTabs)
#include "tst_tabs.moc"
