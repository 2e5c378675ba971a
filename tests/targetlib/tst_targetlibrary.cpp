#include "target.h"
#include "targetlibrary.h"

#include <simulatedcontroller.h>

#include <QtTest>

class TestTargetlibrary : public QObject
{
    Q_OBJECT

private slots:
    void loadsInOrder();
    void targetFields_data();
    void targetFields();
    void failures_data();
    void failures();
    void groups();
    void idOrderAndLookups();
};

namespace
{

// A two-target library with one group, as a controller answers it.
void smallLibrary(sim::SimulatedController &controller)
{
    controller.setValue("targetlib number_of_targets", "2");
    controller.setValue("targetlib target_name t01", "'GL-5' \"Glasses \"large\"\"");
    controller.setValue("targetlib target_status_calibrated t01", "standard b01");
    controller.setValue("targetlib target_bodytype t01", "'standard'");
    controller.setValue("targetlib target_name t02", "GW-1 Gripwand one");
    controller.setValue("targetlib target_status_calibrated t02", "none");
    controller.setValue("targetlib target_bodytype t02", "gripwand");
    controller.setValue("targetlib number_of_groups", "1");
    controller.setValue("targetlib group_name g01", "\"Glasses Target\"");
    controller.setValue("targetlib number_of_group_members g01", "1");
    controller.setValue("targetlib group_member g01 m01", "t01");
}

} // namespace

void TestTargetlibrary::loadsInOrder()
{
    sim::SimulatedController controller;
    smallLibrary(controller);
    Targetlibrary library(&controller, &controller.backendVersions(), nullptr);

    const QStringList expected { "targetlib number_of_targets", "targetlib target_name t01",
        "targetlib target_status_calibrated t01", "targetlib target_bodytype t01",
        "targetlib target_name t02", "targetlib target_status_calibrated t02",
        "targetlib target_bodytype t02", "targetlib number_of_groups", "targetlib group_name g01",
        "targetlib number_of_group_members g01", "targetlib group_member g01 m01" };
    QCOMPARE(controller.commands(), expected);
    QCOMPARE(controller.reports(), QStringList());
}

void TestTargetlibrary::targetFields_data()
{
    QTest::addColumn<QString>("nameReply");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");

    // clang-format off
    QTest::newRow("quoted parts") << "'GL-5' \"Glasses large\"" << "GL-5" << "Glasses large";
    QTest::newRow("no space: no description") << "'GL-5'" << "GL-5" << "";
    QTest::newRow("split at the first space") << "a b c" << "a" << "b c";
    QTest::newRow("inner quotes removed") << "x \"a \"b\"\"" << "x" << "a b";
    // clang-format on
}

void TestTargetlibrary::targetFields()
{
    QFETCH(QString, nameReply);

    sim::SimulatedController controller;
    smallLibrary(controller);
    controller.setValue("targetlib target_name t01", nameReply);
    Targetlibrary library(&controller, &controller.backendVersions(), nullptr);

    const Target *target = library.target("t01");
    QVERIFY(target);
    QCOMPARE(target->id, QString("t01"));
    QTEST(target->name, "name");
    QTEST(target->description, "description");
    QCOMPARE(target->bodyType, QString("standard"));
    QCOMPARE(target->group, QString("Glasses Target"));
    QVERIFY(target->calibrated);
    QVERIFY(!target->tracked);
    QVERIFY(!library.target("t02")->calibrated);
    QCOMPARE(library.target("t02")->group, QString());
}

