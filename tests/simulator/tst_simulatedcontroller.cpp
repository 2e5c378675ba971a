#include <simulatedcontroller.h>

#include <messagereceiver.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>
#include <functional>

namespace
{

// Reply buffers in these tests carry guard bytes behind them.
constexpr int Buffer = IOManager::ReplyBufferSize;
constexpr int Guard = 64;
constexpr char GuardByte = char(0xA5);

struct Delivery {
    QString receiver;
    QString sender;
    QString text;
};

class RecordingReceiver final : public MessageReceiver
{
public:
    int receiveMessage(const char *receiver, const char *sender, const char *text) override
    {
        deliveries.append({ QString::fromLatin1(receiver), QString::fromLatin1(sender),
            QString::fromLatin1(text) });
        if (onMessage)
            onMessage();
        return 0;
    }

    QList<Delivery> deliveries;
    std::function<void()> onMessage;
};

QString stringOf(sim::SimulatedController &controller, const char *path, int *result = nullptr)
{
    char reply[Buffer];
    const int r = controller.getString(reply, "%s", path);
    if (result)
        *result = r;
    return r == 0 ? QString::fromLatin1(reply) : QStringLiteral("<failed>");
}

QString metaReply(sim::SimulatedController &controller, const char *command)
{
    char reply[Buffer];
    if (controller.sendCommand(reply, "%s", command) != 0)
        return QStringLiteral("<failed>");
    return QString::fromLatin1(reply);
}

const QString Ok = QStringLiteral("velora2 ok");

} // namespace

class tst_SimulatedController : public QObject
{
    Q_OBJECT

private slots:
    void builtInScenariosLoad_data();
    void builtInScenariosLoad();
    void scenarioDirectivesAndValues();
    void badScenarioLines_data();
    void badScenarioLines();
    void unreadableScenario();

    void typedQueries_data();
    void typedQueries();
    void settings_data();
    void settings();
    void longestKnownPathWins();
    void readOnlyParametersRefused();

    void numberOfBodiesUnderBothNames_data();
    void numberOfBodiesUnderBothNames();
    void growingCreatesDefaultBodies();
    void shrinkingDropsBodiesAndWhatNamesThem();
    void headsFollowGripwands();
    void switchExchangesBodies();
    void switchRefused_data();
    void switchRefused();
    void clearingMarkersUncalibrates();
    void calibrateFromTargetLibrary();
    void sensorAndFilterRules();
    void customCalibrationCheck();

    void searchProgressesOnManualClock();
    void searchRefused_data();
    void searchRefused();
    void lockedConfigurationRefusesChanges();

    void injectedFailures_data();
    void injectedFailures();
    void replyNeverOverrunsBuffer_data();
    void replyNeverOverrunsBuffer();
    void doctoredTypedReplies_data();
    void doctoredTypedReplies();
    void latencyMovesManualClock();

    void logRecordsEveryCall();
    void messagesReachRegisteredReceivers();
    void receiversMayLeaveDuringDelivery();
};

void tst_SimulatedController::builtInScenariosLoad_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("backendMajor");
    QTest::addColumn<int>("backendMinor");
    QTest::addColumn<bool>("orbilux");
    QTest::addColumn<QString>("changeable");

    QTest::newRow("current controller") << "default" << 1 << 24 << false << "yes";
    QTest::newRow("locked configuration") << "locked" << 1 << 24 << false << "no";
    QTest::newRow("software 0.16") << "old" << 0 << 16 << false << "<failed>";
    QTest::newRow("compact system") << "orbilux" << 1 << 3 << true << "<failed>";
}

void tst_SimulatedController::builtInScenariosLoad()
{
    QFETCH(QString, name);
    QFETCH(int, backendMajor);
    QFETCH(int, backendMinor);
    QFETCH(bool, orbilux);
    QFETCH(QString, changeable);

    const QString file = QStringLiteral(":/scenarios/%1.scn").arg(name);
    QVERIFY(sim::SimulatedController::builtInScenarios().contains(file));
    sim::SimulatedController controller;
    QStringList errors;
    QVERIFY2(controller.loadScenario(file, &errors), qPrintable(errors.join('\n')));
    QVERIFY(errors.isEmpty());
    QCOMPARE(controller.backendVersions().backendVersion.major, backendMajor);
    QCOMPARE(controller.backendVersions().backendVersion.minor, backendMinor);
    QCOMPARE(controller.backendVersions().systemType.startsWith("ORBILUX"), orbilux);
    QCOMPARE(stringOf(controller, "config is_changeable"), changeable);
    // Every scenario answers what every dialog asks first.
    QCOMPARE(stringOf(controller, "status active"), QStringLiteral("none"));
    qint32 count = -1;
    QCOMPARE(controller.getInt(&count, "body number_of_bodies %s", "standard"), 0);
    QVERIFY(count > 0);
    QCOMPARE(controller.value("standard number_of_bodies"), QString::number(count));
}

