#include "demooptions.h"
#include "demowindow.h"
#include "logdock.h"
#include "menubuilder.h"
#include "moduleloader.h"
#include "simulatorlogmodel.h"
#include "standinmodules.h"

#include <modaldriver.h>
#include <moduleinterface.h>
#include <simulatedcontroller.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <climits>

namespace
{

// One menu contribution, as a test row gives it; no text means no action.
struct Contribution {
    QString text;
    QString menuTitle;
    int menuPosition;
    int position;
};

// Stands for a plug-in module; only its menu entries matter here.
class FakeModule : public QObject, public ModuleInterface
{
public:
    explicit FakeModule(const QList<Contribution> &contributions)
    {
        for (const Contribution &contribution : contributions) {
            MenuEntry entry;
            entry.action
                = contribution.text.isEmpty() ? nullptr : new QAction(contribution.text, this);
            entry.menuTitle = contribution.menuTitle;
            entry.menuPosition = contribution.menuPosition;
            entry.position = contribution.position;
            m_entries.append(entry);
        }
    }

    void shutdown() override { }
    void cleanup() override { }
    QString moduleName() const override { return QStringLiteral("Fake"); }
    QString moduleVersion() const override { return QStringLiteral("v0.0.0"); }
    QList<MenuEntry *> menuEntries() override
    {
        QList<MenuEntry *> entries;
        for (MenuEntry &entry : m_entries)
            entries.append(&entry);
        return entries;
    }
    void setModuleProperty(const QString &, const QVariant &) override { }

private:
    QList<MenuEntry> m_entries;
};

// "Title[action,action] Title[action]" in menu-bar order.
QString menuLayout(const QMenuBar &menuBar)
{
    QStringList menus;
    const QList<QAction *> menuActions = menuBar.actions();
    for (const QAction *menuAction : menuActions) {
        QStringList actions;
        const QList<QAction *> items = menuAction->menu()->actions();
        for (const QAction *item : items)
            actions << item->text();
        menus << QStringLiteral("%1[%2]").arg(menuAction->text(), actions.join(QLatin1Char(',')));
    }
    return menus.join(QLatin1Char(' '));
}

QMenu *findMenu(const QMainWindow &window, const QString &title)
{
    const QList<QAction *> menuActions = window.menuBar()->actions();
    for (QAction *menuAction : menuActions) {
        if (menuAction->text() == title)
            return menuAction->menu();
    }
    return nullptr;
}

} // namespace

class TestDemoHost : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void loadsBuiltPlugin();
    void explainsLoadFailure_data();
    void explainsLoadFailure();
    void windowShowsLoadError();
    void mergesMenus_data();
    void mergesMenus();
    void standInAnswersHandOver_data();
    void standInAnswersHandOver();
    void handOverRoundTrip();
    void standInIgnoresOtherMessages_data();
    void standInIgnoresOtherMessages();
    void parsesOptions_data();
    void parsesOptions();
    void keepsPluginOptionFromQt_data();
    void keepsPluginOptionFromQt();

private:
    QTemporaryDir m_dir;
};

void TestDemoHost::cleanup()
{
    ModalDriver::closeAllModals();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QStringList left = ModalDriver::topLevelWidgetNames();
    QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1String(", "))));
}

void TestDemoHost::loadsBuiltPlugin()
{
    DemoWindow window { DemoOptions() };
    QVERIFY2(window.module(), qPrintable(window.loadError()));

    QCOMPARE(menuLayout(*window.menuBar()),
        QStringLiteral("&File[&Quit] &Configuration[Active configuration &changed] "
                       "&Tracking[&Single markers,&Body administration] &Help[&About]"));
    QMenu *tracking = findMenu(window, QStringLiteral("&Tracking"));
    QCOMPARE(tracking->actions().at(1)->shortcut(), QKeySequence(Qt::Key_F8));

    // The other modules announce themselves only once the module has its receiver up.
    const QStringList messages = window.controller()->messages();
    QVERIFY(messages.contains(QStringLiteral("bodycalibration available")));
    QVERIFY(messages.contains(QStringLiteral("bodyadjustment available")));
    QVERIFY(window.logModel()->rowCount() > 0);

    // Clear empties the view and the controller's own record.
    auto *dock = window.findChild<LogDock *>();
    QVERIFY(dock);
    const QList<QPushButton *> buttons = dock->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 1);
    buttons.first()->click();
    QCOMPARE(window.logModel()->rowCount(), 0);
    QVERIFY(window.controller()->log().isEmpty());

    // Closing hands the module its last calls and unloads it; its actions go with it.
    window.close();
    QVERIFY(!window.module());
    QVERIFY(tracking->actions().isEmpty());
}

