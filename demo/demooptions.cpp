#include "demooptions.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#ifndef TRACKING_PLUGIN_PATH
#define TRACKING_PLUGIN_PATH ""
#endif

DemoOptions::Outcome DemoOptions::parse(
    const QStringList &arguments, DemoOptions *options, QString *message)
{
    QCommandLineParser parser;
    // "-plugin" has to mean "--plugin": Qt's own options are single-dash words too.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        tr("Loads the tracking settings plug-in into a small host window and connects it to a "
           "simulated tracking controller. Every command the plug-in sends shows in the log."));
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
    const QCommandLineOption screenshotOption("screenshot",
        tr("Save the main window as a PNG <file> after start-up, then quit."), tr("file"));
    const QCommandLineOption languageOption("language",
        tr("Show the module in <language> (for example de), as a host in that language would."),
        tr("language"));
    parser.addOptions({ pluginOption, scenarioOption, listOption, backendOption, systemTypeOption,
        systemVersionOption, observerOption, screenshotOption, languageOption });

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
    if (parser.isSet(systemTypeOption))
        options->systemType = parser.value(systemTypeOption);
    options->observer = parser.isSet(observerOption);
    options->screenshotFile = parser.value(screenshotOption);
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

QString DemoOptions::defaultPluginPath()
{
    return QStringLiteral(TRACKING_PLUGIN_PATH);
}
