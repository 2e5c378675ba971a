#include "trackingsettingbodyadminmodule.h"

#include "bodyadministrationdlg.h"
#include "trackingdlg.h"

#include <backendversions.h>
#include <iomanager.h>

#include <QAction>
#include <QKeySequence>
#include <QWidget>

namespace
{

constexpr int MenuPosition = 300;
constexpr int SingleMarkersPosition = 20;
constexpr int BodyAdministrationPosition = 25;

// A host service pointer: taken as it stands when the variant holds T*,
// else converted to it; null when that fails.
template<typename T> T *servicePointer(const QVariant &value)
{
    const int type = qMetaTypeId<T *>();
    if (value.userType() == type)
        return value.value<T *>();
    QVariant converted(value);
    return converted.convert(type) ? converted.value<T *>() : nullptr;
}

QWidget *widgetPointer(const QVariant &value)
{
    QObject *object = nullptr;
    if (QMetaType::typeFlags(value.userType()) & QMetaType::PointerToQObject) {
        object = value.value<QObject *>();
    } else {
        QVariant converted(value);
        if (converted.convert(qMetaTypeId<QWidget *>()))
            object = converted.value<QWidget *>();
    }
    return qobject_cast<QWidget *>(object);
}

void fillEntry(
    MenuEntry &entry, QAction *action, int position, QDialog *dialog, const QString &menuTitle)
{
    entry.action = action;
    entry.position = position;
    entry.menuTitle = menuTitle;
    entry.menuPosition = MenuPosition;
    entry.dialog = dialog;
    entry.flags = 0;
}

} // namespace

TrackingSettingBodyAdminModule::TrackingSettingBodyAdminModule() = default;

// The dialogs are the host's to release through cleanup().
TrackingSettingBodyAdminModule::~TrackingSettingBodyAdminModule() = default;

// Hosts call shutdown(), cleanup() and menuEntries() in any order and more
// than once: the dialog leaves the message service at most once, itself
// when it is deleted.
void TrackingSettingBodyAdminModule::shutdown()
{
    if (auto *dialog = qobject_cast<BodyAdministrationDlg *>(adminDialog.data()))
        dialog->unsubscribe();
}

void TrackingSettingBodyAdminModule::cleanup()
{
    delete trackingDialog.data();
    singleMarkersEntry.dialog = nullptr;
    delete adminDialog.data();
    bodyAdministrationEntry.dialog = nullptr;
    entries.clear();
}

QString TrackingSettingBodyAdminModule::moduleName() const
{
    return tr("GUI Settings Tracking");
}

QString TrackingSettingBodyAdminModule::moduleVersion() const
{
    return QStringLiteral("v%1.%2.%3").arg(3).arg(0).arg(5);
}

QList<MenuEntry *> TrackingSettingBodyAdminModule::menuEntries()
{
    if (!entries.isEmpty())
        return entries;

    // After a cleanup() the actions are still in the host's menus: keep them
    // and connect them to the new dialogs.
    auto *tracking = new TrackingDlg(ioManager, moduleParent, backendVersions, moduleVersion());
    trackingDialog = tracking;
    QAction *singleMarkers
        = singleMarkersEntry.action ? singleMarkersEntry.action : new QAction(this);
    fillEntry(singleMarkersEntry, singleMarkers, SingleMarkersPosition, tracking, tr("&Tracking"));
    const QString singleMarkersHelp = tr("Change settings of the 6DOF standard bodies and the 3DOF "
                                         "markers and body administration");
    singleMarkers->setText(tr("&Single markers"));
    singleMarkers->setStatusTip(singleMarkersHelp);
    singleMarkers->setWhatsThis(singleMarkersHelp);
    connect(singleMarkers, &QAction::triggered, tracking, &TrackingDlg::update_and_exec);
    entries.append(&singleMarkersEntry);

    auto *admin = new BodyAdministrationDlg(ioManager, moduleParent, backendVersions);
    adminDialog = admin;
    QAction *bodyAdministration
        = bodyAdministrationEntry.action ? bodyAdministrationEntry.action : new QAction(this);
    fillEntry(bodyAdministrationEntry, bodyAdministration, BodyAdministrationPosition, admin,
        tr("&Tracking"));
    const QString bodyAdministrationHelp = tr("Settings of all bodies");
    bodyAdministration->setText(tr("&Body administration"));
    bodyAdministration->setShortcut(QKeySequence(tr("F8")));
    bodyAdministration->setStatusTip(bodyAdministrationHelp);
    bodyAdministration->setWhatsThis(bodyAdministrationHelp);
    connect(
        bodyAdministration, &QAction::triggered, admin, &BodyAdministrationDlg::update_and_exec);
    entries.append(&bodyAdministrationEntry);

    return entries;
}

void TrackingSettingBodyAdminModule::setModuleProperty(const QString &name, const QVariant &value)
{
    if (name == QLatin1String("CommandManager")) {
        ioManager = servicePointer<IOManager>(value);
    } else if (name == QLatin1String("ModuleParent")) {
        moduleParent = widgetPointer(value);
    } else if (name == QLatin1String("BackendVersions")) {
        backendVersions = servicePointer<BackendVersions>(value);
    } else if (name == QLatin1String("ObserverMode")) {
        QVariant converted(value);
        observerMode = value.userType() == QMetaType::Bool
            ? value.toBool()
            : converted.convert(QMetaType::Bool) && converted.toBool();
    }
}
