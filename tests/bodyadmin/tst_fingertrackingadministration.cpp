#include "fingertrackingadministration.h"
#include "tabfixture.h"

#include <QLabel>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

class TestFingertrackingAdministration : public QObject
{
    Q_OBJECT

private slots:
    void init() { f.init(); }
    void cleanup() { TAB_FIXTURE_CLEANUP(f); }

    void availabilityByVersion_data();
    void availabilityByVersion();
    void availabilityIsSticky();
    void maximumWhenControllerCannotTell();

private:
    TabFixture<FingertrackingAdministration> f;
};

void TestFingertrackingAdministration::availabilityByVersion_data()
{
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("reply");
    QTest::addColumn<bool>("asked");
    QTest::addColumn<bool>("available");

    QTest::newRow("0.16: never asked") << 0 << 16 << "yes" << false << false;
    QTest::newRow("0.17: asked, yes") << 0 << 17 << "yes" << true << true;
    QTest::newRow("1.21: asked, no") << 1 << 21 << "no" << true << false;
    QTest::newRow("1.21: Yes is not yes") << 1 << 21 << "Yes" << true << false;
    QTest::newRow("1.22: available without asking") << 1 << 22 << "no" << false << true;
}

void TestFingertrackingAdministration::availabilityByVersion()
{
    QFETCH(int, major);
    QFETCH(int, minor);
    QFETCH(QString, reply);
    QFETCH(bool, asked);
    QFETCH(bool, available);

    f.controller->backendVersions().backendVersion = { major, minor, 0 };
    f.controller->setValue("fingertracking available", reply);
    f.library = new Targetlibrary(f.controller, &f.controller->backendVersions(), nullptr);
    f.controller->clearLog();
    f.tab = new FingertrackingAdministration(
        f.controller, nullptr, &f.controller->backendVersions(), QString(), f.library);
    f.tab->show();
    QCOMPARE(f.controller->commands().contains("fingertracking available"), asked);
    f.tab->update_tab();
    QCOMPARE(f.tab->isTypeAvailable(), available);
    auto *notice = f.widget<QLabel>("label_error");
    QCOMPARE(notice->isVisible(), !available);
    QCOMPARE(
        notice->text(), QString("<b><font color=red>Fingertracking is not available!</font></b>"));
    QCOMPARE(f.widget<QSpinBox>("spinBox_fingertracking")->isEnabled(), available);
    QCOMPARE(f.widget<QTableWidget>("tableWidget_fingertracking")->isEnabled(), available);
    if (available)
        QCOMPARE(f.widget<QTableWidget>("tableWidget_fingertracking")->item(0, 0)->text(),
            QString("H1"));

    f.controller->clearLog();
    f.tab->update_tab(); // a refresh asks again only while not available
    QCOMPARE(f.controller->commands().contains("fingertracking available"), asked && !available);
}

void TestFingertrackingAdministration::availabilityIsSticky()
{
    f.controller->backendVersions().backendVersion = { 1, 20, 0 };
    f.build();
    QVERIFY(f.tab->isTypeAvailable());
    f.controller->setValue("fingertracking available", "no");
    f.tab->update_tab();
    QVERIFY(f.tab->isTypeAvailable());
    QVERIFY(!f.controller->commands().contains("fingertracking available"));
    QVERIFY(!f.tab->canAdjustSelected());
}

void TestFingertrackingAdministration::maximumWhenControllerCannotTell()
{
    f.controller->failCommand("fingertracking max_number_of_hands");
    f.build();
    auto *spinBox = f.widget<QSpinBox>("spinBox_fingertracking");
    QCOMPARE(spinBox->maximum(), 4);
    spinBox->setValue(4);
    QCOMPARE(f.changes(), QStringList { "fingertracking number_of_hands 4" });
    QCOMPARE(f.widget<QLabel>("label_error_fingertracking")->text(),
        QString("<b><font color=red>Max. number of Hands is reached!</font></b>"));
    QVERIFY(f.controller->reports().contains(
        "Error: Unable to get max number of fingertracking hand bodies"));
}

QTEST_MAIN(TestFingertrackingAdministration)
#include "tst_fingertrackingadministration.moc"
