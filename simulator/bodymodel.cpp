#include "bodymodel.h"

#include "parametertable.h"

#include <QHash>

#include <utility>

namespace sim
{

namespace
{

const QString BodyGroup = QStringLiteral("body");

// Per-body parameters that a type keeps in its own group.
QStringList ownPrefixes(const QString &type)
{
    if (type == QLatin1String("standard"))
        return { QStringLiteral("standard fixed_angle") };
    if (type == QLatin1String("gripwand"))
        return { QStringLiteral("gripwand device") };
    if (type == QLatin1String("measurementtool"))
        return { QStringLiteral("measurementtool reference_of_tool") };
    return {};
}

// Presets an inertial sensor's fusion works with; the others need optical
// data only.
bool presetFitsSensor(const QString &preset)
{
    return preset == QLatin1String("preset6d_default")
        || preset == QLatin1String("preset6d_med_pred");
}

bool isNoneOrEmpty(const QString &value)
{
    return value.isEmpty() || value == QLatin1String("none");
}

// Values that refer to a body by "type bNN".
QStringList bodyReferencePaths(const ParameterTable &table)
{
    QStringList paths { QStringLiteral("tracking reference") };
    paths += table.pathsStartingWith(QStringLiteral("targetlib target_status_calibrated"));
    return paths;
}

} // namespace

BodyModel::BodyModel(ParameterTable &table)
    : m_table(table)
{
}

QStringList BodyModel::types()
{
    static const QStringList all { QStringLiteral("standard"), QStringLiteral("gripwand"),
        QStringLiteral("multiusergripwand_head"), QStringLiteral("fingertracking"),
        QStringLiteral("measurementtool"), QStringLiteral("measurementtool_reference") };
    return all;
}

QString BodyModel::bodyId(int number)
{
    return ParameterTable::numberedId(QLatin1Char('b'), number);
}

int BodyModel::bodyNumber(const QString &id)
{
    return ParameterTable::idNumber(QLatin1Char('b'), id);
}

QString BodyModel::bodyText(const QString &type, int number)
{
    return type + QLatin1Char(' ') + bodyId(number);
}

bool BodyModel::parseBodyText(const QString &text, QString *type, int *number)
{
    const int blank = text.indexOf(QLatin1Char(' '));
    const QString word = text.left(blank);
    const int parsed = blank < 0 ? -1 : bodyNumber(text.mid(blank + 1));
    if (parsed < 0 || !types().contains(word))
        return false;
    *type = word;
    *number = parsed;
    return true;
}

QStringList BodyModel::countPaths(const QString &type)
{
    // Asked for every count the controller reads or changes.
    static const QHash<QString, QStringList> paths {
        { QStringLiteral("standard"),
            { QStringLiteral("body number_of_bodies standard"),
                QStringLiteral("standard number_of_bodies") } },
        { QStringLiteral("gripwand"),
            { QStringLiteral("body number_of_bodies gripwand"),
                QStringLiteral("gripwand number_of_devices") } },
        { QStringLiteral("multiusergripwand_head"),
            { QStringLiteral("body number_of_bodies multiusergripwand_head") } },
        { QStringLiteral("fingertracking"),
            { QStringLiteral("body number_of_bodies fingertracking"),
                QStringLiteral("fingertracking number_of_hands") } },
        { QStringLiteral("measurementtool"),
            { QStringLiteral("body number_of_bodies measurementtool"),
                QStringLiteral("measurementtool number_of_tools") } },
        { QStringLiteral("measurementtool_reference"),
            { QStringLiteral("body number_of_bodies measurementtool_reference"),
                QStringLiteral("measurementtool number_of_references") } },
    };
    const auto known = paths.constFind(type);
    return known != paths.cend() ? *known
                                 : QStringList { QStringLiteral("body number_of_bodies ") + type };
}

QString BodyModel::maximumPath(const QString &type)
{
    if (type == QLatin1String("standard"))
        return QStringLiteral("standard max_number_of_bodies");
    if (type == QLatin1String("gripwand") || type == QLatin1String("multiusergripwand_head"))
        return QStringLiteral("gripwand max_number_of_devices");
    if (type == QLatin1String("fingertracking"))
        return QStringLiteral("fingertracking max_number_of_hands");
    if (type == QLatin1String("measurementtool"))
        return QStringLiteral("measurementtool max_number_of_tools");
    if (type == QLatin1String("measurementtool_reference"))
        return QStringLiteral("measurementtool max_number_of_references");
    return QString();
}

QString BodyModel::typeOfCountPath(const QString &path)
{
    // Asked for every setting the controller takes.
    static const QHash<QString, QString> typeOfPath = [] {
        QHash<QString, QString> result;
        const QStringList all = types();
        for (const QString &type : all) {
            const QStringList paths = countPaths(type);
            for (const QString &countPath : paths)
                result.insert(countPath, type);
        }
        return result;
    }();
    return typeOfPath.value(path);
}

int BodyModel::count(const QString &type) const
{
    const QStringList paths = countPaths(type);
    for (const QString &path : paths) {
        qint32 number = 0;
        if (m_table.contains(path) && ParameterTable::toInt(m_table.value(path), &number))
            return number;
    }
    return -1;
}

int BodyModel::maximum(const QString &type) const
{
    qint32 number = -1;
    const QString path = maximumPath(type);
    if (path.isEmpty() || !ParameterTable::toInt(m_table.value(path), &number))
        return -1;
    return number;
}

bool BodyModel::exists(const QString &type, int number) const
{
    return number >= 1 && number <= count(type);
}

QList<BodyModel::OwnedPath> BodyModel::ownedPaths(const QString &type, int number) const
{
    const QString id = bodyId(number);
    QList<OwnedPath> owned;
    // Body paths read "body NAME TYPE bNN ..." in sorted order: jump from one
    // name to the next instead of reading every body's paths, as resizes and
    // exchanges of many bodies did, once per body.
    const QMap<QString, QString> &values = m_table.values();
    const QString group = BodyGroup + QLatin1Char(' ');
    const QString typeAndId = QLatin1Char(' ') + type + QLatin1Char(' ') + id;
    auto it = values.lowerBound(group);
    while (it != values.cend() && it.key().startsWith(group)) {
        const int nameEnd = it.key().indexOf(QLatin1Char(' '), group.size());
        if (nameEnd < 0) {
            ++it;
            continue;
        }
        const QString name = it.key().left(nameEnd);
        const QString body = name + typeAndId;
        for (it = values.lowerBound(body); it != values.cend() && it.key().startsWith(body); ++it) {
            if (it.key().size() == body.size() || it.key().at(body.size()) == QLatin1Char(' '))
                owned.append({ it.key().split(QLatin1Char(' ')), 3 });
        }
        // '!' follows the blank: past every path of this name.
        it = values.lowerBound(name + QLatin1Char('!'));
    }
    const QStringList prefixes = ownPrefixes(type);
    for (const QString &prefix : prefixes) {
        const int idIndex = prefix.count(QLatin1Char(' ')) + 1;
        const QStringList typePaths = m_table.pathsStartingWith(prefix + QLatin1Char(' ') + id);
        for (const QString &path : typePaths) {
            const QStringList words = path.split(QLatin1Char(' '));
            if (words.at(idIndex) == id)
                owned.append({ words, idIndex });
        }
    }
    return owned;
}

QStringList BodyModel::parameterPaths(const QString &type, int number) const
{
    QStringList paths;
    const QList<OwnedPath> owned = ownedPaths(type, number);
    for (const OwnedPath &path : owned)
        paths << path.words.join(QLatin1Char(' '));
    return paths;
}

QString BodyModel::defaultValue(
    const QString &type, const OwnedPath &path, const QString &templateValue) const
{
    if (path.words.at(0) != BodyGroup) {
        const QString prefix = path.words.mid(0, path.idIndex).join(QLatin1Char(' '));
        if (prefix == QLatin1String("standard fixed_angle"))
            return QStringLiteral("no 0.00 no 0.00 no 0.00");
        return QStringLiteral("none");
    }
    const QString &name = path.words.at(1);
    if (name == QLatin1String("desc"))
        return QStringLiteral("\"\"");
    if (name == QLatin1String("active") || name == QLatin1String("calibrated")
        || name == QLatin1String("recalibrated"))
        return QStringLiteral("no");
    if (name == QLatin1String("targetlib_name") || name == QLatin1String("inertial_sensor")
        || name == QLatin1String("target_type"))
        return QStringLiteral("none");
    if (name == QLatin1String("number_of_marker"))
        return QStringLiteral("0");
    if (name == QLatin1String("filter6d_enabled"))
        return m_table.value(QStringLiteral("filter6d available ") + type) == QLatin1String("yes")
            ? QStringLiteral("yes")
            : QStringLiteral("no");
    if (name == QLatin1String("filter6d_preset"))
        return QStringLiteral("preset6d_default");
    if (name == QLatin1String("filter6d_strength"))
        return QStringLiteral("0.50");
    if (name == QLatin1String("filter6d_prediction"))
        return QStringLiteral("0.000");
    if (name == QLatin1String("filter6d_mode")) {
        const QString firstMode = m_table.value(QStringLiteral("filter6d mode_id t01"));
        return firstMode.isEmpty() ? templateValue : firstMode;
    }
    if (name.endsWith(QLatin1String("_available")))
        return QStringLiteral("yes");
    return templateValue;
}

void BodyModel::createBody(const QString &type, int number, const QList<OwnedPath> *pattern)
{
    const QString id = bodyId(number);
    QList<OwnedPath> paths;
    if (pattern) {
        paths = *pattern;
    } else {
        // A type without bodies has no pattern to follow: take the basics.
        for (const char *name : { "desc", "active", "calibrated", "recalibrated", "targetlib_name",
                 "number_of_marker" })
            paths.append({ { BodyGroup, QLatin1String(name), type, id }, 3 });
        const QStringList prefixes = ownPrefixes(type);
        for (const QString &prefix : prefixes) {
            QStringList words = prefix.split(QLatin1Char(' '));
            const int idIndex = words.size();
            paths.append({ words << id, idIndex });
        }
    }
    for (OwnedPath path : std::as_const(paths)) {
        const QString templateValue = m_table.value(path.words.join(QLatin1Char(' ')));
        path.words[path.idIndex] = id;
        m_table.set(path.words.join(QLatin1Char(' ')), defaultValue(type, path, templateValue));
    }
}

void BodyModel::removeBody(const QString &type, int number)
{
    const QStringList paths = parameterPaths(type, number);
    for (const QString &path : paths)
        m_table.remove(path);
    dropReferences(type, number);
}

bool BodyModel::resize(const QString &type, int newCount, QString *error)
{
    const int oldCount = count(type);
    if (oldCount < 0) {
        *error = QStringLiteral("no bodies of type %1").arg(type);
        return false;
    }
    const int limit = maximum(type);
    if (newCount < 0 || (limit >= 0 && newCount > limit)) {
        *error = QStringLiteral("number of %1 bodies must be 0 to %2").arg(type).arg(limit);
        return false;
    }
    // A table may claim more bodies than ids can name; only those can exist.
    const int existing = qMin(oldCount, MaxBodyNumber);
    // New bodies follow the first one; its paths are looked up once, as a
    // count in the hundreds made that lookup per body quadratic.
    const QList<OwnedPath> pattern = existing > 0 ? ownedPaths(type, 1) : QList<OwnedPath>();
    for (int number = existing + 1; number <= qMin(newCount, MaxBodyNumber); ++number)
        createBody(type, number, existing > 0 ? &pattern : nullptr);
    for (int number = existing; number > newCount; --number)
        removeBody(type, number);
    const QStringList paths = countPaths(type);
    for (const QString &path : paths)
        m_table.update(path, QString::number(newCount));
    return true;
}

bool BodyModel::exchange(const QString &type, int first, int second, QString *error)
{
    if (!exists(type, first) || !exists(type, second)) {
        *error = QStringLiteral("no such %1 body").arg(type);
        return false;
    }
    if (first == second)
        return true;
    struct Move {
        QString from;
        QString to;
        QString value;
    };
    QList<Move> moves;
    const auto collect = [&](int from, int to) {
        const QList<OwnedPath> owned = ownedPaths(type, from);
        for (OwnedPath path : owned) {
            const QString oldPath = path.words.join(QLatin1Char(' '));
            path.words[path.idIndex] = bodyId(to);
            moves.append({ oldPath, path.words.join(QLatin1Char(' ')), m_table.value(oldPath) });
        }
    };
    collect(first, second);
    collect(second, first);
    for (const Move &move : moves)
        m_table.remove(move.from);
    for (const Move &move : moves)
        m_table.set(move.to, move.value);
    swapReferences(type, first, second);
    return true;
}

void BodyModel::swapReferences(const QString &type, int first, int second)
{
    const QString a = bodyText(type, first);
    const QString b = bodyText(type, second);
    const QStringList referencePaths = bodyReferencePaths(m_table);
    for (const QString &path : referencePaths) {
        const QString value = m_table.value(path);
        if (value == a)
            m_table.update(path, b);
        else if (value == b)
            m_table.update(path, a);
    }
    if (type != QLatin1String("measurementtool_reference"))
        return;
    // Tools name their reference by its bare number.
    const QString numberA = QString::number(first);
    const QString numberB = QString::number(second);
    const QStringList toolPaths
        = m_table.pathsStartingWith(QStringLiteral("measurementtool reference_of_tool "));
    for (const QString &path : toolPaths) {
        const QString value = m_table.value(path);
        if (value == numberA)
            m_table.update(path, numberB);
        else if (value == numberB)
            m_table.update(path, numberA);
    }
}

void BodyModel::dropReferences(const QString &type, int number)
{
    const QString body = bodyText(type, number);
    const QStringList referencePaths = bodyReferencePaths(m_table);
    for (const QString &path : referencePaths) {
        if (m_table.value(path) == body)
            m_table.update(path, QStringLiteral("none"));
    }
    if (type != QLatin1String("measurementtool_reference"))
        return;
    const QStringList toolPaths
        = m_table.pathsStartingWith(QStringLiteral("measurementtool reference_of_tool "));
    for (const QString &path : toolPaths) {
        if (m_table.value(path) == QString::number(number))
            m_table.update(path, QStringLiteral("none"));
    }
}

void BodyModel::uncalibrate(const QString &type, int number)
{
    const QString suffix = QLatin1Char(' ') + bodyText(type, number);
    m_table.update(QStringLiteral("body calibrated") + suffix, QStringLiteral("no"));
    m_table.update(QStringLiteral("body recalibrated") + suffix, QStringLiteral("no"));
    m_table.update(QStringLiteral("body active") + suffix, QStringLiteral("no"));
    m_table.update(QStringLiteral("body targetlib_name") + suffix, QStringLiteral("none"));
    m_table.update(QStringLiteral("body target_type") + suffix, QStringLiteral("none"));
    m_table.update(QStringLiteral("body number_of_marker") + suffix, QStringLiteral("0"));
    // Library targets forget the body, but it stays the reference: the
    // controller leaves that choice to the user.
    const QString body = bodyText(type, number);
    const QStringList targetPaths
        = m_table.pathsStartingWith(QStringLiteral("targetlib target_status_calibrated"));
    for (const QString &path : targetPaths) {
        if (m_table.value(path) == body)
            m_table.update(path, QStringLiteral("none"));
    }
}

void BodyModel::calibrate(const QString &type, int number, const QString &targetName, int markers)
{
    const QString suffix = QLatin1Char(' ') + bodyText(type, number);
    const bool wasCalibrated
        = m_table.value(QStringLiteral("body calibrated") + suffix) == QLatin1String("yes");
    m_table.update(QStringLiteral("body calibrated") + suffix, QStringLiteral("yes"));
    m_table.update(QStringLiteral("body recalibrated") + suffix, QStringLiteral("no"));
    m_table.update(QStringLiteral("body targetlib_name") + suffix, targetName);
    m_table.update(QStringLiteral("body target_type") + suffix, QStringLiteral("tt_std"));
    m_table.update(QStringLiteral("body number_of_marker") + suffix, QString::number(markers));
    // A body that gets its first geometry starts tracking; a re-calibrated
    // one keeps what the user chose.
    if (!wasCalibrated)
        m_table.update(QStringLiteral("body active") + suffix, QStringLiteral("yes"));
}

void BodyModel::updateFilterAvailability(const QString &type, int number)
{
    const QString suffix = QLatin1Char(' ') + bodyText(type, number);
    const bool hasSensor
        = !isNoneOrEmpty(m_table.value(QStringLiteral("body inertial_sensor") + suffix));
    const QString availablePrefix = QStringLiteral("body filter6d_preset_available") + suffix;
    const QStringList availablePaths
        = m_table.pathsStartingWith(availablePrefix + QLatin1Char(' '));
    for (const QString &path : availablePaths) {
        const QString preset = path.mid(availablePrefix.size() + 1);
        const bool available = !hasSensor || presetFitsSensor(preset);
        m_table.set(path, available ? QStringLiteral("yes") : QStringLiteral("no"));
    }
    const QString presetPath = QStringLiteral("body filter6d_preset") + suffix;
    const QString preset = m_table.value(presetPath);
    if (m_table.value(availablePrefix + QLatin1Char(' ') + preset) == QLatin1String("no"))
        m_table.update(presetPath, QStringLiteral("preset6d_default"));
}

} // namespace sim
