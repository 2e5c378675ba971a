#include "commandchannel.h"
#include "commandtext.h"
#include "versiongate.h"

#include <simulatedcontroller.h>

#include <QtTest>

#include <cmath>
#include <limits>

// The grammar and the channel are what every dialog relies on for the exact
// command texts and for reading replies safely.
class TestCommandChannel : public QObject
{
    Q_OBJECT

private slots:
    void gate_data();
    void gate();
    void gateWithoutVersions();
    void orbilux_data();
    void orbilux();
    void ids_data();
    void ids();
    void yesNo_data();
    void yesNo();
    void quotedText_data();
    void quotedText();
    void replies_data();
    void replies();
    void metaCommand_data();
    void metaCommand();
    void counts_data();
    void counts();
    void scaledNumbers_data();
    void scaledNumbers();
    void typedFailuresGiveNeutralValues();
    void reportGoesToMessageLog();
    void noIOManager();
};

static BackendVersions versions(int major, int minor, int patch)
{
    BackendVersions v;
    v.backendVersion = { major, minor, patch };
    return v;
}

void TestCommandChannel::gate_data()
{
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("patch");
    QTest::addColumn<int>("gateMajor");
    QTest::addColumn<int>("gateMinor");
    QTest::addColumn<bool>("passes");

    QTest::newRow("same version") << 1 << 9 << 0 << 1 << 9 << true;
    QTest::newRow("unreleased build -1 passes") << 1 << 9 << -1 << 1 << 9 << true;
    QTest::newRow("pre-release -2 fails") << 1 << 9 << -2 << 1 << 9 << false;
    QTest::newRow("older minor fails") << 1 << 8 << 99 << 1 << 9 << false;
    QTest::newRow("older minor -1 fails") << 1 << 8 << -1 << 1 << 9 << false;
    QTest::newRow("newer major passes") << 2 << 0 << 0 << 1 << 9 << true;
    QTest::newRow("newer major, negative patch") << 2 << 0 << -7 << 1 << 9 << true;
    QTest::newRow("newer minor, negative patch") << 1 << 10 << -3 << 1 << 9 << true;
    QTest::newRow("minor compared as number") << 1 << 12 << 0 << 1 << 3 << true;
    QTest::newRow("older major fails") << 0 << 99 << 0 << 1 << 0 << false;
    QTest::newRow("0.16 below 0.17") << 0 << 16 << 5 << 0 << 17 << false;
    QTest::newRow("1.24 at 1.24") << 1 << 24 << 0 << 1 << 24 << true;
}

void TestCommandChannel::gate()
{
    QFETCH(int, major);
    QFETCH(int, minor);
    QFETCH(int, patch);
    QFETCH(int, gateMajor);
    QFETCH(int, gateMinor);
    QFETCH(bool, passes);

    const BackendVersions v = versions(major, minor, patch);
    QCOMPARE(VersionGate(&v).atLeast(gateMajor, gateMinor), passes);
    QCOMPARE(CommandChannel(nullptr, &v).atLeast(gateMajor, gateMinor), passes);
}

void TestCommandChannel::gateWithoutVersions()
{
    QVERIFY(!VersionGate(nullptr).atLeast(0, 0));
    QVERIFY(!VersionGate(nullptr).isOrbilux());
    QVERIFY(!VersionGate(nullptr).systemVersionAbove(0, 0, 0));
}

void TestCommandChannel::orbilux_data()
{
    QTest::addColumn<QString>("systemType");
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("patch");
    QTest::addColumn<bool>("isOrbilux");
    QTest::addColumn<bool>("above293");

    QTest::newRow("2.9.3 is not above") << "ORBILUX compact" << 2 << 9 << 3 << true << false;
    QTest::newRow("2.9.4") << "ORBILUX compact" << 2 << 9 << 4 << true << true;
    QTest::newRow("2.10.0") << "ORBILUX" << 2 << 10 << 0 << true << true;
    QTest::newRow("3.0.0") << "ORBILUX" << 3 << 0 << 0 << true << true;
    QTest::newRow("2.8.99") << "ORBILUX" << 2 << 8 << 99 << true << false;
    QTest::newRow("no special patch -1") << "ORBILUX" << 2 << 9 << -1 << true << false;
    QTest::newRow("lower case is another system") << "orbilux" << 2 << 9 << 4 << false << true;
    QTest::newRow("must begin with it") << " ORBILUX" << 2 << 9 << 4 << false << true;
    QTest::newRow("other system") << "ARENA 8" << 1 << 0 << 0 << false << false;
}

void TestCommandChannel::orbilux()
{
    QFETCH(QString, systemType);
    QFETCH(int, major);
    QFETCH(int, minor);
    QFETCH(int, patch);
    QFETCH(bool, isOrbilux);
    QFETCH(bool, above293);

    BackendVersions v;
    v.systemType = systemType;
    v.systemVersion = { major, minor, patch };
    QCOMPARE(VersionGate(&v).isOrbilux(), isOrbilux);
    QCOMPARE(VersionGate(&v).systemVersionAbove(2, 9, 3), above293);
}

