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
#ifndef TRACKING_INSTALLED_SCENARIOS
#define TRACKING_INSTALLED_SCENARIOS ""
#endif

namespace
{

// Qt's own options, which QApplication takes off the command line later:
// accepted here so that they get that far, and listed by --help-all.
const struct {
    const char *name;
    const char *valueName; // null: a switch
    const char *description;
} QtOptions[] = {
    { "platform", QT_TRANSLATE_NOOP("DemoOptions", "name[:options]"),
        QT_TRANSLATE_NOOP("DemoOptions", "Qt's platform plug-in: xcb, wayland, offscreen, ...") },
    { "platformpluginpath", QT_TRANSLATE_NOOP("DemoOptions", "path"),
        QT_TRANSLATE_NOOP("DemoOptions", "Folder of the platform plug-ins.") },
    { "platformtheme", QT_TRANSLATE_NOOP("DemoOptions", "theme"),
        QT_TRANSLATE_NOOP("DemoOptions", "Platform theme.") },
    { "style", QT_TRANSLATE_NOOP("DemoOptions", "style"),
        QT_TRANSLATE_NOOP("DemoOptions", "Widget style: Fusion, Windows, ...") },
    { "stylesheet", QT_TRANSLATE_NOOP("DemoOptions", "file"),
        QT_TRANSLATE_NOOP("DemoOptions", "Style sheet for every widget.") },
    { "reverse", nullptr, QT_TRANSLATE_NOOP("DemoOptions", "Lay out from right to left.") },
    { "qwindowgeometry", QT_TRANSLATE_NOOP("DemoOptions", "geometry"),
        QT_TRANSLATE_NOOP("DemoOptions", "Geometry of the first window, as in 800x600+50+50.") },
    { "qwindowtitle", QT_TRANSLATE_NOOP("DemoOptions", "title"),
        QT_TRANSLATE_NOOP("DemoOptions", "Title of the first window.") },
    { "display", QT_TRANSLATE_NOOP("DemoOptions", "display"),
        QT_TRANSLATE_NOOP("DemoOptions", "X11 display to use.") },
    { "widgetcount", nullptr,
        QT_TRANSLATE_NOOP("DemoOptions", "Print the number of widgets left at exit.") },
};

// Edits that turn one word into the other.
int distance(const QString &a, const QString &b)
{
    QVector<int> row(b.size() + 1);
    for (int j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (int i = 1; i <= a.size(); ++i) {
        int diagonal = row[0];
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const int above = row[j];
            row[j] = qMin(qMin(row[j] + 1, row[j - 1] + 1), diagonal + (a[i - 1] != b[j - 1]));
            diagonal = above;
        }
    }
    return row[b.size()];
}

// The option a misspelt or shortened name most likely meant; empty when none is close.
QString nearest(const QString &unknown, const QStringList &names)
{
    QString best;
    int bestDistance = 3;
    for (const QString &name : names) {
        const int d = unknown.size() >= 3 && name.startsWith(unknown) ? 1 : distance(unknown, name);
        if (d < bestDistance) {
            best = name;
            bestDistance = d;
        }
    }
    return best;
}

} // namespace

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
        tr("Load the plug-in from <path> instead of %1.").arg(defaultPluginPath()), tr("path"));
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
    const QList<QCommandLineOption> ours { pluginOption, scenarioOption, listOption, backendOption,
        systemTypeOption, systemVersionOption, observerOption, renderOption, checkOption, logOption,
        saveScenarioOption, languageOption };
    parser.addOptions(ours);
    const bool helpAll = arguments.contains(QLatin1String("--help-all"))
        || arguments.contains(QLatin1String("-help-all"));
    for (const auto &qt : QtOptions) {
        QCommandLineOption option(QLatin1String(qt.name), tr(qt.description),
            qt.valueName ? tr(qt.valueName) : QString());
        if (!helpAll)
            option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }

    if (!parser.parse(arguments)) {
        *message = parser.errorText();
        QStringList names { QStringLiteral("help"), QStringLiteral("help-all"),
            QStringLiteral("version") };
        for (const QCommandLineOption &option : ours)
            names += option.names();
        const QString meant = nearest(parser.unknownOptionNames().value(0), names);
        if (!meant.isEmpty())
            *message += QLatin1Char(' ') + tr("Did you mean --%1?").arg(meant);
        return Error;
    }
    if (!parser.positionalArguments().isEmpty()) {
        *message = tr("Unexpected argument: %1").arg(parser.positionalArguments().constFirst());
        return Error;
    }
    if (parser.isSet(helpOption) || helpAll) {
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
    // Found out now rather than after a session whose state would be lost.
    if (!options->saveScenarioFile.isEmpty()) {
        const QFileInfo file(options->saveScenarioFile);
        const QFileInfo folder(file.absolutePath());
        if (!folder.isDir() || !folder.isWritable() || file.isDir()
            || (file.exists() && !file.isWritable())) {
            *message = tr("--save-scenario: %1 cannot be written (is its folder there and "
                          "writable?)")
                           .arg(options->saveScenarioFile);
            return Error;
        }
    }
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
                           .arg(v.option.names().constFirst(), text);
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

QStringList DemoOptions::scenarioList()
{
    const QString installed = installedOrBuilt(TRACKING_INSTALLED_SCENARIOS, "");
    QStringList lines;
    const QStringList builtIn = sim::SimulatedController::builtInScenarios();
    for (const QString &file : builtIn) {
        const QString name = QFileInfo(file).completeBaseName();
        const QString copy = QDir(installed).filePath(QFileInfo(file).fileName());
        lines << (!installed.isEmpty() && QFileInfo(copy).isFile() ? name + QLatin1Char('\t') + copy
                                                                   : name);
    }
    return lines;
}

QString DemoOptions::scenarioFile(const QString &scenario)
{
    if (scenario.isEmpty())
        return sim::SimulatedController::defaultScenario();
    if (QFileInfo(scenario).isFile())
        return scenario;
    const QStringList builtIn = sim::SimulatedController::builtInScenarios();
    for (const QString &file : builtIn) {
        if (QFileInfo(file).completeBaseName() == scenario)
            return file;
    }
    return QString();
}
