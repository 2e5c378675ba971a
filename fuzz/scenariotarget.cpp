#include "scenariotarget.h"

#include <simulatedcontroller.h>

#include <QFile>
#include <QRegularExpression>

#include <cstring>

FuzzTarget *createFuzzTarget()
{
    return new ScenarioTarget;
}

namespace
{

const QString FileName = QStringLiteral("fuzz.scn");
constexpr int BufferSize = IOManager::ReplyBufferSize;
constexpr int Guard = 32;
constexpr char Sentinel = char(0xa5);
// Parameters the probe reads, beyond the fixed ones: enough to touch every
// group of a full scenario without making one run slow.
constexpr int ProbedParameters = 60;

// Another controller's life before the fuzzed file: versions, a running
// search and doctored replies that the new file must all replace.
const char *const PreviousScenario = "@backend-version 9.9.9\n"
                                     "@system-version 2.0.0\n"
                                     "@system-type ORBILUX previous\n"
                                     "@present t01\n"
                                     "@search-duration 100\n"
                                     "@fail standard number_of_bodies*\n"
                                     "@reply tracking reference = standard b09\n"
                                     "cal available targetlib = yes\n"
                                     "status active = none\n"
                                     "status step_active = none\n"
                                     "status progress = 0.000\n"
                                     "targetlib number_of_targets = 1\n"
                                     "targetlib target_name t01 = 'OLD' \"old\"\n"
                                     "targetlib target_status_tracked t01 = no\n"
                                     "standard number_of_bodies = 1\n"
                                     "body number_of_bodies standard = 1\n"
                                     "body desc standard b01 = \"old\"\n"
                                     "tracking reference = none\n";

const char *const Types[] = { "standard", "gripwand", "multiusergripwand_head", "fingertracking",
    "measurementtool", "measurementtool_reference" };

QString versionText(const BackendVersions::Version &version)
{
    return QStringLiteral("%1.%2.%3").arg(version.major).arg(version.minor).arg(version.patch);
}

QString describe(const BackendVersions &versions)
{
    return versionText(versions.backendVersion) + QLatin1Char('/')
        + versionText(versions.systemVersion) + QLatin1Char('/') + versions.systemType;
}

// A reply as the module would see it, checking that the controller wrote no
// byte past the buffer it was given.
QString guardedReply(const char *buffer, int result, const QString &command, QStringList *failures)
{
    for (int i = BufferSize; i < BufferSize + Guard; ++i) {
        if (buffer[i] != Sentinel) {
            *failures << QStringLiteral("reply to \"%1\" ran past the %2-byte buffer")
                             .arg(command)
                             .arg(BufferSize);
            break;
        }
    }
    return QStringLiteral("%1 [%2]").arg(result).arg(
        QString::fromLatin1(buffer, int(strnlen(buffer, BufferSize))));
}

QString firstDifference(const QStringList &a, const QStringList &b)
{
    for (int i = 0; i < qMax(a.size(), b.size()); ++i) {
        if (a.value(i) != b.value(i))
            return QStringLiteral("\"%1\" against \"%2\"").arg(a.value(i), b.value(i));
    }
    return QString();
}

} // namespace