void tst_SimulatedController::scenarioDirectivesAndValues()
{
    sim::SimulatedController controller;
    const QString text = QStringLiteral("# a comment\n"
                                        "\n"
                                        "@backend-version 1.9.-1\n"
                                        "@system-version 2.9.4\n"
                                        "@system-type ORBILUX compact\n"
                                        "   # indented comment\n"
                                        "body desc standard b01 = \"Tool \"A\"\"\n"
                                        "empty value = \n"
                                        "empty without blank =\r\n"
                                        "trailing blank = yes \n"
                                        "path with # sign = a # b\n"
                                        "@fail failing query\n"
                                        "@reply doctored* = 42\n");
    QStringList errors;
    QVERIFY(controller.loadScenarioText(text, "inline", &errors));
    QVERIFY(errors.isEmpty());

    const BackendVersions &versions = controller.backendVersions();
    QCOMPARE(versions.backendVersion.minor, 9);
    QCOMPARE(versions.backendVersion.patch, -1);
    QCOMPARE(versions.systemVersion.patch, 4);
    QCOMPARE(versions.systemType, QStringLiteral("ORBILUX compact"));

    // The new table replaces the old one completely.
    QVERIFY(!controller.contains("status active"));
    QCOMPARE(controller.parameters().size(), 5);
    QCOMPARE(controller.value("body desc standard b01"), QStringLiteral("\"Tool \"A\"\""));
    QVERIFY(controller.contains("empty value"));
    QCOMPARE(controller.value("empty without blank"), QString());
    QCOMPARE(controller.value("trailing blank"), QStringLiteral("yes "));
    QCOMPARE(controller.value("path with # sign"), QStringLiteral("a # b"));

    char reply[Buffer];
    QVERIFY(controller.getString(reply, "failing query") != 0);
    qint32 number = 0;
    QCOMPARE(controller.getInt(&number, "doctored anything"), 0);
    QCOMPARE(number, 42);

    // Injections of a scenario leave with it; those set by hand stay.
    controller.failCommand("by hand");
    QVERIFY(controller.loadScenarioText("by hand = 1\nfailing query = 2\n", "next"));
    QCOMPARE(stringOf(controller, "failing query"), QStringLiteral("2"));
    QCOMPARE(stringOf(controller, "by hand"), QStringLiteral("<failed>"));
}

void tst_SimulatedController::badScenarioLines_data()
{
    QTest::addColumn<QString>("badLine");
    QTest::addColumn<QString>("reason");

    QTest::newRow("no separator") << "status active none"
                                  << "expected \"PATH = VALUE\"";
    QTest::newRow("no path") << " = none"
                             << "no parameter path";
    QTest::newRow("meta command as path") << "velora2 cal targetlib start = ok"
                                          << "meta commands are not parameters";
    QTest::newRow("duplicate path") << "good = twice"
                                    << "duplicate parameter \"good\"";
    QTest::newRow("unknown directive") << "@frobnicate 3"
                                       << "unknown directive @frobnicate";
    QTest::newRow("version with two parts") << "@backend-version 1.24"
                                            << "bad version";
    QTest::newRow("system type missing") << "@system-type"
                                         << "no system type";
    QTest::newRow("target id without t") << "@present t01 b02"
                                         << "bad target id \"b02\"";
    QTest::newRow("search duration zero") << "@search-duration 0"
                                          << "bad search duration";
    QTest::newRow("reply without text") << "@reply status active"
                                        << "expected \"@reply";
    QTest::newRow("counts disagree") << "standard number_of_bodies = 3"
                                     << "\"body number_of_bodies standard\" and "
                                        "\"standard number_of_bodies\" disagree";
}

void tst_SimulatedController::badScenarioLines()
{
    QFETCH(QString, badLine);
    QFETCH(QString, reason);

    const QString text = QStringLiteral("good = value\n"
                                        "body number_of_bodies standard = 2\n"
                                        "%1\n"
                                        "after = taken\n")
                             .arg(badLine);
    sim::SimulatedController controller;
    QStringList errors;
    QVERIFY(!controller.loadScenarioText(text, "broken.scn", &errors));
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.first().startsWith("broken.scn:3: " + reason), qPrintable(errors.first()));
    QCOMPARE(controller.value("good"), QStringLiteral("value"));
    QCOMPARE(controller.value("after"), QStringLiteral("taken"));
}

void tst_SimulatedController::unreadableScenario()
{
    sim::SimulatedController controller;
    QTemporaryDir dir;
    const QString missing = dir.filePath("missing.scn");
    QStringList errors;
    QVERIFY(!controller.loadScenario(missing, &errors));
    QCOMPARE(errors.size(), 1);
    QVERIFY(errors.first().startsWith(missing + ": "));
    // A file that cannot be read leaves the controller as it was.
    QCOMPARE(controller.value("status active"), QStringLiteral("none"));
}

void tst_SimulatedController::typedQueries_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("value");

    const int unknown = sim::SimulatedController::UnknownParameter;
    const int invalid = sim::SimulatedController::InvalidValue;
    QTest::newRow("text") << "getString"
                          << "body desc standard b01" << 0 << "\"Glasses\"";
    QTest::newRow("text with leading blank") << "getString"
                                             << " status active" << 0 << "none";
    QTest::newRow("text of a missing path") << "getString"
                                            << "status nothing" << unknown << "";
    QTest::newRow("path must match exactly") << "getString"
                                             << "body desc standard b1" << unknown << "";
    QTest::newRow("integer") << "getInt"
                             << "standard max_number_of_bodies" << 0 << "20";
    QTest::newRow("integer from text") << "getInt"
                                       << "tracking reference" << invalid << "";
    QTest::newRow("double") << "getDouble"
                            << "body filter6d_prediction standard b02" << 0 << "0.0125";
    QTest::newRow("double from integer") << "getDouble"
                                         << "standard number_of_bodies" << 0 << "4";
    QTest::newRow("bool yes") << "getBool"
                              << "inertial available" << 0 << "true";
    QTest::newRow("bool no") << "getBool"
                             << "inertial warmup" << 0 << "false";
    QTest::newRow("bool from other text") << "getBool"
                                          << "status active" << invalid << "";
}

void tst_SimulatedController::typedQueries()
{
    QFETCH(QString, operation);
    QFETCH(QString, path);
    QFETCH(int, result);
    QFETCH(QString, value);

    sim::SimulatedController controller;
    const QByteArray text = path.toLatin1();
    int actual = -1;
    QString shown;
    if (operation == "getString") {
        char reply[Buffer];
        std::strcpy(reply, "stale");
        actual = controller.getString(reply, "%s", text.constData());
        shown = QString::fromLatin1(reply);
    } else if (operation == "getInt") {
        qint32 number = -7;
        actual = controller.getInt(&number, "%s", text.constData());
        shown = actual == 0 ? QString::number(number) : QString();
        if (actual != 0)
            QCOMPARE(number, -7);
    } else if (operation == "getDouble") {
        double number = -7.0;
        actual = controller.getDouble(&number, "%s", text.constData());
        shown = actual == 0 ? QString::number(number) : QString();
    } else {
        bool flag = false;
        actual = controller.getBool(&flag, "%s", text.constData());
        shown = actual == 0 ? (flag ? "true" : "false") : QString();
    }
    QCOMPARE(actual, result);
    QCOMPARE(shown, value);
    QCOMPARE(controller.log().last().operation, operation);
    QCOMPARE(controller.log().last().result, result);
}

