// A host and a user doing things in any order: the module's properties and
// lifecycle calls, the menu actions with everything in the dialogs clicked
// and typed into, body operations on every tab, hand-overs and the messages
// of other modules, and the fixed-angle dialog with its table; from any
// step on, the controller may refuse a group of commands.
#include "fuzzing.h"

#include <bodyadministrationdlg.h>
#include <bodytypeadministrationtab.h>
#include <fixedangledlg.h>
#include <menuentry.h>
#include <simulatedcontroller.h>
#include <trackingsettingbodyadminmodule.h>

#include <QAction>
#include <QApplication>

namespace
{

const char *const Scenarios[] = { "default", "locked", "old", "orbilux", "failures" };
// Commands the controller refuses from a step on, once or for good.
const char *const Refused[] = { "*", "body *", "inertial *", "tracking *", "velora2 *",
    "targetlib *", "filter6d *", "standard *", "config *", "status *" };
const char *const Types[] = { "standard", "gripwand", "multiusergripwand_head", "fingertracking",
    "measurementtool", "measurementtool_reference" };
const char *const Receivers[] = { "BodyAdministrationModule", "GlobalEvent", "BodyCalModule" };
const char *const Senders[] = { "ConfigurationModule", "BodyCalModule", "BodyAdjustmentModule" };
const char *const Texts[] = { "reopen", "bodycalibration available", "bodyadjustment available",
    "ActiveConfigurationChanged", "reopen ", "Bodycalibration available" };

void setProperty(TrackingSettingBodyAdminModule &module, sim::SimulatedController &controller,
    QWidget *parent, FuzzBytes &bytes)
{
    static const char *const names[]
        = { "CommandManager", "ModuleParent", "BackendVersions", "ObserverMode", "Unknown" };
    const QVariant values[]
        = { QVariant::fromValue<IOManager *>(&controller), QVariant::fromValue(parent),
              QVariant::fromValue(&controller.backendVersions()), QVariant(true),
              QVariant(QStringLiteral("text")), QVariant::fromValue<QObject *>(qApp), QVariant() };
    module.setModuleProperty(names[bytes.pick(5)], values[bytes.pick(7)]);
    // A value of the wrong type is refused, never stored as another thing.
    Fuzzing::require((!module.commandManager() || module.commandManager() == &controller)
            && (!module.versions() || module.versions() == &controller.backendVersions())
            && (!module.parentWidget() || module.parentWidget() == parent),
        "a property holds what the host never gave");
}

void bodyOperation(BodyTypeAdministrationTab *tab, FuzzBytes &bytes)
{
    const QString type = QLatin1String(Types[bytes.pick(6)]);
    const BodyTypeEntry *entry
        = tab ? static_cast<const BodyTypeAdministrationTab *>(tab)->entry(type) : nullptr;
    if (!entry)
        return;
    const int count = entry->bodies.size();
    const int operation = count == 0 ? 5 : bytes.pick(6);
    const int index = bytes.pick(count);
    switch (operation) {
    case 0:
        tab->setBodyActive(type, index, bytes.pick(2));
        break;
    case 1:
        tab->setBodyDescription(type, index, QString::fromLatin1(bytes.text(120)));
        break;
    case 2:
        tab->resetBody(type, index);
        break;
    case 3:
        tab->deleteBody(type, index);
        break;
    case 4:
        tab->switchBodies(type, index, bytes.pick(count));
        break;
    default:
        tab->setNumberOfBodies(type, bytes.pick(qMax(0, tab->maxNumberOfBodies(type)) + 1));
    }
}

// As a host starts the module: every property set, then the menus asked for,
// on the controller that offers every tab. The dialogs keep the tabs of the
// version they were built on, and their subscription to messages, until the
// host shuts down or cleans up; every input starts from here.
TrackingSettingBodyAdminModule &startAsHost(
    TrackingSettingBodyAdminModule &module, sim::SimulatedController &controller, QWidget *parent)
{
    controller.loadScenario(sim::SimulatedController::defaultScenario());
    module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(&controller));
    module.setModuleProperty("ModuleParent", QVariant::fromValue(parent));
    module.setModuleProperty("BackendVersions", QVariant::fromValue(&controller.backendVersions()));
    module.menuEntries();
    return module;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzBytes bytes { data, size };
    // A host keeps its module, and the module its dialogs, from one input to
    // the next: building them costs more than an input. The next scenario
    // may be another controller's: the dialogs cope with any reply. An
    // input that cleans up checks that no window is left. None is deleted.
    static sim::SimulatedController &controller = *new sim::SimulatedController;
    static QWidget &parent = *new QWidget;
    static TrackingSettingBodyAdminModule &module
        = startAsHost(*new TrackingSettingBodyAdminModule, controller, &parent);
    controller.clearLog();
    controller.setManualClock(true);
    controller.clearInjections();
    controller.loadScenario(QStringLiteral(":/scenarios/%1.scn").arg(Scenarios[bytes.pick(5)]));
    for (int i = 0; i < 4; ++i)
        setProperty(module, controller, &parent, bytes);
    Fuzzing::driveModals(&bytes, &controller);

