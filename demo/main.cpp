#include "demooptions.h"
#include "demowindow.h"

#include <simulatedcontroller.h>

#include <QApplication>
#include <QFileInfo>
#include <QPixmap>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

int main(int argc, char *argv[])
{
    const QStringList arguments = DemoOptions::takeArguments(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("velora-demo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TRACKING_VERSION));

    QTextStream out(stdout);
    QTextStream err(stderr);
    DemoOptions options;
    {
        // Help, version and the scenario list need no display.
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
        case DemoOptions::ListScenarios:
            for (const QString &file : sim::SimulatedController::builtInScenarios())
                out << QFileInfo(file).completeBaseName() << '\t' << file << '\n';
            return 0;
        case DemoOptions::Run:
            break;
        }
    }

    QApplication app(argc, argv);
    // The host installs the module's translation, as the front-end does.
    QTranslator translator;
    if (!options.language.isEmpty()) {
        const QString name = QStringLiteral("tracking_") + options.language;
        if (translator.load(name, QStringLiteral(TRACKING_TRANSLATIONS_DIR)))
            app.installTranslator(&translator);
        else
            err << DemoOptions::tr("No translation %1 in %2; the module stays in English.")
                       .arg(name, QStringLiteral(TRACKING_TRANSLATIONS_DIR))
                << '\n';
    }
    DemoWindow window(options);
    window.show();
    if (!options.screenshotFile.isEmpty()) {
        // Late enough for the first layout and any start-up work the module queued.
        QTimer::singleShot(250, &window, [&] {
            const bool saved = window.grab().save(options.screenshotFile, "PNG");
            if (!saved)
                err << DemoOptions::tr("Cannot write the screenshot to %1")
                           .arg(options.screenshotFile)
                    << '\n';
            err.flush();
            const int exitCode = saved && window.module() ? 0 : 1;
            window.close();
            QCoreApplication::exit(exitCode);
        });
    }
    return app.exec();
}