void tst_SimulatedController::settings_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("value");

    const int unknown = sim::SimulatedController::UnknownParameter;
    const int invalid = sim::SimulatedController::InvalidValue;
    const int refused = sim::SimulatedController::Refused;

    QTest::newRow("value of two words")
        << "tracking reference standard b03" << 0 << "tracking reference"
        << "standard b03";
    QTest::newRow("leading blank") << " tracking reference none" << 0 << "tracking reference"
                                   << "none";
    QTest::newRow("three numbers")
        << "tracking axis_5dof_central 0.000 0.000 1.000" << 0 << "tracking axis_5dof_central"
        << "0.000 0.000 1.000";
    QTest::newRow("quoted text as it stands")
        << "body desc standard b01 \"Tool \"x\"  2\"" << 0 << "body desc standard b01"
        << "\"Tool \"x\"  2\"";
    QTest::newRow("sensor id of three words") << "inertial sensor_handeye VX IMU 'A1234' none" << 0
                                              << "inertial sensor_handeye VX IMU 'A1234'"
                                              << "none";
    QTest::newRow("unknown path") << "tracking nonsense yes" << unknown << "tracking nonsense"
                                  << "";
    QTest::newRow("path without value")
        << "tracking auto_restart" << invalid << "tracking auto_restart"
        << "yes";
    QTest::newRow("reference to a missing body")
        << "tracking reference standard b09" << invalid << "tracking reference"
        << "standard b02";
    QTest::newRow("yes or no only")
        << "tracking auto_restart maybe" << invalid << "tracking auto_restart"
        << "yes";
    QTest::newRow("numbers stay numbers") << "body filter6d_strength standard b01 strong" << invalid
                                          << "body filter6d_strength standard b01"
                                          << "0.50";
    QTest::newRow("strength within limits") << "body filter6d_strength standard b01 1.5" << invalid
                                            << "body filter6d_strength standard b01"
                                            << "0.50";
    QTest::newRow("preset a sensor cannot use")
        << "body filter6d_preset standard b03 preset6d_strong" << invalid
        << "body filter6d_preset standard b03"
        << "preset6d_med_pred";
    QTest::newRow("markers only cleared")
        << "body number_of_marker standard b01 7" << invalid << "body number_of_marker standard b01"
        << "5";
    QTest::newRow("tool's reference must exist")
        << "measurementtool reference_of_tool b02 3" << invalid
        << "measurementtool reference_of_tool b02"
        << "none";
    QTest::newRow("activating without geometry")
        << "body active standard b04 yes" << refused << "body active standard b04"
        << "no";
}

void tst_SimulatedController::settings()
{
    QFETCH(QString, command);
    QFETCH(int, result);
    QFETCH(QString, path);
    QFETCH(QString, value);

    sim::SimulatedController controller;
    QCOMPARE(controller.setParameter("%s", command.toLatin1().constData()), result);
    QCOMPARE(controller.value(path), value);
    QCOMPARE(controller.log().last().error.isEmpty(), result == 0);
}

void tst_SimulatedController::readOnlyParametersRefused()
{
    sim::SimulatedController controller;
    const QMap<QString, QString> before = controller.parameters();
    for (const char *command :
        { "status active none", "cal available targetlib no", "config is_changeable no",
            "body filter6d_preset_available standard b01 preset6d_strong no",
            "targetlib target_status_tracked t01 yes", "body type_desc standard \"Body\"",
            "standard max_number_of_bodies 30", "inertial sensor_present VX IMU 'A1234' no",
            "body calibrated standard b04 yes", "gripwand device b02 none" })
        QVERIFY2(
            controller.setParameter("%s", command) == sim::SimulatedController::Refused, command);
    QCOMPARE(controller.parameters(), before);
}

void tst_SimulatedController::longestKnownPathWins()
{
    sim::SimulatedController controller;
    QVERIFY(controller.loadScenarioText("tracking pulse = synchronous_cameras\n"
                                        "tracking pulse frequency = 50.0\n",
        "pulse"));
    QCOMPARE(controller.setParameter("tracking pulse frequency %f", 60.0), 0);
    QCOMPARE(controller.value("tracking pulse frequency"), QStringLiteral("60.000000"));
    QCOMPARE(controller.value("tracking pulse"), QStringLiteral("synchronous_cameras"));
}

void tst_SimulatedController::numberOfBodiesUnderBothNames_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("ownName");
    QTest::addColumn<int>("count");

    QTest::newRow("standard by its own name") << "standard"
                                              << "standard number_of_bodies 6"
                                              << "standard number_of_bodies" << 6;
    QTest::newRow("standard by the body name") << "standard"
                                               << "body number_of_bodies standard 1"
                                               << "standard number_of_bodies" << 1;
    QTest::newRow("gripwands") << "gripwand"
                               << "gripwand number_of_devices 3"
                               << "gripwand number_of_devices" << 3;
    QTest::newRow("hands to none") << "fingertracking"
                                   << "fingertracking number_of_hands 0"
                                   << "fingertracking number_of_hands" << 0;
    QTest::newRow("tool references") << "measurementtool_reference"
                                     << "measurementtool number_of_references 4"
                                     << "measurementtool number_of_references" << 4;
}

