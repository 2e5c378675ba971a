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
        QTest::newRow("command manager as int") << "CommandManager" << QVariant(42) << false;
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
        QFETCH(QVariant, value);
        QFETCH(bool, stored);
        TrackingSettingBodyAdminModule module;
        setUp(module, true); // a wrong value replaces an earlier right one
        module.setModuleProperty(name, value);
        QStringList kept;
        if (module.commandManager() == &controller)
            kept << "CommandManager";
        if (module.versions() == &controller.backendVersions())
            kept << "BackendVersions";
        if (module.parentWidget() == window)
            kept << "ModuleParent";
        if (module.isObserverMode())
            kept << "ObserverMode";
        QStringList expected { "CommandManager", "BackendVersions", "ModuleParent",
            "ObserverMode" };
        if (!stored)
            expected.removeOne(name);
        QCOMPARE(kept, expected);
    }
    void menuEntries()
    {
        TrackingSettingBodyAdminModule module;
        setUp(module, false);

        QCOMPARE(
            module.moduleName() + ' ' + module.moduleVersion(), "GUI Settings Tracking v3.0.5");
        const QList<MenuEntry *> entries = module.menuEntries();
        QCOMPARE(entries.size(), 2);

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
        QCOMPARE(describe(entries.at(0)),
            "&Tracking|300|20|0|&Single markers||" + singleHelp + '|' + singleHelp
                + "|TrackingDlg");
        QCOMPARE(describe(entries.at(1)),
            QString(
                "&Tracking|300|25|0|&Body administration|F8|Settings of all bodies|Settings of all "
                "bodies|BodyAdministrationDlg"));
        for (const MenuEntry *entry : entries)
            QVERIFY(entry->dialog->parentWidget() == window && entry->action->parent() == &module);
        module.shutdown();
        module.cleanup();
    }
    // As a host uses the module: entries once, the actions open their dialogs,
    // cleanup() ends the dialogs, entries again (the call orders and the
    // message receivers have a test of their own).
    void lifecycle()
    {
        sim::SimulatedController controller; // its own: a log with this host session only
        TrackingSettingBodyAdminModule module;
        module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(&controller));
        const QList<MenuEntry *> first = module.menuEntries();
        const int widgets = QApplication::allWidgets().size();
        QCOMPARE(module.menuEntries(), first);
        QCOMPARE(QApplication::allWidgets().size(), widgets);
        for (const MenuEntry *entry : first) {
            ModalDriver driver;
            driver.reject();
            entry->action->trigger();
            QCOMPARE(driver.seen().size(), 1);
            QCOMPARE(
                driver.seen().first().className, QString(entry->dialog->metaObject()->className()));
        }
        QPointer<QDialog> oldDialog = first.at(1)->dialog;
        module.cleanup();
        QVERIFY(oldDialog.isNull());
        module.cleanup();
        const QList<MenuEntry *> rebuilt = module.menuEntries();
        QVERIFY(rebuilt.size() == 2 && rebuilt.at(0)->dialog && rebuilt.at(1)->dialog);
        // The host still holds the old action in its menu: it opens the new dialog.
        QCOMPARE(rebuilt.at(1)->action, first.at(1)->action);
        module.shutdown();
        module.cleanup();
    }

private:
    void setUp(TrackingSettingBodyAdminModule &module, bool observer)
    {
        module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(&controller));
        module.setModuleProperty(
            "BackendVersions", QVariant::fromValue(&controller.backendVersions()));
        module.setModuleProperty("ModuleParent", QVariant::fromValue(window));
        module.setModuleProperty("ObserverMode", observer);
    }
    sim::SimulatedController controller;
    QWidget *window = nullptr;
};

QTEST_MAIN(TestModule)
#include "tst_module.moc"
