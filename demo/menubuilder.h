#ifndef MENUBUILDER_H
#define MENUBUILDER_H

#include <menuentry.h>

#include <QList>

class QMenu;
class QMenuBar;

// Merges menu contributions into a menu bar: one menu per title, menus
// ordered by the lowest menuPosition among their entries, actions within a
// menu by position. Ties keep the order the entries came in.
class MenuBuilder
{
public:
    // Returns the menus it added, in menu-bar order.
    static QList<QMenu *> build(QMenuBar *menuBar, const QList<MenuEntry> &entries);
};

#endif // MENUBUILDER_H