void TestDemoHost::explainsLoadFailure_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("fragments");

    QVERIFY(m_dir.isValid());
    QFile junk(m_dir.filePath(QStringLiteral("libjunk.so")));
    QVERIFY(junk.open(QIODevice::WriteOnly));
    junk.write("this is no shared library\n");
    junk.close();

    QTest::newRow("missing file") << QStringLiteral("no/such/libtracking.so")
                                  << QStringList { "Reason: The shared library was not found.",
                                         "No plug-in metadata" };
    QTest::newRow("not a plug-in")
        << junk.fileName() << QStringList { "is not an ELF object", "No plug-in metadata" };
    QTest::newRow("object is no module")
        << QStringLiteral(NOT_A_MODULE_PLUGIN)
        << QStringList { "class NotAModule", "not a ModuleInterface \"" ModuleInterface_iid "\"",
               "NotAModule (expected TrackingSettingBodyAdminModule)  <- differs" };
}

void TestDemoHost::explainsLoadFailure()
{
    QFETCH(QString, path);
    QFETCH(QStringList, fragments);

    ModuleLoader loader;
    QVERIFY(!loader.load(path));
    QVERIFY(!loader.module());
    const QString error = loader.errorString();
    QVERIFY2(error.contains(QFileInfo(path).absoluteFilePath()), qPrintable(error));
    QVERIFY2(error.contains(QStringLiteral("QT_DEBUG_PLUGINS")), qPrintable(error));
    for (const QString &fragment : qAsConst(fragments))
        QVERIFY2(error.contains(fragment), qPrintable(error));
}

void TestDemoHost::windowShowsLoadError()
{
    DemoOptions options;
    options.pluginPath = m_dir.filePath(QStringLiteral("libmissing.so"));
    DemoWindow window(options);

    QVERIFY(!window.module());
    QCOMPARE(menuLayout(*window.menuBar()),
        QStringLiteral("&File[&Quit] &Configuration[Active configuration &changed] "
                       "&Help[&About]"));
    auto *page = window.centralWidget()->findChild<QPlainTextEdit *>();
    QVERIFY(page);
    QCOMPARE(page->toPlainText(), window.loadError());
    QVERIFY(page->toPlainText().contains(options.pluginPath));
    // No module, so nobody to announce anything to.
    QVERIFY(window.controller()->messages().isEmpty());
}

Q_DECLARE_METATYPE(QList<Contribution>)

void TestDemoHost::mergesMenus_data()
{
    QTest::addColumn<QList<Contribution>>("entries");
    QTest::addColumn<QString>("layout");

    using Contributions = QList<Contribution>;
    QTest::newRow("menus by menu position") << Contributions { { "a", "Late", 300, 1 },
        { "b", "Early", 100, 1 } } << QStringLiteral("Early[b] Late[a]");
    QTest::newRow("actions by position")
        << Contributions { { "a", "M", 1, 30 }, { "b", "M", 1, 10 }, { "c", "M", 1, 20 } }
        << QStringLiteral("M[b,c,a]");
    QTest::newRow("one menu per title, placed by its lowest position")
        << Contributions { { "a", "M", 500, 1 }, { "b", "N", 300, 1 }, { "c", "M", 100, 2 } }
        << QStringLiteral("M[a,c] N[b]");
    QTest::newRow("ties keep arrival order")
        << Contributions { { "a", "X", 7, 5 }, { "b", "Y", 7, 5 }, { "c", "X", 7, 5 } }
        << QStringLiteral("X[a,c] Y[b]");
    QTest::newRow("extreme positions") << Contributions { { "a", "Last", INT_MAX, 0 },
        { "b", "First", INT_MIN, 0 } } << QStringLiteral("First[b] Last[a]");
    QTest::newRow("entry without action") << Contributions { { QString(), "Empty", 1, 1 },
        { "a", "M", 2, 1 } } << QStringLiteral("M[a]");
}

