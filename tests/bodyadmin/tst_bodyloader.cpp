#include "bodyloader.h"
#include "commandchannel.h"

#include <simulatedcontroller.h>

#include <QtTest>

// Reading one body: which queries each controller version gets, and the
// texts derived from the replies.
class TestBodyLoader : public QObject
{
    Q_OBJECT

private slots:
    void queriesByVersion_data();
    void queriesByVersion();
    void calibrationText_data();
    void calibrationText();
    void filterText_data();
    void filterText();
    void reference_data();
    void reference();
    void failedQueriesAreReported();
};

namespace
{

// A calibrated standard body 2 with everything a controller can tell.
void bodyTwo(sim::SimulatedController &controller)
{
    const QString b = "standard b02";
    controller.setValue("body desc " + b, "\"Room \"ref\"\"");
    controller.setValue("body targetlib_name " + b, "none");
    controller.setValue("body active " + b, "yes");
    controller.setValue("body calibrated " + b, "yes");
    controller.setValue("body recalibrated " + b, "no");
    controller.setValue("body inertial_sensor " + b, "VX IMU 'A1'");
    controller.setValue("inertial sensor_handeye VX IMU 'A1'", "none");
    controller.setValue("body filter6d_enabled " + b, "no");
    controller.setValue("tracking reference", "standard b02");
}

BackendVersions::Version version(const QString &text)
{
    const QStringList parts = text.split('.');
    return { parts.value(0).toInt(), parts.value(1).toInt(), parts.value(2).toInt() };
}

} // namespace

void TestBodyLoader::queriesByVersion_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("asked"); // letters of the queries below, in order

    QTest::newRow("0.2: nothing but the filter") << "0.2.0"
                                                 << "f";
    QTest::newRow("0.3: calibration state") << "0.3.0"
                                            << "cf";
    QTest::newRow("0.16: description") << "0.16.0"
                                       << "dcf";
    QTest::newRow("1.11: library, activeness, re-calibration") << "1.11.0"
                                                               << "dlacrf";
    QTest::newRow("1.12: inertial sensor and its hand-eye state") << "1.12.-1"
                                                                  << "dlacrshf";
    QTest::newRow("1.24: reference") << "1.24.0"
                                     << "dlacrshft";
    QTest::newRow("1.23 pre-release: no reference") << "1.24.-2"
                                                    << "dlacrshf";
}

void TestBodyLoader::queriesByVersion()
{
    QFETCH(QString, version);
    QFETCH(QString, asked);

    const QString b = " standard b02";
    const QMap<QChar, QString> query { { 'd', "body desc" + b }, { 'l', "body targetlib_name" + b },
        { 'a', "body active" + b }, { 'c', "body calibrated" + b },
        { 'r', "body recalibrated" + b }, { 's', "body inertial_sensor" + b },
        { 'h', "inertial sensor_handeye VX IMU 'A1'" }, { 'f', "body filter6d_enabled" + b },
        { 't', "tracking reference" } };
    QStringList queries;
    for (QChar letter : asked)
        queries << query.value(letter);
    sim::SimulatedController controller;
    bodyTwo(controller);
    controller.backendVersions().backendVersion = ::version(version);
    CommandChannel channel(&controller, &controller.backendVersions());

    const BodyRecord body = BodyLoader(channel).load("standard", 1);
    QCOMPARE(controller.commands(), queries);
    QCOMPARE(controller.reports(), QStringList());
    // Skipped steps leave their fields empty.
    QCOMPARE(body.description, QString(asked.contains('d') ? "Room ref" : ""));
    QCOMPARE(body.isReference, asked.contains('t'));
}

void TestBodyLoader::calibrationText_data()
{
    QTest::addColumn<QString>("state"); // calibrated, library, re-calibrated, sensor, hand-eye
    QTest::addColumn<QString>("text");

    QTest::newRow("uncalibrated") << "lrsh"
                                  << "not calibrated";
    QTest::newRow("custom") << "c"
                            << "Custom";
    QTest::newRow("custom, re-calibrated") << "cr"
                                           << "Custom, re-calibrated";
    QTest::newRow("library") << "cl"
                             << "Target Library";
    QTest::newRow("library, re-calibrated") << "clr"
                                            << "Target Library, re-calibrated";
    QTest::newRow("sensor without hand-eye") << "clrs"
                                             << "Optical";
    QTest::newRow("sensor with hand-eye") << "csh"
                                          << "Full";
}

void TestBodyLoader::calibrationText()
{
    QFETCH(QString, state);
    QFETCH(QString, text);

    BodyRecord body;
    body.calibrated = state.contains('c');
    body.targetLibraryName = state.contains('l') ? "GL-5" : "";
    body.recalibrated = state.contains('r');
    body.inertialSensor = state.contains('s') ? "S" : "";
    body.hybridCalibrated = state.contains('h');
    QCOMPARE(BodyLoader::calibrationText(body), text);
}

