#include "benchscenario.h"

#include <simulatedcontroller.h>

#include <QMap>
#include <QStringList>

namespace
{

constexpr int DefaultTargets = 8;

QString numbered(char letter, int number)
{
    return QLatin1Char(letter) + QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

void BenchScenario::apply(sim::SimulatedController &controller, const Size &size)
{
    setBodies(controller, QStringLiteral("standard"), size.standard,
        QStringLiteral("standard number_of_bodies"),
        QStringLiteral("standard max_number_of_bodies"));
    setBodies(controller, QStringLiteral("gripwand"), size.gripwands,
        QStringLiteral("gripwand number_of_devices"),
        QStringLiteral("gripwand max_number_of_devices"));
    setBodies(
        controller, QStringLiteral("multiusergripwand_head"), size.gripwands, QString(), QString());
    setBodies(controller, QStringLiteral("fingertracking"), size.hands,
        QStringLiteral("fingertracking number_of_hands"),
        QStringLiteral("fingertracking max_number_of_hands"));
    setBodies(controller, QStringLiteral("measurementtool"), size.tools,
        QStringLiteral("measurementtool number_of_tools"),
        QStringLiteral("measurementtool max_number_of_tools"));
    setBodies(controller, QStringLiteral("measurementtool_reference"), size.references,
        QStringLiteral("measurementtool number_of_references"),
        QStringLiteral("measurementtool max_number_of_references"));
    setLibrary(controller, size);
}

void BenchScenario::setBodies(sim::SimulatedController &controller, const QString &type, int count,
    const QString &countPath, const QString &maximumPath)
{
    const QString countText = QString::number(count);
    const QString countOfType = QStringLiteral("body number_of_bodies ") + type;
    const int defaults = controller.value(countOfType).toInt();
    controller.setValue(countOfType, countText);
    if (!countPath.isEmpty())
        controller.setValue(countPath, countText);
    if (!maximumPath.isEmpty() && controller.value(maximumPath).toInt() < count)
        controller.setValue(maximumPath, countText);
    if (defaults < 1)
        return;

    // Every parameter that names the type and then one of its default bodies.
    const QMap<QString, QString> table = controller.parameters();
    for (int number = defaults + 1; number <= count; ++number) {
        const QString from = numbered('b', (number - 1) % defaults + 1);
        for (auto it = table.cbegin(); it != table.cend(); ++it) {
            QStringList words = it.key().split(QLatin1Char(' '));
            const int typeAt = words.indexOf(type);
            const int bodyAt = words.indexOf(from);
            if (typeAt < 0 || bodyAt <= typeAt)
                continue;
            words[bodyAt] = numbered('b', number);
            // A library target belongs to one body only.
            const bool library = words.at(1) == QLatin1String("targetlib_name");
            controller.setValue(
                words.join(QLatin1Char(' ')), library ? QStringLiteral("none") : it.value());
        }
    }
}

void BenchScenario::setLibrary(sim::SimulatedController &controller, const Size &size)
{
    const QMap<QString, QString> table = controller.parameters();
    const QString prefix = QStringLiteral("targetlib ");
    for (int number = DefaultTargets + 1; number <= size.targets; ++number) {
        const QString from = numbered('t', (number - 1) % DefaultTargets + 1);
        const QString to = numbered('t', number);
        for (const char *name : { "target_name", "target_bodytype", "target_number_of_markers" }) {
            const QString path = prefix + QLatin1String(name) + QLatin1Char(' ');
            QString value = table.value(path + from);
            // Names must stay unique: bodies find their target by name.
            if (qstrcmp(name, "target_name") == 0)
                value.replace(
                    value.section(QLatin1Char(' '), 0, 0), QStringLiteral("'LIB-%1'").arg(number));
            controller.setValue(path + to, value);
        }
        for (const char *name : { "target_status_calibrated ", "target_status_calibrated_custom " })
            controller.setValue(prefix + QLatin1String(name) + to, QStringLiteral("none"));
    }
    controller.setValue(
        prefix + QStringLiteral("number_of_targets"), QString::number(size.targets));
    for (int number = 1; number <= size.targets; ++number)
        controller.setValue(
            prefix + QStringLiteral("target_status_tracked ") + numbered('t', number),
            number <= size.tracked ? QStringLiteral("yes") : QStringLiteral("no"));

    // Groups of equal size, in target order; the default groups keep their names.
    const int groups = qMax(1, size.groups);
    const int perGroup = (size.targets + groups - 1) / groups;
    controller.setValue(prefix + QStringLiteral("number_of_groups"), QString::number(groups));
    for (int group = 1; group <= groups; ++group) {
        const QString g = numbered('g', group);
        if (!controller.contains(prefix + QStringLiteral("group_name ") + g))
            controller.setValue(prefix + QStringLiteral("group_name ") + g,
                QStringLiteral("\"Group %1\"").arg(group));
        const int first = (group - 1) * perGroup + 1;
        const int members = qBound(0, size.targets - first + 1, perGroup);
        controller.setValue(
            prefix + QStringLiteral("number_of_group_members ") + g, QString::number(members));
        for (int m = 1; m <= members; ++m)
            controller.setValue(
                prefix + QStringLiteral("group_member %1 %2").arg(g, numbered('m', m)),
                numbered('t', first + m - 1));
    }
}
