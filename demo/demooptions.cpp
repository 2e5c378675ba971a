#include "demooptions.h"

#include <simulatedcontroller.h>

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QTranslator>

#ifndef TRACKING_PLUGIN_PATH
#define TRACKING_PLUGIN_PATH ""
#endif
#ifndef TRACKING_TRANSLATIONS_DIR
#define TRACKING_TRANSLATIONS_DIR ""
#endif
#ifndef TRACKING_INSTALLED_PLUGIN
#define TRACKING_INSTALLED_PLUGIN ""
#endif
#ifndef TRACKING_INSTALLED_TRANSLATIONS
#define TRACKING_INSTALLED_TRANSLATIONS ""
#endif

DemoOptions::Outcome DemoOptions::parse(
    const QStringList &arguments, DemoOptions *options, QString *message)
{
    QCommandLineParser parser;
    // "-plugin" has to mean "--plugin": Qt's own options are single-dash words too.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        tr("Loads the tracking settings plug-in into a small host window and connects it to a "
           "simulated tracking controller. Every command the plug-in sends shows in the log.\n"
           "Without a display it renders every dialog and tab to PNG files instead."));
    const QCommandLineOption helpOption = parser.addHelpOption();
    const QCommandLineOption versionOption = parser.addVersionOption();
    const QCommandLineOption pluginOption("plugin",
        tr("Load the plug-in from <path> instead of the one this build made (%1).")
            .arg(defaultPluginPath()),
        tr("path"));
    const QCommandLineOption scenarioOption("scenario",
        tr("Start the controller from <file>, or from the built-in scenario of that "
           "name (see --list-scenarios)."),
        tr("file"));
    const QCommandLineOption listOption(
        "list-scenarios", tr("List the built-in scenarios and exit."));
    const QCommandLineOption backendOption("backend-version",
        tr("Controller software version, overriding the scenario's."), tr("major.minor.patch"));
    const QCommandLineOption systemTypeOption(
        "system-type", tr("Tracking-system model name, overriding the scenario's."), tr("text"));
    const QCommandLineOption systemVersionOption("system-version",
        tr("Tracking-system version, overriding the scenario's."), tr("major.minor.patch"));
    const QCommandLineOption observerOption("observer", tr("Run the module in observer mode."));
    const QCommandLineOption renderOption("render",
        tr("Render the window and every dialog and tab of the module to PNG files in <folder>, "
           "print their paths and quit (what happens anyway without a display)."),
        tr("folder"));
    const QCommandLineOption checkOption(
        "check", tr("Load the plug-in, print its name, version and file, and quit."));
    const QCommandLineOption logOption(
        "log", tr("Write the controller log to <file> as it happens."), tr("file"));
    const QCommandLineOption saveScenarioOption("save-scenario",
        tr("On exit, save the controller's state as a scenario <file> that loads back to it."),
        tr("file"));
    const QCommandLineOption languageOption("language",
        tr("Show the module in <language> (for example de), as a host in that language would."),
        tr("language"));
    parser.addOptions({ pluginOption, scenarioOption, listOption, backendOption, systemTypeOption,
        systemVersionOption, observerOption, renderOption, checkOption, logOption,
        saveScenarioOption, languageOption });

    if (!parser.parse(arguments)) {
        *message = parser.errorText();
        return Error;
    }
    if (!parser.positionalArguments().isEmpty()) {
        *message = tr("Unexpected argument: %1").arg(parser.positionalArguments().first());
        return Error;
    }
    if (parser.isSet(helpOption)) {
        *message = parser.helpText();
        return ShowHelp;
    }
    if (parser.isSet(versionOption))
        return ShowVersion;
    if (parser.isSet(listOption))
        return ListScenarios;

    if (parser.isSet(pluginOption))
        options->pluginPath = parser.value(pluginOption);
    options->scenario = parser.value(scenarioOption);
    if (!options->scenario.isEmpty() && scenarioFile(options->scenario).isEmpty()) {
        *message = tr("No scenario file or built-in scenario \"%1\" (see --list-scenarios)")
                       .arg(options->scenario);
        return Error;
    }
    if (parser.isSet(systemTypeOption))
        options->systemType = parser.value(systemTypeOption);
    options->observer = parser.isSet(observerOption);
    options->check = parser.isSet(checkOption);
    options->renderFolder = parser.value(renderOption);
    options->logFile = parser.value(logOption);
    options->saveScenarioFile = parser.value(saveScenarioOption);
    options->language = parser.value(languageOption);

    const struct {
        const QCommandLineOption &option;
        bool *isSet;
        BackendVersions::Version *version;
    } versions[] = {
        { backendOption, &options->hasBackendVersion, &options->backendVersion },
        { systemVersionOption, &options->hasSystemVersion, &options->systemVersion },
    };
    for (const auto &v : versions) {
        if (!parser.isSet(v.option))
            continue;
        const QString text = parser.value(v.option);
        if (!parseVersion(text, v.version)) {
            *message = tr("--%1 wants MAJOR.MINOR.PATCH, not \"%2\"")
                           .arg(v.option.names().first(), text);
            return Error;
        }
        *v.isSet = true;
    }
    return Run;
}

