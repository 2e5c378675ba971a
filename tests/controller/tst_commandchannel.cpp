#include "commandchannel.h"
#include "commandtext.h"
#include "versiongate.h"

#include <scenario.h>
#include <simulatedcontroller.h>

#include <QtTest>

#include <limits>

// The grammar and the channel are what every dialog relies on for the exact
// command texts and for reading replies safely.
class TestCommandChannel : public QObject
{
    Q_OBJECT

private slots:
    void versions_data();
    void versions();
    void grammar();
    void reads_data();
    void reads();
    void failuresGiveNeutralValues();
    void reportGoesToMessageLog();
};

void TestCommandChannel::versions_data()
{
    QTest::addColumn<QString>("backend");
    QTest::addColumn<QString>("systemType");
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("passes"); // gate 1.9, ORBILUX, system above 2.9.3
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

void TestCommandChannel::versions()
{
    QFETCH(QString, backend);
    QFETCH(QString, system);
    BackendVersions v;
    QFETCH(QString, systemType);
    v.systemType = systemType;
    QVERIFY(sim::Scenario::parseVersion(backend, &v.backendVersion));
    QVERIFY(sim::Scenario::parseVersion(system, &v.systemVersion));
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

void TestCommandChannel::grammar()
{
    QCOMPARE(CommandText::bodyIdOfIndex(6), QString("b07"));
    QCOMPARE(CommandText::bodyId(100), QString("b100"));
    for (const char *notYes : { "Yes", "yes ", "", "no" }) // replies compare exactly
        QVERIFY2(!CommandText::isYes(notYes), notYes);
    QCOMPARE(CommandText::quoted(""), QString("\"\""));
    QCOMPARE(CommandText::quoted("my \"best\" tool"), QString("\"my \"best\" tool\""));
    QCOMPARE(CommandText::quoted(QString(150, 'x')), '"' + QString(100, 'x') + '"');
    QCOMPARE(CommandText::truncated(-12.9), -12);
    QCOMPARE(CommandText::truncated(1e308), std::numeric_limits<int>::max());
    QCOMPARE(CommandText::truncated(std::numeric_limits<double>::quiet_NaN()), 0);
}

void TestCommandChannel::reads_data()
{
    QTest::addColumn<QString>(
        "command"); // "status active" read as text, a count, or a meta command
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("failure");
    QTest::addColumn<QString>("read"); // "failed: " for a non-zero result

    const QString text("status active"), count("targetlib number_of_targets");
    const QString stop("velora2 cal targetlib stop"), cut(IOManager::ReplyBufferSize - 1, 'z');
    // clang-format off
    QTest::newRow("text") << text << QByteArray("cal targetlib") << 0 << "cal targetlib";
    QTest::newRow("over-long text is cut") << text << QByteArray(500, 'z') << 0 << cut;
    QTest::newRow("unterminated text is terminated") << text << QByteArray(500, 'z') << -1 << cut;
    QTest::newRow("latin-1") << text << QByteArray("Gr\xf6\xdf") << 0 << QString::fromLatin1("Gr\xf6\xdf");
    QTest::newRow("three digits at most") << count << QByteArray("999") << 0 << "999";
    QTest::newRow("more than ids can name") << count << QByteArray("1000") << 0 << "failed: 0";
    QTest::newRow("negative count") << count << QByteArray("-5") << 0 << "failed: 0";
    QTest::newRow("no number") << count << QByteArray("many") << 0 << "failed: 0";
    QTest::newRow("velora2 ok") << stop << QByteArray("velora2 ok") << 0 << "";
    QTest::newRow("empty meta reply") << stop << QByteArray() << 0 << "failed: ";
    QTest::newRow("meta error reply") << stop << QByteArray("velora2 error: busy") << 0 << "failed: ";
    QTest::newRow("meta trailing blank") << stop << QByteArray("velora2 ok ") << 0 << "failed: ";
    QTest::newRow("ok but channel failed") << stop << QByteArray("velora2 ok") << 3 << "failed: ";
    // clang-format on
}

void TestCommandChannel::reads()
{
    QFETCH(QString, command);
    QFETCH(QByteArray, reply);
    QFETCH(int, failure);
    sim::SimulatedController controller;
    controller.replaceReply(command, reply, -1, failure < 0);
    if (failure > 0)
        controller.failCommand(command, failure);
    const CommandChannel channel(&controller, nullptr);
    QString value = "stale";
    int result = 0, count = 7;
    if (command.startsWith("velora2")) {
        value.clear();
        result = channel.sendMetaCommand(command);
    } else if (command.contains("number")) {
        result = channel.getCount(command, &count);
        value = QString::number(count);
    } else {
        result = channel.getString(command, &value);
    }
    QTEST((result ? "failed: " : "") + value, "read");
    QCOMPARE(controller.commands(), QStringList { command });
}

void TestCommandChannel::failuresGiveNeutralValues()
{
    sim::SimulatedController controller;
    controller.failCommand("*");
    for (IOManager *io :
        { static_cast<IOManager *>(&controller), static_cast<IOManager *>(nullptr) }) {
        const CommandChannel channel(io, nullptr);
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
    QCOMPARE(controller.reports(), QStringList()); // the callers report, not the channel
}

void TestCommandChannel::reportGoesToMessageLog()
{
    sim::SimulatedController controller;
    const QString text = QString::fromLatin1("Error: Unable to get group name \xe4");
    CommandChannel(&controller, nullptr).report(text);
    QCOMPARE(controller.log().size(), 1);
    const sim::SimulatedController::LogEntry entry = controller.log().first();
    QCOMPARE(QStringList({ entry.operation, entry.receiver, entry.sender, entry.text }),
        QStringList({ "sendMessage", "standard", "VELORA4", text }));
    QCOMPARE(entry.level, 1);
    CommandChannel(nullptr, nullptr).report(text); // nobody listens: no crash
}

QTEST_GUILESS_MAIN(TestCommandChannel)
#include "tst_commandchannel.moc"
