#include "acceleratorcheck.h"
#include "demooptions.h"
#include "demowindow.h"
#include "dialogrenderer.h"
#include "menubuilder.h"
#include "moduleloader.h"
#include "standinmodules.h"

#include <modaldriver.h>
#include <moduleinterface.h>
#include <simulatedcontroller.h>

#include <QAction>
#include <QApplication>
#include <QDomDocument>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <algorithm>
#include <climits>
#include <memory>

namespace
{

// "Title[action,action] Title[action]" in menu-bar order.
QString menuLayout(const QMenuBar &menuBar)
{
    QStringList menus;
    for (const QAction *menuAction : menuBar.actions()) {
        QStringList actions;
        for (const QAction *item : menuAction->menu()->actions())
            actions << item->text();
        menus << QStringLiteral("%1[%2]").arg(menuAction->text(), actions.join(QLatin1Char(',')));
    }
    return menus.join(QLatin1Char(' '));
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
    void mergesMenus_data();
    void mergesMenus();
    void standInAnswersHandOver_data();
    void standInAnswersHandOver();
    void parsesOptions_data();
    void parsesOptions();
    void keepsPluginOptionFromQt();
    void savedScenarioLoadsBackToSameState();
    void rendersEveryDialogWithoutAcceleratorClash_data();
    void rendersEveryDialogWithoutAcceleratorClash();
    void translationsAreFinished();
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
        QStringLiteral("&File[Save &log...,Save &scenario...,&Quit] &View[Controller &log] "
                       "&Configuration[Active configuration &changed] "
                       "&Tracking[&Single markers,&Body administration] &Help[&About]"));
    QCOMPARE(window.moduleActions().at(1)->shortcut(), QKeySequence(Qt::Key_F8));
    // The other modules announce themselves only once the module has its receiver up.
    const QStringList messages = window.controller()->messages();
    QVERIFY(messages.contains(QStringLiteral("bodycalibration available")));
    QVERIFY(messages.contains(QStringLiteral("bodyadjustment available")));
    // Closing hands the module its last calls and unloads it.
    window.close();
    QVERIFY(!window.module());
}

void TestDemoHost::explainsLoadFailure_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("fragments");
    QTest::newRow("missing file") << QStringLiteral("no/such/libtracking.so")
                                  << QStringList { "Reason: The shared library was not found.",
                                         "No plug-in metadata" };
    QTest::newRow("object is no module")
        << QStringLiteral(NOT_A_MODULE_PLUGIN)
        << QStringList { "class NotAModule", "not a ModuleInterface \"" ModuleInterface_iid "\"",
               "NotAModule (expected TrackingSettingBodyAdminModule)  <- differs" };
}

void TestDemoHost::explainsLoadFailure()
{
    QFETCH(QString, path);
    QFETCH(QStringList, fragments);
    DemoOptions options;
    options.pluginPath = path;
    DemoWindow window(options);
    QVERIFY(!window.module());
    const QString error = window.loadError();
    for (const QString &fragment :
        fragments + QStringList { QFileInfo(path).absoluteFilePath(), "QT_DEBUG_PLUGINS" })
        QVERIFY2(error.contains(fragment), qPrintable(error));
    // No module, so nobody to announce anything to.
    QVERIFY(window.controller()->messages().isEmpty());
}

void TestDemoHost::mergesMenus_data()
{
    QTest::addColumn<QStringList>("entries"); // "text title menuPosition position"
    QTest::addColumn<QString>("layout");
    QTest::newRow("menus by menu position")
        << QStringList { "a Late 300 1", "b Early 100 1" } << "Early[b] Late[a]";
    QTest::newRow("actions by position")
        << QStringList { "a M 1 30", "b M 1 10", "c M 1 20" } << "M[b,c,a]";
    QTest::newRow("one menu per title, at its lowest position")
        << QStringList { "a M 500 1", "b N 300 1", "c M 100 2" } << "M[a,c] N[b]";
    QTest::newRow("ties keep arrival order")
        << QStringList { "a X 7 5", "b Y 7 5", "c X 7 5" } << "X[a,c] Y[b]";
    QTest::newRow("extreme positions")
        << QStringList { QString("a Last %1 0").arg(INT_MAX), QString("b First %1 0").arg(INT_MIN) }
        << "First[b] Last[a]";
    QTest::newRow("entry without action") << QStringList { "- Empty 1 1", "a M 2 1" } << "M[a]";
}

