#include "bodyadministrationdlg.h"
#include "bodytabfactory.h"
#include "bodytypeadministrationtab.h"

#include <modaldriver.h>
#include <simulatedcontroller.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

// The target search runs alike in all four tabs; these are the differences
// each tab keeps on purpose.
class TestTabSearch : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void controlsDuringSearch_data();
    void controlsDuringSearch();
    void countAtTheEnd_data();
    void countAtTheEnd();

private:
    BodyTypeAdministrationTab *open(int key);
    sim::SimulatedController *controller = nullptr;
    BodyAdministrationDlg *dialog = nullptr;
};

BodyTypeAdministrationTab *TestTabSearch::open(int key)
{
    controller = new sim::SimulatedController;
    controller->setManualClock(true);
    dialog = new BodyAdministrationDlg(controller, nullptr, &controller->backendVersions());
    dialog->show();
    BodyTypeAdministrationTab *tab = dialog->tab(key);
    tab->update_tab();
    return tab;
}

void TestTabSearch::cleanup()
{
    ModalDriver::closeAllModals();
    delete dialog;
    dialog = nullptr;
    delete controller;
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(),
        qPrintable(ModalDriver::topLevelWidgetNames().join(", ")));
}

void TestTabSearch::controlsDuringSearch_data()
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

void TestTabSearch::controlsDuringSearch()
{
    QFETCH(int, key);
    QFETCH(QStringList, locked);
    QFETCH(QStringList, free);

    BodyTypeAdministrationTab *tab = open(key);
    const auto enabled
        = [tab](const QString &name) { return tab->findChild<QWidget *>(name)->isEnabled(); };
    tab->findChild<QPushButton *>("pushButton_start")->click();
    QVERIFY(tab->isSearching());
    for (const QString &name : locked)
        QVERIFY2(!enabled(name), qPrintable(name));
    for (const QString &name : free)
        QVERIFY2(enabled(name), qPrintable(name));
    QVERIFY(!enabled("pushButton_select"));
    QVERIFY(!enabled("pushButton_deselect"));

    // Stopped by the user, the tab is usable again while the result shows.
    bool usableDuringResult = false;
    ModalDriver driver;
    driver.answer([&](QWidget *modal) {
        usableDuringResult = enabled("pushButton_start") && !enabled("pushButton_stop");
        for (const QString &name : locked)
            usableDuringResult = usableDuringResult && enabled(name);
        static_cast<QDialog *>(modal)->accept();
    });
    tab->findChild<QPushButton *>("pushButton_stop")->click();
    QCOMPARE(driver.pending(), 0);
    QVERIFY(usableDuringResult);
    for (const QString &name : locked + free)
        QVERIFY2(enabled(name), qPrintable(name));
    tab->about_to_exit();
}

void TestTabSearch::countAtTheEnd_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("announced");

    // The standard and measurement-tool tabs count the tracked standard
    // targets when the search ends; the others announce the last count
    // their refresh saw, which no refresh made here.
    QTest::newRow("standard") << int(BodyTabFactory::Standard)
                              << "2 targets could be identified in library";
    QTest::newRow("measurement tools")
        << int(BodyTabFactory::MeasurementTool) << "2 targets could be identified in library";
    QTest::newRow("Gripwand") << int(BodyTabFactory::Gripwand)
                              << "No targets could be identified in library";
    QTest::newRow("hands") << int(BodyTabFactory::Fingertracking)
                           << "No targets could be identified in library";
}

void TestTabSearch::countAtTheEnd()
{
    QFETCH(int, key);
    QFETCH(QString, announced);

    BodyTypeAdministrationTab *tab = open(key);
    tab->findChild<QPushButton *>("pushButton_start")->click();
    controller->advanceClock(10000);
    ModalDriver driver;
    driver.pressButton(QMessageBox::Ok);
    QMetaObject::invokeMethod(tab, "doMeasurement_tl");

    QCOMPARE(driver.pending(), 0);
    QCOMPARE(driver.seen().first().text, announced);
    QVERIFY(controller->reports().contains("target library calibration stopped"));
    tab->about_to_exit();
}

QTEST_MAIN(TestTabSearch)
#include "tst_tabsearch.moc"
