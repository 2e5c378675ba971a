#ifndef MODULEINTERFACE_H
#define MODULEINTERFACE_H

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

struct MenuEntry;

// The contract between the host and each plug-in module. The host sets the
// module's properties, collects its menu entries, and before destroying it
// calls shutdown() and then cleanup().
class ModuleInterface
{
public:
    virtual ~ModuleInterface() = default;

    // Leave the message service; dialogs stay alive.
    virtual void shutdown() = 0;
    // Delete the module's dialogs and forget its menu entries.
    virtual void cleanup() = 0;
    virtual QString moduleName() const = 0;
    virtual QString moduleVersion() const = 0;
    // Creates the module's dialogs and actions on the first call.
    virtual QList<MenuEntry *> menuEntries() = 0;
    // Hands over one host service by name ("CommandManager", "ModuleParent",
    // "BackendVersions", "ObserverMode"); must precede menuEntries().
    virtual void setModuleProperty(const QString &name, const QVariant &value) = 0;
};

#define ModuleInterface_iid "zem.velora2.gui.Module/0.2.0"
Q_DECLARE_INTERFACE(ModuleInterface, ModuleInterface_iid)

#endif // MODULEINTERFACE_H
