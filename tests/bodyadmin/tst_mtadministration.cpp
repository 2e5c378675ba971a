#include "mtadministration.h"
#include "tabfixture.h"

#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

class TestMtAdministration : public QObject
{
    Q_OBJECT

private slots:
    void init() { f.init(); }
    void cleanup() { TAB_FIXTURE_CLEANUP(f); }

    void availability_data();
    void availability();
    void deletingAReference_data();
    void deletingAReference();
    void deactivatingAReference_data();
    void deactivatingAReference();
    void selectWithStandardConflict_data();
    void selectWithStandardConflict();

private:
    QTableWidget *tools() const { return f.widget<QTableWidget>("tableWidget_mt"); }
    QTableWidget *references() const { return f.widget<QTableWidget>("tableWidget_mtref"); }
    TabFixture<MtAdministration> f;
};

void TestMtAdministration::availability_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("reply");
    QTest::addColumn<bool>("available");

    QTest::newRow("1.2 never asks") << 2 << "yes" << false;
    QTest::newRow("1.3 asks, yes") << 3 << "yes" << true;
    QTest::newRow("1.3 asks, no") << 3 << "no" << false;
}

void TestMtAdministration::availability()
{
    QFETCH(int, minor);
    QFETCH(QString, reply);
    QFETCH(bool, available);

    f.controller->backendVersions().backendVersion = { 1, minor, 0 };
    f.controller->setValue("measurementtool available", reply);
    f.controller->clearLog();
    f.build();
    QCOMPARE(f.tab->isTypeAvailable(), available);
    QCOMPARE(f.tab->tabTitle(), QString("&Measurement Tool"));
    if (available) {
        QCOMPARE(tools()->item(0, 0)->text(), QString("M1"));
        QCOMPARE(tools()->item(0, 2)->text(), QString("MR1"));
        QCOMPARE(references()->item(1, 0)->text(), QString("MR2"));
    }
    f.tab->update_tab();
    QCOMPARE(
        f.controller->commands().contains("measurementtool available"), minor >= 3 && !available);
}

void TestMtAdministration::deletingAReference_data()
{
    QTest::addColumn<bool>("linked");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("question");
    QTest::addColumn<QStringList>("sent");

    const QString question = "Delete Measurement Tool reference body 01?";
    const QStringList clear { "body number_of_marker measurementtool_reference b01 0",
        "body desc measurementtool_reference b01 \"\"" };
    QTest::newRow("used by M1 and M4")
        << true << int(QMessageBox::Yes)
        << question + "\nIf yes, the assignment to the Measurement Tool will be deleted."
        << clear
            + QStringList { "measurementtool reference_of_tool b01 none",
                  "measurementtool reference_of_tool b04 none" };
    QTest::newRow("No leaves the controller alone")
        << true << int(QMessageBox::No)
        << question + "\nIf yes, the assignment to the Measurement Tool will be deleted."
        << QStringList();
    QTest::newRow("unused") << false << int(QMessageBox::Yes) << question << clear;
}

void TestMtAdministration::deletingAReference()
{
    QFETCH(bool, linked);
    QFETCH(int, answer);
    QFETCH(QString, question);
    QFETCH(QStringList, sent);

    f.controller->setParameter("measurementtool number_of_tools 4");
    f.controller->setValue("measurementtool reference_of_tool b04", "1");
    if (!linked) {
        f.controller->setValue("measurementtool reference_of_tool b01", "none");
        f.controller->setValue("measurementtool reference_of_tool b04", "none");
    }
    f.build();
    ModalDriver driver;
    driver.pressButton(answer);
    QCOMPARE(f.tab->deleteBody("measurementtool_reference", 0), answer == QMessageBox::Yes);

    QCOMPARE(driver.pending(), 0);
    QCOMPARE(driver.seen().first().text, question);
    QCOMPARE(driver.seen().first().informativeText, QString("Continue?"));
    QCOMPARE(f.changes(), sent);
    if (answer == QMessageBox::Yes)
        QCOMPARE(tools()->item(3, 2)->text(), QString());
}

void TestMtAdministration::deactivatingAReference_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("sent");

    QTest::newRow("No keeps it") << int(QMessageBox::No) << QStringList();
    QTest::newRow("Yes deactivates")
        << int(QMessageBox::Yes) << QStringList { "body active measurementtool_reference b01 no" };
}

void TestMtAdministration::deactivatingAReference()
{
    QFETCH(int, answer);
    QFETCH(QStringList, sent);

    f.build();
    ModalDriver driver;
    driver.pressButton(answer);
    references()->item(0, 1)->setCheckState(Qt::Unchecked); // what the click did
    f.tab->setBodyActive("measurementtool_reference", 0, false);
    const QColor linkColour = tools()->item(0, 2)->foreground().color();

    QCOMPARE(driver.seen().first().text,
        QString("After deactivating the reference,\nthe corresponding Measurement Tool will "
                "not be tracked."));
    QCOMPARE(f.changes(), sent);
    QCOMPARE(linkColour, QColor(Qt::red));
    QCOMPARE(references()->item(0, 1)->checkState(),
        answer == QMessageBox::Yes ? Qt::Unchecked : Qt::Checked);
}

void TestMtAdministration::selectWithStandardConflict_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("sent");

    QTest::newRow("Cancel keeps both") << int(QMessageBox::Cancel) << QStringList();
    QTest::newRow("Ok clears standard body 1")
        << int(QMessageBox::Ok)
        << QStringList { "body filter6d_preset standard b01 preset6d_default",
               "body number_of_marker standard b01 0", "body desc standard b01 \"\"",
               "velora2 body calibrate_from_targetlib measurementtool_reference b02 GL-5" };
}

void TestMtAdministration::selectWithStandardConflict()
{
    QFETCH(int, answer);
    QFETCH(QStringList, sent);

    f.build();
    auto *combo = f.tab->findChild<QComboBox *>("comboBox_filter");
    combo->setCurrentIndex(combo->findText("Glasses Target"));
    auto *targets = f.widget<QTableWidget>("tableWidget_targetlibrary");
    references()->setFocus();
    references()->setCurrentCell(1, 0); // MR2, unnamed: no overwrite question
    targets->setCurrentCell(0, 0); // t01, GL-5, used by standard body 1
    f.controller->clearLog();
    ModalDriver driver;
    driver.pressButton(answer);
    f.widget<QPushButton>("pushButton_select")->click();

    QCOMPARE(driver.pending(), 0);
    QCOMPARE(driver.seen().first().text,
        QString("This target is already calibrated as standard target ID 1."));
    QCOMPARE(driver.seen().first().informativeText, QString("Delete the standard target ID 1?"));
    QCOMPARE(f.changes(), sent);
}

QTEST_MAIN(TestMtAdministration)
#include "tst_mtadministration.moc"
