#include "librarytargets.h"

#include "bodymodel.h"
#include "parametertable.h"

#include <QHash>
#include <QMap>

namespace sim
{

namespace
{

QString targetPath(const char *name, const QString &id)
{
    return QStringLiteral("targetlib ") + QLatin1String(name) + QLatin1Char(' ') + id;
}

} // namespace

LibraryTargets::LibraryTargets(ParameterTable &table)
    : m_table(table)
{
}

QString LibraryTargets::targetId(int number)
{
    return ParameterTable::numberedId(QLatin1Char('t'), number);
}

QStringList LibraryTargets::idsWith(const char *parameter) const
{
    qint32 count = 0;
    ParameterTable::toInt(m_table.value(QStringLiteral("targetlib number_of_targets")), &count);
    // Target ids have at most three digits; a larger count names no more.
    count = qMin(count, 999);
    // Read from the parameters the library holds, not from its count: a
    // library may claim hundreds of targets and hold a few.
    const QString prefix = targetPath(parameter, QStringLiteral("t"));
    const QStringList paths = m_table.pathsStartingWith(prefix);
    QMap<int, QString> ids;
    for (const QString &path : paths) {
        const QString id = path.mid(prefix.size() - 1);
        const int number = ParameterTable::idNumber(QLatin1Char('t'), id);
        if (number >= 1 && number <= count)
            ids.insert(number, id);
    }
    return ids.values();
}

QString LibraryTargets::nameOf(const QString &id) const
{
    const QString text = m_table.value(targetPath("target_name", id));
    return text.section(QLatin1Char(' '), 0, 0).remove(QLatin1Char('\''));
}

QString LibraryTargets::idOfName(const QString &name) const
{
    if (name.isEmpty())
        return QString();
    const QStringList targets = idsWith("target_name");
    for (const QString &id : targets) {
        if (nameOf(id) == name)
            return id;
    }
    return QString();
}

QString LibraryTargets::bodyTypeOf(const QString &id) const
{
    return m_table.value(targetPath("target_bodytype", id)).remove(QLatin1Char('\''));
}

int LibraryTargets::markersOf(const QString &id, int fallback) const
{
    qint32 markers = 0;
    if (!ParameterTable::toInt(m_table.value(targetPath("target_number_of_markers", id)), &markers)
        || markers < 1)
        return fallback;
    return markers;
}

void LibraryTargets::setCalibratedBody(const QString &id, const QString &body)
{
    m_table.update(targetPath("target_status_calibrated", id), body);
}

void LibraryTargets::setTracked(const QString &id, bool tracked)
{
    m_table.update(targetPath("target_status_tracked", id),
        tracked ? QStringLiteral("yes") : QStringLiteral("no"));
}

void LibraryTargets::clearTracked()
{
    const QStringList targets = idsWith("target_status_tracked");
    for (const QString &id : targets)
        setTracked(id, false);
}

void LibraryTargets::checkCustomCalibration(const BodyModel &bodies)
{
    if (m_table.revision() == m_checkedRevision)
        return;
    // Per body type, the first body calibrated without the library for each
    // marker count: one pass over the bodies rather than one per target.
    QHash<QString, QHash<QString, QString>> firstByMarkers;
    const QStringList targets = idsWith("target_status_calibrated_custom");
    for (const QString &id : targets) {
        const QString path = targetPath("target_status_calibrated_custom", id);
        const QString type = bodyTypeOf(id);
        if (!firstByMarkers.contains(type)) {
            QHash<QString, QString> &first = firstByMarkers[type];
            // A table may claim more bodies than ids can name; only those exist.
            const int count = qMin(bodies.count(type), BodyModel::MaxBodyNumber);
            for (int number = count; number >= 1; --number) {
                const QString body = BodyModel::bodyText(type, number);
                const QString suffix = QLatin1Char(' ') + body;
                if (m_table.value(QStringLiteral("body calibrated") + suffix)
                        == QLatin1String("yes")
                    && m_table.value(QStringLiteral("body targetlib_name") + suffix)
                        == QLatin1String("none"))
                    first.insert(
                        m_table.value(QStringLiteral("body number_of_marker") + suffix), body);
            }
        }
        const int markers = markersOf(id, 0);
        m_table.set(path,
            markers > 0
                ? firstByMarkers[type].value(QString::number(markers), QStringLiteral("none"))
                : QStringLiteral("none"));
    }
    m_checkedRevision = m_table.revision();
}

} // namespace sim