void TestBodyLoader::filterText_data()
{
    QTest::addColumn<QString>("enabled");
    QTest::addColumn<QString>("preset");
    QTest::addColumn<QString>("text");

    QTest::newRow("off") << QString("no") << QString("preset6d_std_custom") << "not active";
    QTest::newRow("Yes is not yes")
        << QString("Yes") << QString("preset6d_default") << "not active";
    QTest::newRow("predefined preset")
        << QString("yes") << QString("preset6d_default") << "Default";
    QTest::newRow("custom") << QString("yes") << QString("preset6d_std_custom")
                            << "0.50/12ms/smooth";
    QTest::newRow("custom hybrid")
        << QString("yes") << QString("preset6d_hybrid_custom") << "12ms/smooth";
    QTest::newRow("custom needs both parts") << QString("yes") << QString("preset6d_hybrid") << "";
}

void TestBodyLoader::filterText()
{
    QFETCH(QString, enabled);
    QFETCH(QString, preset);
    QFETCH(QString, text);

    sim::SimulatedController controller;
    const QString b = " gripwand b01";
    controller.setValue("body filter6d_enabled" + b, enabled);
    controller.setValue("body filter6d_preset" + b, preset);
    controller.setValue("filter6d preset_desc preset6d_default", "\"Default\"");
    controller.setValue("body filter6d_prediction" + b, "0.0125");
    controller.setValue("body filter6d_strength" + b, "0.5");
    controller.setValue("body filter6d_mode" + b, "mode6d_smooth");
    controller.setValue("filter6d mode_desc mode6d_smooth", "\"smooth\"");
    CommandChannel channel(&controller, &controller.backendVersions());

    QCOMPARE(BodyLoader(channel).filterText("gripwand", 0), text);
    // None of the filter queries is reported when it fails.
    QCOMPARE(controller.reports(), QStringList());
}

void TestBodyLoader::reference_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("reference");

    QTest::newRow("b03 is index 2") << QString("standard b03") << "standard" << 2 << true;
    QTest::newRow("other body") << QString("standard b03") << "standard" << 1 << false;
    QTest::newRow("three digits") << QString("standard b100") << "standard" << 99 << true;
    QTest::newRow("none") << QString("none") << "standard" << 0 << false;
    QTest::newRow("one part only") << QString("standard") << "standard" << 0 << false;
    QTest::newRow("double blank keeps an empty part")
        << QString("standard  b01") << "standard" << 0 << false;
    QTest::newRow("only standard bodies") << QString("gripwand b01") << "gripwand" << 0 << false;
    QTest::newRow("not for other types") << QString("standard b01") << "gripwand" << 0 << false;
}

void TestBodyLoader::reference()
{
    QFETCH(QString, reply);
    QFETCH(QString, type);
    QFETCH(int, index);
    QFETCH(bool, reference);

    sim::SimulatedController controller;
    controller.backendVersions().backendVersion = { 1, 24, 0 };
    controller.setValue("tracking reference", reply);
    CommandChannel channel(&controller, &controller.backendVersions());
    QCOMPARE(BodyLoader(channel).load(type, index).isReference, reference);
}

void TestBodyLoader::failedQueriesAreReported()
{
    sim::SimulatedController controller;
    controller.loadScenarioText(QString(), "empty");
    controller.backendVersions().backendVersion = { 1, 24, 0 };
    controller.setValue("body inertial_sensor standard b01", "S1");
    CommandChannel channel(&controller, &controller.backendVersions());
    BodyLoader loader(channel);

    QCOMPARE(loader.numberOfBodies("standard"), 0);
    loader.typeDescription("standard");
    QVERIFY(!loader.filterAvailable("standard"));
    const BodyRecord body = loader.load("standard", 0);

    QCOMPARE(body.inertialSensor, QString("S1"));
    QCOMPARE(body.calibrationText, QString("not calibrated"));
    QCOMPARE(controller.reports(),
        QStringList({ "Error: Unable to get number of standard bodies",
            "Error: Unable to get description of bodytype standard",
            "Error: Unable to get availability of filter6d for bodytype standard",
            "Error: Unable to get description of body standard b01 ",
            "Error: Unable to get targetlib name of body standard b01",
            "Error: Unable to get activeness of body standard b01",
            "Error: Unable to get calibration state of body standard b01",
            "Error: Unable to get recalibrated state of body standard b01",
            "Error: Unable to get handeye status of sensor S1",
            "Error: Unable to info body reference" }));
}

QTEST_GUILESS_MAIN(TestBodyLoader)
#include "tst_bodyloader.moc"
