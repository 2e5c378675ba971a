#include "settingrules.h"

#include "bodymodel.h"
#include "parametertable.h"

#include <QSet>

namespace sim
{

namespace
{

const QString Yes = QStringLiteral("yes");
const QString None = QStringLiteral("none");

QStringList valuesUnder(const ParameterTable &table, const QString &prefix)
{
    QStringList values;
    const QStringList paths = table.pathsStartingWith(prefix);
    for (const QString &path : paths)
        values << table.value(path);
    return values;
}

bool withinLimits(const ParameterTable &table, const QString &value, const QString &minimumPath,
    const QString &maximumPath)
{
    double number = 0.0;
    if (!ParameterTable::toDouble(value, &number))
        return false;
    double limit = 0.0;
    if (ParameterTable::toDouble(table.value(minimumPath), &limit) && number < limit)
        return false;
    if (ParameterTable::toDouble(table.value(maximumPath), &limit) && number > limit)
        return false;
    return true;
}

bool isKnownSensor(const ParameterTable &table, const QString &sensor)
{
    return table.contains(QStringLiteral("inertial sensor_present ") + sensor);
}

// "yes 5.00 no 0.00 no 0.00": a flag and an angle for each axis.
bool isFixedAngle(const QString &value)
{
    const QStringList fields = value.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (fields.size() != 6)
        return false;
    for (int i = 0; i < fields.size(); i += 2) {
        if (!ParameterTable::isYesNo(fields.at(i)) || !ParameterTable::isNumber(fields.at(i + 1)))
            return false;
    }
    return true;
}

bool isVector(const QString &value)
{
    const QStringList fields = value.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (fields.size() != 3)
        return false;
    for (const QString &field : fields) {
        if (!ParameterTable::isNumber(field))
            return false;
    }
    return true;
}

SettingRules::Outcome invalid(QString *error, const QString &reason)
{
    *error = reason;
    return SettingRules::InvalidValue;
}

} // namespace

SettingRules::SettingRules(ParameterTable &table, BodyModel &bodies)
    : m_table(table)
    , m_bodies(bodies)
{
}

bool SettingRules::isLocked(const ParameterTable &table)
{
    return table.value(QStringLiteral("config is_changeable")) == QLatin1String("no");
}

bool SettingRules::isReadOnly(const QString &path)
{
    static const QSet<QString> readOnlyGroups { QStringLiteral("status"),
        QStringLiteral("targetlib"), QStringLiteral("filter6d"), QStringLiteral("config"),
        QStringLiteral("cal"), QStringLiteral("zemwpan") };
    static const QSet<QString> readOnlyBody { QStringLiteral("type_desc"),
        QStringLiteral("calibrated"), QStringLiteral("recalibrated"),
        QStringLiteral("targetlib_name"), QStringLiteral("target_type") };
    static const QSet<QString> readOnlyInertial { QStringLiteral("sensor_present"),
        QStringLiteral("sensor_has_storage"), QStringLiteral("sensor_model_desc") };
    const QStringList words = path.split(QLatin1Char(' '));
    if (readOnlyGroups.contains(words.at(0)))
        return true;
    for (const QString &word : words) {
        if (word == QLatin1String("available") || word.endsWith(QLatin1String("_available"))
            || word.startsWith(QLatin1String("max_number_of")))
            return true;
    }
    if (words.size() < 2)
        return false;
    const QString &group = words.at(0);
    const QString &name = words.at(1);
    return (group == QLatin1String("body") && readOnlyBody.contains(name))
        || (group == QLatin1String("inertial") && readOnlyInertial.contains(name))
        || (group == QLatin1String("gripwand") && name == QLatin1String("device"));
}

SettingRules::Outcome SettingRules::apply(const QString &command, QString *error)
{
    QString path;
    QString value;
    if (!m_table.split(command, &path, &value)) {
        if (!path.isEmpty())
            return invalid(error, QStringLiteral("no value for %1").arg(path));
        *error = QStringLiteral("unknown parameter");
        return UnknownParameter;
    }
    if (isLocked(m_table)) {
        *error = QStringLiteral("configuration is locked");
        return Refused;
    }
    if (isReadOnly(path)) {
        *error = QStringLiteral("%1 is read-only").arg(path);
        return Refused;
    }
    const Outcome outcome = validate(path, value, error);
    if (outcome != Accepted)
        return outcome;

    const QString type = BodyModel::typeOfCountPath(path);
    if (!type.isEmpty()) {
        if (!m_bodies.resize(type, value.toInt(), error))
            return InvalidValue;
        if (type == QLatin1String("gripwand"))
            followGripwandCount();
        return Accepted;
    }
    m_table.set(path, value);
    applyEffects(path, value);
    return Accepted;
}

SettingRules::Outcome SettingRules::validate(
    const QString &path, const QString &value, QString *error) const
{
    const QStringList words = path.split(QLatin1Char(' '));
    if (!BodyModel::typeOfCountPath(path).isEmpty()) {
        qint32 count = 0;
        if (!ParameterTable::toInt(value, &count) || count < 0)
            return invalid(error, QStringLiteral("not a number of bodies: %1").arg(value));
        return Accepted;
    }
    if (words.size() >= 4 && words.at(0) == QLatin1String("body")) {
        const int number = BodyModel::bodyNumber(words.at(3));
        if (number > 0)
            return validateBodySetting(words.at(1), words.at(2), number, value, error);
    }
    if (path == QLatin1String("tracking reference")) {
        QString type;
        int number = 0;
        if (value == None)
            return Accepted;
        if (!BodyModel::parseBodyText(value, &type, &number) || type != QLatin1String("standard")
            || !m_bodies.exists(type, number))
            return invalid(error, QStringLiteral("no standard body %1").arg(value));
        return Accepted;
    }
    if (path == QLatin1String("inertial warmup")) {
        if (m_table.value(QStringLiteral("inertial available")) != Yes) {
            *error = QStringLiteral("inertial tracking not available");
            return Refused;
        }
    }
    if (path == QLatin1String("gripwand multiuser")
        || path == QLatin1String("gripwand multiuser_with_head")) {
        if (value == Yes && m_table.value(path + QStringLiteral("_available")) != Yes) {
            *error = QStringLiteral("%1 not available").arg(path);
            return Refused;
        }
    }
    if (path.startsWith(QLatin1String("standard fixed_angle ")) && !isFixedAngle(value))
        return invalid(error, QStringLiteral("expected three flags with angles"));
    if (path == QLatin1String("tracking axis_5dof_central") && !isVector(value))
        return invalid(error, QStringLiteral("expected three numbers"));
    if (path == QLatin1String("tracking pulse")) {
        const QString mode = value.section(QLatin1Char(' '), 0, 0);
        const QString argument = value.section(QLatin1Char(' '), 1);
        const bool ok = (mode == QLatin1String("synchronous_cameras") && argument.isEmpty())
            || (mode == QLatin1String("inertial_sensor") && isKnownSensor(m_table, argument))
            || (mode == QLatin1String("frequency") && argument.toDouble() > 0.0);
        return ok ? Accepted : invalid(error, QStringLiteral("bad pulse setting"));
    }
    if (path.startsWith(QLatin1String("measurementtool reference_of_tool "))) {
        qint32 reference = 0;
        if (value == None)
            return Accepted;
        if (!ParameterTable::toInt(value, &reference)
            || !m_bodies.exists(QStringLiteral("measurementtool_reference"), reference))
            return invalid(error, QStringLiteral("no measurement tool reference %1").arg(value));
        return Accepted;
    }

    // Whatever else: a yes/no stays yes/no, a number stays a number.
    const QString current = m_table.value(path);
    if (ParameterTable::isYesNo(current) && !ParameterTable::isYesNo(value))
        return invalid(error, QStringLiteral("expected yes or no"));
    if (ParameterTable::isNumber(current) && value != None && !ParameterTable::isNumber(value))
        return invalid(error, QStringLiteral("expected a number"));
    return Accepted;
}

SettingRules::Outcome SettingRules::validateBodySetting(const QString &name, const QString &type,
    int number, const QString &value, QString *error) const
{
    const QString suffix = QLatin1Char(' ') + BodyModel::bodyText(type, number);
    const QString current = m_table.value(QStringLiteral("body ") + name + suffix);
    if (ParameterTable::isYesNo(current) && !ParameterTable::isYesNo(value))
        return invalid(error, QStringLiteral("expected yes or no"));

    if (name == QLatin1String("desc")) {
        // Free text, quotes and all.
    } else if (name == QLatin1String("active")) {
        const QString calibrated = QStringLiteral("body calibrated") + suffix;
        if (value == Yes && m_table.contains(calibrated) && m_table.value(calibrated) != Yes) {
            *error = QStringLiteral("body has no geometry");
            return Refused;
        }
    } else if (name == QLatin1String("number_of_marker")) {
        // Markers come from a calibration; a setting can only clear them.
        if (value != QLatin1String("0"))
            return invalid(error, QStringLiteral("only 0 markers can be set"));
    } else if (name == QLatin1String("inertial_sensor")) {
        if (value != None && !isKnownSensor(m_table, value))
            return invalid(error, QStringLiteral("unknown sensor %1").arg(value));
    } else if (name == QLatin1String("filter6d_preset") || name == QLatin1String("filter6d_mode")) {
        const bool preset = name == QLatin1String("filter6d_preset");
        const QStringList known = valuesUnder(m_table,
            preset ? QStringLiteral("filter6d preset_id ") : QStringLiteral("filter6d mode_id "));
        const QString availability = QStringLiteral("body ") + name + QStringLiteral("_available")
            + suffix + QLatin1Char(' ') + value;
        if (!known.contains(value) || m_table.value(availability) == QLatin1String("no"))
            return invalid(error, QStringLiteral("%1 not available for this body").arg(value));
    } else if (name == QLatin1String("filter6d_strength")) {
        if (!withinLimits(m_table, value, QStringLiteral("filter6d limit strength_min"),
                QStringLiteral("filter6d limit strength_max")))
            return invalid(error, QStringLiteral("strength out of range"));
    } else if (name == QLatin1String("filter6d_prediction")) {
        if (!withinLimits(m_table, value, QStringLiteral("filter6d limit prediction_min"),
                QStringLiteral("filter6d limit prediction_max")))
            return invalid(error, QStringLiteral("prediction out of range"));
    } else if (ParameterTable::isNumber(current) && !ParameterTable::isNumber(value)) {
        return invalid(error, QStringLiteral("expected a number"));
    }
    return Accepted;
}

void SettingRules::applyEffects(const QString &path, const QString &value)
{
    const QStringList words = path.split(QLatin1Char(' '));
    if (words.size() >= 4 && words.at(0) == QLatin1String("body")) {
        const QString &type = words.at(2);
        const int number = BodyModel::bodyNumber(words.at(3));
        if (words.at(1) == QLatin1String("number_of_marker"))
            m_bodies.uncalibrate(type, number);
        else if (words.at(1) == QLatin1String("inertial_sensor"))
            m_bodies.updateFilterAvailability(type, number);
        return;
    }
    if (path == QLatin1String("gripwand multiuser_with_head") && value == Yes)
        followGripwandCount();
}

void SettingRules::followGripwandCount()
{
    const QString head = QStringLiteral("multiusergripwand_head");
    const int gripwands = m_bodies.count(QStringLiteral("gripwand"));
    if (m_table.value(QStringLiteral("gripwand multiuser_with_head")) != Yes
        || m_bodies.count(head) < 0 || gripwands < 0)
        return;
    QString ignored;
    m_bodies.resize(head, gripwands, &ignored);
}

} // namespace sim