QList<QByteArray> ScenarioTarget::seeds() const
{
    QList<QByteArray> seeds;
    for (const QString &name : sim::SimulatedController::builtInScenarios()) {
        QFile file(name);
        if (file.open(QIODevice::ReadOnly))
            seeds << file.readAll();
    }
    seeds << QByteArray() << "# only a comment\n\n   \n"
          << "@backend-version 1.24.0\r\n@system-type ORBILUX C2\r\nstatus active = none\r\n"
          << "standard number_of_bodies = 2\nbody number_of_bodies standard = 3\n"
          << "standard max_number_of_bodies = 2\nstandard number_of_bodies = 2147483647\n"
             "body number_of_bodies standard = 2147483647\n"
          << "gripwand number_of_devices = -5\nbody number_of_bodies gripwand = -5\n"
          << "body desc standard b01 = \"a = b\" = c\nbody desc standard b02 =\n = x\n"
          << "@backend-version 1.2\n@backend-version 1.2.3\n@backend-version 1.2.4\n"
             "@system-version 99999999999.0.0\n@search-duration 0\n@search-duration x\n"
          << "@present t01 t1 t001 tt01 t99999999999999999999\n@search-duration 1\n"
             "targetlib number_of_targets = 2\ncal available targetlib = yes\n"
             "status active = none\n"
          << "@fail *\n@reply * = \n@reply = x\n@reply velora2 * = velora2 ok\n@fail\n"
          << "velora2 cal = x\nvelora2 = y\nbody desc standard b01 = 1\n"
             "body desc standard b01 = 2\n"
          << "@unknown directive\n@\n@@\n=\n = \nno separator here\n"
          << QByteArray("body desc standard b01 = \"\xff\xfe\x00\x01\"\n", 32)
          << "tracking reference = standard b2147483648\ntracking reference = gripwand b01\n"
          << "targetlib number_of_targets = 2147483647\ncal available targetlib = yes\n"
             "status active = none\n";
    return seeds;
}

QList<QByteArray> ScenarioTarget::dictionary() const
{
    return { "@backend-version ", "@system-version ", "@system-type ", "@present ",
        "@search-duration ", "@fail ", "@reply ", " = ", " =", "#", "\r\n", "\n", "*", "1.24.0",
        "0.0.-1", "ORBILUX", "t01", "t100", "yes", "no", "none", "\"", "'",
        "standard number_of_bodies", "body number_of_bodies standard",
        "standard max_number_of_bodies", "gripwand number_of_devices",
        "body number_of_bodies gripwand", "targetlib number_of_targets", "targetlib target_name",
        "targetlib number_of_groups", "targetlib group_member g01 m01", "tracking reference",
        "standard b01", "status active", "cal available targetlib", "config is_changeable",
        "body desc standard b01", "body calibrated standard b01", "velora2 ",
        "standard fixed_angle b01", "measurementtool reference_of_tool b01",
        "inertial sensor_present VX IMU 'A1234'", "filter6d preset_id t01" };
}

QStringList ScenarioTarget::probe(sim::SimulatedController &controller, QStringList *failures)
{
    QStringList transcript;
    char buffer[BufferSize + Guard];
    const auto query = [&](const QString &path) {
        std::memset(buffer, Sentinel, sizeof buffer);
        const int result = controller.getString(buffer, "%s", path.toLatin1().constData());
        transcript << path + QLatin1String(" -> ") + guardedReply(buffer, result, path, failures);
    };
    const auto meta = [&](const QString &command) {
        std::memset(buffer, Sentinel, sizeof buffer);
        const int result = controller.sendCommand(buffer, "%s", command.toLatin1().constData());
        transcript << command + QLatin1String(" -> ")
                + guardedReply(buffer, result, command, failures);
    };
    const auto set = [&](const QString &command) {
        transcript << command + QLatin1String(" -> ")
                + QString::number(controller.setParameter("%s", command.toLatin1().constData()));
    };

    const QStringList paths = controller.parameters().keys();
    for (int i = 0; i < paths.size() && i < ProbedParameters; ++i)
        query(paths.at(i * qMax(1, paths.size() / ProbedParameters) % paths.size()));
    query(QStringLiteral("no such parameter"));
    query(QStringLiteral("tracking reference"));

    for (const char *type : Types) {
        qint32 count = -1;
        const int result = controller.getInt(&count, "body number_of_bodies %s", type);
        transcript
            << QStringLiteral("%1 bodies: %2 [%3]").arg(QLatin1String(type)).arg(result).arg(count);
    }
    double progress = -1;
    bool changeable = false;
    transcript << QStringLiteral("progress %1 %2, changeable %3 %4")
                      .arg(controller.getDouble(&progress, "status progress"))
                      .arg(progress)
                      .arg(controller.getBool(&changeable, "config is_changeable"))
                      .arg(changeable);

    // What a user of the module does: grow, shrink and empty the body lists.
    qint32 standard = -1;
    if (controller.getInt(&standard, "body number_of_bodies standard") == 0 && standard >= 0) {
        set(QStringLiteral("standard number_of_bodies %1").arg(qint64(standard) + 1));
        set(QStringLiteral("standard number_of_bodies %1").arg(standard));
        set(QStringLiteral("standard number_of_bodies 0"));
        set(QStringLiteral("standard number_of_bodies 2"));
    }
    set(QStringLiteral("gripwand number_of_devices 1"));
    set(QStringLiteral("tracking reference standard b01"));
    set(QStringLiteral("body desc standard b01 \"probe\""));
    meta(QStringLiteral("velora2 body switch standard b01 standard b02"));

    meta(QStringLiteral("velora2 cal targetlib start"));
    controller.advanceClock(500);
    query(QStringLiteral("status progress"));
    query(QStringLiteral("targetlib target_status_tracked t01"));
    controller.advanceClock(600000);
    query(QStringLiteral("status active"));
    meta(QStringLiteral("velora2 cal targetlib stop"));
    meta(QStringLiteral("velora2 targetlib check_custom_calibration"));
    QString target = controller.value(QStringLiteral("targetlib target_name t01"));
    target = target.section(QLatin1Char(' '), 0, 0).remove(QLatin1Char('\''));
    meta(QStringLiteral("velora2 body calibrate_from_targetlib standard b01 ") + target);
    meta(QStringLiteral("velora2 set inertial sensor_default VX IMU 'A1234'"));
    query(QStringLiteral("body calibrated standard b01"));
    return transcript;
}

