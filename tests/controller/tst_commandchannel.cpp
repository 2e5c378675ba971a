#include "commandchannel.h"
#include "commandtext.h"
#include "versiongate.h"

#include <scenario.h>
#include <testkit.h>

#include <limits>

using testkit::fetch;

// The grammar and the channel are what every dialog relies on for the exact
// command texts and for reading replies safely.
class TestCommandChannel : public QObject
{
    Q_OBJECT

private slots:
    void versions_data()
    {
        testkit::columns<QString, QString, QString, QString>(
            { "backend", "systemType", "system", "passes" }); // gate 1.9, ORBILUX, above 2.9.3
        // clang-format off
        QTest::newRow("same version") << "1.9.0" << "" << "0.0.0" << "1.9";
        QTest::newRow("unreleased build -1 passes") << "1.9.-1" << "" << "0.0.0" << "1.9";
        QTest::newRow("pre-release -2 fails") << "1.9.-2" << "" << "0.0.0" << "";
        QTest::newRow("older minor fails") << "1.8.99" << "" << "0.0.0" << "";
        QTest::newRow("newer minor, any patch") << "1.10.-3" << "" << "0.0.0" << "1.9";
        QTest::newRow("newer major, any patch") << "2.0.-7" << "" << "0.0.0" << "1.9";
        QTest::newRow("older major fails") << "0.99.0" << "" << "0.0.0" << "";
        QTest::newRow("ORBILUX 2.9.3 is not above") << "0.0.0" << "ORBILUX compact" << "2.9.3" << "ORBILUX";
        QTest::newRow("ORBILUX 2.9.4") << "0.0.0" << "ORBILUX compact" << "2.9.4" << "ORBILUX above";
        QTest::newRow("ORBILUX 2.10.0") << "0.0.0" << "ORBILUX" << "2.10.0" << "ORBILUX above";
        QTest::newRow("no special patch -1") << "0.0.0" << "ORBILUX" << "2.9.-1" << "ORBILUX";
        QTest::newRow("lower case is another system") << "0.0.0" << "orbilux" << "2.9.4" << "above";
        QTest::newRow("must begin with it") << "0.0.0" << " ORBILUX" << "2.9.4" << "above";
        // clang-format on
    }
    void versions()
    {
        BackendVersions v;
        v.systemType = fetch<QString>("systemType");
        QVERIFY(sim::Scenario::parseVersion(fetch<QString>("backend"), &v.backendVersion)
            && sim::Scenario::parseVersion(fetch<QString>("system"), &v.systemVersion));
        const VersionGate gate(&v);
        QStringList passes;
        if (CommandChannel(nullptr, &v).atLeast(1, 9))
            passes << "1.9";
        if (gate.isOrbilux())
            passes << "ORBILUX";
        if (gate.systemVersionAbove(2, 9, 3))
            passes << "above";
        QTEST(passes.join(' '), "passes");
        QVERIFY(!VersionGate(nullptr).atLeast(0, 0));
    }

    // Ids and yes/no reach the dialogs' tables; the edge cases live here.
    void grammar()
    {
        for (const char *notYes : { "Yes", "yes ", "", "no" }) // replies compare exactly
            QVERIFY2(!CommandText::isYes(notYes), notYes);
        QCOMPARE(CommandText::quoted("my \"best\" tool"), QString("\"my \"best\" tool\""));
        QCOMPARE(CommandText::quoted(QString(150, 'x')), '"' + QString(100, 'x') + '"');
        QCOMPARE(CommandText::truncated(-12.9), -12);
        QCOMPARE(CommandText::truncated(1e308), std::numeric_limits<int>::max());
        QCOMPARE(CommandText::truncated(std::numeric_limits<double>::quiet_NaN()), 0);
    }