void tst_SimulatedController::numberOfBodiesUnderBothNames()
{
    QFETCH(QString, type);
    QFETCH(QString, command);
    QFETCH(QString, ownName);
    QFETCH(int, count);

    sim::SimulatedController controller;
    QCOMPARE(controller.setParameter("%s", command.toLatin1().constData()), 0);
    qint32 viaBody = -1;
    qint32 viaOwn = -1;
    QCOMPARE(
        controller.getInt(&viaBody, "body number_of_bodies %s", type.toLatin1().constData()), 0);
    QCOMPARE(controller.getInt(&viaOwn, "%s", ownName.toLatin1().constData()), 0);
    QCOMPARE(viaBody, count);
    QCOMPARE(viaOwn, count);
    // Exactly the bodies up to the count exist.
    const QString prefix = "body desc " + type + " b";
    QVERIFY(controller.contains(prefix + QStringLiteral("%1").arg(count, 2, 10, QChar('0')))
        || count == 0);
    QVERIFY(!controller.contains(prefix + QStringLiteral("%1").arg(count + 1, 2, 10, QChar('0'))));

    // Beyond the maximum nothing changes.
    QCOMPARE(controller.setParameter("%s 21", ownName.toLatin1().constData()),
        int(sim::SimulatedController::InvalidValue));
    QCOMPARE(controller.value(ownName), QString::number(count));
}

void tst_SimulatedController::growingCreatesDefaultBodies()
{
    sim::SimulatedController controller;
    QCOMPARE(controller.setParameter("standard number_of_bodies %d", 5), 0);
    const QMap<QString, QString> expected {
        { "body desc standard b05", "\"\"" },
        { "body active standard b05", "no" },
        { "body calibrated standard b05", "no" },
        { "body targetlib_name standard b05", "none" },
        { "body number_of_marker standard b05", "0" },
        { "body filter6d_enabled standard b05", "yes" },
        { "body filter6d_preset standard b05", "preset6d_default" },
        { "body filter6d_preset_available standard b05 preset6d_strong", "yes" },
        { "standard fixed_angle b05", "no 0.00 no 0.00 no 0.00" },
    };
    for (auto it = expected.cbegin(); it != expected.cend(); ++it)
        QCOMPARE(controller.value(it.key()), it.value());
    // The new body has the same parameters as the first one, nothing more.
    int first = 0;
    int fifth = 0;
    const QMap<QString, QString> all = controller.parameters();
    for (const QString &path : all.keys()) {
        first += path.contains(" standard b01");
        fifth += path.contains(" standard b05");
    }
    QCOMPARE(fifth, first);

    // Gripwands get a device slot of their own.
    QCOMPARE(controller.setParameter("gripwand number_of_devices 3"), 0);
    QCOMPARE(controller.value("gripwand device b03"), QStringLiteral("none"));
    QCOMPARE(controller.value("body filter6d_enabled gripwand b03"), QStringLiteral("yes"));
    QCOMPARE(controller.setParameter("fingertracking number_of_hands 3"), 0);
    QCOMPARE(controller.value("body filter6d_enabled fingertracking b03"), QStringLiteral("no"));
}

void tst_SimulatedController::shrinkingDropsBodiesAndWhatNamesThem()
{
    sim::SimulatedController controller;
    // Body 2 is the reference; t04 knows it as a custom calibration.
    QCOMPARE(controller.setParameter("standard number_of_bodies 1"), 0);
    const QMap<QString, QString> all = controller.parameters();
    for (const QString &path : all.keys())
        QVERIFY2(
            !path.contains(" standard b02") && !path.contains("fixed_angle b04"), qPrintable(path));
    QCOMPARE(controller.value("tracking reference"), QStringLiteral("none"));
    QCOMPARE(
        controller.value("targetlib target_status_calibrated_custom t04"), QStringLiteral("none"));
    QCOMPARE(
        controller.value("targetlib target_status_calibrated t01"), QStringLiteral("standard b01"));

    // Tools lose the reference that is gone.
    QCOMPARE(controller.setParameter("measurementtool number_of_references 0"), 0);
    QCOMPARE(controller.value("measurementtool reference_of_tool b01"), QStringLiteral("none"));
    QCOMPARE(controller.value("targetlib target_status_calibrated t05"), QStringLiteral("none"));
}

void tst_SimulatedController::headsFollowGripwands()
{
    sim::SimulatedController controller;
    QCOMPARE(controller.setParameter("gripwand number_of_devices 4"), 0);
    QCOMPARE(controller.value("body number_of_bodies multiusergripwand_head"), QStringLiteral("4"));
    QVERIFY(controller.contains("body calibrated multiusergripwand_head b04"));

    QCOMPARE(controller.setParameter("gripwand multiuser_with_head no"), 0);
    QCOMPARE(controller.setParameter("gripwand number_of_devices 1"), 0);
    QCOMPARE(controller.value("body number_of_bodies multiusergripwand_head"), QStringLiteral("4"));
    QCOMPARE(controller.setParameter("gripwand multiuser_with_head yes"), 0);
    QCOMPARE(controller.value("body number_of_bodies multiusergripwand_head"), QStringLiteral("1"));
}

void tst_SimulatedController::switchExchangesBodies()
{
    sim::SimulatedController controller;
    QCOMPARE(metaReply(controller, "velora2 body switch standard b01 standard b02"), Ok);
    QCOMPARE(controller.value("body desc standard b01"), QStringLiteral("\"Room reference\""));
    QCOMPARE(controller.value("body desc standard b02"), QStringLiteral("\"Glasses\""));
    QCOMPARE(controller.value("body targetlib_name standard b02"), QStringLiteral("GL-5"));
    QCOMPARE(controller.value("body filter6d_preset standard b01"),
        QStringLiteral("preset6d_std_custom"));
    // What refers to the bodies follows them.
    QCOMPARE(controller.value("tracking reference"), QStringLiteral("standard b01"));
    QCOMPARE(
        controller.value("targetlib target_status_calibrated t01"), QStringLiteral("standard b02"));
    QCOMPARE(controller.value("targetlib target_status_calibrated_custom t04"),
        QStringLiteral("standard b01"));

    QCOMPARE(controller.setParameter("measurementtool number_of_references 3"), 0);
    QCOMPARE(metaReply(controller,
                 "velora2 body switch measurementtool_reference b01 "
                 "measurementtool_reference b03"),
        Ok);
    QCOMPARE(controller.value("measurementtool reference_of_tool b01"), QStringLiteral("3"));
    QCOMPARE(
        controller.value("body desc measurementtool_reference b03"), QStringLiteral("\"Table\""));
}

