#include "acceleratorcheck.h"
#include "consoleline.h"
#include "demooptions.h"
#include "demowindow.h"
#include "dialogrenderer.h"
#include "logfilter.h"
#include "logwindow.h"
#include "simulatorlogmodel.h"
#include "standinmodules.h"

#include <moduleinterface.h>

#include <QDomDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <testkit.h>

#include <algorithm>

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
        menus << menuAction->text() + '[' + actions.join(',') + ']';
    }
    return menus.join(' ');
}

QStringList placeholders(const QString &text)
{
    QStringList found;
    for (auto it = QRegularExpression("%\\d").globalMatch(text); it.hasNext();)
        found << it.next().captured();
    std::sort(found.begin(), found.end());
    return found;
}

// A query, a failed setting, an error report, a notice, a hand-over message.
void fill(SimulatorLogModel *model)
{
    sim::SimulatedController controller;
    controller.clearLog();
    QObject::connect(
        &controller, &sim::SimulatedController::logged, model, &SimulatorLogModel::append);
    char reply[200];
    controller.getString(reply, "status active");
    controller.setParameter("standard number_of_bodies x");
    controller.sendMessage("standard", "VELORA4", 1, "Error: Unable to get group name");
    controller.sendMessage("standard", "VELORA4", 1, "t04 already calibrated");
    controller.sendMessage("BodyCalModule", "VELORA4", 1, "OpenBodyCalDialog standard b01");
}

QStringList texts(const QAbstractItemModel &model)
{
    QStringList shown;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QString text = model.index(row, SimulatorLogModel::TextColumn).data().toString();
        shown << (text.contains(QChar(0x2192)) ? text.section(": ", 1) : text);
    }
    return shown;
}

} // namespace

