#include "standardadministration.h"
#include "tabfixture.h"
#include "target.h"

#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

// The standard bodies tab against the default scenario: b01 glasses from the
// library, b02 the reference, b03 with an inertial sensor, b04 empty.
class TestStandardAdministration : public QObject
{
    Q_OBJECT

private slots:
    void init() { f.init(); }
    void cleanup() { TAB_FIXTURE_CLEANUP(f); }

    void formTexts();
    void columns_data();
    void columns();
    void maximumWhenControllerCannotTell();
    void moveButtons();
    void moveUp();
    void selectWithReferenceConflict_data();
    void selectWithReferenceConflict();
    void bendableTargetWarning_data();
    void bendableTargetWarning();
    void deactivatingTheReference_data();
    void deactivatingTheReference();
    void searchStartDisablesControls();
    void globalFilterSwitch_data();
    void globalFilterSwitch();
    void customCalibrationHandOver();

private:
    template<typename T> T *widget(const char *name) const { return f.widget<T>(name); }
    void selectBodyRow(int row);
    void selectTarget(const QString &id);

    TabFixture<StandardAdministration> f;
};

void TestStandardAdministration::selectBodyRow(int row)
{
    widget<QTableWidget>("tableWidget_standard")->setCurrentCell(row, 0);
}

void TestStandardAdministration::selectTarget(const QString &id)
{
    auto *combo = widget<QComboBox>("comboBox_filter");
    combo->setCurrentIndex(combo->findText(f.library->groupOf(id)));
    QTableWidget *targets = widget<QTableWidget>("tableWidget_targetlibrary");
    for (int row = 0; row < targets->rowCount(); ++row) {
        if (targets->item(row, 0)->text() == id)
            targets->setCurrentCell(row, 0);
    }
    f.controller->clearLog();
}

void TestStandardAdministration::formTexts()
{
    f.build();
    QCOMPARE(f.tab->tabTitle(), QString("&Standard"));
    QCOMPARE(f.tab->whatsThis(), QString("Administration of standard bodies"));
    QCOMPARE(widget<QPushButton>("pushButton_select")->toolTip(),
        QString("Assing target from target library to selected body"));
    QCOMPARE(widget<QPushButton>("pushButton_start")->toolTip(),
        QString("Serach for targets in the tracking volume"));
    QCOMPARE(widget<QPushButton>("pushButton_select")->text(), QString("<< S&elect"));
    QCOMPARE(widget<QPushButton>("pushButton_deselect")->text(), QString(">> &Deselect"));
    QCOMPARE(widget<QLabel>("label_filter")->text(), QString("c&ategory"));
    auto *combo = widget<QComboBox>("comboBox_filter");
    QCOMPARE(combo->itemText(0), QString("- Found Targets -"));
    QStringList categories;
    for (int i = 1; i < combo->count(); ++i)
        categories << combo->itemText(i);
    QCOMPARE(categories, QStringList({ "Glasses Target", "HMD Target", "Tool Target" }));
    QTableWidget *targets = widget<QTableWidget>("tableWidget_targetlibrary");
    QCOMPARE(targets->horizontalHeaderItem(0)->text(), QString("ID"));
    QCOMPARE(targets->horizontalHeaderItem(3)->text(), QString("Used"));
}

void TestStandardAdministration::columns_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("sensor");
    QTest::addColumn<bool>("filterShown");
    QTest::addColumn<bool>("sensorShown");

    QTest::newRow("filter and sensor") << "yes"
                                       << "VX IMU 'A1234'" << true << true;
    QTest::newRow("no filter") << "no"
                               << "VX IMU 'A1234'" << false << true;
    QTest::newRow("no sensor") << "yes"
                               << "none" << true << false;
}

void TestStandardAdministration::columns()
{
    QFETCH(QString, filter);
    QFETCH(QString, sensor);
    QFETCH(bool, filterShown);
    QFETCH(bool, sensorShown);

    f.controller->setValue("filter6d available standard", filter);
    f.controller->setValue("body inertial_sensor standard b03", sensor);
    f.build();
    QTableWidget *table = widget<QTableWidget>("tableWidget_standard");
    QCOMPARE(table->columnCount(), 10);
    QCOMPARE(table->horizontalHeaderItem(7)->text(), QString("Filter"));
    QCOMPARE(!table->isColumnHidden(7), filterShown);
    QCOMPARE(!table->isColumnHidden(4), sensorShown);
    QCOMPARE(!table->isColumnHidden(5), sensorShown);
    if (sensorShown) {
        QCOMPARE(table->item(2, 4)->text(), QString("VX-9 inertial measurement unit"));
        QCOMPARE(table->item(2, 5)->text(), QString("A1234"));
        QCOMPARE(table->item(0, 4)->text(), QString());
    }
}

