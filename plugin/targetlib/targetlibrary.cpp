#include "targetlibrary.h"

#include "target.h"

Targetlibrary::Targetlibrary(
    IOManager *ioManager, BackendVersions *backendVersions, QObject *parent)
    : QObject(parent)
    , ioManager(ioManager)
    , backendVersions(backendVersions)
    , channel(ioManager, backendVersions)
{
    loadTargets();
    loadGroups();
    assignGroups();
}

QString Targetlibrary::groupOf(const QString &id) const
{
    return groups.value(id);
}

QString Targetlibrary::descriptionOf(const QString &id) const
{
    const Target *t = targets.value(id);
    return t ? t->description : QString();
}

QString Targetlibrary::idOfName(const QString &name) const
{
    if (name.isEmpty())
        return QString();
    for (const Target *t : targets) {
        if (t->name == name)
            return t->id;
    }
    return QString();
}

void Targetlibrary::loadTargets()
{
    int count = 0;
    channel.getCount(QStringLiteral("targetlib number_of_targets"), &count);
    for (int i = 1; i <= count; ++i) {
        const QString id = CommandText::targetId(i);
        QString reply;
        if (channel.getString(QStringLiteral("targetlib target_name %1").arg(id), &reply) != 0) {
            channel.report(QStringLiteral("Error: Unable to get target name"));
            continue;
        }
        // "'GT1' \"Glasses Target 1\"": the short name, then the description.
        const int blank = reply.indexOf(QLatin1Char(' '));
        const QString name = CommandText::withoutSingleQuotes(reply.left(blank));
        const QString description
            = blank < 0 ? QString() : CommandText::withoutDoubleQuotes(reply.mid(blank + 1));

        QString status;
        if (channel.getString(
                QStringLiteral("targetlib target_status_calibrated %1").arg(id), &status)
            != 0)
            status = CommandText::none();

        QString bodyType;
        if (channel.getString(QStringLiteral("targetlib target_bodytype %1").arg(id), &bodyType)
            != 0) {
            channel.report(QStringLiteral("Error: Unable to get body type"));
            bodyType = CommandText::none();
        }

        delete targets.value(id);
        targets.insert(id,
            new Target(id, name, description, CommandText::withoutSingleQuotes(bodyType),
                !CommandText::isNone(status), this));
    }
}

void Targetlibrary::loadGroups()
{
    int count = 0;
    channel.getCount(QStringLiteral("targetlib number_of_groups"), &count);
    for (int g = 1; g <= count; ++g) {
        const QString group = CommandText::groupId(g);
        QString groupName;
        if (channel.getString(QStringLiteral("targetlib group_name %1").arg(group), &groupName)
            != 0) {
            channel.report(QStringLiteral("Error: Unable to get group name"));
            continue;
        }
        groupName = CommandText::withoutDoubleQuotes(groupName);

        int members = 0;
        if (channel.getCount(
                QStringLiteral("targetlib number_of_group_members %1").arg(group), &members)
            != 0)
            continue;
        for (int m = 1; m <= members; ++m) {
            QString member;
            if (channel.getString(QStringLiteral("targetlib group_member %1 %2")
                                      .arg(group, CommandText::memberId(m)),
                    &member)
                == 0)
                groups.insert(member, groupName);
        }
    }
}

void Targetlibrary::assignGroups()
{
    for (Target *t : qAsConst(targets)) {
        const auto group = groups.constFind(t->id);
        if (group != groups.constEnd())
            t->group = *group;
    }
}
