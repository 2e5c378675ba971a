#include "demowindow.h"
#include "appiconengine.h"
#include "demooptions.h"
#include "logwindow.h"
#include "menubuilder.h"
#include "simulatorlogmodel.h"
#include "standinmodules.h"

#include <backendversions.h>
#include <iomanager.h>
#include <menuentry.h>
#include <moduleinterface.h>
#include <simulatedcontroller.h>

#include <QAction>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QSaveFile>
#include <QStatusBar>
#include <QTextStream>
#include <QTime>
#include <QToolButton>
#include <QVBoxLayout>

#include <limits>

DemoWindow::DemoWindow(const DemoOptions &options, QWidget *parent)
    : QMainWindow(parent)
    , m_controller(new sim::SimulatedController(this))
    , m_logModel(new SimulatorLogModel(50000, this))
    , m_logWindow(new LogWindow(m_logModel))
    , m_standIns(new StandInModules(m_controller, this, this))
    , m_note(new QLabel)
    , m_locked(new QLabel(tr("configuration locked")))
    , m_report(new QToolButton)
{
    setObjectName(QStringLiteral("demo-host"));
    setWindowTitle(tr("Velora demo host"));
    setWindowIcon(AppIconEngine::icon());
    m_logWindow->setWindowIcon(windowIcon());

    // Registered by the host before the plug-in can: the type registry must
    // not keep pointers into a library that is unloaded before exit.
    qRegisterMetaType<IOManager *>("IOManager*");
    qRegisterMetaType<BackendVersions *>("BackendVersions*");
    qRegisterMetaType<QWidget *>("QWidget*");

    // What the stand-ins did on construction is already in the controller's log.
    for (const sim::SimulatedController::LogEntry &entry : m_controller->log())
        m_logModel->append(entry);
    connect(
        m_controller, &sim::SimulatedController::logged, m_logModel, &SimulatorLogModel::append);
    connect(m_logWindow, &LogWindow::clearRequested, this, [this] {
        m_controller->clearLog();
        m_logModel->clear();
        m_report->hide();
    });
    connect(m_logWindow, &LogWindow::saveRequested, this, &DemoWindow::saveLogAs);
    connect(m_logWindow, &LogWindow::lineEntered, this, &DemoWindow::takeLine);

    loadScenario(options);
    loadModule(options.pluginPath, options.observer);
    buildMenus();
    setCentralWidget(createCentralPage(options.observer));

    // What the operator must not miss without opening the log.
    m_report->setObjectName(QStringLiteral("latestReport"));
    m_report->setAutoRaise(true);
    m_report->setStyleSheet(QStringLiteral("color: #c80000"));
    m_report->setToolTip(tr("The latest error report; click to see it in the controller log"));
    m_report->hide();
    connect(
        m_report, &QToolButton::clicked, this, [this] { m_logWindow->showEntry(m_reportIndex); });
    connect(m_logModel, &SimulatorLogModel::errorReported, this, &DemoWindow::showReport);
    m_locked->setObjectName(QStringLiteral("configurationLocked"));
    m_locked->setStyleSheet(QStringLiteral("font-weight: bold"));
    statusBar()->addWidget(m_report, 1);
    statusBar()->addPermanentWidget(m_locked);
    connect(m_controller, &sim::SimulatedController::logged, this, &DemoWindow::updateStatus);
    updateStatus();
    // The other modules announce themselves once the module can hear them.
    if (module())
        m_standIns->announce();

    resize(760, 420);
}

DemoWindow::~DemoWindow()
{
    m_loader.unload();
    delete m_logWindow;
    // Children go in creation order, and the stand-ins must leave the
    // controller's receivers before the controller goes.
    delete m_standIns;
}

void DemoWindow::closeEvent(QCloseEvent *event)
{
    // The module's last calls come while the parent it was given still stands.
    m_loader.unload();
    m_logWindow->close();
    event->accept();
}

void DemoWindow::loadScenario(const DemoOptions &options)
{
    m_scenarioFile = DemoOptions::scenarioFile(options.scenario);
    if (!m_controller->loadScenario(m_scenarioFile, &m_scenarioErrors)
        && m_scenarioErrors.isEmpty())
        m_scenarioErrors << tr("%1: cannot be read").arg(m_scenarioFile);
    for (const QString &error : qAsConst(m_scenarioErrors))
        reportProblem(QStringLiteral("loadScenario"), error);

    BackendVersions &versions = m_controller->backendVersions();
    if (options.hasBackendVersion)
        versions.backendVersion = options.backendVersion;
    if (options.hasSystemVersion)
        versions.systemVersion = options.systemVersion;
    if (!options.systemType.isNull())
        versions.systemType = options.systemType;
}

