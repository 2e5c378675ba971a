// The smallest host of the tracking module: loads the installed plug-in,
// hands it the four services it asks for and prints its menu entries.

#include "minimaliomanager.h"

#include <backendversions.h>
#include <menuentry.h>
#include <moduleinterface.h>

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QPluginLoader>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    // VeloraHostApi_PLUGIN_FILE of the CMake package.
    QPluginLoader loader(QStringLiteral(TRACKING_PLUGIN_FILE));
    auto *module = qobject_cast<ModuleInterface *>(loader.instance());
    if (!module) {
        QTextStream(stderr) << loader.fileName() << ": " << loader.errorString() << '\n';
        return 1;
    }

    MinimalIOManager io; // answers from io.parameters until it has a transport
    BackendVersions versions;
    versions.backendVersion = { 1, 24, 0 }; // what the controller reports
    QMainWindow window;

    // The declared pointer types, exactly: a QVariant of any other type sets
    // the service to null. All four before the first menuEntries().
    module->setModuleProperty(
        QStringLiteral("CommandManager"), QVariant::fromValue<IOManager *>(&io));
    module->setModuleProperty(
        QStringLiteral("ModuleParent"), QVariant::fromValue<QWidget *>(&window));
    module->setModuleProperty(
        QStringLiteral("BackendVersions"), QVariant::fromValue<BackendVersions *>(&versions));
    module->setModuleProperty(QStringLiteral("ObserverMode"), false);

    out << module->moduleName() << ' ' << module->moduleVersion() << '\n';
    const QList<MenuEntry *> entries = module->menuEntries();
    for (const MenuEntry *entry : entries) {
        out << entry->menuTitle << " (" << entry->menuPosition << ") > " << entry->action->text()
            << " (" << entry->position << ')';
        if (!entry->action->shortcut().isEmpty())
            out << ' ' << entry->action->shortcut().toString();
        out << '\n';
    }

    // A real host puts the actions into its menus here and runs app.exec().
    module->shutdown();
    module->cleanup();
    return 0;
}
