#include "bodyadminfixture.h"
#include "bodyloader.h"
#include "commandchannel.h"

// Reading one body: which queries each controller version gets, and the
// texts derived from the replies.
class TestBodyLoader : public QObject
{
    Q_OBJECT

    sim::SimulatedController controller;
    CommandChannel channel { &controller, &controller.backendVersions() };

private slots:
    void init() { testkit::useScenario(controller); }
    void queriesByVersion_data()
    {
        // Letters of the queries below, in the order they are sent.
        columns<int, int, int, QString>({ "major", "minor", "patch", "asked" });
        row("0.2: nothing but the filter", 0, 2, 0, QString("f"));
        row("0.3: calibration state", 0, 3, 0, QString("cf"));
        row("0.15: no description", 0, 15, 0, QString("cf"));
        row("0.16: description", 0, 16, 0, QString("dcf"));
        row("1.10: no library", 1, 10, 0, QString("dcf"));
        row("1.11: library, activeness, re-calibration", 1, 11, 0, QString("dlacrf"));
        row("1.12: inertial sensor and its hand-eye state", 1, 12, -1, QString("dlacrshf"));
        row("1.24: reference", 1, 24, 0, QString("dlacrshft"));
        row("1.23 pre-release: no reference", 1, 24, -2, QString("dlacrshf"));
    }
    void queriesByVersion()
    {
        const QString asked = fetch<QString>("asked");
        // A calibrated reference with everything a controller can tell; the
        // letter names the query.
        const QString b = " standard b02";
        QStringList queries;
        for (const char *change :
            { "d body desc%1 = \"Room \"ref\"\"", "l body targetlib_name%1 = none",
                "a body active%1 = yes", "c body calibrated%1 = yes", "r body recalibrated%1 = no",
                "s body inertial_sensor%1 = VX IMU 'A1'",
                "h inertial sensor_handeye VX IMU 'A1' = none", "f body filter6d_enabled%1 = no",
                "t tracking reference = standard b02" }) {
            const QString setting = QString(change).mid(2).replace("%1", b);
            controller.setValue(setting.section(" = ", 0, 0), setting.section(" = ", 1));
            if (asked.contains(change[0]))
                queries << setting.section(" = ", 0, 0);
        }
        controller.backendVersions().backendVersion
            = { fetch<int>("major"), fetch<int>("minor"), fetch<int>("patch") };

        const BodyRecord body = BodyLoader(channel).load("standard", 1);
        QCOMPARE(controller.commands(), queries);
        QCOMPARE(controller.reports(), QStringList());
        // Skipped steps leave their fields empty.
        QCOMPARE(body.description, QString(asked.contains('d') ? "Room ref" : ""));
        QCOMPARE(body.isReference, asked.contains('t'));
    }

    void filterText_data()
    {
        columns<QString, QString, QString>({ "enabled", "preset", "text" });
        row("off", QString("no"), "preset6d_std_custom", "not active");
        row("Yes is not yes", QString("Yes"), "preset6d_default", "not active");
        row("custom hybrid", QString("yes"), "preset6d_hybrid_custom", "12ms/smooth");
        row("custom needs both parts", QString("yes"), "preset6d_hybrid", "");
    }
    void filterText()
    {
        const QString b = " gripwand b01";
        controller.setValue("body filter6d_enabled" + b, fetch<QString>("enabled"));
        controller.setValue("body filter6d_preset" + b, fetch<QString>("preset"));
        controller.setValue("filter6d preset_desc preset6d_default", "\"Default\"");
        controller.setValue("body filter6d_prediction" + b, "0.0125");
        controller.setValue("body filter6d_mode" + b, "mode6d_smooth");
        controller.setValue("filter6d mode_desc mode6d_smooth", "\"smooth\"");

        QCOMPARE(BodyLoader(channel).filterText("gripwand", 0), fetch<QString>("text"));
        // None of the filter queries is reported when it fails.
        QCOMPARE(controller.reports(), QStringList());
    }

    void reference_data()
    {
        columns<QString, QString, int, bool>({ "reply", "type", "index", "reference" });
        row("b03 is index 2", QString("standard b03"), "standard", 2, true);
        row("other body", QString("standard b03"), "standard", 1, false);
        row("three digits", QString("standard b100"), "standard", 99, true);
        row("one part only", QString("standard"), "standard", 0, false);
        row("double blank keeps an empty part", QString("standard  b01"), "standard", 0, false);
        row("not for other types", QString("standard b01"), "gripwand", 0, false);
    }
    void reference()
    {
        controller.setValue("tracking reference", fetch<QString>("reply"));
        QCOMPARE(BodyLoader(channel).load(fetch<QString>("type"), fetch<int>("index")).isReference,
            fetch<bool>("reference"));
        QCOMPARE(controller.commands().count("tracking reference"), 1); // for any type
    }

    void failedQueriesAreReported()
    {
        controller.loadScenarioText("@backend-version 1.24.0", "empty");
        controller.setValue("body inertial_sensor standard b01", "S1");
        BodyLoader loader(channel);

        QCOMPARE(loader.numberOfBodies("standard"), 0);
        loader.typeDescription("standard");
        QVERIFY(!loader.filterAvailable("standard"));
        const BodyRecord body = loader.load("standard", 0);

        QCOMPARE(body.inertialSensor, QString("S1"));
        QCOMPARE(body.calibrationText, QString("not calibrated"));
        QCOMPARE(controller.reports(),
            L("Error: Unable to get number of standard bodies | Error: Unable to get description "
              "of bodytype standard | Error: Unable to get availability of filter6d for bodytype "
              "standard | Error: Unable to get description of body standard b01  | Error: Unable "
              "to get targetlib name of body standard b01 | Error: Unable to get activeness of "
              "body standard b01 | Error: Unable to get calibration state of body standard b01 | "
              "Error: Unable to get recalibrated state of body standard b01 | Error: Unable to get "
              "handeye status of sensor S1 | Error: Unable to info body reference"));
        loader.load("standard", 1); // no sensor answer for b02
        QVERIFY(controller.reports().contains(
            "Error: Unable to get inertial sensor of body standard b02"));
    }
};

QTEST_GUILESS_MAIN(TestBodyLoader)
#include "tst_bodyloader.moc"