class TestDemoHost : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { testkit::closeAllAndCheck(); }
    void loadsPlugin_data()
    {
        // fragments: of the explanation; none when it loads
        testkit::columns<QString, QStringList>({ "path", "fragments" });
        // clang-format off
        QTest::newRow("built plug-in") << QString() << QStringList();
        QTest::newRow("missing file") << "no/such/libtracking.so" << QStringList { "Reason: The shared library was not found.", "No plug-in metadata" };
        QTest::newRow("object is no module") << NOT_A_MODULE_PLUGIN << QStringList { "class NotAModule", "not a ModuleInterface \"" ModuleInterface_iid "\"", "NotAModule (expected TrackingSettingBodyAdminModule)  <- differs" };
        // clang-format on
    }
    void loadsPlugin()
    {
        QFETCH(QString, path);
        DemoOptions options;
        options.pluginPath = path;
        DemoWindow window(options);
        const QString tracking = "&Tracking[&Single markers,&Body administration] ";
        QCOMPARE(menuLayout(*window.menuBar()),
            "&File[Save &log...,Save &scenario...,&Quit] &View[Controller &log] "
            "&Configuration[Active configuration &changed] "
                + (path.isEmpty() ? tracking : QString()) + "&Help[&About]");
        if (!path.isEmpty()) {
            for (const QString &fragment : testkit::fetch<QStringList>("fragments")
                    + QStringList { QFileInfo(path).absoluteFilePath(), "QT_DEBUG_PLUGINS" })
                QVERIFY2(window.loadError().contains(fragment), qPrintable(window.loadError()));
            // No module, so nobody to announce anything to.
            QVERIFY(window.controller()->messages().isEmpty());
            return;
        }
        // The other modules announce themselves only once the module has its receiver up.
        QVERIFY(window.controller()->messages().contains("bodycalibration available"));
        window.close(); // hands the module its last calls and unloads it
        QVERIFY(!window.module());
    }
    void standInAnswersHandOver_data()
    {
        testkit::columns<QString, QString, QString>({ "module", "request", "shown" });
        // clang-format off
        QTest::newRow("body calibration") << "BodyCalModule" << "OpenBodyCalDialog standard b01" << "Simulated body calibration of standard b01.";
        QTest::newRow("hybrid calibration") << "HybridBodyCalibration" << "OpenHybridBodyCalibration gripwand|3|not calibrated" << "Simulated hybrid body calibration of gripwand body 3 (not calibrated).";
        // clang-format on
    }
    void standInAnswersHandOver()
    {
        QFETCH(QString, module);
        sim::SimulatedController controller;
        StandInModules standIns(&controller, nullptr);
        ModalDriver driver;
        driver.pressButton(QMessageBox::Ok);
        controller.sendMessage(qPrintable(module), "BodyAdministrationModule", 1,
            qPrintable(testkit::fetch<QString>("request")));
        // Never while the request is still being delivered.
        QVERIFY(!controller.messages().contains("reopen"));
        QTRY_VERIFY(controller.messages().contains("reopen"));
        QTEST(driver.seen().value(0).text.section('\n', 0, 0), "shown");
        const auto &reply = controller.log().last();
        QCOMPARE(reply.receiver + ' ' + reply.sender, "BodyAdministrationModule " + module);
    }
    void parsesOptions_data()
    {
        // parsed: backend/system version/plug-in, "-" when not given; else
        // what the message says
        testkit::columns<QStringList, int, QString>({ "arguments", "outcome", "parsed" });

        const int run = DemoOptions::Run, error = DemoOptions::Error;
        // clang-format off
        QTest::newRow("defaults") << QStringList() << run << "-/-/";
        QTest::newRow("between-releases patch, plug-in") << QStringList { "--backend-version", "1.9.-1", "--plugin", "a.so" } << run << "1.9.-1/-/a.so";
        QTest::newRow("both versions, built-in scenario") << QStringList { "--backend-version=2.0.0", "--system-version", "2.10.0", "--scenario", "locked" } << run << "2.0.0/2.10.0/";
        QTest::newRow("two-part version") << QStringList { "--backend-version", "1.9" } << error << "";
        QTest::newRow("missing scenario") << QStringList { "--scenario", "no-such.scn" } << error << "";
        QTest::newRow("unknown option") << QStringList { "--screenshot", "x.png" } << error << "Unknown option 'screenshot'.";
        QTest::newRow("misspelt option") << QStringList { "--scenaro", "locked" } << error << "Did you mean --scenario?";
        QTest::newRow("shortened option") << QStringList { "--lang", "de" } << error << "Did you mean --language?";
        QTest::newRow("save folder missing") << QStringList { "--save-scenario", "/no/such/x.scn" } << error << "/no/such/x.scn cannot be written";
        QTest::newRow("Qt's own options") << QStringList { "-platform", "offscreen", "-style=fusion", "-reverse" } << run << "-/-/";
        QTest::newRow("help") << QStringList { "--help" } << int(DemoOptions::ShowHelp) << "--save-scenario <file>";
        QTest::newRow("help with Qt's options") << QStringList { "--help-all" } << int(DemoOptions::ShowHelp) << "--platform <name[:options]>";
        QTest::newRow("scenarios to pass back") << QStringList { "--list-scenarios" } << int(DemoOptions::ListScenarios) << "failures";
        // clang-format on
    }
    void parsesOptions()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, outcome);
        // Qt takes "-plugin" for itself, so the demo reads it off argv first.
        QList<QByteArray> storage { "velora-demo" };
        QVector<char *> argv;
        for (const QString &argument : arguments)
            storage << argument.toLocal8Bit();
        for (QByteArray &argument : storage)
            argv << argument.data();
        int argc = argv.size();
        argv << nullptr;
        const QStringList all = DemoOptions::takeArguments(argc, argv.data());
        QCOMPARE(QByteArrayList(argv.begin(), argv.begin() + argc + 1).indexOf("--plugin"), -1);
        DemoOptions options;
        QString message;
        QCOMPARE(int(DemoOptions::parse(all, &options, &message)), outcome);
        if (outcome == DemoOptions::ListScenarios) {
            message = DemoOptions::scenarioList().join('\n');
            for (const QString &line : message.split('\n'))
                QVERIFY(!DemoOptions::scenarioFile(line.section('\t', 0, 0)).isEmpty());
        }
        QCOMPARE(message.isEmpty(), outcome == DemoOptions::Run);
        QVERIFY2(!message.contains("this build")
                && message.contains("--platform") == arguments.contains("--help-all"),
            qPrintable(message));
        const auto text = [](bool given, const BackendVersions::Version &v) {
            return given ? DemoOptions::versionText(v) : QStringLiteral("-");
        };
        QFETCH(QString, parsed);
        if (outcome == DemoOptions::Run)
            QCOMPARE(text(options.hasBackendVersion, options.backendVersion) + '/'
                    + text(options.hasSystemVersion, options.systemVersion) + '/'
                    + options.pluginPath,
                parsed);
        else
            QVERIFY2(message.contains(parsed), qPrintable(message));
    }
    void rendersEveryDialogWithoutAcceleratorClash_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << QString();
        QTest::newRow("German") << QStringLiteral("de");
    }
    void rendersEveryDialogWithoutAcceleratorClash()
    {
        QFETCH(QString, language);
        QObject translators;
        if (!language.isEmpty())
            QCOMPARE(DemoOptions::installTranslations(language, &translators), QStringList());
        // Qt's own, so that standard buttons follow.
        QVERIFY(
            language.isEmpty() || QCoreApplication::translate("QPlatformTheme", "&Yes") == "&Ja");
        QTemporaryDir folder;
        DialogRenderer renderer(folder.path());
        QStringList names;
        {
            DemoWindow window { DemoOptions() };
            window.show();
            for (const QString &file : renderer.render(window.moduleActions(), { &window }))
                names << QFileInfo(file).completeBaseName();
            window.close();
        }
        QVERIFY2(renderer.problems().isEmpty(), qPrintable(renderer.problems().join('\n')));
        QVERIFY2(renderer.clashes().isEmpty(), qPrintable(renderer.clashes().join('\n')));
        QCOMPARE(names.join(' '),
            "trackingdlg fixedangledlg helpdialog bodyadministrationdlg-standard filterdialog "
            "filterhelp bodyadministrationdlg-gripwand bodyadministrationdlg-fingertracking "
            "bodyadministrationdlg-mt demo-host");
        QCOMPARE(AcceleratorCheck::letter("Save && &quit"), QChar('Q'));
    }
    // Shipped translations are complete, carry nothing obsolete, and keep every
    // placeholder of their source.
    void translationsAreFinished()
    {
        for (const QString name : { "tracking_de.ts", "velora-demo_de.ts" }) {
            QFile file(TRACKING_TS_DIR "/" + name);
            QDomDocument document;
            QVERIFY2(
                file.open(QIODevice::ReadOnly) && document.setContent(&file), qPrintable(name));
            const QDomNodeList messages = document.elementsByTagName("message");
            QVERIFY(messages.size() > 100);
            QStringList wrong;
            for (int i = 0; i < messages.size(); ++i) {
                const QString source = messages.at(i).firstChildElement("source").text();
                const QDomElement translation = messages.at(i).firstChildElement("translation");
                if (translation.hasAttribute("type") || translation.text().isEmpty()
                    || placeholders(source) != placeholders(translation.text()))
                    wrong << source;
            }
            QVERIFY2(wrong.isEmpty(), qPrintable(name + ": " + wrong.join(" | ")));
        }
    }
    // Each row goes to the log file as it happens, and Save writes the same lines.
    void marksFailuresAndErrorReports()
    {
        QTemporaryDir dir;
        SimulatorLogModel model;
        QString error;
        QVERIFY(model.setLogFile(dir.filePath("live.log"), &error));
        fill(&model);
        QFile live(dir.filePath("live.log"));
        QVERIFY(live.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromUtf8(live.readAll()).split('\n', Qt::SkipEmptyParts);
        QStringList marked;
        for (const QString &line : lines)
            marked << line.section('\t', 2, 2) + (line.endsWith("\tFAILED") ? "!" : "");
        QCOMPARE(marked,
            QStringList({ "status active", "standard number_of_bodies x!",
                "VELORA4 \u2192 standard: Error: Unable to get group name!",
                "VELORA4 \u2192 standard: t04 already calibrated",
                "VELORA4 \u2192 BodyCalModule: OpenBodyCalDialog standard b01" }));
        QVERIFY(QTime::fromString(lines.first().section('\t', 0, 0), "HH:mm:ss.zzz").isValid());
        QCOMPARE(lines.first().section('\t', 3, 4), QStringLiteral("none\t0"));
        QVERIFY(model.save(dir.filePath("saved.log"), &error));
        QFile saved(dir.filePath("saved.log"));
        QVERIFY(saved.open(QIODevice::ReadOnly)
            && saved.readAll() == (lines.join('\n') + '\n').toUtf8());
        QVERIFY(!model.save(dir.filePath("no/such/folder/x.log"), &error));
        QVERIFY(error.contains("no/such/folder"));
    }
    void filters_data()
    {
        testkit::columns<int, QString, QStringList>({ "show", "text", "shown" });

        // clang-format off
        QTest::newRow("calls") << int(LogFilter::Calls) << QString() << QStringList { "status active", "standard number_of_bodies x" };
        QTest::newRow("failures") << int(LogFilter::Failures) << QString() << QStringList { "standard number_of_bodies x", "Error: Unable to get group name" };
        QTest::newRow("messages with text, any case") << int(LogFilter::Messages) << "STANDARD b01" << QStringList { "OpenBodyCalDialog standard b01" };
        QTest::newRow("text in the reply") << int(LogFilter::All) << "none" << QStringList { "status active" };
        // clang-format on
    }
    void filters()
    {
        SimulatorLogModel model;
        fill(&model);
        LogFilter filter;
        filter.setSourceModel(&model);
        filter.setShow(LogFilter::Show(testkit::fetch<int>("show")));
        filter.setHidePolling(false);
        filter.setFilterFixedString(testkit::fetch<QString>("text"));
        QTEST(texts(filter), "shown");
    }
    // What the operator must see without opening the log: the scenario's
    // purpose, the latest error report (its row marked, a click away) and the
    // lock while it holds; the module's polling stays out of the way. Qt blocks
    // every window but the modal dialog and its transient children: the log
    // window must be one of those.
    void statusBarShowsWhatHappened()
    {
        DemoOptions options;
        options.scenario = "failures";
        DemoWindow window(options);
        window.show();
        window.logWindow()->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.logWindow()));
        QTableView *view = window.logWindow()->view();
        QVERIFY(window.findChild<QLabel *>("scenarioNote")->text().startsWith("Failures on"));
        auto *report = window.findChild<QToolButton *>("latestReport");
        auto *locked = window.findChild<QLabel *>("configurationLocked");
        QVERIFY(!report->isVisible() && !locked->isVisible());
        int clicked = -1, currentRow = -2;
        ModalDriver driver;
        driver.answer([&](QWidget *modal) {
            QTest::mouseClick(modal->findChild<QPushButton *>("pushButton_start"), Qt::LeftButton);
            clicked = view->model()->rowCount() - 2;
            const QModelIndex target = view->model()->index(clicked, 1);
            view->scrollTo(target);
            // Through the window system's path, where Qt applies modality.
            const QPoint at
                = view->viewport()->mapTo(view->window(), view->visualRect(target).center());
            QTest::mouseClick(view->window()->windowHandle(), Qt::LeftButton, {}, at);
            currentRow = view->currentIndex().row();
            static_cast<QDialog *>(modal)->reject();
        });
        window.moduleActions().at(1)->trigger(); // body administration
        QCOMPARE(currentRow, clicked);
        QVERIFY(report->isVisible());
        QCOMPARE(
            report->text().section(' ', 1), "Error: Unable to start target library calibration");
        const QModelIndex marked = window.logModel()->latestReport();
        QVERIFY(marked.data(Qt::FontRole).value<QFont>().bold());
        QTest::mouseClick(report, Qt::LeftButton);
        QCOMPARE(
            window.logWindow()->filter()->mapToSource(view->currentIndex()).row(), marked.row());

        const auto polls = [view] { return texts(*view->model()).count("status active"); };
        QCOMPARE(polls(), 0);
        QTest::mouseClick(window.logWindow()->hidePolling(), Qt::LeftButton);
        QVERIFY(polls() > 0);
        for (const char *line : { "config is_changeable = no", "config is_changeable = yes" }) {
            QTest::keyClicks(window.logWindow()->console(), line);
            QTest::keyClick(window.logWindow()->console(), Qt::Key_Return);
            QCOMPARE(locked->isVisible(), QByteArray(line).endsWith("no"));
        }
        window.close();
    }
    // What the console gives the controller is in the scenario it saves, which
    // loads back to the same state.
    void consoleLinesSurviveSavedScenario()
    {
        DemoOptions options;
        options.scenario = "orbilux";
        DemoWindow window(options);
        ConsoleLine *console = window.logWindow()->console();
        const QStringList lines { "@fail status active", "@unfail status*",
            "config is_changeable = no", "@backend-version 1.x", "@fail status step_active",
            "@reply status progress = 0.5", "@present t02 t05",
            "body desc standard b01 = \"Tool = 1\"" };
        for (const QString &line : lines) {
            QTest::keyClicks(console, line);
            QTest::keyClick(console, Qt::Key_Return);
        }
        const QString bad = window.logModel()->lineText(window.logModel()->rowCount() - 5);
        QVERIFY2(bad.contains("@backend-version 1.x\tbad version") && bad.endsWith("FAILED"),
            qPrintable(bad));

        QTemporaryDir dir;
        QString error;
        QVERIFY(window.saveScenario(dir.filePath("saved.scn"), &error));
        sim::SimulatedController reloaded;
        QVERIFY(reloaded.loadScenario(dir.filePath("saved.scn")));
        QCOMPARE(reloaded.parameters(), window.controller()->parameters());
        QCOMPARE(reloaded.value("config is_changeable"), QStringLiteral("no"));
        char reply[200] = {};
        QCOMPARE(reloaded.getString(reply, "status step_active"), 1);
        QCOMPARE(reloaded.getString(reply, "status active"), 0);
        QCOMPARE(reloaded.getString(reply, "status progress"), 0);
        QCOMPARE(QByteArray(reply), QByteArray("0.5"));
    }
};

QTEST_MAIN(TestDemoHost)
#include "tst_demohost.moc"
