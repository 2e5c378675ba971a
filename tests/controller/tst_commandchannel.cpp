#include "commandchannel.h"
#include "commandtext.h"
#include "versiongate.h"

#include <simulatedcontroller.h>

#include <QtTest>

#include <limits>

// The grammar and the channel are what every dialog relies on for the exact
// command texts and for reading replies safely.
class TestCommandChannel : public QObject
{
    Q_OBJECT

private slots:
    void gate_data();
    void gate();
    void orbilux_data();
    void orbilux();
    void grammar();
    void replies_data();
    void replies();
    void metaCommand_data();
    void metaCommand();
    void counts_data();
    void counts();
    void failuresGiveNeutralValues();
    void reportGoesToMessageLog();
};

void TestCommandChannel::gate_data()
{
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("patch");
    QTest::addColumn<bool>("passes"); // the gate 1.9

    QTest::newRow("same version") << 1 << 9 << 0 << true;
    QTest::newRow("unreleased build -1 passes") << 1 << 9 << -1 << true;
    QTest::newRow("pre-release -2 fails") << 1 << 9 << -2 << false;
    QTest::newRow("older minor fails") << 1 << 8 << 99 << false;
    QTest::newRow("newer minor, any patch") << 1 << 10 << -3 << true;
    QTest::newRow("newer major, any patch") << 2 << 0 << -7 << true;
    QTest::newRow("older major fails") << 0 << 99 << 0 << false;
}

void TestCommandChannel::gate()
{
    QFETCH(int, major);
    QFETCH(int, minor);
    QFETCH(int, patch);
    QFETCH(bool, passes);
    BackendVersions v;
    v.backendVersion = { major, minor, patch };
    QCOMPARE(CommandChannel(nullptr, &v).atLeast(1, 9), passes);
    QVERIFY(!VersionGate(nullptr).atLeast(0, 0));
}

void TestCommandChannel::orbilux_data()
{
    QTest::addColumn<QString>("systemType");
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("patch");
    QTest::addColumn<bool>("isOrbilux");
    QTest::addColumn<bool>("above293");

    QTest::newRow("2.9.3 is not above") << "ORBILUX compact" << 9 << 3 << true << false;
    QTest::newRow("2.9.4") << "ORBILUX compact" << 9 << 4 << true << true;
    QTest::newRow("2.10.0") << "ORBILUX" << 10 << 0 << true << true;
    QTest::newRow("no special patch -1") << "ORBILUX" << 9 << -1 << true << false;
    QTest::newRow("lower case is another system") << "orbilux" << 9 << 4 << false << true;
    QTest::newRow("must begin with it") << " ORBILUX" << 9 << 4 << false << true;
}

void TestCommandChannel::orbilux()
{
    QFETCH(QString, systemType);
    QFETCH(int, minor);
    QFETCH(int, patch);
    BackendVersions v;
    v.systemType = systemType;
    v.systemVersion = { 2, minor, patch };
    QTEST(VersionGate(&v).isOrbilux(), "isOrbilux");
    QTEST(VersionGate(&v).systemVersionAbove(2, 9, 3), "above293");
}

void TestCommandChannel::grammar()
{
    QCOMPARE(CommandText::bodyIdOfIndex(6), QString("b07"));
    QCOMPARE(CommandText::bodyId(100), QString("b100"));
    QCOMPARE(CommandText::targetId(3) + CommandText::groupId(12) + CommandText::memberId(1),
        QString("t03g12m01"));
    QCOMPARE(CommandText::yesNo(true) + CommandText::yesNo(false), QString("yesno"));
    for (const char *notYes : { "Yes", "yes ", "", "no" })
        QVERIFY2(!CommandText::isYes(notYes), notYes);
    QVERIFY(
        CommandText::isYes("yes") && CommandText::isNone("none") && !CommandText::isNone("None"));
    QCOMPARE(CommandText::quoted(""), QString("\"\""));
    QCOMPARE(CommandText::quoted("my \"best\" tool"), QString("\"my \"best\" tool\""));
    QCOMPARE(CommandText::quoted(QString(150, 'x')), '"' + QString(100, 'x') + '"');
    QCOMPARE(CommandText::withoutDoubleQuotes("\"my \"best\" tool\""), QString("my best tool"));
    QCOMPARE(CommandText::truncated(-12.9), -12);
    QCOMPARE(CommandText::truncated(1e308), std::numeric_limits<int>::max());
    QCOMPARE(CommandText::truncated(std::numeric_limits<double>::quiet_NaN()), 0);
}