void TestDemoHost::mergesMenus()
{
    QFETCH(QStringList, entries);
    QObject owner;
    QList<MenuEntry> merged;
    for (const QString &row : qAsConst(entries)) {
        const QStringList cells = row.split(' ');
        MenuEntry entry;
        entry.action = cells.at(0) == "-" ? nullptr : new QAction(cells.at(0), &owner);
        entry.menuTitle = cells.at(1);
        entry.menuPosition = cells.at(2).toInt();
        entry.position = cells.at(3).toInt();
        merged << entry;
    }
    QMenuBar menuBar;
    const int menus = MenuBuilder::build(&menuBar, merged).size();
    QCOMPARE(menus, menuBar.actions().size());
    QTEST(menuLayout(menuBar), "layout");
}

void TestDemoHost::standInAnswersHandOver_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("request");
    QTest::addColumn<QString>("shown"); // empty: the stand-in ignores it

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
    QTest::newRow("wrong module") << "HybridBodyCalibration"
                                  << "OpenBodyCalDialog standard b01" << QString();
    QTest::newRow("no arguments") << "BodyCalModule"
                                  << "OpenBodyCalDialog" << QString();
}

void TestDemoHost::standInAnswersHandOver()
{
    QFETCH(QString, module);
    QFETCH(QString, request);
    QFETCH(QString, shown);
    sim::SimulatedController controller;
    StandInModules standIns(&controller, nullptr);
    ModalDriver driver;
    if (!shown.isEmpty())
        driver.pressButton(QMessageBox::Ok);
    controller.sendMessage(module.toLatin1().constData(), "BodyAdministrationModule", 1,
        request.toLatin1().constData());
    // Never while the request is still being delivered.
    QVERIFY(!controller.messages().contains(QStringLiteral("reopen")));
    if (shown.isEmpty()) {
        QCoreApplication::processEvents();
        QCOMPARE(controller.messages(), QStringList { request });
        return;
    }
    QTRY_VERIFY(controller.messages().contains(QStringLiteral("reopen")));
    QVERIFY2(
        driver.seen().value(0).text.startsWith(shown), qPrintable(driver.seen().value(0).text));
    const sim::SimulatedController::LogEntry &reply = controller.log().last();
    QCOMPARE(reply.receiver + ' ' + reply.sender, "BodyAdministrationModule " + module);
}

void TestDemoHost::parsesOptions_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("outcome");
    QTest::addColumn<QString>("versions"); // backend/system, "-" when not given

    const int run = DemoOptions::Run, error = DemoOptions::Error;
    QTest::newRow("defaults") << QStringList() << run << "-/-";
    QTest::newRow("between-releases patch")
        << QStringList { "--backend-version", "1.9.-1" } << run << "1.9.-1/-";
    QTest::newRow("both versions") << QStringList { "--backend-version=2.0.0", "--system-version",
        "2.10.0" } << run << "2.0.0/2.10.0";
    QTest::newRow("built-in scenario by name")
        << QStringList { "--scenario", "locked" } << run << "-/-";
    QTest::newRow("two-part version") << QStringList { "--backend-version", "1.9" } << error << "";
    QTest::newRow("missing scenario") << QStringList { "--scenario", "no-such.scn" } << error << "";
    QTest::newRow("unknown option") << QStringList { "--screenshot", "x.png" } << error << "";
    QTest::newRow("stray argument") << QStringList { "extra" } << error << "";
    QTest::newRow("help") << QStringList { "--help" } << int(DemoOptions::ShowHelp) << "";
}

void TestDemoHost::parsesOptions()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, outcome);
    DemoOptions options;
    QString message;
    QCOMPARE(int(DemoOptions::parse(QStringList("velora-demo") + arguments, &options, &message)),
        outcome);
    if (outcome == DemoOptions::ShowHelp) {
        for (const char *option :
            { "--scenario", "--render", "--check", "--log", "--save-scenario", "--language" })
            QVERIFY2(message.contains(option), option);
    }
    if (outcome != DemoOptions::Run) {
        QVERIFY(!message.isEmpty());
        return;
    }
    const auto text = [](bool given, const BackendVersions::Version &v) {
        return given ? DemoOptions::versionText(v) : QStringLiteral("-");
    };
    QTEST(text(options.hasBackendVersion, options.backendVersion) + '/'
            + text(options.hasSystemVersion, options.systemVersion),
        "versions");
}

void TestDemoHost::keepsPluginOptionFromQt()
{
    QByteArray storage[] = { "demo", "--plugin", "a.so", "--observer", "-plugin=b.so" };
    char *argv[] = { storage[0].data(), storage[1].data(), storage[2].data(), storage[3].data(),
        storage[4].data(), nullptr };
    int argc = 5;
    const QStringList all = DemoOptions::takeArguments(argc, argv);
    QCOMPARE(all, QStringList({ "demo", "--plugin", "a.so", "--observer", "-plugin=b.so" }));
    QCOMPARE(argc, 2);
    QCOMPARE(QByteArray(argv[1]), QByteArray("--observer"));
    QVERIFY(!argv[2]);
    DemoOptions options;
    QString message;
    QCOMPARE(DemoOptions::parse(all, &options, &message), DemoOptions::Run);
    QCOMPARE(options.pluginPath, QStringLiteral("b.so"));
}

