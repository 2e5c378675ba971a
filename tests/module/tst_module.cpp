#include "trackingdlg.h"
#include "trackingsettingbodyadminmodule.h"

#include <testkit.h>

class TestModule : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { window = new QWidget; }
    void cleanupTestCase() { delete window; }
    void cleanup()
    {
        ModalDriver::closeAllModals();
        QCOMPARE(QApplication::topLevelWidgets(), QWidgetList { window });
    }
    void properties_data()
    {
        testkit::columns<QString, QVariant, bool>({ "name", "value", "stored" });

        const QVariant io = QVariant::fromValue<IOManager *>(&controller);
        const QVariant versions = QVariant::fromValue(&controller.backendVersions());
        // clang-format off
        QTest::newRow("IOManager*") << "CommandManager" << io << true;
        QTest::newRow("command manager as versions") << "CommandManager" << versions << false;
        QTest::newRow("BackendVersions*") << "BackendVersions" << versions << true;
        QTest::newRow("versions as IOManager*") << "BackendVersions" << io << false;
        QTest::newRow("QWidget*") << "ModuleParent" << QVariant::fromValue(window) << true;
        QTest::newRow("widget as QObject*") << "ModuleParent" << QVariant::fromValue<QObject *>(window) << true;
        QTest::newRow("QObject that is no widget") << "ModuleParent" << QVariant::fromValue<QObject *>(this) << false;
        QTest::newRow("parent as text") << "ModuleParent" << QVariant("main window") << false;
        QTest::newRow("observer true") << "ObserverMode" << QVariant(true) << true;
        QTest::newRow("observer as int 1") << "ObserverMode" << QVariant(1) << true;
        QTest::newRow("observer as list") << "ObserverMode" << QVariant(QStringList { "x" }) << false;
        QTest::newRow("unknown name changes nothing") << "commandmanager" << QVariant() << true;
        // clang-format on
    }
    void properties()
    {
        QFETCH(QString, name);
        TrackingSettingBodyAdminModule module;
        setUp(module, true); // a wrong value replaces an earlier right one
        module.setModuleProperty(name, testkit::fetch<QVariant>("value"));
        QStringList kept,
            expected { "CommandManager", "BackendVersions", "ModuleParent", "ObserverMode" };
        for (bool set : { module.commandManager() == &controller,
                 module.versions() == &controller.backendVersions(),
                 module.parentWidget() == window, module.isObserverMode() })
            kept << (set ? expected.at(kept.size()) : QString());
        if (!testkit::fetch<bool>("stored"))
            expected.replace(expected.indexOf(name), QString());
        QCOMPARE(kept, expected);
    }
    // As a host uses the module: entries once, the actions open their dialogs,
    // cleanup() ends the dialogs, entries again.
    void menuEntries()
    {
        TrackingSettingBodyAdminModule module;
        setUp(module, false);
        QCOMPARE(
            module.moduleName() + ' ' + module.moduleVersion(), "GUI Settings Tracking v3.0.5");
        const QList<MenuEntry *> first = module.menuEntries();
        const int widgets = QApplication::allWidgets().size();
        QCOMPARE(module.menuEntries(), first);
        QCOMPARE(QApplication::allWidgets().size(), widgets);
        QCOMPARE(first.size(), 2);

        const auto describe = [](const MenuEntry *entry) {
            return QStringList({ entry->menuTitle, QString::number(entry->menuPosition),
                                   QString::number(entry->position), QString::number(entry->flags),
                                   entry->action->text(), entry->action->shortcut().toString(),
                                   entry->action->statusTip(), entry->action->whatsThis(),
                                   entry->dialog->metaObject()->className() })
                .join('|');
        };
        const QString singleHelp(
            "Change settings of the 6DOF standard bodies and the 3DOF markers and "
            "body administration");
        QCOMPARE(describe(first.at(0)),
            "&Tracking|300|20|0|&Single markers||" + singleHelp + '|' + singleHelp
                + "|TrackingDlg");
        QCOMPARE(describe(first.at(1)),
            QString(
                "&Tracking|300|25|0|&Body administration|F8|Settings of all bodies|Settings of all "
                "bodies|BodyAdministrationDlg"));
        for (const MenuEntry *entry : first) {
            QVERIFY(entry->dialog->parentWidget() == window && entry->action->parent() == &module);
            ModalDriver driver;
            driver.reject();
            entry->action->trigger();
            QCOMPARE(driver.seen().value(0).className,
                QString(entry->dialog->metaObject()->className()));
        }
        QPointer<QDialog> oldDialog = first.at(1)->dialog;
        module.cleanup();
        QVERIFY(oldDialog.isNull());
        const QList<MenuEntry *> rebuilt = module.menuEntries();
        QVERIFY(rebuilt.size() == 2 && rebuilt.at(0)->dialog && rebuilt.at(1)->dialog);
        // The host still holds the old action in its menu: it opens the new dialog.
        QCOMPARE(rebuilt.at(1)->action, first.at(1)->action);
        module.shutdown();
        module.cleanup();
    }
    // Hosts call shutdown(), cleanup() and menuEntries() in whatever order they
    // like, and may delete the module's parent first ("parent"). Whatever they
    // do, no receiver that no longer exists stays registered, and no name
    // leaves twice.
    void callOrders_data()
    {
        // listening: registrations each name keeps at the end, 1 while a dialog listens
        testkit::columns<QString, int>({ "calls", "listening" });
        // clang-format off
        QTest::newRow("host's order") << "menu shutdown cleanup" << 0;
        QTest::newRow("cleanup only") << "menu cleanup" << 0;
        QTest::newRow("cleanup then shutdown") << "menu cleanup shutdown" << 0;
        QTest::newRow("rebuilt after cleanup") << "menu cleanup menu" << 1;
        QTest::newRow("rebuilt after shutdown") << "menu shutdown cleanup menu" << 1;
        QTest::newRow("twice each") << "menu shutdown shutdown cleanup cleanup" << 0;
        QTest::newRow("shutdown, menu again") << "menu shutdown menu" << 0;
        QTest::newRow("before any menu") << "shutdown cleanup menu" << 1;
        QTest::newRow("two rounds") << "menu cleanup menu shutdown cleanup menu cleanup" << 0;
        QTest::newRow("parent deleted first") << "menu parent shutdown cleanup" << 0;
        // clang-format on
    }
    void callOrders()
    {
        sim::SimulatedController controller; // its own: a log of this host session only
        TrackingSettingBodyAdminModule module;
        QPointer<QWidget> parent = new QWidget;
        setUp(module, false, &controller, parent);
        for (const QString &call : testkit::fetch<QString>("calls").split(' ')) {
            if (call == "menu")
                QCOMPARE(module.menuEntries().size(), 2);
            else if (call == "shutdown")
                module.shutdown();
            else if (call == "parent")
                delete parent; // takes the dialogs with it
            else
                module.cleanup();
            // A receiver destroyed while registered makes the controller abort.
            controller.sendMessage(
                "BodyAdministrationModule", "BodyCalModule", 1, "bodycalibration available");
            controller.sendMessage(
                "GlobalEvent", "ConfigurationModule", 1, "ActiveConfigurationChanged");
        }
        QMap<QString, int> registrations;
        for (const auto &entry : controller.log()) {
            if (entry.operation == "registerReceiver")
                ++registrations[entry.receiver];
            else if (entry.operation == "unregisterReceiver")
                QVERIFY2(--registrations[entry.receiver] >= 0, qPrintable(entry.receiver));
        }
        QFETCH(int, listening);
        QCOMPARE(registrations.value("BodyAdministrationModule"), listening);
        QCOMPARE(registrations.value("GlobalEvent"), listening);
        module.cleanup();
        delete parent;
    }

private:
    void setUp(TrackingSettingBodyAdminModule &module, bool observer,
        sim::SimulatedController *io = nullptr, QWidget *parent = nullptr)
    {
        io = io ? io : &controller;
        module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(io));
        module.setModuleProperty("BackendVersions", QVariant::fromValue(&io->backendVersions()));
        module.setModuleProperty("ModuleParent", QVariant::fromValue(parent ? parent : window));
        module.setModuleProperty("ObserverMode", observer);
    }
    sim::SimulatedController controller;
    QWidget *window = nullptr;
};

QTEST_MAIN(TestModule)
#include "tst_module.moc"