void tst_SimulatedController::switchRefused_data()
{
    QTest::addColumn<QString>("command");

    QTest::newRow("body beyond the count") << "velora2 body switch standard b01 standard b05";
    QTest::newRow("different types") << "velora2 body switch standard b01 gripwand b01";
    QTest::newRow("id without padding") << "velora2 body switch standard b1 standard b02";
    QTest::newRow("one body only") << "velora2 body switch standard b01";
    QTest::newRow("unknown meta command") << "velora2 body swap standard b01 standard b02";
}

void tst_SimulatedController::switchRefused()
{
    QFETCH(QString, command);

    sim::SimulatedController controller;
    const QMap<QString, QString> before = controller.parameters();
    const QString reply = metaReply(controller, command.toLatin1().constData());
    // A refusal is still an answer of the controller: result 0, error reply.
    QVERIFY2(reply.startsWith("velora2 error: "), qPrintable(reply));
    QCOMPARE(controller.parameters(), before);
}

void tst_SimulatedController::clearingMarkersUncalibrates()
{
    sim::SimulatedController controller;
    QCOMPARE(controller.setParameter("body number_of_marker %s b%.2d 0", "standard", 1), 0);
    QCOMPARE(controller.value("body calibrated standard b01"), QStringLiteral("no"));
    QCOMPARE(controller.value("body recalibrated standard b01"), QStringLiteral("no"));
    QCOMPARE(controller.value("body targetlib_name standard b01"), QStringLiteral("none"));
    QCOMPARE(controller.value("body active standard b01"), QStringLiteral("no"));
    QCOMPARE(controller.value("targetlib target_status_calibrated t01"), QStringLiteral("none"));
    // The description is the module's to clear.
    QCOMPARE(controller.value("body desc standard b01"), QStringLiteral("\"Glasses\""));
}

void tst_SimulatedController::calibrateFromTargetLibrary()
{
    sim::SimulatedController controller;
    // Body 4 has no geometry yet; t02 is free.
    QCOMPARE(metaReply(controller, "velora2 body calibrate_from_targetlib standard b04 GL-6"), Ok);
    QCOMPARE(controller.value("body calibrated standard b04"), QStringLiteral("yes"));
    QCOMPARE(controller.value("body recalibrated standard b04"), QStringLiteral("no"));
    QCOMPARE(controller.value("body targetlib_name standard b04"), QStringLiteral("GL-6"));
    QCOMPARE(controller.value("body number_of_marker standard b04"), QStringLiteral("6"));
    QCOMPARE(controller.value("body active standard b04"), QStringLiteral("yes"));
    QCOMPARE(
        controller.value("targetlib target_status_calibrated t02"), QStringLiteral("standard b04"));

    // Resetting a re-calibrated body to its library geometry; moving it to
    // another target frees the old one.
    QCOMPARE(metaReply(controller, "velora2 body calibrate_from_targetlib standard b01 GL-5"), Ok);
    QCOMPARE(controller.value("body recalibrated standard b01"), QStringLiteral("no"));
    QCOMPARE(metaReply(controller, "velora2 body calibrate_from_targetlib standard b01 HMD-7"), Ok);
    QCOMPARE(controller.value("targetlib target_status_calibrated t01"), QStringLiteral("none"));
    QCOMPARE(
        controller.value("targetlib target_status_calibrated t03"), QStringLiteral("standard b01"));

    QCOMPARE(metaReply(controller, "velora2 body calibrate_from_targetlib standard b04 XX-1"),
        QStringLiteral("velora2 error: unknown target XX-1"));
    QVERIFY(metaReply(controller, "velora2 body calibrate_from_targetlib standard b05 GL-6")
                .startsWith("velora2 error: "));
}

void tst_SimulatedController::sensorAndFilterRules()
{
    sim::SimulatedController controller;
    const char *sensor = "VX IMU 'A5678'";
    QCOMPARE(controller.setParameter("body inertial_sensor standard b01 %s", sensor), 0);
    QCOMPARE(controller.value("body filter6d_preset_available standard b01 preset6d_strong"),
        QStringLiteral("no"));
    QCOMPARE(controller.setParameter("body inertial_sensor standard b01 none"), 0);
    QCOMPARE(controller.value("body filter6d_preset_available standard b01 preset6d_strong"),
        QStringLiteral("yes"));

    // A sensor with storage restores its hand-eye calibration, but not while
    // sensors warm up; one without storage cannot.
    QCOMPARE(controller.setParameter("inertial sensor_handeye VX IMU 'A1234' none"), 0);
    QCOMPARE(controller.setParameter("inertial warmup yes"), 0);
    QVERIFY(metaReply(controller, "velora2 set inertial sensor_default VX IMU 'A1234'")
                .startsWith("velora2 error: "));
    QCOMPARE(controller.setParameter("inertial warmup no"), 0);
    QCOMPARE(metaReply(controller, "velora2 set inertial sensor_default VX IMU 'A1234'"), Ok);
    QCOMPARE(
        controller.value("inertial sensor_handeye VX IMU 'A1234'"), QStringLiteral("available"));
    QVERIFY(metaReply(controller, "velora2 set inertial sensor_default VX IMU 'A5678'")
                .startsWith("velora2 error: "));
}

void tst_SimulatedController::customCalibrationCheck()
{
    sim::SimulatedController controller;
    // Body 2's custom geometry has four markers, like t04.
    controller.setValue("targetlib target_status_calibrated_custom t04", "none");
    QCOMPARE(metaReply(controller, "velora2 targetlib check_custom_calibration"), Ok);
    QCOMPARE(controller.value("targetlib target_status_calibrated_custom t04"),
        QStringLiteral("standard b02"));
    QCOMPARE(
        controller.value("targetlib target_status_calibrated_custom t01"), QStringLiteral("none"));

    QCOMPARE(controller.setParameter("body number_of_marker standard b02 0"), 0);
    QCOMPARE(metaReply(controller, "velora2 targetlib check_custom_calibration"), Ok);
    QCOMPARE(
        controller.value("targetlib target_status_calibrated_custom t04"), QStringLiteral("none"));
}