void TestDemoHost::savedScenarioLoadsBackToSameState()
{
    sim::SimulatedController controller;
    controller.loadScenario(DemoOptions::scenarioFile("orbilux"));
    for (const char *line : { "config is_changeable = no", "@fail status step_active",
             "@reply status progress = 0.5", "@present t02 t05", "@search-duration 700",
             "@backend-version 1.21.-1", "body desc standard b01 = \"Tool = 1\"" })
        QVERIFY2(controller.takeScenarioLine(line), line);
    QString error;
    QVERIFY(!controller.takeScenarioLine("no assignment", &error));
    QCOMPARE(error, QStringLiteral("expected \"PATH = VALUE\""));

    sim::SimulatedController reloaded;
    QStringList errors;
    QVERIFY2(reloaded.loadScenarioText(controller.scenarioText(), "saved", &errors),
        qPrintable(errors.join('\n')));
    QCOMPARE(reloaded.parameters(), controller.parameters());
    QCOMPARE(reloaded.scenarioText(), controller.scenarioText());
    QCOMPARE(reloaded.backendVersions().systemType, controller.backendVersions().systemType);
    char reply[200] = {};
    QCOMPARE(reloaded.getString(reply, "status step_active"), 1);
    QCOMPARE(reloaded.getString(reply, "status progress"), 0);
    QCOMPARE(QByteArray(reply), QByteArray("0.5"));
}

void TestDemoHost::rendersEveryDialogWithoutAcceleratorClash_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QString();
    QTest::newRow("German") << QStringLiteral("de");
}

void TestDemoHost::rendersEveryDialogWithoutAcceleratorClash()
{
    QFETCH(QString, language);
    std::vector<std::unique_ptr<QTranslator>> translators;
    for (const char *name : { "tracking_", "velora-demo_" }) {
        if (language.isEmpty())
            break;
        translators.push_back(std::make_unique<QTranslator>());
        QVERIFY(translators.back()->load(name + language, DemoOptions::translationsFolder()));
        QCoreApplication::installTranslator(translators.back().get());
    }
    QTemporaryDir folder;
    QStringList files;
    DialogRenderer renderer(folder.path());
    {
        DemoWindow window { DemoOptions() };
        window.show();
        files = renderer.render(&window, window.moduleActions());
        window.close();
    }
    QVERIFY2(renderer.problems().isEmpty(), qPrintable(renderer.problems().join('\n')));
    QVERIFY2(renderer.clashes().isEmpty(), qPrintable(renderer.clashes().join('\n')));
    QStringList names;
    for (const QString &file : qAsConst(files))
        names << QFileInfo(file).completeBaseName();
    QCOMPARE(names.join(' '),
        QStringLiteral(
            "demo-host trackingdlg fixedangledlg helpdialog "
            "bodyadministrationdlg-standard filterdialog filterhelp bodyadministrationdlg-gripwand "
            "bodyadministrationdlg-fingertracking bodyadministrationdlg-mt"));
    QCOMPARE(AcceleratorCheck::letter("Save && &quit"), QChar('Q'));
}

// Shipped translations are complete, carry nothing obsolete, and keep every
// placeholder of their source.
void TestDemoHost::translationsAreFinished()
{
    for (const QString name : { "tracking_de.ts", "velora-demo_de.ts" }) {
        QFile file(QStringLiteral(TRACKING_TS_DIR "/") + name);
        QDomDocument document;
        QVERIFY2(file.open(QIODevice::ReadOnly) && document.setContent(&file), qPrintable(name));
        const QDomNodeList messages = document.elementsByTagName("message");
        QVERIFY(messages.size() > 100);
        QStringList wrong;
        for (int i = 0; i < messages.size(); ++i) {
            const QString source = messages.at(i).firstChildElement("source").text();
            const QDomElement translation = messages.at(i).firstChildElement("translation");
            const QRegularExpression places("%\\d");
            QStringList want, have;
            for (auto it = places.globalMatch(source); it.hasNext();)
                want << it.next().captured();
            for (auto it = places.globalMatch(translation.text()); it.hasNext();)
                have << it.next().captured();
            std::sort(want.begin(), want.end());
            std::sort(have.begin(), have.end());
            if (translation.hasAttribute("type") || translation.text().isEmpty() || want != have)
                wrong << source;
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(name + ": " + wrong.join(" | ")));
    }
}

QTEST_MAIN(TestDemoHost)
#include "tst_demohost.moc"
