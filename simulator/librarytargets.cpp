#include "librarytargets.h"

#include "bodymodel.h"
#include "parametertable.h"

#include <QHash>

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
    return QStringLiteral("t%1").arg(number, 2, 10, QLatin1Char('0'));
}

QStringList LibraryTargets::ids() const
{
    qint32 count = 0;
    ParameterTable::toInt(m_table.value(QStringLiteral("targetlib number_of_targets")), &count);
    QStringList ids;
    // Target ids have at most three digits; a larger count names no more.
    for (int number = 1; number <= qMin(count, 999); ++number)
        ids << targetId(number);
    return ids;
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
    const QStringList targets = ids();
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
    const QStringList targets = ids();
    for (const QString &id : targets)
        setTracked(id, false);
}

void LibraryTargets::checkCustomCalibration(const BodyModel &bodies)
{
    // Per body type, the first body calibrated without the library for each
    // marker count: one pass over the bodies rather than one per target.
    QHash<QString, QHash<QString, QString>> firstByMarkers;
    const QStringList targets = ids();
    for (const QString &id : targets) {
        const QString path = targetPath("target_status_calibrated_custom", id);
        if (!m_table.contains(path))
            continue;
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
}

} // namespace sim