void TestStandardAdministration::maximumWhenControllerCannotTell()
{
    f.controller->failCommand("standard max_number_of_bodies");
    f.build();
    auto *spinBox = widget<QSpinBox>("spinBox_standard_bodies");
    QCOMPARE(spinBox->maximum(), 4);
    QCOMPARE(spinBox->value(), 4);
    QCOMPARE(widget<QLabel>("label_error")->text(),
        QString("<b><font color=red>Max. number of bodies is reached!</font></b>"));
    f.tab->update_tab();
    QVERIFY(f.controller->reports().contains("Error: Unable to get max number of standard bodies"));
}

void TestStandardAdministration::moveButtons()
{
    f.build();
    auto *up = widget<QPushButton>("pushButton_up");
    auto *down = widget<QPushButton>("pushButton_down");
    widget<QTableWidget>("tableWidget_standard")->clearSelection();
    QVERIFY(!up->isEnabled());
    QVERIFY(!down->isEnabled());
    selectBodyRow(0);
    QVERIFY(!up->isEnabled());
    QVERIFY(down->isEnabled());
    selectBodyRow(3);
    QVERIFY(up->isEnabled());
    QVERIFY(!down->isEnabled());
}

void TestStandardAdministration::moveUp()
{
    f.build();
    selectBodyRow(1);
    f.controller->clearLog();
    QSignalSpy selections(
        f.tab, QOverload<const QString &, int>::of(&BodyTypeAdministrationTab::selection_changed));
    widget<QPushButton>("pushButton_up")->click();

    QCOMPARE(f.changes(), QStringList { "velora2 body switch standard b02 standard b01" });
    QTableWidget *table = widget<QTableWidget>("tableWidget_standard");
    QCOMPARE(table->item(0, 3)->text(), QString("Room reference"));
    QCOMPARE(table->selectedItems().first()->row(), 0);
    QCOMPARE(selections.last().at(0).toString(), QString("standard"));
    QCOMPARE(selections.last().at(1).toInt(), 0);
    QVERIFY(!widget<QPushButton>("pushButton_up")->isEnabled());
}

void TestStandardAdministration::selectWithReferenceConflict_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("sent");

    QTest::newRow("Cancel keeps both") << int(QMessageBox::Cancel) << QStringList();
    QTest::newRow("Ok frees MR1 first")
        << int(QMessageBox::Ok)
        << QStringList { "body number_of_marker measurementtool_reference b01 0",
               "body desc measurementtool_reference b01 \"\"",
               "velora2 body calibrate_from_targetlib standard b04 TR-5" };
}

void TestStandardAdministration::selectWithReferenceConflict()
{
    QFETCH(int, answer);
    QFETCH(QStringList, sent);

    f.build();
    selectBodyRow(3); // unnamed: no overwrite question
    selectTarget("t05");
    ModalDriver driver;
    driver.pressButton(answer);
    widget<QPushButton>("pushButton_select")->click();

    QCOMPARE(driver.pending(), 0);
    QCOMPARE(driver.seen().size(), 1);
    QCOMPARE(driver.seen().first().text,
        QString("This target is already calibrated as Measurement Tool Reference MR1."));
    QCOMPARE(driver.seen().first().informativeText,
        QString("Delete the Measurement Tool Reference MR1?"));
    QCOMPARE(f.changes(), sent);
}

void TestStandardAdministration::bendableTargetWarning_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<bool>("warned");

    QTest::newRow("Glasses Target") << "\"Glasses Target\"" << true;
    QTest::newRow("HMD Target") << "HMD Target" << true;
    QTest::newRow("other letter case") << "glasses target" << false;
    QTest::newRow("another group") << "Tool Target" << false;
}

void TestStandardAdministration::bendableTargetWarning()
{
    QFETCH(QString, group);
    QFETCH(bool, warned);

    f.controller->setValue("targetlib group_name g01", group);
    f.build();
    selectBodyRow(3);
    selectTarget("t02"); // GL-6, a member of the first group
    ModalDriver driver;
    if (warned)
        driver.pressButton(QMessageBox::Ok);
    widget<QPushButton>("pushButton_select")->click();

    QCOMPARE(driver.pending(), 0);
    QCOMPARE(driver.seen().size(), warned ? 1 : 0);
    if (warned)
        QCOMPARE(driver.seen().first().text,
            QString("Glasses 6 markers, wide can bend\ntherefore a re-calibration is strongly "
                    "recommended!\n\n(To avoid any changes of the geometry\nmount the target "
                    "to the device prior re-calibration)"));
    // The assignment stands either way.
    QCOMPARE(
        f.changes(), QStringList { "velora2 body calibrate_from_targetlib standard b04 GL-6" });
    QCOMPARE(widget<QTableWidget>("tableWidget_standard")->item(3, 6)->text(),
        QString("Target Library"));
}

