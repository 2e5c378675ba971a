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
        const QString tools
            = "targetlib number_of_groups=2|targetlib group_name g02=Tools|targetlib "
              "number_of_group_members g02=2|targetlib group_member g02 m02=t77|"
              "targetlib group_member g02 m01=t01";
        // clang-format off
        QTest::newRow("as read") << "" << t01 + "Glasses Target" + t02 << "";
        QTest::newRow("no space: no description") << "targetlib target_name t01='GL-5'" << "t01* GL-5//standard/Glasses Target" + t02 << "";
        QTest::newRow("split at the first space") << "targetlib target_name t01=a b c" << "t01* a/b c/standard/Glasses Target" + t02 << "";
        QTest::newRow("the group read last wins") << tools << t01 + "Tools" + t02 << "";
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
        if (change.isEmpty())
            QCOMPARE(controller.commands().join(", "),
                QString(
                    "targetlib number_of_targets, targetlib target_name t01, targetlib "
                    "target_status_calibrated t01, targetlib target_bodytype t01, targetlib "
                    "target_name t02, targetlib target_status_calibrated t02, targetlib "
                    "target_bodytype t02, targetlib number_of_groups, targetlib group_name g01, "
                    "targetlib number_of_group_members g01, targetlib group_member g01 m01"));
        if (change.contains("t77")) // a member that is no target reaches nobody
            QCOMPARE(library.groupOf("t77") + '|' + library.groupOf("t02"), QString("Tools|"));
    }
    void idOrderAndLookups()
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
        QCOMPARE(keys.mid(keys.indexOf("t10"), 4), QStringList({ "t10", "t100", "t101", "t11" }));
        QCOMPARE(library.idOfName("N3") + library.idOfName("N100"), QString("t03t100"));
        QCOMPARE(library.idOfName("n3") + library.idOfName(""), QString());
        QCOMPARE(library.descriptionOf("t07") + library.descriptionOf("t999"), QString("Target 7"));
    }
};

QTEST_GUILESS_MAIN(TestTargetlibrary)
#include "tst_targetlibrary.moc"
