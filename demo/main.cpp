#include "demooptions.h"
#include "demowindow.h"
#include "dialogrenderer.h"
#include "logwindow.h"
#include "simulatorlogmodel.h"

#include <moduleinterface.h>
#include <simulatedcontroller.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace
{

QtMessageHandler standard = nullptr;

// The offscreen platform warns about window features it has no use for.
void quietOffscreen(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg
        && (message.startsWith(QLatin1String("This plugin does not support"))
            || message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR"))))
        return;
    standard(type, context, message);
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

} // namespace

int main(int argc, char *argv[])
{
    const QStringList arguments = DemoOptions::takeArguments(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("velora-demo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TRACKING_VERSION));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);

    QTextStream out(stdout);
    QTextStream err(stderr);
    DemoOptions options;
    {
        // Help, version, the scenario list and a bad scenario need no display.
        QCoreApplication console(argc, argv);
        QString message;
        switch (DemoOptions::parse(arguments, &options, &message)) {
        case DemoOptions::Error:
            err << message << '\n' << DemoOptions::tr("Try --help.") << '\n';
            return 2;
        case DemoOptions::ShowHelp:
            out << message;
            return 0;
        case DemoOptions::ShowVersion:
            out << QCoreApplication::applicationName() << ' '
                << QCoreApplication::applicationVersion() << '\n';
            return 0;
        case DemoOptions::ListScenarios: {
            const QStringList lines = DemoOptions::scenarioList();
            for (const QString &line : lines)
                out << line << '\n';
        }
            return 0;
        case DemoOptions::Run:
            break;
        }
        QStringList errors;
        sim::SimulatedController probe;
        if (!probe.loadScenario(DemoOptions::scenarioFile(options.scenario), &errors)) {
            err << errors.join(QLatin1Char('\n')) << '\n';
            return 1;
        }
    }

    // Without a display Qt would abort; draw offscreen and show pictures instead.
    const bool offscreen = qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && !hasDisplay();
    if (offscreen) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        standard = qInstallMessageHandler(quietOffscreen);
    }
    QApplication app(argc, argv);
    if (!options.language.isEmpty()) {
        const QStringList missingFiles = DemoOptions::installTranslations(options.language, &app);
        for (const QString &missing : missingFiles)
            err << DemoOptions::tr("No translation %1; its texts stay in English.").arg(missing)
                << '\n';
    }

    DemoWindow window(options);
    if (!window.module()) {
        if (options.check || !options.renderFolder.isEmpty() || offscreen)
            return 1; // the window has said why on stderr
    }
    if (options.check) {
        out << window.module()->moduleName() << ' ' << window.module()->moduleVersion() << ": "
            << QDir::cleanPath(
                   QFileInfo(options.pluginPath.isEmpty() ? DemoOptions::defaultPluginPath()
                                                          : options.pluginPath)
                       .absoluteFilePath())
            << '\n';
        return 0;
    }
    QString error;
    if (!options.logFile.isEmpty() && !window.logModel()->setLogFile(options.logFile, &error)) {
        err << error << '\n';
        return 1;
    }

    int result = 0;
    const QString platform = QGuiApplication::platformName();
    QString folder = options.renderFolder;
    if (folder.isEmpty()
        && (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal"))) {
        folder = QDir::temp().filePath(QStringLiteral("velora-demo-pictures"));
        out << DemoOptions::tr("No display: rendering every dialog and tab of the scenario to %1")
                   .arg(folder)
            << '\n';
        out.flush();
    }
    if (!folder.isEmpty()) {
        window.show();
        window.logWindow()->show();
        DialogRenderer renderer(folder);
        const QStringList files
            = renderer.render(window.moduleActions(), { &window, window.logWindow() });
        for (const QString &file : files)
            out << file << '\n';
        const QStringList problems = renderer.problems() + renderer.clashes();
        for (const QString &problem : problems)
            err << problem << '\n';
        result = renderer.problems().isEmpty() ? 0 : 1;
        window.close();
    } else {
        window.show();
        window.logWindow()->show();
        result = app.exec();
    }
    if (!options.saveScenarioFile.isEmpty()
        && !window.saveScenario(options.saveScenarioFile, &error)) {
        err << error << '\n';
        result = 1;
    }
    return result;
}