void TestCommandChannel::ids_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("target");

    QTest::newRow("1") << 1 << "b01"
                       << "t01";
    QTest::newRow("7") << 7 << "b07"
                       << "t07";
    QTest::newRow("10") << 10 << "b10"
                        << "t10";
    QTest::newRow("99") << 99 << "b99"
                        << "t99";
    QTest::newRow("100 has three digits") << 100 << "b100"
                                          << "t100";
}

void TestCommandChannel::ids()
{
    QFETCH(int, number);
    QFETCH(QString, body);
    QFETCH(QString, target);

    QCOMPARE(CommandText::bodyId(number), body);
    QCOMPARE(CommandText::bodyIdOfIndex(number - 1), body);
    QCOMPARE(CommandText::targetId(number), target);
    QCOMPARE(CommandText::groupId(number), QString(target).replace(0, 1, 'g'));
    QCOMPARE(CommandText::memberId(number), QString(target).replace(0, 1, 'm'));
    // The controller's three spellings of the format print alike.
    QCOMPARE(body, QString::asprintf("b%02d", number));
    QCOMPARE(body, QString::asprintf("b%.2d", number));
    QCOMPARE(body, QString::asprintf("b%2.2d", number));
}

void TestCommandChannel::yesNo_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<bool>("yes");
    QTest::addColumn<bool>("none");

    QTest::newRow("yes") << "yes" << true << false;
    QTest::newRow("capital Yes") << "Yes" << false << false;
    QTest::newRow("trailing blank") << "yes " << false << false;
    QTest::newRow("no") << "no" << false << false;
    QTest::newRow("empty") << "" << false << false;
    QTest::newRow("none") << "none" << false << true;
    QTest::newRow("None") << "None" << false << false;
}

void TestCommandChannel::yesNo()
{
    QFETCH(QString, reply);
    QFETCH(bool, yes);
    QFETCH(bool, none);

    QCOMPARE(CommandText::isYes(reply), yes);
    QCOMPARE(CommandText::isNone(reply), none);
    QCOMPARE(CommandText::noneToEmpty(reply).isEmpty(), none || reply.isEmpty());
}

void TestCommandChannel::quotedText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("readBack");

    QTest::newRow("empty") << ""
                           << "\"\""
                           << "";
    QTest::newRow("plain") << "Pointer 2"
                           << "\"Pointer 2\""
                           << "Pointer 2";
    QTest::newRow("quote inside is sent as it stands") << "my \"best\" tool"
                                                       << "\"my \"best\" tool\""
                                                       << "my best tool";
    QTest::newRow("cut at 100") << QString(150, 'x') << '"' + QString(100, 'x') + '"'
                                << QString(100, 'x');
    QTest::newRow("exactly 100") << QString(100, 'y') << '"' + QString(100, 'y') + '"'
                                 << QString(100, 'y');
}

void TestCommandChannel::quotedText()
{
    QFETCH(QString, text);
    QFETCH(QString, sent);
    QFETCH(QString, readBack);

    QCOMPARE(CommandText::quoted(text), sent);
    QCOMPARE(CommandText::withoutDoubleQuotes(sent), readBack);
}

void TestCommandChannel::replies_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("unterminated");
    QTest::addColumn<QString>("expected");

    QTest::newRow("plain") << QByteArray("cal targetlib") << false << "cal targetlib";
    QTest::newRow("empty") << QByteArray() << false << "";
    QTest::newRow("over-long is cut to the buffer")
        << QByteArray(500, 'a') << false << QString(IOManager::ReplyBufferSize - 1, 'a');
    QTest::newRow("unterminated is terminated") << QByteArray(
        IOManager::ReplyBufferSize, 'z') << true << QString(IOManager::ReplyBufferSize - 1, 'z');
    QTest::newRow("control characters are kept")
        << QByteArray("preset6d_default\nstandard number_of_bodies 0\r\t") << false
        << "preset6d_default\nstandard number_of_bodies 0\r\t";
    QTest::newRow("latin-1 bytes") << QByteArray("Gr\xf6\xdf"
                                                 "e")
                                   << false
                                   << QString::fromLatin1("Gr\xf6\xdf"
                                                          "e");
}

void TestCommandChannel::replies()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, unterminated);
    QFETCH(QString, expected);

    sim::SimulatedController controller;
    controller.setValue("status active", "none");
    controller.replaceReply("status active", reply, -1, unterminated);
    CommandChannel channel(&controller, &controller.backendVersions());

    QString value = "stale";
    QCOMPARE(channel.getString("status active", &value), 0);
    QCOMPARE(value, expected);
}

void TestCommandChannel::metaCommand_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("failure");
    QTest::addColumn<bool>("done");

    QTest::newRow("velora2 ok") << QByteArray("velora2 ok") << 0 << true;
    QTest::newRow("empty reply") << QByteArray() << 0 << false;
    QTest::newRow("error reply") << QByteArray("velora2 error: busy") << 0 << false;
    QTest::newRow("trailing blank") << QByteArray("velora2 ok ") << 0 << false;
    QTest::newRow("ok but channel failed") << QByteArray("velora2 ok") << 3 << false;
}

