#include "metacommands.h"

#include "bodymodel.h"
#include "librarytargets.h"
#include "parametertable.h"
#include "settingrules.h"
#include "targetsearch.h"

namespace sim
{

namespace
{

// A body calibrated from a library entry that does not say how many
// markers it has still gets a believable geometry.
constexpr int FallbackMarkers = 4;

bool startsWithWords(const QStringList &words, std::initializer_list<const char *> prefix)
{
    if (words.size() < int(prefix.size()))
        return false;
    int i = 0;
    for (const char *word : prefix) {
        if (words.at(i++) != QLatin1String(word))
            return false;
    }
    return true;
}

} // namespace

MetaCommands::MetaCommands(
    ParameterTable &table, BodyModel &bodies, LibraryTargets &targets, TargetSearch &search)
    : m_table(table)
    , m_bodies(bodies)
    , m_targets(targets)
    , m_search(search)
{
}

QString MetaCommands::ok()
{
    return QStringLiteral("velora2 ok");
}

QString MetaCommands::error(const QString &reason)
{
    return QStringLiteral("velora2 error: ") + reason;
}

QString MetaCommands::execute(const QString &command, qint64 now)
{
    const QStringList words = command.split(QLatin1Char(' '));
    if (words.at(0) != QLatin1String("velora2"))
        return error(QStringLiteral("not a meta command"));

    m_search.update(now);
    // Stopping and checking change no configuration, so a lock allows them.
    if (command == QLatin1String("velora2 cal targetlib stop")) {
        m_search.stop(now);
        return ok();
    }
    if (command == QLatin1String("velora2 targetlib check_custom_calibration"))
        return checkCustomCalibration();

    const bool known = command == QLatin1String("velora2 cal targetlib start")
        || startsWithWords(words, { "velora2", "body", "switch" })
        || startsWithWords(words, { "velora2", "body", "calibrate_from_targetlib" })
        || startsWithWords(words, { "velora2", "set", "inertial", "sensor_default" });
    if (!known)
        return error(QStringLiteral("unknown command"));
    if (SettingRules::isLocked(m_table))
        return error(QStringLiteral("configuration is locked"));

    if (command == QLatin1String("velora2 cal targetlib start")) {
        const QString reason = m_search.start(now);
        return reason.isEmpty() ? ok() : error(reason);
    }
    if (words.at(2) == QLatin1String("switch"))
        return switchBodies(words);
    if (words.at(2) == QLatin1String("calibrate_from_targetlib"))
        return calibrateFromLibrary(words);
    // The sensor id runs to the end of the line: it may hold blanks.
    return setSensorDefault(words.mid(4).join(QLatin1Char(' ')));
}

bool MetaCommands::searchRunning() const
{
    return m_table.value(QStringLiteral("status active")).startsWith(QLatin1String("cal"));
}

QString MetaCommands::switchBodies(const QStringList &words)
{
    // velora2 body switch T bA T bB
    if (words.size() != 7)
        return error(QStringLiteral("expected two bodies"));
    QString firstType;
    QString secondType;
    int first = 0;
    int second = 0;
    if (!BodyModel::parseBodyText(words.mid(3, 2).join(QLatin1Char(' ')), &firstType, &first)
        || !BodyModel::parseBodyText(words.mid(5, 2).join(QLatin1Char(' ')), &secondType, &second))
        return error(QStringLiteral("bad body id"));
    if (firstType != secondType)
        return error(QStringLiteral("bodies of different types cannot be switched"));
    QString reason;
    return m_bodies.exchange(firstType, first, second, &reason) ? ok() : error(reason);
}

QString MetaCommands::calibrateFromLibrary(const QStringList &words)
{
    // velora2 body calibrate_from_targetlib T bNN NAME
    if (words.size() != 6)
        return error(QStringLiteral("expected a body and a target name"));
    QString type;
    int number = 0;
    if (!BodyModel::parseBodyText(words.mid(3, 2).join(QLatin1Char(' ')), &type, &number)
        || !m_bodies.exists(type, number))
        return error(QStringLiteral("no such body"));
    const QString id = m_targets.idOfName(words.at(5));
    if (id.isEmpty())
        return error(QStringLiteral("unknown target %1").arg(words.at(5)));
    if (searchRunning())
        return error(QStringLiteral("calibration running"));

    // The body's previous library target is free again.
    const QString body = BodyModel::bodyText(type, number);
    const QString previous
        = m_targets.idOfName(m_table.value(QStringLiteral("body targetlib_name ") + body));
    if (!previous.isEmpty()
        && m_table.value(QStringLiteral("targetlib target_status_calibrated ") + previous) == body)
        m_targets.setCalibratedBody(previous, QStringLiteral("none"));

    m_bodies.calibrate(
        type, number, m_targets.nameOf(id), m_targets.markersOf(id, FallbackMarkers));
    m_targets.setCalibratedBody(id, body);
    return ok();
}

QString MetaCommands::setSensorDefault(const QString &sensor)
{
    if (!m_table.contains(QStringLiteral("inertial sensor_present ") + sensor))
        return error(QStringLiteral("unknown sensor %1").arg(sensor));
    if (m_table.value(QStringLiteral("inertial sensor_present ") + sensor) != QLatin1String("yes"))
        return error(QStringLiteral("sensor not connected"));
    if (m_table.value(QStringLiteral("inertial warmup")) == QLatin1String("yes"))
        return error(QStringLiteral("sensors are warming up"));
    if (m_table.value(QStringLiteral("inertial sensor_has_storage ") + sensor)
        != QLatin1String("yes"))
        return error(QStringLiteral("sensor has no storage"));
    // The sensor's own memory holds its hand-eye calibration.
    m_table.update(
        QStringLiteral("inertial sensor_handeye ") + sensor, QStringLiteral("available"));
    return ok();
}

QString MetaCommands::checkCustomCalibration()
{
    if (searchRunning())
        return error(QStringLiteral("calibration running"));
    m_targets.checkCustomCalibration(m_bodies);
    return ok();
}

} // namespace sim
