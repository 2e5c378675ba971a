#include <simulatedcontroller.h>

#include <testkit.h>

using Sim = sim::SimulatedController;

namespace
{
// Sends a query, or a meta command ("velora2 ..."), as the plug-in does; the
// reply, or "<failed N>" when the controller returned N.
QString ask(Sim &controller, const char *command)
{
    char reply[IOManager::ReplyBufferSize];
    const int result = QByteArray(command).startsWith("velora2")
        ? controller.sendCommand(reply, "%s", command)
        : controller.getString(reply, "%s", command);
    return result == 0 ? QString::fromLatin1(reply) : QString("<failed %1>").arg(result);
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
        Sim controller;
        QStringList errors;
        QVERIFY(!controller.loadScenarioText("status good = 1\nno separator\n@fail status g*\n"
                                             "statsu x = 1\nbody desc standard b01 = \"Glasses\n",
            "x.scn", &errors));
        QCOMPARE(errors,
            QStringList({ "x.scn:2: expected \"PATH = VALUE\"",
                "x.scn:4: unknown parameter group \"statsu\"",
                "x.scn:5: unterminated quote in \"Glasses" }));
        QCOMPARE(ask(controller, "status good"), QString("<failed 1>"));
        // Lifted from the console; a second time there is nothing left to lift.
        QString error;
        QVERIFY(controller.takeScenarioLine("@unfail *", &error));
        QCOMPARE(ask(controller, "status good"), QString("1"));
        QVERIFY(!controller.takeScenarioLine("@unfail status g*", &error));
        QCOMPARE(error, QString("no @fail or @reply matches status g*"));
    }
    // What the tables of the plug-in's tests build on: counts create and drop
    // bodies, meta commands change what refers to them, a lock refuses changes.
    void rules()
    {
        Sim controller;
        QCOMPARE(controller.setParameter("standard number_of_bodies %d", 5), 0);
        QCOMPARE(ask(controller, "body number_of_bodies standard"), QString("5"));
        QCOMPARE(ask(controller, "body calibrated standard b05"), QString("no"));
        QCOMPARE(ask(controller, "velora2 body switch standard b01 standard b02"), "velora2 ok");
        QCOMPARE(ask(controller, "body desc standard b02"), QString("\"Glasses\""));
        QCOMPARE(ask(controller, "tracking reference"), QString("standard b01"));
        QCOMPARE(ask(controller, "velora2 body calibrate_from_targetlib standard b04 GL-6"),
            "velora2 ok");
        QCOMPARE(ask(controller, "body calibrated standard b04"), QString("yes"));
        QCOMPARE(controller.setParameter("standard number_of_bodies 1"), 0);
        QVERIFY(!controller.contains("body desc standard b02"));
        QVERIFY(ask(controller, "velora2 body switch standard b01 standard b02")
                    .startsWith("velora2 error: "));
        QCOMPARE(controller.setParameter("tracking auto_restart maybe"), int(Sim::InvalidValue));
        controller.setValue("config is_changeable", "no");
        QCOMPARE(controller.setParameter("tracking auto_restart no"), int(Sim::Refused));
    }
    // Only an id's one spelling names a body, however many there are.
    void bodyIds_data()
    {
        testkit::columns<QString, bool>({ "id", "switched" });
        QTest::newRow("two digits") << "b03" << true;
        QTest::newRow("three digits") << "b120" << true;
        QTest::newRow("one digit") << "b3" << false;
        QTest::newRow("padded") << "b003" << false;
        QTest::newRow("padded past 99") << "b0120" << false;
        QTest::newRow("signed") << "b+3" << false;
        QTest::newRow("zero") << "b00" << false;
        QTest::newRow("past the count") << "b121" << false;
    }
    void bodyIds()
    {
        Sim controller;
        controller.setValue("standard max_number_of_bodies", "200");
        QCOMPARE(controller.setParameter("standard number_of_bodies 120"), 0);
        const QString command
            = "velora2 body switch standard b01 standard " + testkit::fetch<QString>("id");
        QCOMPARE(
            ask(controller, qPrintable(command)) == "velora2 ok", testkit::fetch<bool>("switched"));
    }
    void injections()
    {
        Sim controller;
        controller.failCommand("body desc standard*", 9, 2);
        controller.replaceReply("status active", "cal body", 1);
        QCOMPARE(ask(controller, "body desc standard b01"), QString("<failed 9>"));
        QCOMPARE(ask(controller, "body desc gripwand b01"), QString("\"Gripwand 1\""));
        QCOMPARE(ask(controller, "body desc standard b04"), QString("<failed 9>"));
        QCOMPARE(ask(controller, "body desc standard b01"), QString("\"Glasses\"")); // used up
        QCOMPARE(ask(controller, "status active"), QString("cal body"));
        QCOMPARE(ask(controller, "status active"), QString("none"));
        controller.failCommand("tracking*", 4);
        QCOMPARE(controller.setParameter("tracking auto_restart no"), 4);
        QCOMPARE(controller.value("tracking auto_restart"), QString("yes"));
        QCOMPARE(controller.log().last().kind, Sim::LogEntry::Setting);
        QCOMPARE(controller.commands().size(), 7);
    }
    // Strict mode starts where it is asked for, ignores messages, still
    // answers every command and names the first difference.
    void strictTranscript_data()
    {
        testkit::columns<QStringList, QString>({ "expected", "mismatch" });
        // clang-format off
        const QStringList sent { "status active", "tracking auto_restart no", "velora2 cal targetlib stop" };
        const QString around = "\nsent:\n     1  status active\n %1   2  tracking auto_restart no\n     3  velora2 cal targetlib stop";
        QTest::newRow("exact") << sent << "";
        QTest::newRow("prefix line") << QStringList { sent[0], "tracking auto*", sent[2] } << "";
        QTest::newRow("unexpected") << QStringList { sent[0], "tracking auto_restart yes", sent[2] }
            << "command 2: expected \"tracking auto_restart yes\", sent \"tracking auto_restart no\"" + around.arg('>');
        QTest::newRow("missing") << sent + QStringList { "status progress", "status active" }
            << "missing after command 3: \"status progress\" and 1 more" + around.arg(' ');
        QTest::newRow("after the end") << QStringList { sent[0] }
            << "unexpected after the end: \"tracking auto_restart no\"" + around.arg('>');
        // clang-format on
    }
    void strictTranscript()
    {
        Sim controller;
        ask(controller, "config is_changeable");
        controller.expectTranscript(testkit::fetch<QStringList>("expected"));
        QCOMPARE(ask(controller, "status active"), QString("none"));
        controller.sendMessage("standard", "VELORA4", 1, "Error: not a command");
        QCOMPARE(controller.setParameter("tracking auto_restart %s", "no"), 0);
        ask(controller, "velora2 cal targetlib stop");
        QTEST(controller.transcriptMismatch(), "mismatch");
        controller.endTranscript();
        QCOMPARE_TRANSCRIPT(controller);
    }
};

QTEST_GUILESS_MAIN(TestSimulatedController)
#include "tst_simulatedcontroller.moc"