    void reads_data()
    {
        // "status active" read as text, a count, or a meta command; "failed: " for non-zero
        testkit::columns<QString, QByteArray, int, QString>(
            { "command", "reply", "failure", "read" });
        const QString text("status active"), count("targetlib number_of_targets");
        const QString yes("inertial available"), stop("velora2 cal targetlib stop"),
            cut(IOManager::ReplyBufferSize - 1, 'z');
        // clang-format off
        QTest::newRow("text") << text << QByteArray("cal targetlib") << 0 << "cal targetlib";
        QTest::newRow("over-long text is cut") << text << QByteArray(500, 'z') << 0 << cut;
        QTest::newRow("unterminated text is terminated") << text << QByteArray(500, 'z') << -1 << cut;
        QTest::newRow("latin-1") << text << QByteArray("Gr\xf6\xdf") << 0 << QString::fromLatin1("Gr\xf6\xdf");
        QTest::newRow("three digits at most") << count << QByteArray("999") << 0 << "999";
        QTest::newRow("a count beyond two digits") << count << QByteArray("1000") << 0 << "1000";
        QTest::newRow("negative count: none") << count << QByteArray("-5") << 0 << "0";
        QTest::newRow("no number") << count << QByteArray("many") << 0 << "failed: 0";
        QTest::newRow("yes") << yes << QByteArray("yes") << 0 << "yes";
        QTest::newRow("yes and a carriage return") << yes << QByteArray("yes\r") << 0 << "no";
        QTest::newRow("velora2 ok") << stop << QByteArray("velora2 ok") << 0 << "";
        QTest::newRow("empty meta reply") << stop << QByteArray() << 0 << "failed: ";
        QTest::newRow("meta error reply") << stop << QByteArray("velora2 error: busy") << 0 << "failed: ";
        QTest::newRow("meta line break") << stop << QByteArray("velora2 ok\n") << 0 << "failed: ";
        QTest::newRow("meta trailing blank") << stop << QByteArray("velora2 ok ") << 0 << "failed: ";
        QTest::newRow("ok but channel failed") << stop << QByteArray("velora2 ok") << 3 << "failed: ";
        // clang-format on
    }
    void reads()
    {
        QFETCH(QString, command);
        QFETCH(int, failure);
        sim::SimulatedController controller;
        controller.replaceReply(command, fetch<QByteArray>("reply"), -1, failure < 0);
        if (failure > 0)
            controller.failCommand(command, failure);
        const CommandChannel channel(&controller, nullptr);
        QString value;
        int result = 0, count = 7;
        if (command.startsWith("velora2")) {
            result = channel.sendMetaCommand(command);
        } else if (command == "inertial available") {
            value = CommandText::isYes(channel.stringOf(command)) ? "yes" : "no";
        } else if (command.contains("number")) {
            result = channel.getCount(command, &count);
            value = QString::number(count);
        } else {
            result = channel.getString(command, &value);
        }
        QTEST((result ? "failed: " : "") + value, "read");
        QCOMPARE(controller.commands(), QStringList { command });
    }

    // A failed read leaves no stale value; only the callers report, and a
    // report goes to the message log (nobody listens without a controller).
    void failuresGiveNeutralValues()
    {
        sim::SimulatedController controller;
        controller.failCommand("*");
        const QString text = QString::fromLatin1("Error: Unable to get group name \xe4");
        for (IOManager *io :
            { static_cast<IOManager *>(&controller), static_cast<IOManager *>(nullptr) }) {
            const CommandChannel channel(io, nullptr);
            int count = 7;
            double progress = 7;
            bool flag = true;
            QString value = "stale";
            QVERIFY(channel.getInt("standard number_of_bodies", &count)
                && channel.getDouble("status progress", &progress)
                && channel.getBool("inertial warmup", &flag)
                && channel.getString("status active", &value)
                && channel.setParameter("tracking reference none"));
            QCOMPARE(count + progress + flag, 0.0);
            QCOMPARE(value, QString());
            channel.report(text);
        }
        const sim::SimulatedController::LogEntry entry = controller.log().last();
        QCOMPARE(QStringList({ entry.operation, entry.receiver, entry.sender, entry.text,
                     QString::number(entry.level), QString::number(controller.log().size()) }),
            QStringList({ "sendMessage", "standard", "VELORA4", text, "1", "6" }));
    }

    void lineBreaksStayInReplies()
    {
        sim::SimulatedController controller;
        controller.replaceReply(
            "body inertial_sensor standard b01", "VX\r\n\x03standard number_of_bodies 0");
        CommandChannel channel(&controller, &controller.backendVersions());
        const QString sensor = channel.stringOf("body inertial_sensor standard b01");
        QCOMPARE(sensor, "VX\r\n\x03standard number_of_bodies 0");
        // Where the reply leaves again, it cannot end the line early, nor carry
        // any other control character.
        channel.stringOf("inertial sensor_handeye " + sensor);
        channel.sendMessage(
            "BodyCalModule", "BodyAdministrationModule", "OpenBodyCalDialog " + sensor);
        QCOMPARE(controller.commands().last(),
            "inertial sensor_handeye VX   standard number_of_bodies 0");
        QCOMPARE(
            controller.messages().last(), "OpenBodyCalDialog VX   standard number_of_bodies 0");
    }
};

QTEST_MAIN(TestCommandChannel)
#include "tst_commandchannel.moc"
