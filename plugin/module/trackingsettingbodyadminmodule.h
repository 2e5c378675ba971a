#ifndef TRACKING_TRACKINGSETTINGBODYADMINMODULE_H
#define TRACKING_TRACKINGSETTINGBODYADMINMODULE_H

#include <menuentry.h>
#include <moduleinterface.h>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QtPlugin>

#include <mutex>

// The host may ask for the module object from more than one thread at once:
// create it under a lock, once, and hand out the same object after that.
#undef Q_PLUGIN_INSTANCE
#define Q_PLUGIN_INSTANCE(IMPLEMENTATION)                                                          \
    {                                                                                              \
        static std::mutex creation;                                                                \
        static QPointer<QObject> instance;                                                         \
        const std::lock_guard<std::mutex> lock(creation);                                          \
        if (!instance) {                                                                           \
            QT_PLUGIN_RESOURCE_INIT                                                                \
            instance = new IMPLEMENTATION;                                                         \
        }                                                                                          \
        return instance;                                                                           \
    }

class IOManager;
class QDialog;
class QWidget;
struct BackendVersions;

// The object the host loads: contributes the "&Tracking" menu with the single
// marker settings and the body administration, and owns both dialogs.
class TrackingSettingBodyAdminModule : public QObject, public ModuleInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zem.Velora2.TrackingSettingsModule")
    Q_INTERFACES(ModuleInterface)

public:
    TrackingSettingBodyAdminModule();
    ~TrackingSettingBodyAdminModule() override;

    void shutdown() override;
    void cleanup() override;
    QString moduleName() const override;
    QString moduleVersion() const override;
    QList<MenuEntry *> menuEntries() override;
    void setModuleProperty(const QString &name, const QVariant &value) override;

    // The services the host handed over, as stored.
    IOManager *commandManager() const { return ioManager; }
    QWidget *parentWidget() const { return moduleParent; }
    BackendVersions *versions() const { return backendVersions; }
    bool isObserverMode() const { return observerMode; }

private:
    QWidget *moduleParent = nullptr;
    QList<MenuEntry *> entries;
    MenuEntry singleMarkersEntry;
    MenuEntry bodyAdministrationEntry;
    IOManager *ioManager = nullptr;
    BackendVersions *backendVersions = nullptr;
    bool observerMode = false;
    // The dialogs are children of the host's widget, which may delete them
    // before cleanup() does.
    QPointer<QDialog> trackingDialog;
    QPointer<QDialog> adminDialog;
};

#endif // TRACKING_TRACKINGSETTINGBODYADMINMODULE_H