void TestDemoHost::mergesMenus()
{
    QFETCH(QList<Contribution>, entries);
    QFETCH(QString, layout);

    FakeModule module(entries);
    QList<MenuEntry> merged;
    const QList<MenuEntry *> moduleEntries = module.menuEntries();
    for (const MenuEntry *entry : moduleEntries)
        merged.append(*entry);
    QMenuBar menuBar;
    const QList<QMenu *> menus = MenuBuilder::build(&menuBar, merged);
    QCOMPARE(menuLayout(menuBar), layout);
    QCOMPARE(menus.size(), menuBar.actions().size());
}

void TestDemoHost::standInAnswersHandOver_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("request");
    QTest::addColumn<QString>("shown");

    QTest::newRow("body calibration") << "BodyCalModule"
                                      << "OpenBodyCalDialog standard b01"
                                      << "Simulated body calibration of standard b01.";
    QTest::newRow("body adjustment")
        << "BodyAdjustmentModule"
        << "OpenBodyAdjustmentDialog standard|12|uncalibrated"
        << "Simulated body adjustment of standard body 12 (uncalibrated).";
    QTest::newRow("hybrid calibration")
        << "HybridBodyCalibration"
        << "OpenHybridBodyCalibration gripwand|3|not calibrated"
        << "Simulated hybrid body calibration of gripwand body 3 (not calibrated).";
}

void TestDemoHost::standInAnswersHandOver()
{
    QFETCH(QString, module);
    QFETCH(QString, request);
    QFETCH(QString, shown);

    sim::SimulatedController controller;
    StandInModules standIns(&controller, nullptr);
    ModalDriver driver;
    driver.pressButton(QMessageBox::Ok);

    controller.sendMessage(module.toLatin1().constData(), "BodyAdministrationModule", 1,
        request.toLatin1().constData());
    // Not while the request is still being delivered.
    QVERIFY(!controller.messages().contains(QStringLiteral("reopen")));
    QTRY_VERIFY(controller.messages().contains(QStringLiteral("reopen")));

    QCOMPARE(driver.seen().size(), 1);
    QVERIFY2(driver.seen().first().text.startsWith(shown), qPrintable(driver.seen().first().text));
    const sim::SimulatedController::LogEntry &reply = controller.log().last();
    QCOMPARE(reply.text, QStringLiteral("reopen"));
    QCOMPARE(reply.receiver, QStringLiteral("BodyAdministrationModule"));
    QCOMPARE(reply.sender, module);
}

void TestDemoHost::handOverRoundTrip()
{
    DemoWindow window { DemoOptions() };
    QVERIFY(window.module());
    ModalDriver driver;
    driver.pressButton(QMessageBox::Ok);
    driver.reject();

    // As the body administration sends it; its "reopen" brings the dialog back.
    window.controller()->sendMessage(
        "BodyCalModule", "BodyAdministrationModule", 1, "OpenBodyCalDialog standard b01");
    QTRY_COMPARE(driver.pending(), 0);
    QTRY_VERIFY(!QApplication::activeModalWidget());

    QCOMPARE(driver.seen().size(), 2);
    QCOMPARE(driver.seen().at(0).className, QStringLiteral("QMessageBox"));
    QCOMPARE(driver.seen().at(1).className, QStringLiteral("BodyAdministrationDlg"));
}

void TestDemoHost::standInIgnoresOtherMessages_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("text");

    QTest::newRow("request to the wrong module") << "HybridBodyCalibration"
                                                 << "OpenBodyCalDialog standard b01";
    QTest::newRow("request word without arguments") << "BodyCalModule"
                                                    << "OpenBodyCalDialog";
    QTest::newRow("other text") << "BodyAdjustmentModule"
                                << "reopen";
}