void TestCommandChannel::replies_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("unterminated");
    QTest::addColumn<QString>("expected");

    const int cut = IOManager::ReplyBufferSize - 1;
    QTest::newRow("plain") << QByteArray("cal targetlib") << false << "cal targetlib";
    QTest::newRow("over-long is cut") << QByteArray(500, 'a') << false << QString(cut, 'a');
    QTest::newRow("unterminated is terminated")
        << QByteArray(500, 'z') << true << QString(cut, 'z');
    QTest::newRow("latin-1") << QByteArray("Gr\xf6\xdf") << false
                             << QString::fromLatin1("Gr\xf6\xdf");
}

void TestCommandChannel::replies()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, unterminated);
    sim::SimulatedController controller;
    controller.replaceReply("status active", reply, -1, unterminated);
    QString value = "stale";
    QCOMPARE(CommandChannel(&controller, nullptr).getString("status active", &value), 0);
    QTEST(value, "expected");
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
    sim::SimulatedController controller;
    controller.replaceReply("velora2 cal targetlib stop", reply);
    if (failure)
        controller.failCommand("velora2 cal targetlib stop", failure);
    CommandChannel channel(&controller, nullptr);
    QTEST(channel.sendMetaCommand("velora2 cal targetlib stop") == 0, "done");
    QCOMPARE(controller.commands(), QStringList { "velora2 cal targetlib stop" });
}

void TestCommandChannel::counts_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<int>("count"); // -1: refused, count 0

    QTest::newRow("three digits at most") << "999" << 999;
    QTest::newRow("more than ids can name") << "1000" << -1;
    QTest::newRow("negative") << "-5" << -1;
    QTest::newRow("no number") << "many" << -1;
}

void TestCommandChannel::counts()
{
    QFETCH(QString, reply);
    QFETCH(int, count);
    sim::SimulatedController controller;
    controller.replaceReply("targetlib number_of_targets", reply.toLatin1());
    int value = 7;
    const int result
        = CommandChannel(&controller, nullptr).getCount("targetlib number_of_targets", &value);
    QCOMPARE(result == 0, count >= 0);
    QCOMPARE(value, qMax(count, 0));
}

void TestCommandChannel::failuresGiveNeutralValues()
{
    sim::SimulatedController controller;
    controller.failCommand("*");
    for (IOManager *io :
        { static_cast<IOManager *>(&controller), static_cast<IOManager *>(nullptr) }) {
        CommandChannel channel(io, nullptr);
        int count = 7;
        double progress = 7;
        bool flag = true;
        QString text = "stale";
        QVERIFY(channel.getInt("standard number_of_bodies", &count) != 0);
        QVERIFY(channel.getDouble("status progress", &progress) != 0);
        QVERIFY(channel.getBool("inertial warmup", &flag) != 0);
        QVERIFY(channel.getString("status active", &text) != 0);
        QVERIFY(channel.setParameter("tracking reference none") != 0);
        QCOMPARE(count + progress + flag, 0.0);
        QCOMPARE(text, QString());
    }
    QCOMPARE(controller.reports(), QStringList()); // failed reads report nothing by themselves
}

void TestCommandChannel::reportGoesToMessageLog()
{
    sim::SimulatedController controller;
    const QString text = QString::fromLatin1("Error: Unable to get group name \xe4");
    CommandChannel(&controller, nullptr).report(text);
    QCOMPARE(controller.log().size(), 1);
    const sim::SimulatedController::LogEntry entry = controller.log().first();
    QCOMPARE(entry.operation, QString("sendMessage"));
    QCOMPARE(QStringList({ entry.receiver, entry.sender, entry.text }),
        QStringList({ "standard", "VELORA4", text }));
    QCOMPARE(entry.level, 1);
    CommandChannel(nullptr, nullptr).report(text); // nobody listens: no crash
}

QTEST_GUILESS_MAIN(TestCommandChannel)
#include "tst_commandchannel.moc"