void DemoWindow::loadModule(const QString &pluginPath, bool observer)
{
    ModuleInterface *module
        = m_loader.load(pluginPath.isEmpty() ? DemoOptions::defaultPluginPath() : pluginPath);
    if (!module) {
        reportProblem(QStringLiteral("loadPlugin"), m_loader.errorString());
        return;
    }
    // The module's dialogs copy these when menuEntries() creates them.
    IOManager *ioManager = m_controller;
    module->setModuleProperty(
        QStringLiteral("CommandManager"), QVariant::fromValue<IOManager *>(ioManager));
    module->setModuleProperty(QStringLiteral("ModuleParent"), QVariant::fromValue<QWidget *>(this));
    module->setModuleProperty(QStringLiteral("BackendVersions"),
        QVariant::fromValue<BackendVersions *>(&m_controller->backendVersions()));
    module->setModuleProperty(QStringLiteral("ObserverMode"), QVariant(observer));
}

void DemoWindow::buildMenus()
{
    const auto hostEntry = [this](const QString &text, const QString &menuTitle, int menuPosition) {
        MenuEntry entry;
        entry.action = new QAction(text, this);
        entry.menuTitle = menuTitle;
        entry.menuPosition = menuPosition;
        return entry;
    };

    MenuEntry quit = hostEntry(tr("&Quit"), tr("&File"), std::numeric_limits<int>::min());
    quit.action->setShortcut(QKeySequence::Quit);
    connect(quit.action, &QAction::triggered, this, &QWidget::close);

    MenuEntry saveLog = hostEntry(tr("Save &log..."), tr("&File"), std::numeric_limits<int>::min());
    saveLog.position = -2;
    connect(saveLog.action, &QAction::triggered, this, &DemoWindow::saveLogAs);
    MenuEntry saveScenario
        = hostEntry(tr("Save &scenario..."), tr("&File"), std::numeric_limits<int>::min());
    saveScenario.position = -1;
    saveScenario.action->setStatusTip(tr("Write the controller's state as a scenario file"));
    connect(saveScenario.action, &QAction::triggered, this, &DemoWindow::saveScenarioAs);
    MenuEntry showLog = hostEntry(tr("Controller &log"), tr("&View"), 100);
    showLog.action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_L));
    connect(showLog.action, &QAction::triggered, this, [this] {
        m_logWindow->show();
        m_logWindow->raise();
        m_logWindow->activateWindow();
    });

    MenuEntry configuration
        = hostEntry(tr("Active configuration &changed"), tr("&Configuration"), 200);
    configuration.action->setStatusTip(
        tr("Send \"ActiveConfigurationChanged\" as the configuration module does"));
    connect(configuration.action, &QAction::triggered, m_standIns,
        &StandInModules::announceConfigurationChanged);

    MenuEntry about = hostEntry(tr("&About"), tr("&Help"), std::numeric_limits<int>::max());
    connect(about.action, &QAction::triggered, this, &DemoWindow::showAbout);

    QList<MenuEntry> entries { saveLog, saveScenario, quit, showLog, configuration, about };
    if (module()) {
        const QList<MenuEntry *> moduleEntries = module()->menuEntries();
        for (const MenuEntry *entry : moduleEntries) {
            entries.append(*entry);
            m_moduleActions.append(entry->action);
        }
    }
    MenuBuilder::build(menuBar(), entries);
}

QWidget *DemoWindow::createCentralPage(bool observer)
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    m_note->setObjectName(QStringLiteral("scenarioNote"));
    m_note->setWordWrap(true);
    m_note->setStyleSheet(QStringLiteral(
        "background: #fff3c4; color: black; border: 1px solid #d9b300; padding: 4px"));
    layout->addWidget(m_note);

    if (!module()) {
        auto *failure = new QGroupBox(tr("The module plug-in could not be loaded"));
        failure->setObjectName(QStringLiteral("loadErrorPage"));
        auto *text = new QPlainTextEdit(m_loader.errorString());
        text->setReadOnly(true);
        text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        text->setMinimumHeight(text->fontMetrics().lineSpacing()
            * (m_loader.errorString().count(QLatin1Char('\n')) + 3));
        auto *hint = new QLabel(tr("Start the demo again with --plugin PATH to load another "
                                   "build, or see --help."));
        auto *failureLayout = new QVBoxLayout(failure);
        failureLayout->addWidget(text);
        failureLayout->addWidget(hint);
        layout->addWidget(failure, 1);
    }

    const BackendVersions &versions = m_controller->backendVersions();
    auto *connection = new QGroupBox(tr("Connected"));
    connection->setObjectName(QStringLiteral("connectionPage"));
    auto *form = new QFormLayout(connection);
    const auto addRow = [form](const QString &label, const QString &value) {
        auto *field = new QLabel(value);
        field->setTextInteractionFlags(Qt::TextSelectableByMouse);
        form->addRow(label, field);
    };
    addRow(tr("Module:"),
        module() ? tr("%1 %2").arg(module()->moduleName(), module()->moduleVersion())
                 : tr("not loaded"));
    addRow(tr("Plug-in file:"), m_loader.fileName());
    const QString builtIn = QStringLiteral(":/scenarios/");
    const QString scenario = m_scenarioFile.startsWith(builtIn)
        ? tr("%1 (built in)").arg(QFileInfo(m_scenarioFile).completeBaseName())
        : m_scenarioFile;
    addRow(tr("Scenario:"),
        m_scenarioErrors.isEmpty()
            ? scenario
            : tr("%1 (problems: %2, see the log)").arg(scenario).arg(m_scenarioErrors.size()));
    addRow(tr("Controller software:"), DemoOptions::versionText(versions.backendVersion));
    addRow(tr("Tracking system:"),
        tr("%1, version %2")
            .arg(versions.systemType.isEmpty() ? tr("(no type)") : versions.systemType,
                DemoOptions::versionText(versions.systemVersion)));
    addRow(tr("Observer mode:"), observer ? tr("on") : tr("off"));
    layout->addWidget(connection);

    if (module()) {
        auto *hint = new QLabel(tr("Open the module's dialogs from its menus. The controller log "
                                   "(View menu) shows every command and message the module "
                                   "exchanges with the simulated controller, failures marked "
                                   "red; its console takes scenario lines."));
        hint->setWordWrap(true);
        layout->addWidget(hint);
        layout->addStretch(1);
    }
    return page;
}