void tst_SimulatedController::searchProgressesOnManualClock()
{
    sim::SimulatedController controller;
    QVERIFY(controller.loadScenarioText("@present t02 t01 t03\n"
                                        "@search-duration 4000\n"
                                        "status active = none\n"
                                        "status step_active = none\n"
                                        "status progress = 0.000\n"
                                        "cal available targetlib = yes\n"
                                        "targetlib number_of_targets = 4\n"
                                        "targetlib target_status_tracked t01 = yes\n"
                                        "targetlib target_status_tracked t02 = no\n"
                                        "targetlib target_status_tracked t03 = no\n"
                                        "targetlib target_status_tracked t04 = yes\n",
        "search"));
    controller.setManualClock(true);
    QCOMPARE(metaReply(controller, "velora2 cal targetlib start"), Ok);

    // The tracked targets in id order, "-" for one that is not.
    const auto tracked = [&] {
        QString found;
        for (const QString id : { "t01", "t02", "t03", "t04" }) {
            const QByteArray path = "targetlib target_status_tracked " + id.toLatin1();
            found += stringOf(controller, path.constData()) == "yes" ? id : QStringLiteral("-");
        }
        return found;
    };
    double progress = -1.0;
    QCOMPARE(stringOf(controller, "status active"), QStringLiteral("cal targetlib"));
    QCOMPARE(stringOf(controller, "status step_active"), QStringLiteral("cal targetlib"));
    QCOMPARE(controller.getDouble(&progress, "status progress"), 0);
    QCOMPARE(progress, 0.0);
    // A new search starts from nothing found.
    QCOMPARE(tracked(), QStringLiteral("----"));

    controller.advanceClock(1000); // 1/4: the first present target
    QCOMPARE(tracked(), QStringLiteral("-t02--"));
    QCOMPARE(controller.getDouble(&progress, "status progress"), 0);
    QCOMPARE(progress, 0.25);
    controller.advanceClock(1000);
    QCOMPARE(tracked(), QStringLiteral("t01t02--"));
    controller.advanceClock(1999);
    QCOMPARE(tracked(), QStringLiteral("t01t02t03-"));
    QCOMPARE(stringOf(controller, "status step_active"), QStringLiteral("cal targetlib"));

    controller.advanceClock(1);
    QCOMPARE(stringOf(controller, "status active"), QStringLiteral("none"));
    QCOMPARE(stringOf(controller, "status step_active"), QStringLiteral("none"));
    QCOMPARE(controller.getDouble(&progress, "status progress"), 0);
    QCOMPARE(progress, 1.0);
    QCOMPARE(tracked(), QStringLiteral("t01t02t03-"));

    // Stopped early, the search keeps what it found so far.
    QCOMPARE(metaReply(controller, "velora2 cal targetlib start"), Ok);
    controller.advanceClock(1500);
    QCOMPARE(metaReply(controller, "velora2 cal targetlib stop"), Ok);
    QCOMPARE(stringOf(controller, "status active"), QStringLiteral("none"));
    controller.advanceClock(5000);
    QCOMPARE(tracked(), QStringLiteral("-t02--"));
}

void tst_SimulatedController::searchRefused_data()
{
    QTest::addColumn<QString>("parameter");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("starts");

    QTest::newRow("after an error") << "status active"
                                    << "err" << true;
    QTest::newRow("while calibrating") << "status active"
                                       << "cal body" << false;
    QTest::newRow("while measuring") << "status active"
                                     << "mea" << false;
    QTest::newRow("without target library") << "cal available targetlib"
                                            << "no" << false;
}

void tst_SimulatedController::searchRefused()
{
    QFETCH(QString, parameter);
    QFETCH(QString, value);
    QFETCH(bool, starts);

    sim::SimulatedController controller;
    controller.setValue(parameter, value);
    const QString reply = metaReply(controller, "velora2 cal targetlib start");
    QCOMPARE(reply == Ok, starts);
    if (!starts)
        QVERIFY(reply.startsWith("velora2 error: "));
    QCOMPARE(controller.value("status step_active") == "cal targetlib", starts);
}

void tst_SimulatedController::lockedConfigurationRefusesChanges()
{
    sim::SimulatedController controller;
    QVERIFY(controller.loadScenario(":/scenarios/locked.scn"));
    const QMap<QString, QString> before = controller.parameters();

    for (const char *setting : { "standard number_of_bodies 5", "body desc standard b01 \"New\"",
             " tracking reference none", "tracking auto_restart no", "inertial warmup yes" })
        QCOMPARE(controller.setParameter("%s", setting), int(sim::SimulatedController::Refused));
    for (const char *command :
        { "velora2 cal targetlib start", "velora2 body switch standard b01 standard b02",
            "velora2 body calibrate_from_targetlib standard b04 GL-6",
            "velora2 set inertial sensor_default VX IMU 'A1234'" })
        QCOMPARE(metaReply(controller, command),
            QStringLiteral("velora2 error: configuration is locked"));
    // Reading and harmless commands go on.
    QCOMPARE(metaReply(controller, "velora2 cal targetlib stop"), Ok);
    QCOMPARE(metaReply(controller, "velora2 targetlib check_custom_calibration"), Ok);
    QCOMPARE(stringOf(controller, "body desc standard b01"), QStringLiteral("\"Glasses\""));
    QCOMPARE(controller.parameters(), before);

    controller.setValue("config is_changeable", "yes");
    QCOMPARE(controller.setParameter("tracking auto_restart no"), 0);
}