QStringList DemoOptions::takeArguments(int &argc, char **argv)
{
    QStringList arguments;
    int kept = 0;
    for (int i = 0; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        arguments << QString::fromLocal8Bit(argument);
        if (i > 0 && (argument == "--plugin" || argument == "-plugin") && i + 1 < argc) {
            arguments << QString::fromLocal8Bit(argv[++i]);
            continue;
        }
        if (i > 0 && (argument.startsWith("--plugin=") || argument.startsWith("-plugin=")))
            continue;
        argv[kept++] = argv[i];
    }
    argc = kept;
    argv[argc] = nullptr;
    return arguments;
}

bool DemoOptions::parseVersion(const QString &text, BackendVersions::Version *version)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*(-?\\d{1,9})\\.(-?\\d{1,9})\\.(-?\\d{1,9})\\s*$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return false;
    version->major = match.captured(1).toInt();
    version->minor = match.captured(2).toInt();
    version->patch = match.captured(3).toInt();
    return true;
}

QString DemoOptions::versionText(const BackendVersions::Version &version)
{
    return QStringLiteral("%1.%2.%3").arg(version.major).arg(version.minor).arg(version.patch);
}

namespace
{

QString installedOrBuilt(const char *installed, const char *built)
{
    const QString path = QDir(QCoreApplication::applicationDirPath())
                             .absoluteFilePath(QString::fromUtf8(installed));
    return *installed && QFileInfo::exists(path) ? QDir::cleanPath(path) : QString::fromUtf8(built);
}

} // namespace

QString DemoOptions::defaultPluginPath()
{
    return installedOrBuilt(TRACKING_INSTALLED_PLUGIN, TRACKING_PLUGIN_PATH);
}

QString DemoOptions::translationsFolder()
{
    return installedOrBuilt(TRACKING_INSTALLED_TRANSLATIONS, TRACKING_TRANSLATIONS_DIR);
}

QStringList DemoOptions::installTranslations(const QString &language, QObject *owner)
{
    const QString qtFolder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    const QPair<QString, QString> files[] = { { QStringLiteral("tracking_"), translationsFolder() },
        { QStringLiteral("velora-demo_"), translationsFolder() },
        { QStringLiteral("qtbase_"), qtFolder } };
    QStringList missing;
    for (const auto &file : files) {
        auto *translator = new QTranslator(owner);
        if (translator->load(file.first + language, file.second))
            QCoreApplication::installTranslator(translator);
        else
            missing << QDir(file.second).filePath(file.first + language);
    }
    return missing;
}

QString DemoOptions::scenarioFile(const QString &scenario)
{
    if (scenario.isEmpty())
        return sim::SimulatedController::defaultScenario();
    if (QFileInfo(scenario).isFile())
        return scenario;
    for (const QString &file : sim::SimulatedController::builtInScenarios()) {
        if (QFileInfo(file).completeBaseName() == scenario)
            return file;
    }
    return QString();
}
