#include <simulatedcontroller.h>

#include <testkit.h>

#include <cstring>

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

// The simulated controller is a test double: these tests cover what the
// plug-in's tests rely on it for, not every rule it models.
class TestSimulatedController : public QObject
{
    Q_OBJECT

private slots:
    void scenarios()
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
    void rules()
    {
        sim::SimulatedController controller;
        QCOMPARE(controller.setParameter("standard number_of_bodies %d", 5), 0);
        QCOMPARE(controller.value("body number_of_bodies standard") + ' '
                + controller.value("body calibrated standard b05"),
            QString("5 no"));
        QCOMPARE(meta(controller, "velora2 body switch standard b01 standard b02"), "velora2 ok");
        QCOMPARE(controller.value("body desc standard b02") + ' '
                + controller.value("tracking reference"),
            QString("\"Glasses\" standard b01"));
        QCOMPARE(meta(controller, "velora2 body calibrate_from_targetlib standard b04 GL-6"),
            "velora2 ok");
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
    void injections()
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
    void replyNeverOverrunsBuffer_data()
    {
        testkit::columns<QByteArray, bool, QByteArray>({ "reply", "unterminated", "expected" });
        QTest::newRow("fits") << QByteArray(199, 'a') << false << QByteArray(199, 'a');
        QTest::newRow("cut to 199 and a zero")
            << QByteArray(500, 'b') << false << QByteArray(199, 'b');
        QTest::newRow("unterminated fills 200")
            << QByteArray(500, 'c') << true << QByteArray(200, 'c');
    }
    void replyNeverOverrunsBuffer()
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
};

QTEST_GUILESS_MAIN(TestSimulatedController)
#include "tst_simulatedcontroller.moc"