void TestTargetlibrary::failures_data()
{
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QStringList>("ids");
    QTest::addColumn<QStringList>("reports");
    QTest::addColumn<QString>("bodyTypeOfT01");
    QTest::addColumn<bool>("t01Calibrated");

    const QStringList both { "t01", "t02" };
    // clang-format off
    QTest::newRow("no library") << "targetlib number_of_targets" << QStringList() << QStringList() << "" << false;
    QTest::newRow("name fails: target skipped") << "targetlib target_name t01" << QStringList { "t02" } << QStringList { "Error: Unable to get target name" } << "" << false;
    QTest::newRow("body type fails: none") << "targetlib target_bodytype t01" << both << QStringList { "Error: Unable to get body type" } << "none" << true;
    QTest::newRow("calibrated fails silently") << "targetlib target_status_calibrated t01" << both << QStringList() << "standard" << false;
    QTest::newRow("group name fails") << "targetlib group_name g01" << both << QStringList { "Error: Unable to get group name" } << "standard" << true;
    QTest::newRow("member count fails silently") << "targetlib number_of_group_members g01" << both << QStringList() << "standard" << true;
    // clang-format on
}

void TestTargetlibrary::failures()
{
    QFETCH(QString, failing);
    QFETCH(QString, bodyTypeOfT01);
    QFETCH(bool, t01Calibrated);

    sim::SimulatedController controller;
    smallLibrary(controller);
    controller.failCommand(failing);
    Targetlibrary library(&controller, &controller.backendVersions(), nullptr);

    QTEST(QStringList(library.targets.keys()), "ids");
    QTEST(controller.reports(), "reports");
    if (const Target *t01 = library.target("t01")) {
        QCOMPARE(t01->bodyType, bodyTypeOfT01);
        QCOMPARE(t01->calibrated, t01Calibrated);
    }
    // Groups are read even without targets.
    QVERIFY(controller.commands().contains("targetlib number_of_groups"));
}

void TestTargetlibrary::groups()
{
    sim::SimulatedController controller;
    smallLibrary(controller);
    controller.setValue("targetlib number_of_groups", "3");
    controller.setValue("targetlib group_name g02", "Tools");
    controller.setValue("targetlib number_of_group_members g02", "2");
    controller.setValue("targetlib group_member g02 m01", "t01");
    controller.setValue("targetlib group_member g02 m02", "t77");
    controller.setValue("targetlib group_name g03", "Empty");
    controller.setValue("targetlib number_of_group_members g03", "0");
    Targetlibrary library(&controller, &controller.backendVersions(), nullptr);

    // The group read last wins; a member that is no target reaches nobody.
    QCOMPARE(library.groupOf("t01"), QString("Tools"));
    QCOMPARE(library.target("t01")->group, QString("Tools"));
    QCOMPARE(library.groupOf("t77"), QString("Tools"));
    QVERIFY(!library.target("t77"));
    QCOMPARE(library.groupOf("t02"), QString());
    QVERIFY(!controller.commands().contains("targetlib group_member g03 m01"));
}

void TestTargetlibrary::idOrderAndLookups()
{
    sim::SimulatedController controller;
    controller.setValue("targetlib number_of_targets", "101");
    for (int i = 1; i <= 101; ++i) {
        const QString id = QString::asprintf("t%02d", i);
        controller.setValue("targetlib target_name " + id, QString("N%1 Target %1").arg(i));
        controller.setValue("targetlib target_status_calibrated " + id, "none");
        controller.setValue("targetlib target_bodytype " + id, "standard");
    }
    controller.setValue("targetlib target_name t05", "N3 duplicate name");
    controller.setValue("targetlib number_of_groups", "0");
    Targetlibrary library(&controller, &controller.backendVersions(), nullptr);

    const QStringList keys = library.targets.keys();
    QCOMPARE(keys.size(), 101);
    QCOMPARE(keys.indexOf("t100"), keys.indexOf("t10") + 1);
    QCOMPARE(keys.indexOf("t11"), keys.indexOf("t100") + 2); // t101 sits between too
    QCOMPARE(library.idOfName("N3"), QString("t03"));
    QCOMPARE(library.idOfName("N100"), QString("t100"));
    QCOMPARE(library.idOfName("n3"), QString());
    QCOMPARE(library.idOfName(""), QString());
    QCOMPARE(library.descriptionOf("t07"), QString("Target 7"));
    QCOMPARE(library.descriptionOf("t999"), QString());
}

QTEST_GUILESS_MAIN(TestTargetlibrary)
#include "tst_targetlibrary.moc"
