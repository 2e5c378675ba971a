#include "bodyadministrationdlg.h"
#include "bodyadminmessagereceiver.h"
#include "trackingdlg.h"
#include "trackingsettingbodyadminmodule.h"

#include <modaldriver.h>
#include <simulatedcontroller.h>

#include <QAction>
#include <QApplication>
#include <QtTest>

class TestModule : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void identity();
    void pointerProperties_data();
    void pointerProperties();
    void parentProperty_data();
    void parentProperty();
    void observerMode_data();
    void observerMode();
    void unknownPropertyChangesNothing();
    void menuEntries();
    void secondCallReturnsSameEntries();
    void cleanupTwiceThenRebuild();
    void actionsOpenTheirDialogs();
    void shutdownLeavesMessageService();
};

void TestModule::cleanup()
{
    ModalDriver::closeAllModals();
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(),
        qPrintable(ModalDriver::topLevelWidgetNames().join(", ")));
}

void TestModule::identity()
{
    TrackingSettingBodyAdminModule module;
    QCOMPARE(module.moduleName(), QString("GUI Settings Tracking"));
    QCOMPARE(module.moduleVersion(), QString("v3.0.5"));
    QCOMPARE(qobject_cast<ModuleInterface *>(&module), static_cast<ModuleInterface *>(&module));
    QVERIFY(module.menuEntries().size() == 2);
    module.cleanup();
}

void TestModule::pointerProperties_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("stored");

    QTest::newRow("IOManager*") << "CommandManager"
                                << "io" << true;
    QTest::newRow("command manager as int") << "CommandManager"
                                            << "int" << false;
    QTest::newRow("command manager as versions") << "CommandManager"
                                                 << "versions" << false;
    QTest::newRow("command manager empty") << "CommandManager"
                                           << "empty" << false;
    QTest::newRow("BackendVersions*") << "BackendVersions"
                                      << "versions" << true;
    QTest::newRow("versions as IOManager*") << "BackendVersions"
                                            << "io" << false;
    QTest::newRow("versions as text") << "BackendVersions"
                                      << "text" << false;
}

void TestModule::pointerProperties()
{
    QFETCH(QString, name);
    QFETCH(QString, kind);
    QFETCH(bool, stored);

    sim::SimulatedController controller;
    TrackingSettingBodyAdminModule module;
    QVariant value;
    if (kind == "io")
        value = QVariant::fromValue<IOManager *>(&controller);
    else if (kind == "versions")
        value = QVariant::fromValue(&controller.backendVersions());
    else if (kind == "int")
        value = 42;
    else if (kind == "text")
        value = QStringLiteral("1.24.0");

    // A wrong value replaces an earlier right one with null.
    module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(&controller));
    module.setModuleProperty("BackendVersions", QVariant::fromValue(&controller.backendVersions()));
    module.setModuleProperty(name, value);

    if (name == "CommandManager")
        QCOMPARE(module.commandManager(), stored ? &controller : nullptr);
    else
        QCOMPARE(module.versions(), stored ? &controller.backendVersions() : nullptr);
}

void TestModule::parentProperty_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("stored");

    QTest::newRow("QWidget*") << "widget" << true;
    QTest::newRow("widget passed as QObject*") << "widgetAsObject" << true;
    QTest::newRow("QObject that is no widget") << "object" << false;
    QTest::newRow("null widget") << "null" << false;
    QTest::newRow("text") << "text" << false;
}

void TestModule::parentProperty()
{
    QFETCH(QString, kind);
    QFETCH(bool, stored);

    QWidget window;
    QObject plainObject;
    QVariant value;
    if (kind == "widget")
        value = QVariant::fromValue<QWidget *>(&window);
    else if (kind == "widgetAsObject")
        value = QVariant::fromValue<QObject *>(&window);
    else if (kind == "object")
        value = QVariant::fromValue<QObject *>(&plainObject);
    else if (kind == "null")
        value = QVariant::fromValue<QWidget *>(nullptr);
    else
        value = QStringLiteral("main window");

    TrackingSettingBodyAdminModule module;
    module.setModuleProperty("ModuleParent", value);
    QCOMPARE(module.parentWidget(), stored ? &window : nullptr);

    // The dialogs are the parent's children, or top-level without one.
    const QList<MenuEntry *> entries = module.menuEntries();
    for (const MenuEntry *entry : entries)
        QCOMPARE(entry->dialog->parentWidget(), stored ? &window : nullptr);
    module.cleanup();
}

void TestModule::observerMode_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("observer");

    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("int 1 converts") << QVariant(1) << true;
    QTest::newRow("text true converts") << QVariant(QStringLiteral("true")) << true;
    QTest::newRow("empty variant") << QVariant() << false;
    QTest::newRow("a list does not convert") << QVariant(QStringList { "x" }) << false;
}

void TestModule::observerMode()
{
    QFETCH(QVariant, value);
    QFETCH(bool, observer);

    TrackingSettingBodyAdminModule module;
    module.setModuleProperty("ObserverMode", true);
    module.setModuleProperty("ObserverMode", value);
    QCOMPARE(module.isObserverMode(), observer);
}

void TestModule::unknownPropertyChangesNothing()
{
    sim::SimulatedController controller;
    QWidget window;
    TrackingSettingBodyAdminModule module;
    module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(&controller));
    module.setModuleProperty("ModuleParent", QVariant::fromValue(&window));
    module.setModuleProperty("commandmanager", QVariant());
    module.setModuleProperty("Parent", QVariant());
    module.setModuleProperty("", QVariant());
    QCOMPARE(module.commandManager(), &controller);
    QCOMPARE(module.parentWidget(), &window);
}

