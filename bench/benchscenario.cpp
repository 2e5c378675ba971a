#include "benchscenario.h"

#include <simulatedcontroller.h>

#include <QMap>
#include <QStringList>

namespace
{

constexpr int DefaultBodies = 4;
constexpr int DefaultTargets = 8;
constexpr int DefaultGroups = 3;

QString numbered(char letter, int number)
{
    return QLatin1Char(letter) + QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

bool BenchScenario::setStandardBodies(sim::SimulatedController &controller, int count)
{
    controller.setValue(QStringLiteral("standard max_number_of_bodies"), QString::number(count));
    if (controller.setParameter("standard number_of_bodies %d", count) != 0)
        return false;

    // The controller makes new bodies empty; copy the defaults over them so
    // that calibrated bodies, custom filters and sensors stay in the mix.
    const QMap<QString, QString> table = controller.parameters();
    for (int number = DefaultBodies + 1; number <= count; ++number) {
        const QString from = numbered('b', (number - 1) % DefaultBodies + 1);
        const QString to = numbered('b', number);
        for (auto it = table.cbegin(); it != table.cend(); ++it) {
            QStringList words = it.key().split(QLatin1Char(' '));
            const int at = words.indexOf(from);
            if (at < 1
                || (words.at(at - 1) != QLatin1String("standard")
                    && words.at(at - 1) != QLatin1String("fixed_angle")))
                continue;
            words[at] = to;
            QString value = it.value();
            // Only one body holds a library target.
            if (words.at(1) == QLatin1String("targetlib_name"))
                value = QStringLiteral("none");
            controller.setValue(words.join(QLatin1Char(' ')), value);
        }
    }
    return true;
}

void BenchScenario::setLibraryTargets(sim::SimulatedController &controller, int count)
{
    const QMap<QString, QString> table = controller.parameters();
    const QString prefix = QStringLiteral("targetlib ");
    for (int number = DefaultTargets + 1; number <= count; ++number) {
        const QString from = numbered('t', (number - 1) % DefaultTargets + 1);
        const QString to = numbered('t', number);
        for (const char *name : { "target_name", "target_bodytype", "target_number_of_markers",
                 "target_status_tracked" }) {
            const QString path = prefix + QLatin1String(name) + QLatin1Char(' ');
            QString value = table.value(path + from);
            // Names must stay unique: bodies find their target by name.
            if (qstrcmp(name, "target_name") == 0)
                value.replace(
                    value.section(QLatin1Char(' '), 0, 0), QStringLiteral("'LIB-%1'").arg(number));
            controller.setValue(path + to, value);
        }
        controller.setValue(
            prefix + QStringLiteral("target_status_calibrated ") + to, QStringLiteral("none"));
        controller.setValue(prefix + QStringLiteral("target_status_calibrated_custom ") + to,
            QStringLiteral("none"));
    }
    controller.setValue(prefix + QStringLiteral("number_of_targets"), QString::number(count));

    // New targets join the groups in turn, after the default members.
    QMap<int, int> members;
    for (int group = 1; group <= DefaultGroups; ++group)
        members[group]
            = controller
                  .value(prefix + QStringLiteral("number_of_group_members ") + numbered('g', group))
                  .toInt();
    for (int number = DefaultTargets + 1; number <= count; ++number) {
        const int group = (number - 1) % DefaultGroups + 1;
        const int member = ++members[group];
        controller.setValue(prefix
                + QStringLiteral("group_member %1 %2")
                      .arg(numbered('g', group), numbered('m', member)),
            numbered('t', number));
    }
    for (int group = 1; group <= DefaultGroups; ++group)
        controller.setValue(
            prefix + QStringLiteral("number_of_group_members ") + numbered('g', group),
            QString::number(members.value(group)));
}