QStringList ScenarioTarget::run(const QByteArray &input)
{
    QStringList failures;
    const QString text = QString::fromUtf8(input);

    sim::SimulatedController fresh;
    fresh.setManualClock(true);
    QStringList errors;
    const bool loaded = fresh.loadScenarioText(text, FileName, &errors);
    if (loaded != errors.isEmpty())
        failures << QStringLiteral("load answered %1 with %2 error reports")
                        .arg(loaded ? QLatin1String("true") : QLatin1String("false"))
                        .arg(errors.size());
    static const QRegularExpression report(QStringLiteral("^fuzz\\.scn:(\\d+): \\S"));
    const int lines = text.count(QLatin1Char('\n')) + 1;
    for (const QString &error : qAsConst(errors)) {
        const QRegularExpressionMatch match = report.match(error);
        const int line = match.hasMatch() ? match.captured(1).toInt() : 0;
        if (line < 1 || line > lines)
            failures << QStringLiteral("error report without a line of the file: ") + error;
    }

    sim::SimulatedController reused;
    reused.setManualClock(true);
    reused.loadScenarioText(QString::fromLatin1(PreviousScenario), QStringLiteral("previous.scn"));
    char reply[BufferSize];
    reused.sendCommand(reply, "velora2 cal targetlib start");
    reused.advanceClock(40);
    QStringList reusedErrors;
    reused.loadScenarioText(text, FileName, &reusedErrors);
    if (reusedErrors != errors)
        failures << QStringLiteral("a second load reports differently: ")
                + firstDifference(errors, reusedErrors);
    if (describe(fresh.backendVersions()) != describe(reused.backendVersions()))
        failures << QStringLiteral(
            "versions of the previous scenario survive a load: %1 against %2")
                        .arg(describe(fresh.backendVersions()), describe(reused.backendVersions()));
    const QMap<QString, QString> before = fresh.parameters();
    if (before != reused.parameters())
        failures << QStringLiteral("parameters of the previous scenario survive a load");

    const QStringList freshAnswers = probe(fresh, &failures);
    const QStringList reusedAnswers = probe(reused, &failures);
    if (freshAnswers != reusedAnswers)
        failures << QStringLiteral("a reused controller answers differently: ")
                + firstDifference(freshAnswers, reusedAnswers);
    return failures;
}

QString ScenarioTarget::knownFault(const QByteArray & /*input*/) const
{
    return QString();
}