void TestModule::menuEntries()
{
    sim::SimulatedController controller;
    controller.loadScenario(sim::SimulatedController::defaultScenario());
    QWidget window;
    TrackingSettingBodyAdminModule module;
    module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(&controller));
    module.setModuleProperty("ModuleParent", QVariant::fromValue(&window));
    module.setModuleProperty("BackendVersions", QVariant::fromValue(&controller.backendVersions()));
    module.setModuleProperty("ObserverMode", false);

    const QList<MenuEntry *> entries = module.menuEntries();
    QCOMPARE(entries.size(), 2);

    const MenuEntry *single = entries.at(0);
    QCOMPARE(single->menuTitle, QString("&Tracking"));
    QCOMPARE(single->menuPosition, 300);
    QCOMPARE(single->position, 20);
    QCOMPARE(single->flags, 0);
    QCOMPARE(single->action->text(), QString("&Single markers"));
    const QString singleHelp("Change settings of the 6DOF standard bodies and the 3DOF markers and "
                             "body administration");
    QCOMPARE(single->action->statusTip(), singleHelp);
    QCOMPARE(single->action->whatsThis(), singleHelp);
    QVERIFY(single->action->shortcut().isEmpty());
    QVERIFY(qobject_cast<TrackingDlg *>(single->dialog));

    const MenuEntry *admin = entries.at(1);
    QCOMPARE(admin->menuTitle, QString("&Tracking"));
    QCOMPARE(admin->menuPosition, 300);
    QCOMPARE(admin->position, 25);
    QCOMPARE(admin->flags, 0);
    QCOMPARE(admin->action->text(), QString("&Body administration"));
    QCOMPARE(admin->action->shortcut(), QKeySequence(Qt::Key_F8));
    QCOMPARE(admin->action->statusTip(), QString("Settings of all bodies"));
    QCOMPARE(admin->action->whatsThis(), QString("Settings of all bodies"));
    QVERIFY(qobject_cast<BodyAdministrationDlg *>(admin->dialog));

    QCOMPARE(single->action->parent(), &module);
    QCOMPARE(admin->action->parent(), &module);
    module.shutdown();
    module.cleanup();
}

void TestModule::secondCallReturnsSameEntries()
{
    sim::SimulatedController controller;
    TrackingSettingBodyAdminModule module;
    module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(&controller));
    const QList<MenuEntry *> first = module.menuEntries();
    const QDialog *trackingDialog = first.at(0)->dialog;
    const QDialog *adminDialog = first.at(1)->dialog;
    const int widgets = QApplication::allWidgets().size();

    const QList<MenuEntry *> second = module.menuEntries();
    QCOMPARE(second, first);
    QCOMPARE(second.at(0)->dialog, trackingDialog);
    QCOMPARE(second.at(1)->dialog, adminDialog);
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    module.cleanup();
}

void TestModule::cleanupTwiceThenRebuild()
{
    sim::SimulatedController controller;
    TrackingSettingBodyAdminModule module;
    module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(&controller));
    QPointer<QDialog> oldDialog = module.menuEntries().at(1)->dialog;
    QAction *action = module.menuEntries().at(1)->action;

    module.cleanup();
    QVERIFY(oldDialog.isNull());
    module.cleanup();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());

    const QList<MenuEntry *> rebuilt = module.menuEntries();
    QCOMPARE(rebuilt.size(), 2);
    QVERIFY(rebuilt.at(0)->dialog);
    QVERIFY(rebuilt.at(1)->dialog);
    // The host still holds the old action in its menu: it opens the new dialog.
    QCOMPARE(rebuilt.at(1)->action, action);
    QCOMPARE(module.findChildren<QAction *>().size(), 2);
    module.cleanup();
}

void TestModule::actionsOpenTheirDialogs()
{
    sim::SimulatedController controller;
    TrackingSettingBodyAdminModule module;
    module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(&controller));
    const QList<MenuEntry *> entries = module.menuEntries();

    for (const MenuEntry *entry : entries) {
        ModalDriver driver;
        driver.reject();
        entry->action->trigger();
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(driver.seen().size(), 1);
        QCOMPARE(
            driver.seen().first().className, QString(entry->dialog->metaObject()->className()));
        QVERIFY(!entry->dialog->isVisible());
    }
    module.cleanup();
}

void TestModule::shutdownLeavesMessageService()
{
    sim::SimulatedController controller;
    TrackingSettingBodyAdminModule module;
    module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(&controller));
    auto *dialog = qobject_cast<BodyAdministrationDlg *>(module.menuEntries().at(1)->dialog);
    QSignalSpy announced(dialog->messageReceiver(), &BodyAdminMessageReceiver::BodyCalAvailable);

    controller.sendMessage("GlobalEvent", "BodyCalModule", 1, "bodycalibration available");
    controller.sendMessage(
        "BodyAdministrationModule", "BodyCalModule", 1, "bodycalibration available");
    QCOMPARE(announced.count(), 2);

    module.shutdown();
    controller.sendMessage("GlobalEvent", "BodyCalModule", 1, "bodycalibration available");
    controller.sendMessage(
        "BodyAdministrationModule", "BodyCalModule", 1, "bodycalibration available");
    QCOMPARE(announced.count(), 2);
    QVERIFY(dialog); // the dialogs stay until cleanup()
    module.cleanup();
}

QTEST_MAIN(TestModule)
#include "tst_module.moc"
