#ifndef DEMOOPTIONS_H
#define DEMOOPTIONS_H

#include <backendversions.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// What the command line asks of the demo host. Unset overrides leave the
// scenario's values as they are.
class DemoOptions
{
    Q_DECLARE_TR_FUNCTIONS(DemoOptions)

public:
    enum Outcome { Run, ShowHelp, ShowVersion, ListScenarios, Error };

    // QGuiApplication takes "-plugin" and "--plugin" for plug-ins of its own,
    // so ours is read off argv before the application is made: returns every
    // argument and leaves argv without that option.
    static QStringList takeArguments(int &argc, char **argv);

    // Fills options from arguments (program name first). For ShowHelp and
    // Error, message holds the text to print. Needs an application object.
    static Outcome parse(const QStringList &arguments, DemoOptions *options, QString *message);

    // "MAJOR.MINOR.PATCH"; each part may be negative, since the controller
    // uses patch -1 for builds between releases.
    static bool parseVersion(const QString &text, BackendVersions::Version *version);
    static QString versionText(const BackendVersions::Version &version);

    // Next to an installed demo host its own installation, else what this
    // build made, so the demo runs from an install and from the build tree.
    static QString defaultPluginPath();
    static QString translationsFolder();
    // Installs the module's, the demo's and Qt's own translation into
    // language, as a host in that language does (Qt's makes the standard
    // buttons follow); the translators are children of owner. Returns the
    // files that were not found.
    static QStringList installTranslations(const QString &language, QObject *owner);
    // One line a built-in scenario: its name, and the file installed with the
    // demo host where there is one; either goes back to --scenario.
    static QStringList scenarioList();
    // The file for a --scenario value: a file, or the name of a built-in one;
    // empty when it is neither.
    static QString scenarioFile(const QString &scenario);

    QString pluginPath; // empty: defaultPluginPath()
    QString scenario; // a file or a built-in name; empty for the default scenario
    bool hasBackendVersion = false;
    BackendVersions::Version backendVersion;
    bool hasSystemVersion = false;
    BackendVersions::Version systemVersion;
    QString systemType; // null when not given
    bool observer = false;
    bool check = false;
    QString renderFolder; // empty: open the window when there is a display
    QString logFile;
    QString saveScenarioFile;
    QString language; // empty: the module's own English
};

#endif // DEMOOPTIONS_H
