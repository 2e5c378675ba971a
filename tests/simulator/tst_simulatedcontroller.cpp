#include <simulatedcontroller.h>

#include <QtTest>

#include <cstring>

// The simulated controller is a test double: these tests cover what the
// plug-in's tests rely on it for, not every rule it models.
class TestSimulatedController : public QObject
{
    Q_OBJECT

private slots:
    void scenarios();
    void rules();
    void searchFollowsManualClock();
    void injections();
    void replyNeverOverrunsBuffer_data();
    void replyNeverOverrunsBuffer();
};

namespace
{
QString stringOf(sim::SimulatedController &controller, const char *path)
{
    char reply[IOManager::ReplyBufferSize];
    return controller.getString(reply, "%s", path) == 0 ? QString::fromLatin1(reply) : "<failed>";
}

QString meta(sim::SimulatedController &controller, const char *command)
{
    char reply[IOManager::ReplyBufferSize];
    return controller.sendCommand(reply, "%s", command) == 0 ? QString::fromLatin1(reply)
                                                             : "<failed>";
}
} // namespace

void TestSimulatedController::scenarios()
{
    sim::SimulatedController controller;
    QStringList errors;
    QVERIFY(!controller.loadScenarioText(
        "@backend-version 1.9.-1\ngood = 1\nno separator\n@fail bad*\n", "x.scn", &errors));
    QCOMPARE(errors, QStringList { "x.scn:3: expected \"PATH = VALUE\"" });
    QCOMPARE(controller.backendVersions().backendVersion.patch, -1);
    QCOMPARE(stringOf(controller, "good"), QString("1"));
    QCOMPARE(stringOf(controller, "bad thing"), QString("<failed>"));
}

// What the tables of the plug-in's tests build on: counts create and drop
// bodies, meta commands change what refers to them, a lock refuses changes.
void TestSimulatedController::rules()
{
    sim::SimulatedController controller;
    QCOMPARE(controller.setParameter("standard number_of_bodies %d", 5), 0);
    QCOMPARE(controller.value("body number_of_bodies standard") + ' '
            + controller.value("body calibrated standard b05"),
        QString("5 no"));
    QCOMPARE(meta(controller, "velora2 body switch standard b01 standard b02"), "velora2 ok");
    QCOMPARE(
        controller.value("body desc standard b02") + ' ' + controller.value("tracking reference"),
        QString("\"Glasses\" standard b01"));
    QCOMPARE(
        meta(controller, "velora2 body calibrate_from_targetlib standard b04 GL-6"), "velora2 ok");
    QCOMPARE(controller.value("body calibrated standard b04"), QString("yes"));
    QCOMPARE(controller.setParameter("standard number_of_bodies 1"), 0);
    QVERIFY(!controller.contains("body desc standard b02"));
    QVERIFY(meta(controller, "velora2 body switch standard b01 standard b02")
                .startsWith("velora2 error: "));
    QCOMPARE(controller.setParameter("tracking auto_restart maybe"),
        int(sim::SimulatedController::InvalidValue));
    controller.setValue("config is_changeable", "no");
    QCOMPARE(controller.setParameter("tracking auto_restart no"),
        int(sim::SimulatedController::Refused));
}

void TestSimulatedController::searchFollowsManualClock()
{
    sim::SimulatedController controller;
    QVERIFY(controller.loadScenarioText("@present t02\n@search-duration 2000\n"
                                        "status active = none\nstatus step_active = none\n"
                                        "status progress = 0\ncal available targetlib = yes\n"
                                        "targetlib number_of_targets = 2\n"
                                        "targetlib target_status_tracked t01 = yes\n"
                                        "targetlib target_status_tracked t02 = no\n",
        "search"));
    controller.setManualClock(true);
    QCOMPARE(meta(controller, "velora2 cal targetlib start"), "velora2 ok");
    QCOMPARE(stringOf(controller, "status step_active"), QString("cal targetlib"));
    QCOMPARE(stringOf(controller, "targetlib target_status_tracked t01"), QString("no"));
    controller.advanceClock(1000);
    double progress = 0;
    controller.getDouble(&progress, "status progress");
    QCOMPARE(progress, 0.5);
    QCOMPARE(stringOf(controller, "targetlib target_status_tracked t02"), QString("yes"));
    controller.advanceClock(1000);
    QCOMPARE(stringOf(controller, "status active"), QString("none"));
}

void TestSimulatedController::injections()
{
    sim::SimulatedController controller;
    controller.failCommand("body desc standard*", 9, 2);
    controller.replaceReply("status active", "cal body", 1);
    char reply[IOManager::ReplyBufferSize];
    QCOMPARE(controller.getString(reply, "body desc standard b01"), 9);
    QCOMPARE(controller.getString(reply, "body desc gripwand b01"), 0);
    QCOMPARE(controller.getString(reply, "body desc standard b04"), 9);
    QCOMPARE(controller.getString(reply, "body desc standard b01"), 0); // used up
    QCOMPARE(stringOf(controller, "status active"), QString("cal body"));
    QCOMPARE(stringOf(controller, "status active"), QString("none"));
    controller.failCommand("tracking*", 4);
    QCOMPARE(controller.setParameter("tracking auto_restart no"), 4);
    QCOMPARE(controller.value("tracking auto_restart"), QString("yes"));
    QCOMPARE(controller.log().last().kind, sim::SimulatedController::LogEntry::Setting);
    QCOMPARE(controller.commands().size(), 7);
}

void TestSimulatedController::replyNeverOverrunsBuffer_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("unterminated");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("fits") << QByteArray(199, 'a') << false << QByteArray(199, 'a');
    QTest::newRow("cut to 199 and a zero") << QByteArray(500, 'b') << false << QByteArray(199, 'b');
    QTest::newRow("unterminated fills 200") << QByteArray(500, 'c') << true << QByteArray(200, 'c');
}

void TestSimulatedController::replyNeverOverrunsBuffer()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, unterminated);
    QFETCH(QByteArray, expected);
    for (const char *command : { "status active", "velora2 cal targetlib stop" }) {
        sim::SimulatedController controller;
        controller.replaceReply(command, reply, 1, unterminated);
        char buffer[IOManager::ReplyBufferSize + 16];
        std::memset(buffer, 'G', sizeof buffer);
        QCOMPARE(command[0] == 'v' ? controller.sendCommand(buffer, "%s", command)
                                   : controller.getString(buffer, "%s", command),
            0);
        QCOMPARE(QByteArray(buffer, expected.size()), expected);
        QCOMPARE(QByteArray(buffer + IOManager::ReplyBufferSize, 16), QByteArray(16, 'G'));
        if (!unterminated)
            QCOMPARE(buffer[expected.size()], '\0');
    }
}

QTEST_GUILESS_MAIN(TestSimulatedController)
#include "tst_simulatedcontroller.moc"
