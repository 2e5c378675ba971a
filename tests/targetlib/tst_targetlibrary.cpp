#include "target.h"
#include "targetlibrary.h"

#include <testkit.h>

class TestTargetlibrary : public QObject
{
    Q_OBJECT

private slots:
    void loads_data()
    {
        // change: PATH=VALUE or a query that fails, '|'-separated; targets: id[* calibrated]
        // name/description/body type/group
        testkit::columns<QString, QString, QString>({ "change", "targets", "reports" });

        const QString t01("t01* GL-5/Glasses large/standard/"),
            t02(", t02 GW-1/Gripwand one/gripwand/");
        // clang-format off
        QTest::newRow("as read") << "" << t01 + "Glasses Target" + t02 << "";
        QTest::newRow("no space: no description") << "targetlib target_name t01='GL-5'" << "t01* GL-5//standard/Glasses Target" + t02 << "";
        QTest::newRow("split at the first space") << "targetlib target_name t01=a b c" << "t01* a/b c/standard/Glasses Target" + t02 << "";
        QTest::newRow("the group read last wins") << "targetlib number_of_groups=2|targetlib group_name g02=Tools|targetlib number_of_group_members g02=2|targetlib group_member g02 m02=t77|targetlib group_member g02 m01=t01" << t01 + "Tools" + t02 << "";
        QTest::newRow("no library, groups still read") << "targetlib number_of_targets" << "" << "";
        QTest::newRow("name fails: target skipped") << "targetlib target_name t01" << t02.mid(2) << "Error: Unable to get target name";
        QTest::newRow("body type fails: none") << "targetlib target_bodytype t01" << "t01* GL-5/Glasses large/none/Glasses Target" + t02 << "Error: Unable to get body type";
        QTest::newRow("calibrated fails silently") << "targetlib target_status_calibrated t01" << "t01 GL-5/Glasses large/standard/Glasses Target" + t02 << "";
        QTest::newRow("group name fails") << "targetlib group_name g01" << t01 + t02 << "Error: Unable to get group name";
        QTest::newRow("member count fails silently") << "targetlib number_of_group_members g01" << t01 + t02 << "";
        QTest::newRow("member fails silently") << "targetlib group_member g01 m01" << t01 + t02 << "";
        // clang-format on
    }
    void loads()
    {
        QFETCH(QString, change);
        sim::SimulatedController controller;
        controller.loadScenarioText( // two targets and one group, as a controller answers them
            "targetlib number_of_targets = 2\n"
            "targetlib target_name t01 = 'GL-5' \"Glasses \"large\"\"\n"
            "targetlib target_status_calibrated t01 = standard b01\n"
            "targetlib target_bodytype t01 = 'standard'\n"
            "targetlib target_name t02 = GW-1 Gripwand one\n"
            "targetlib target_status_calibrated t02 = none\n"
            "targetlib target_bodytype t02 = gripwand\n"
            "targetlib number_of_groups = 1\n"
            "targetlib group_name g01 = \"Glasses Target\"\n"
            "targetlib number_of_group_members g01 = 1\n"
            "targetlib group_member g01 m01 = t01\n",
            "library");
        testkit::apply(controller, change);
        Targetlibrary library(&controller, &controller.backendVersions(), nullptr);
        QStringList shown;
        for (const Target *target : qAsConst(library.targets))
            shown << target->id + (target->calibrated ? "* " : " ") + target->name + '/'
                    + target->description + '/' + target->bodyType + '/' + target->group
                    + (target->tracked ? " tracked" : "");
        QTEST(shown.join(", "), "targets");
        QTEST(controller.reports().join('|'), "reports");
        if (change.contains("t77")) // a member that is no target reaches nobody
            QCOMPARE(library.groupOf("t77") + '|' + library.groupOf("t02"), QString("Tools|"));
    }
    void idOrderAndLookups()
    {
        sim::SimulatedController controller;
        controller.loadScenarioText(
            "targetlib number_of_targets = 101\ntargetlib number_of_groups = 0\n", "ids");
        // Only these answer, so the library must ask for padded ids; the
        // others fail to load.
        for (const QString id : { "t03", "t05", "t07", "t10", "t11", "t100", "t101" })
            controller.setValue("targetlib target_name " + id, "N" + id.mid(1) + " Target " + id);
        controller.setValue("targetlib target_name t05", "N03 duplicate name");
        Targetlibrary library(&controller, &controller.backendVersions(), nullptr);

        const QStringList keys = library.targets.keys();
        QCOMPARE(keys.mid(keys.indexOf("t10"), 4), QStringList({ "t10", "t100", "t101", "t11" }));
        QCOMPARE(library.idOfName("N03") + library.idOfName("N100"), QString("t03t100"));
        QCOMPARE(library.idOfName("n03") + library.idOfName(""), QString());
        QCOMPARE(
            library.descriptionOf("t07") + library.descriptionOf("t999"), QString("Target t07"));
    }
};

QTEST_GUILESS_MAIN(TestTargetlibrary)
#include "tst_targetlibrary.moc"
