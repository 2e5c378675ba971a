#include "menubuilder.h"

#include <QMenu>
#include <QMenuBar>
#include <QVector>

#include <algorithm>

QList<QMenu *> MenuBuilder::build(QMenuBar *menuBar, const QList<MenuEntry> &entries)
{
    struct Group {
        QString title;
        int menuPosition;
        QList<MenuEntry> entries;
    };
    QVector<Group> groups;
    for (const MenuEntry &entry : entries) {
        if (!entry.action)
            continue;
        auto group = std::find_if(groups.begin(), groups.end(),
            [&entry](const Group &g) { return g.title == entry.menuTitle; });
        if (group == groups.end()) {
            groups.append({ entry.menuTitle, entry.menuPosition, { entry } });
        } else {
            group->menuPosition = std::min(group->menuPosition, entry.menuPosition);
            group->entries.append(entry);
        }
    }
    std::stable_sort(groups.begin(), groups.end(),
        [](const Group &a, const Group &b) { return a.menuPosition < b.menuPosition; });

    QList<QMenu *> menus;
    for (Group &group : groups) {
        std::stable_sort(group.entries.begin(), group.entries.end(),
            [](const MenuEntry &a, const MenuEntry &b) { return a.position < b.position; });
        QMenu *menu = menuBar->addMenu(group.title);
        for (const MenuEntry &entry : qAsConst(group.entries))
            menu->addAction(entry.action);
        menus.append(menu);
    }
    return menus;
}