    bool ended = false;
    bool cleanedUp = false;
    bool fixedAnglesShown = false;
    int previous = -1;
    for (int steps = 0; !bytes.atEnd() && steps < 200; ++steps) {
        const QList<MenuEntry *> entries = module.menuEntries();
        auto *dialog = qobject_cast<BodyAdministrationDlg *>(entries.value(1)->dialog);
        const int step = bytes.pick(13);
        const bool again = step == previous;
        previous = step;
        switch (step) {
        case 0:
            setProperty(module, controller, &parent, bytes);
            break;
        case 1:
        case 2:
            // The host ending (a cleanup at most once an input): rarer than
            // the others, as the module is started again after it. One byte
            // value of 256, and none of those libFuzzer's mutations favour
            // (0, 0xff, ASCII); its comparison tracing finds it.
            if (bytes.pick(256) != 0xa5)
                break;
            ended = true;
            if (step == 1) {
                module.shutdown();
                break;
            }
            if (cleanedUp)
                break;
            cleanedUp = true;
            QApplication::processEvents();
            module.cleanup();
            Fuzzing::require(
                QApplication::topLevelWidgets().size() == 1, "a window outlives the module");
            break;
        case 3:
            entries.value(bytes.pick(2))->action->trigger();
            break;
        case 4:
            controller.sendMessage(Receivers[bytes.pick(3)], Senders[bytes.pick(3)], 1,
                bytes.pick(2) ? Texts[bytes.pick(6)] : bytes.text(40).constData());
            break;
        case 5:
            Fuzzing::passTime(dialog, controller, bytes);
            QApplication::processEvents();
            break;
        case 6:
        case 7:
            bodyOperation(dialog->tab(bytes.pick(4)), bytes);
            break;
        case 8:
        case 9:
            Fuzzing::poke(dialog, bytes);
            break;
        case 10:
            // Right after a refresh nothing has changed: another would read
            // and show the same (three in four refreshes of the seeds).
            if (!again && dialog->currentTab())
                dialog->currentTab()->update_tab();
            break;
        case 11:
            controller.failCommand(
                QLatin1String(Refused[bytes.pick(10)]), 1, bytes.pick(2) ? 1 : -1);
            break;
        default:
            // Once an input, and on one choice in four: a fresh dialog, as the
            // tracking dialog makes one, was a seventh of the time, and what
            // it reads depends on the controller, not on the times before.
            if (bytes.pick(4) != 3 || fixedAnglesShown)
                break;
            fixedAnglesShown = true;
            FixedAngleDlg(&controller, &parent, &controller.backendVersions()).update_and_exec();
        }
    }
    Fuzzing::driveModals(nullptr);
    QApplication::processEvents();
    if (ended) {
        module.cleanup();
        startAsHost(module, controller, &parent);
    }
    return 0;
}