void DemoWindow::reportProblem(const QString &operation, const QString &text)
{
    QTextStream(stderr) << text << '\n';
    sim::SimulatedController::LogEntry entry;
    entry.operation = operation;
    entry.text = text.section(QLatin1Char('\n'), 0, 2).simplified();
    entry.result = 1;
    m_logModel->append(entry);
}

void DemoWindow::showReport(const QString &text, const QModelIndex &index)
{
    m_reportIndex = index;
    const QString line = QTime::currentTime().toString(QStringLiteral("HH:mm:ss ")) + text;
    // A button takes '&' for a shortcut letter.
    m_report->setText(m_report->fontMetrics()
                          .elidedText(line, Qt::ElideRight, 90 * fontMetrics().averageCharWidth())
                          .replace(QLatin1Char('&'), QLatin1String("&&")));
    m_report->show();
}

void DemoWindow::updateStatus()
{
    m_locked->setVisible(
        m_controller->value(QStringLiteral("config is_changeable")) == QLatin1String("no"));
    m_note->setText(m_controller->scenarioNote());
    m_note->setVisible(!m_note->text().isEmpty());
}

void DemoWindow::showAbout()
{
    const QString moduleText = module()
        ? tr("%1 %2").arg(module()->moduleName(), module()->moduleVersion())
        : tr("no module loaded");
    QMessageBox::about(this, tr("About the Velora demo host"),
        tr("<p>A small host for the tracking settings module, connected to a "
           "simulated tracking controller.</p><p>Module: %1<br>Plug-in: "
           "%2<br>Qt %3</p>")
            .arg(moduleText.toHtmlEscaped(), m_loader.fileName().toHtmlEscaped(),
                QString::fromLatin1(qVersion())));
}

void DemoWindow::takeLine(const QString &line)
{
    sim::SimulatedController::LogEntry entry;
    entry.kind = sim::SimulatedController::LogEntry::Setting;
    entry.operation = QStringLiteral("console");
    entry.text = line;
    entry.result = m_controller->takeScenarioLine(line, &entry.error) ? 0 : 1;
    m_logModel->append(entry);
    updateStatus();
}

bool DemoWindow::saveScenario(const QString &fileName, QString *error) const
{
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        file.write(m_controller->scenarioText().toUtf8());
        if (file.commit())
            return true;
    }
    *error = tr("Cannot write the scenario to %1: %2").arg(fileName, file.errorString());
    return false;
}

void DemoWindow::saveLogAs()
{
    const QString fileName = QFileDialog::getSaveFileName(
        m_logWindow->isVisible() ? static_cast<QWidget *>(m_logWindow) : this,
        tr("Save the controller log"), QStringLiteral("controller.log"),
        tr("Text files (*.log *.txt)"));
    QString error;
    if (!fileName.isEmpty() && !m_logModel->save(fileName, &error))
        QMessageBox::warning(this, tr("Save the controller log"), error);
}

void DemoWindow::saveScenarioAs()
{
    const QString fileName = QFileDialog::getSaveFileName(this, tr("Save the controller's state"),
        QStringLiteral("saved.scn"), tr("Scenarios (*.scn)"));
    QString error;
    if (!fileName.isEmpty() && !saveScenario(fileName, &error))
        QMessageBox::warning(this, tr("Save the controller's state"), error);
}