void tst_SimulatedController::injectedFailures_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("times");
    QTest::addColumn<QStringList>("queries");
    QTest::addColumn<QList<int>>("results");

    const QStringList twice { "status active", "status active", "status active" };
    QTest::newRow("exact, always") << "status active" << -1 << twice << QList<int> { 9, 9, 9 };
    QTest::newRow("exact, twice") << "status active" << 2 << twice << QList<int> { 9, 9, 0 };
    QTest::newRow("exact does not match longer")
        << "status" << -1 << QStringList { "status active" } << QList<int> { 0 };
    QTest::newRow("leading blank still matches")
        << "status active" << 1 << QStringList { " status active" } << QList<int> { 9 };
    QTest::newRow("prefix") << "body desc standard*" << -1
                            << QStringList { "body desc standard b01", "body desc gripwand b01",
                                   "body desc standard b04" }
                            << QList<int> { 9, 0, 9 };
    QTest::newRow("prefix once") << "body *" << 1
                                 << QStringList { "body calibrated standard b01",
                                        "body desc standard b01" }
                                 << QList<int> { 9, 0 };
    QTest::newRow("never") << "status active" << 0 << twice << QList<int> { 0, 0, 0 };
}

void tst_SimulatedController::injectedFailures()
{
    QFETCH(QString, pattern);
    QFETCH(int, times);
    QFETCH(QStringList, queries);
    QFETCH(QList<int>, results);

    sim::SimulatedController controller;
    controller.failCommand(pattern, 9, times);
    for (int i = 0; i < queries.size(); ++i) {
        char reply[Buffer];
        QCOMPARE(
            controller.getString(reply, "%s", queries.at(i).toLatin1().constData()), results.at(i));
        if (results.at(i) != 0)
            QCOMPARE(reply[0], '\0');
    }
    // Settings and meta commands fail the same way.
    controller.clearInjections();
    controller.failCommand("tracking*", 4, 1);
    QCOMPARE(controller.setParameter("tracking auto_restart no"), 4);
    QCOMPARE(controller.value("tracking auto_restart"), QStringLiteral("yes"));
    controller.failCommand("velora2 cal*", 5, 1);
    char reply[Buffer];
    QCOMPARE(controller.sendCommand(reply, "velora2 cal targetlib start"), 5);
    QCOMPARE(controller.value("status active"), QStringLiteral("none"));
}

void tst_SimulatedController::replyNeverOverrunsBuffer_data()
{
    QTest::addColumn<bool>("meta");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("unterminated");
    QTest::addColumn<QByteArray>("expected");

    const QByteArray text199(199, 'a');
    const QByteArray text200 = QByteArray(199, 'b') + 'c';
    const QByteArray long500(500, 'd');
    for (bool meta : { false, true }) {
        const char *kind = meta ? "sendCommand" : "getString";
        QTest::addRow("%s: empty", kind) << meta << QByteArray() << false << QByteArray();
        QTest::addRow("%s: malformed", kind)
            << meta << QByteArray("velora2 o\tk\x01") << false << QByteArray("velora2 o\tk\x01");
        QTest::addRow("%s: fits exactly", kind) << meta << text199 << false << text199;
        QTest::addRow("%s: one too long", kind) << meta << text200 << false << QByteArray(199, 'b');
        QTest::addRow("%s: far too long", kind) << meta << long500 << false << long500.left(199);
        QTest::addRow("%s: unterminated short", kind)
            << meta << QByteArray("yes") << true << QByteArray("yes") + QByteArray(197, ' ');
        QTest::addRow("%s: unterminated long", kind)
            << meta << long500 << true << long500.left(200);
    }
}

void tst_SimulatedController::replyNeverOverrunsBuffer()
{
    QFETCH(bool, meta);
    QFETCH(QByteArray, reply);
    QFETCH(bool, unterminated);
    QFETCH(QByteArray, expected);

    sim::SimulatedController controller;
    const char *command = meta ? "velora2 cal targetlib stop" : "status active";
    controller.replaceReply(command, reply, 1, unterminated);

    char buffer[Buffer + Guard];
    std::memset(buffer, GuardByte, sizeof buffer);
    const int result = meta ? controller.sendCommand(buffer, "%s", command)
                            : controller.getString(buffer, "%s", command);
    QCOMPARE(result, 0);
    for (int i = Buffer; i < Buffer + Guard; ++i)
        QCOMPARE(buffer[i], GuardByte);
    QCOMPARE(QByteArray(buffer, expected.size()), expected);
    if (unterminated) {
        QVERIFY(std::memchr(buffer, '\0', Buffer) == nullptr);
    } else {
        QCOMPARE(buffer[expected.size()], '\0');
    }
    // Used up: the controller answers for itself again.
    const int again = meta ? controller.sendCommand(buffer, "%s", command)
                           : controller.getString(buffer, "%s", command);
    QCOMPARE(again, 0);
    QCOMPARE(QByteArray(buffer), meta ? QByteArray("velora2 ok") : QByteArray("none"));

    // Values in the table are cut the same way.
    controller.setValue("long value", QString(1000, QChar('e')));
    std::memset(buffer, GuardByte, sizeof buffer);
    QCOMPARE(controller.getString(buffer, "long value"), 0);
    QCOMPARE(qstrlen(buffer), uint(Buffer - 1));
    QCOMPARE(buffer[Buffer], GuardByte);
}

void tst_SimulatedController::doctoredTypedReplies_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("unterminated");
    QTest::addColumn<int>("intResult");
    QTest::addColumn<int>("boolResult");

    const int invalid = sim::SimulatedController::InvalidValue;
    QTest::newRow("number") << QByteArray("12") << false << 0 << invalid;
    QTest::newRow("number in blanks") << QByteArray(" 12 ") << false << 0 << invalid;
    QTest::newRow("text") << QByteArray("twelve") << false << invalid << invalid;
    QTest::newRow("yes") << QByteArray("yes") << false << invalid << 0;
    QTest::newRow("capital yes") << QByteArray("Yes") << false << invalid << invalid;
    QTest::newRow("yes unterminated") << QByteArray("yes") << true << invalid << invalid;
}

