#ifndef MENUENTRY_H
#define MENUENTRY_H

#include <QString>

class QAction;
class QDialog;

// One menu contribution of a module. The host merges entries into its menus:
// menus ordered by menuPosition, actions within a menu by position.
struct MenuEntry {
    QAction *action = nullptr; // owned by the module
    int position = 0; // place of the action in its menu
    QString menuTitle; // the menu the action belongs to
    int menuPosition = 0; // place of the menu in the menu bar
    QDialog *dialog = nullptr; // the dialog the action opens, owned by the module
    int flags = 0; // reserved
};

#endif // MENUENTRY_H
