#include "trackingsettingbodyadminmodule.h"

#include <simulatedcontroller.h>

#include <QApplication>
#include <QtTest>

// Hosts call shutdown(), cleanup() and menuEntries() in whatever order they
// like. Whatever they do, the module must never leave a receiver behind that
// no longer exists, and must never leave a name twice.
class TestLifecycle : public QObject
{
    Q_OBJECT

private slots:
    void callOrders_data();
    void callOrders();
    void parentDeletedFirst();
};

namespace
{

void connectModule(TrackingSettingBodyAdminModule &module, sim::SimulatedController &controller)
{
    module.setModuleProperty("CommandManager", QVariant::fromValue<IOManager *>(&controller));
    module.setModuleProperty("BackendVersions", QVariant::fromValue(&controller.backendVersions()));
}

} // namespace

void TestLifecycle::callOrders_data()
{
    QTest::addColumn<QString>("calls");
    // Registrations each name keeps at the end: 1 while a dialog listens.
    QTest::addColumn<int>("listening");

    QTest::newRow("host's order") << "menu shutdown cleanup" << 0;
    QTest::newRow("cleanup only") << "menu cleanup" << 0;
    QTest::newRow("cleanup then shutdown") << "menu cleanup shutdown" << 0;
    QTest::newRow("rebuilt after cleanup") << "menu cleanup menu" << 1;
    QTest::newRow("rebuilt after shutdown") << "menu shutdown cleanup menu" << 1;
    QTest::newRow("twice each") << "menu shutdown shutdown cleanup cleanup" << 0;
    QTest::newRow("shutdown, menu again") << "menu shutdown menu" << 0;
    QTest::newRow("before any menu") << "shutdown cleanup menu" << 1;
    QTest::newRow("two rounds") << "menu cleanup menu shutdown cleanup menu cleanup" << 0;
}

void TestLifecycle::callOrders()
{
    QFETCH(QString, calls);
    QFETCH(int, listening);

    sim::SimulatedController controller;
    TrackingSettingBodyAdminModule module;
    connectModule(module, controller);
    for (const QString &call : calls.split(' ')) {
        if (call == "menu")
            QCOMPARE(module.menuEntries().size(), 2);
        else if (call == "shutdown")
            module.shutdown();
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
    QCOMPARE(registrations.value("BodyAdministrationModule"), listening);
    QCOMPARE(registrations.value("GlobalEvent"), listening);
    module.cleanup();
}

void TestLifecycle::parentDeletedFirst()
{
    sim::SimulatedController controller;
    TrackingSettingBodyAdminModule module;
    auto *parent = new QWidget;
    connectModule(module, controller);
    module.setModuleProperty("ModuleParent", QVariant::fromValue(parent));
    module.menuEntries();
    delete parent; // takes the dialogs with it
    module.shutdown();
    module.cleanup();
    controller.sendMessage("GlobalEvent", "BodyCalModule", 1, "bodycalibration available");
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QTEST_MAIN(TestLifecycle)
#include "tst_lifecycle.moc"