void TestCommandChannel::metaCommand()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, failure);
    QFETCH(bool, done);

    sim::SimulatedController controller;
    controller.replaceReply("velora2 cal targetlib stop", reply);
    if (failure)
        controller.failCommand("velora2 cal targetlib stop", failure);
    CommandChannel channel(&controller, &controller.backendVersions());

    QCOMPARE(channel.sendMetaCommand("velora2 cal targetlib stop") == 0, done);
    QCOMPARE(controller.commands(), QStringList { "velora2 cal targetlib stop" });
}

void TestCommandChannel::counts_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<int>("count");

    QTest::newRow("none") << "0" << true << 0;
    QTest::newRow("three digits at most") << "999" << true << 999;
    QTest::newRow("more than ids can name") << "1000" << false << 0;
    QTest::newRow("the largest int") << "2147483647" << false << 0;
    QTest::newRow("negative") << "-5" << false << 0;
    QTest::newRow("no number") << "many" << false << 0;
}

void TestCommandChannel::counts()
{
    QFETCH(QString, reply);
    QFETCH(bool, ok);
    QFETCH(int, count);

    sim::SimulatedController controller;
    controller.replaceReply("targetlib number_of_targets", reply.toLatin1());
    CommandChannel channel(&controller, &controller.backendVersions());
    int value = -1;
    QCOMPARE(channel.getCount("targetlib number_of_targets", &value) == 0, ok);
    QCOMPARE(value, count);
}

void TestCommandChannel::scaledNumbers_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("truncated");

    QTest::newRow("12.5 ms") << 12.5 << 12;
    QTest::newRow("toward zero") << -12.9 << -12;
    QTest::newRow("too large") << 1e308 << std::numeric_limits<int>::max();
    QTest::newRow("too small") << -1e308 << std::numeric_limits<int>::min();
    QTest::newRow("not a number") << std::nan("") << 0;
}

void TestCommandChannel::scaledNumbers()
{
    QFETCH(double, value);
    QFETCH(int, truncated);
    QCOMPARE(CommandText::truncated(value), truncated);
}

void TestCommandChannel::typedFailuresGiveNeutralValues()
{
    sim::SimulatedController controller;
    controller.setValue("standard number_of_bodies", "4");
    controller.setValue("status progress", "0.5");
    controller.setValue("inertial warmup", "yes");
    controller.failCommand("*");
    CommandChannel channel(&controller, &controller.backendVersions());

    int count = 7;
    double progress = 7;
    bool warmup = true;
    QString text = "stale";
    QVERIFY(channel.getInt("standard number_of_bodies", &count) != 0);
    QVERIFY(channel.getDouble("status progress", &progress) != 0);
    QVERIFY(channel.getBool("inertial warmup", &warmup) != 0);
    QVERIFY(channel.getString("inertial warmup", &text) != 0);
    QCOMPARE(count, 0);
    QCOMPARE(progress, 0.0);
    QCOMPARE(warmup, false);
    QCOMPARE(text, QString());

    controller.clearInjections();
    QCOMPARE(channel.getInt("standard number_of_bodies", &count), 0);
    QCOMPARE(channel.getDouble("status progress", &progress), 0);
    QCOMPARE(channel.getBool("inertial warmup", &warmup), 0);
    QCOMPARE(count, 4);
    QCOMPARE(progress, 0.5);
    QCOMPARE(warmup, true);
}

void TestCommandChannel::reportGoesToMessageLog()
{
    sim::SimulatedController controller;
    CommandChannel channel(&controller, &controller.backendVersions());
    const QString text
        = QString::fromLatin1("Error: Unable to get description of body standard b01 \xe4");

    channel.report(text);

    QCOMPARE(controller.log().size(), 1);
    const sim::SimulatedController::LogEntry entry = controller.log().first();
    QCOMPARE(entry.kind, sim::SimulatedController::LogEntry::Message);
    QCOMPARE(entry.receiver, QString("standard"));
    QCOMPARE(entry.sender, QString("VELORA4"));
    QCOMPARE(entry.level, 1);
    QCOMPARE(entry.text, text);
    QCOMPARE(controller.reports(), QStringList { text });
}

void TestCommandChannel::noIOManager()
{
    CommandChannel channel(nullptr, nullptr);
    QString text = "stale";
    int number = 3;
    QVERIFY(channel.getString("status active", &text) != 0);
    QVERIFY(channel.getInt("standard number_of_bodies", &number) != 0);
    QVERIFY(channel.setParameter("tracking reference none") != 0);
    QVERIFY(channel.sendMetaCommand("velora2 cal targetlib stop") != 0);
    QCOMPARE(text, QString());
    QCOMPARE(number, 0);
    channel.report("Error: nobody listens"); // must not crash
}

QTEST_GUILESS_MAIN(TestCommandChannel)
#include "tst_commandchannel.moc"
