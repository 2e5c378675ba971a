#include "gripwandadministration.h"
#include "tabfixture.h"

#include <QLabel>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

class TestGripwandAdministration : public QObject
{
    Q_OBJECT

private slots:
    void init() { f.init(); }
    void cleanup() { TAB_FIXTURE_CLEANUP(f); }

    void deviceColumns_data();
    void deviceColumns();
    void maximumWhenControllerCannotTell();
    void headTableFollowsCount_data();
    void headTableFollowsCount();
    void multiUserTestByVersion_data();
    void multiUserTestByVersion();
    void filterColumn();

private:
    QTableWidget *gripwands() const { return f.widget<QTableWidget>("tableWidget_gripwand"); }
    TabFixture<GripwandAdministration> f;
};

void TestGripwandAdministration::deviceColumns_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("describable");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("serial");
    QTest::addColumn<QString>("report");

    QTest::newRow("short serial padded") << 24 << "wpan 0x0021 0x0003 7" << true << "Gripwand 3"
                                         << "00007"
                                         << "";
    QTest::newRow("long serial cut")
        << 24 << "wpan 0x0021 0x0004 1234567" << true << "Gripwand 3 Pro"
        << "12345"
        << "";
    QTest::newRow("no device") << 24 << "none" << true << "none"
                               << ""
                               << "";
    QTest::newRow("before 1.3 the model is unknown")
        << 2 << "wpan 0x0021 0x0003 4711" << true << "unknown"
        << "04711"
        << "";
    QTest::newRow("unknown model: the vendor named twice")
        << 24 << "wpan 0x0042 0x0009 4711" << false << "unknown"
        << "04711"
        << "Error: Unable to get model description of vendor 0x0042 model 0x0042";
}

void TestGripwandAdministration::deviceColumns()
{
    QFETCH(int, minor);
    QFETCH(QString, device);
    QFETCH(bool, describable);
    QFETCH(QString, model);
    QFETCH(QString, serial);
    QFETCH(QString, report);

    f.controller->backendVersions().backendVersion = { 1, minor, 0 };
    f.controller->setValue("gripwand device b01", device);
    f.build();
    f.tab->update_tab();

    QCOMPARE(gripwands()->item(0, 0)->text(), QString("G1"));
    QCOMPARE(gripwands()->item(0, 3)->text(), model);
    QCOMPARE(gripwands()->item(0, 4)->text(), serial);
    const bool asked = f.controller->commands().contains(
        "zemwpan device_model_desc " + device.section(' ', 1, 2));
    QCOMPARE(asked, minor >= 3 && device != "none");
    if (!describable)
        QVERIFY(f.controller->reports().contains(report));
}

void TestGripwandAdministration::maximumWhenControllerCannotTell()
{
    f.controller->failCommand("gripwand max_number_of_devices");
    f.build();
    QCOMPARE(f.widget<QSpinBox>("spinBox_gripwands")->maximum(), 20);
}

void TestGripwandAdministration::headTableFollowsCount_data()
{
    QTest::addColumn<QString>("multiUser");
    QTest::addColumn<QString>("withHead");
    QTest::addColumn<bool>("shown");

    QTest::newRow("multi-user with head") << "yes"
                                          << "yes" << true;
    QTest::newRow("head switched off") << "yes"
                                       << "no" << false;
    QTest::newRow("multi-user off") << "no"
                                    << "yes" << false;
}

void TestGripwandAdministration::headTableFollowsCount()
{
    QFETCH(QString, multiUser);
    QFETCH(QString, withHead);
    QFETCH(bool, shown);

    f.controller->setValue("gripwand multiuser", multiUser);
    f.controller->setValue("gripwand multiuser_with_head", withHead);
    f.build();
    auto *heads = f.widget<QTableWidget>("tableWidget_head");
    QCOMPARE(heads->isVisible(), shown);
    QCOMPARE(f.widget<QLabel>("label_head")->isVisible(), shown);

    f.widget<QSpinBox>("spinBox_gripwands")->setValue(3);
    QCOMPARE(f.changes().first(), QString("gripwand number_of_devices 3"));
    // The heads follow once the Gripwands have changed.
    const QStringList commands = f.controller->commands();
    if (shown)
        QVERIFY(commands.indexOf("gripwand number_of_devices 3")
            < commands.indexOf("body desc multiusergripwand_head b03"));
    QCOMPARE(gripwands()->rowCount(), 3);
    if (shown) {
        QCOMPARE(heads->rowCount(), 3);
        QCOMPARE(heads->horizontalHeaderItem(1)->text(), QString("Calibration"));
        QVERIFY(heads->isColumnHidden(3));
    }
}

void TestGripwandAdministration::multiUserTestByVersion_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QStringList>("queries");

    QTest::newRow("0.12 skips the head question")
        << 12 << QStringList { "gripwand multiuser_available", "gripwand multiuser" };
    QTest::newRow("0.13 asks it") << 13
                                  << QStringList { "gripwand multiuser_available",
                                         "gripwand multiuser_with_head_available",
                                         "gripwand multiuser" };
}

void TestGripwandAdministration::multiUserTestByVersion()
{
    QFETCH(int, minor);
    QFETCH(QStringList, queries);

    f.controller->setValue("gripwand multiuser", "on");
    f.build();
    f.controller->backendVersions().backendVersion = { 0, minor, 0 };
    f.controller->clearLog();
    // The controller changed meanwhile: what follows is the operator's next step.
    QCoreApplication::processEvents();
    QVERIFY(f.tab->isMultiUserActive()); // anything but "no" is on
    QCOMPARE(f.controller->commands(), queries);
}

void TestGripwandAdministration::filterColumn()
{
    f.controller->setValue("filter6d available gripwand", "no");
    f.build();
    QVERIFY(gripwands()->isColumnHidden(6));
    QCOMPARE(f.tab->tabTitle(), QString("&Gripwand"));
}

QTEST_MAIN(TestGripwandAdministration)
#include "tst_gripwandadministration.moc"