void TestDemoHost::standInIgnoresOtherMessages()
{
    QFETCH(QString, module);
    QFETCH(QString, text);

    sim::SimulatedController controller;
    StandInModules standIns(&controller, nullptr);
    QCOMPARE(standIns.receiveMessage(module.toLatin1().constData(), "BodyAdministrationModule",
                 text.toLatin1().constData()),
        1);
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(controller.messages().isEmpty());
}

void TestDemoHost::parsesOptions_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("outcome");
    QTest::addColumn<QString>("backendVersion");
    QTest::addColumn<QString>("systemVersion");

    const int run = DemoOptions::Run, error = DemoOptions::Error;
    QTest::newRow("defaults") << QStringList() << run << QString() << QString();
    QTest::newRow("between-releases patch")
        << QStringList { "--backend-version", "1.9.-1" } << run << "1.9.-1" << QString();
    QTest::newRow("both versions")
        << QStringList { "--backend-version=2.0.0", "--system-version", "2.10.0" } << run << "2.0.0"
        << "2.10.0";
    QTest::newRow("two-part version")
        << QStringList { "--backend-version", "1.9" } << error << QString() << QString();
    QTest::newRow("stray argument") << QStringList { "extra" } << error << QString() << QString();
    QTest::newRow("help") << QStringList { "--help" } << int(DemoOptions::ShowHelp) << QString()
                          << QString();
}

void TestDemoHost::parsesOptions()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, outcome);
    QFETCH(QString, backendVersion);
    QFETCH(QString, systemVersion);

    DemoOptions options;
    QString message;
    arguments.prepend(QStringLiteral("velora-demo"));
    QCOMPARE(int(DemoOptions::parse(arguments, &options, &message)), outcome);
    if (outcome != DemoOptions::Run) {
        QVERIFY(!message.isEmpty());
        return;
    }
    QCOMPARE(options.hasBackendVersion, !backendVersion.isNull());
    if (options.hasBackendVersion)
        QCOMPARE(DemoOptions::versionText(options.backendVersion), backendVersion);
    QCOMPARE(options.hasSystemVersion, !systemVersion.isNull());
    if (options.hasSystemVersion)
        QCOMPARE(DemoOptions::versionText(options.systemVersion), systemVersion);
    QCOMPARE(options.pluginPath, DemoOptions::defaultPluginPath());
}

void TestDemoHost::keepsPluginOptionFromQt_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("leftForQt");

    QTest::newRow("separate value") << QStringList { "demo", "--plugin", "a.so", "--observer" }
                                    << QStringList { "demo", "--observer" };
    QTest::newRow("joined value") << QStringList { "demo", "--plugin=a.so", "--scenario", "s" }
                                  << QStringList { "demo", "--scenario", "s" };
    QTest::newRow("single dash") << QStringList { "demo", "-plugin", "a.so" }
                                 << QStringList { "demo" };
}

void TestDemoHost::keepsPluginOptionFromQt()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, leftForQt);

    QList<QByteArray> storage;
    for (const QString &argument : qAsConst(arguments))
        storage << argument.toLocal8Bit();
    QVector<char *> argv;
    for (QByteArray &argument : storage)
        argv << argument.data();
    argv << nullptr;
    int argc = arguments.size();

    const QStringList all = DemoOptions::takeArguments(argc, argv.data());
    QCOMPARE(all, arguments);
    QStringList left;
    for (int i = 0; i < argc; ++i)
        left << QString::fromLocal8Bit(argv.at(i));
    QCOMPARE(left, leftForQt);
    QVERIFY(!argv.at(argc));

    DemoOptions options;
    QString message;
    QCOMPARE(DemoOptions::parse(all, &options, &message), DemoOptions::Run);
    QCOMPARE(options.pluginPath, QStringLiteral("a.so"));
}

QTEST_MAIN(TestDemoHost)
#include "tst_demohost.moc"