void tst_SimulatedController::doctoredTypedReplies()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, unterminated);
    QFETCH(int, intResult);
    QFETCH(int, boolResult);

    sim::SimulatedController controller;
    controller.replaceReply("inertial available", reply, -1, unterminated);
    qint32 number = 0;
    bool flag = false;
    QCOMPARE(controller.getInt(&number, "inertial available"), intResult);
    QCOMPARE(controller.getBool(&flag, "inertial available"), boolResult);
    if (intResult == 0)
        QCOMPARE(number, 12);
}

void tst_SimulatedController::latencyMovesManualClock()
{
    sim::SimulatedController controller;
    controller.setValue("status progress", "0.000");
    controller.setManualClock(true);
    QCOMPARE(metaReply(controller, "velora2 cal targetlib start"), Ok);
    controller.setLatency(10);
    QElapsedTimer timer;
    timer.start();
    double progress = 0.0;
    for (int i = 0; i < 20; ++i)
        controller.getDouble(&progress, "status progress");
    QVERIFY(timer.elapsed() >= 200);
    // 20 calls of 10 ms in a 4000 ms search.
    QCOMPARE(progress, 0.05);
}

void tst_SimulatedController::logRecordsEveryCall()
{
    sim::SimulatedController controller;
    QSignalSpy spy(&controller, &sim::SimulatedController::logged);
    char reply[Buffer];
    qint32 number = 0;
    double fraction = 0.0;
    bool flag = false;
    controller.getString(reply, "body desc %s b%02d", "standard", 1);
    controller.getInt(&number, "standard number_of_bodies");
    controller.getDouble(&fraction, "status progress");
    controller.getBool(&flag, "status nothing");
    controller.setParameter("tracking auto_restart %s", "no");
    controller.setReplyTimeout(0, 5000, 0);
    controller.sendCommand(reply, "velora2 %s", "targetlib check_custom_calibration");
    controller.sendMessage("standard", "VELORA4", 1, "Error: report");
    controller.sendMessage("BodyCalModule", "BodyAdministrationModule", 1, "OpenBodyCalDialog");

    const QList<sim::SimulatedController::LogEntry> &log = controller.log();
    QCOMPARE(spy.count(), log.size());
    QCOMPARE(log.size(), 9);
    using Entry = sim::SimulatedController::LogEntry;
    QCOMPARE(log.at(0).kind, Entry::Query);
    QCOMPARE(log.at(0).reply, QStringLiteral("\"Glasses\""));
    QCOMPARE(log.at(3).result, int(sim::SimulatedController::UnknownParameter));
    QCOMPARE(log.at(5).kind, Entry::ReplyTimeout);
    QCOMPARE(controller.replyTimeout(), 5000);
    QCOMPARE(log.at(6).kind, Entry::Command);
    QCOMPARE(log.at(6).reply, Ok);
    QCOMPARE(log.at(8).receiver, QStringLiteral("BodyCalModule"));
    QCOMPARE(log.at(8).sender, QStringLiteral("BodyAdministrationModule"));

    QCOMPARE(controller.commands(),
        QStringList({ "body desc standard b01", "standard number_of_bodies", "status progress",
            "status nothing", "tracking auto_restart no",
            "velora2 targetlib check_custom_calibration" }));
    QCOMPARE(controller.messages(), QStringList({ "Error: report", "OpenBodyCalDialog" }));
    QCOMPARE(controller.reports(), QStringList { "Error: report" });
    controller.clearLog();
    QVERIFY(controller.log().isEmpty());
}

void tst_SimulatedController::messagesReachRegisteredReceivers()
{
    sim::SimulatedController controller;
    RecordingReceiver admin;
    RecordingReceiver other;
    controller.registerReceiver("BodyAdministrationModule", &admin);
    controller.registerReceiver("GlobalEvent", &admin);
    controller.registerReceiver("GlobalEvent", &admin); // once is enough
    controller.registerReceiver("GlobalEvent", &other);

    controller.sendMessage("GlobalEvent", "ConfigurationModule", 1, "ActiveConfigurationChanged");
    controller.sendMessage("BodyAdministrationModule", "BodyCalModule", 1, "reopen");
    controller.sendMessage("Nobody", "BodyCalModule", 1, "lost");
    controller.sendMessage("GlobalEvent", "Host", 1, nullptr);
    QCOMPARE(admin.deliveries.size(), 3);
    QCOMPARE(admin.deliveries.at(1).receiver, QStringLiteral("BodyAdministrationModule"));
    QCOMPARE(admin.deliveries.at(1).sender, QStringLiteral("BodyCalModule"));
    QCOMPARE(admin.deliveries.at(1).text, QStringLiteral("reopen"));
    QCOMPARE(other.deliveries.size(), 2);

    controller.unregisterReceiver("GlobalEvent", &admin);
    controller.sendMessage("GlobalEvent", "ConfigurationModule", 1, "ActiveConfigurationChanged");
    QCOMPARE(admin.deliveries.size(), 3);
    QCOMPARE(other.deliveries.size(), 3);
}

void tst_SimulatedController::receiversMayLeaveDuringDelivery()
{
    sim::SimulatedController controller;
    RecordingReceiver first;
    auto *second = new RecordingReceiver;
    RecordingReceiver third;
    // The first leaves and takes the second with it, as a closing dialog
    // would; the third still hears the message.
    first.onMessage = [&] {
        controller.unregisterReceiver("GlobalEvent", &first);
        controller.unregisterReceiver("GlobalEvent", second);
        delete second;
        second = nullptr;
    };
    controller.registerReceiver("GlobalEvent", &first);
    controller.registerReceiver("GlobalEvent", second);
    controller.registerReceiver("GlobalEvent", &third);

    controller.sendMessage("GlobalEvent", "Host", 1, "bye");
    QCOMPARE(first.deliveries.size(), 1);
    QCOMPARE(third.deliveries.size(), 1);
    controller.sendMessage("GlobalEvent", "Host", 1, "again");
    QCOMPARE(first.deliveries.size(), 1);
    QCOMPARE(third.deliveries.size(), 2);
}

QTEST_GUILESS_MAIN(tst_SimulatedController)
#include "tst_simulatedcontroller.moc"