void TestStandardAdministration::deactivatingTheReference_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<Qt::CheckState>("active");

    QTest::newRow("No keeps it active") << int(QMessageBox::No) << QStringList() << Qt::Checked;
    QTest::newRow("Yes deactivates")
        << int(QMessageBox::Yes) << QStringList { "body active standard b02 no" } << Qt::Unchecked;
}

void TestStandardAdministration::deactivatingTheReference()
{
    QFETCH(int, answer);
    QFETCH(QStringList, sent);
    QFETCH(Qt::CheckState, active);

    f.build();
    QTableWidget *table = widget<QTableWidget>("tableWidget_standard");
    ModalDriver driver;
    driver.pressButton(answer);
    table->item(1, 1)->setCheckState(Qt::Unchecked);
    f.tab->setBodyActive("standard", 1, false);

    QCOMPARE(driver.pending(), 0);
    QCOMPARE(driver.seen().first().text,
        QString("After deactivating the reference target,\nall targets will not be tracked."));
    QCOMPARE(driver.seen().first().informativeText, QString("Continue?"));
    QCOMPARE(f.changes(), sent);
    QCOMPARE(table->item(1, 1)->checkState(), active);
    QCOMPARE(table->item(1, 2)->checkState(), Qt::Checked);
}

void TestStandardAdministration::searchStartDisablesControls()
{
    f.build();
    auto *combo = widget<QComboBox>("comboBox_filter");
    combo->setCurrentIndex(2);
    selectBodyRow(0);
    widget<QPushButton>("pushButton_start")->click();

    QCOMPARE(combo->currentText(), QString("- Found Targets -"));
    QVERIFY(f.changes().contains("velora2 cal targetlib start"));
    QVERIFY(!widget<QPushButton>("pushButton_start")->isEnabled());
    QVERIFY(widget<QPushButton>("pushButton_stop")->isEnabled());
    for (const char *name : { "spinBox_standard_bodies", "pushButton_filter",
             "pushButton_customCalibration", "comboBox_filter", "pushButton_select" })
        QVERIFY2(!widget<QWidget>(name)->isEnabled(), name);
    // Kept: at the start the Deselect rule looks at the empty "Model" cell.
    QVERIFY(!widget<QPushButton>("pushButton_deselect")->isEnabled());

    ModalDriver driver;
    driver.pressButton(QMessageBox::Ok);
    widget<QPushButton>("pushButton_stop")->click();
    QCOMPARE(driver.pending(), 0);
    for (const char *name : { "spinBox_standard_bodies", "pushButton_customCalibration",
             "comboBox_filter", "pushButton_start" })
        QVERIFY2(widget<QWidget>(name)->isEnabled(), name);
    f.tab->about_to_exit();
}

void TestStandardAdministration::globalFilterSwitch_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("filterBodies");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<QStringList>("sent");

    QTest::newRow("switched back on")
        << "1.12"
        << "no" << false << QStringList { "standard filter_bodies yes" };
    QTest::newRow("already on") << "1.24"
                                << "yes" << false << QStringList();
    QTest::newRow("locked") << "1.24"
                            << "no" << true << QStringList();
    QTest::newRow("before 1.12") << "1.11"
                                 << "no" << false << QStringList();
}

void TestStandardAdministration::globalFilterSwitch()
{
    QFETCH(QString, version);
    QFETCH(QString, filterBodies);
    QFETCH(bool, locked);
    QFETCH(QStringList, sent);

    f.build();
    f.controller->setValue("standard filter_bodies", filterBodies);
    f.controller->backendVersions().backendVersion = { 1, version.section('.', 1).toInt(), 0 };
    f.tab->setLocked(locked);
    f.tab->ON_activeConfigurationChanged();
    QCOMPARE(f.changes(), sent);
    QCOMPARE(
        f.controller->commands().contains("standard filter_bodies"), version != "1.11" && !locked);
}

void TestStandardAdministration::customCalibrationHandOver()
{
    f.build();
    widget<QTableWidget>("tableWidget_standard")->setCurrentCell(-1, -1);
    widget<QPushButton>("pushButton_customCalibration")->click();
    QVERIFY(f.controller->messages().isEmpty());
    selectBodyRow(2);
    widget<QPushButton>("pushButton_customCalibration")->click();
    QCOMPARE(f.controller->messages(), QStringList { "OpenBodyCalDialog standard b03" });
}

QTEST_MAIN(TestStandardAdministration)
#include "tst_standardadministration.moc"
