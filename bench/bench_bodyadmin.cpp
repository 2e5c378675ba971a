// How quickly the body administration dialog opens against a controller that
// answers at once, so that only the module's own work is measured: building
// the dialog, one full reload of the standard tab, the first paint, and
// loading the target library. Each size runs on a fresh controller.
//
//   bench_bodyadmin [--repeats N] [--smoke]
//
// Reload time and command count should grow linearly with the number of
// bodies; the printed ratios make a regression to per-row or per-paint
// querying visible without comparing against numbers of another machine.

#include "benchclock.h"
#include "benchscenario.h"
#include "benchtable.h"

#include <bodyadministrationdlg.h>
#include <bodytabfactory.h>
#include <bodytypeadministrationtab.h>
#include <simulatedcontroller.h>
#include <targetlibrary.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTableWidget>

#include <cstdio>
#include <memory>

namespace
{

struct Options {
    bool smoke = false;
    int repeats = 7;
    QVector<int> bodies { 4, 20, 100 };
    QVector<int> targets { 8, 200 };
};

struct DialogSample {
    int bodies = 0;
    BenchClock construct;
    BenchClock update;
    BenchClock paint;
    int constructCommands = 0;
    int updateCommands = 0;
    int paintCommands = 0;
    int rows = 0;
};

struct LibrarySample {
    int targets = 0;
    BenchClock load;
    BenchClock dialog;
    int commands = 0;
    int loaded = 0;
};

double milliseconds(qint64 nanoseconds)
{
    return nanoseconds / 1e6;
}

double ratio(double numerator, double denominator)
{
    return denominator > 0 ? numerator / denominator : 0.0;
}

DialogSample measureDialog(int bodies, int repeats)
{
    DialogSample sample;
    sample.bodies = bodies;
    for (int run = 0; run < repeats; ++run) {
        sim::SimulatedController controller;
        controller.setManualClock(true);
        if (!BenchScenario::setStandardBodies(controller, bodies))
            return sample;
        controller.clearLog();

        QElapsedTimer timer;
        timer.start();
        auto dialog = std::make_unique<BodyAdministrationDlg>(
            &controller, nullptr, &controller.backendVersions());
        sample.construct.add(timer.nsecsElapsed());
        sample.constructCommands = controller.commands().size();

        BodyTypeAdministrationTab *tab = dialog->tab(BodyTabFactory::Standard);
        controller.clearLog();
        timer.restart();
        tab->update_tab();
        sample.update.add(timer.nsecsElapsed());
        sample.updateCommands = controller.commands().size();

        controller.clearLog();
        dialog->resize(1300, 700);
        timer.restart();
        dialog->show();
        QCoreApplication::processEvents();
        dialog->repaint();
        sample.paint.add(timer.nsecsElapsed());
        sample.paintCommands = controller.commands().size();

        const BodyTypeAdministrationTab *shown = tab;
        const BodyTypeEntry *standard = shown->entry(QStringLiteral("standard"));
        sample.rows = standard && standard->table ? standard->table->rowCount() : -1;
    }
    return sample;
}

LibrarySample measureLibrary(int targets, int repeats)
{
    LibrarySample sample;
    sample.targets = targets;
    for (int run = 0; run < repeats; ++run) {
        sim::SimulatedController controller;
        controller.setManualClock(true);
        BenchScenario::setLibraryTargets(controller, targets);
        controller.clearLog();

        QElapsedTimer timer;
        timer.start();
        {
            Targetlibrary library(&controller, &controller.backendVersions(), nullptr);
            sample.load.add(timer.nsecsElapsed());
            sample.loaded = library.targets.size();
        }
        sample.commands = controller.commands().size();

        // The standard tab lists the library too; the dialog pays for both.
        timer.restart();
        BodyAdministrationDlg dialog(&controller, nullptr, &controller.backendVersions());
        sample.dialog.add(timer.nsecsElapsed());
    }
    return sample;
}

bool parseOptions(const QStringList &arguments, Options *options)
{
    for (int i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (argument == QLatin1String("--smoke")) {
            options->smoke = true;
            options->repeats = 1;
            options->bodies = { 2, 5 };
            options->targets = { 8, 10 };
        } else if (argument == QLatin1String("--repeats") && i + 1 < arguments.size()) {
            options->repeats = qMax(1, arguments.at(++i).toInt());
        } else {
            std::fprintf(stderr, "usage: bench_bodyadmin [--repeats N] [--smoke]\n");
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Options options;
    if (!parseOptions(application.arguments(), &options))
        return 2;
    bool consistent = true;

    QVector<DialogSample> dialogs;
    for (int bodies : options.bodies)
        dialogs.append(measureDialog(bodies, options.repeats));

    BenchTable dialogTable(
        QStringLiteral("Body administration dialog, standard tab (median of %1 runs)")
            .arg(options.repeats),
        { QStringLiteral("bodies"), QStringLiteral("build ms"), QStringLiteral("reload ms"),
            QStringLiteral("reload us/body"), QStringLiteral("paint ms"),
            QStringLiteral("build cmds"), QStringLiteral("reload cmds"),
            QStringLiteral("cmds/body"), QStringLiteral("paint cmds") });
    for (const DialogSample &sample : qAsConst(dialogs)) {
        dialogTable.addRow({ QString::number(sample.bodies),
            BenchTable::number(milliseconds(sample.construct.median()), 2),
            BenchTable::number(milliseconds(sample.update.median()), 2),
            BenchTable::number(sample.update.median() / 1e3 / sample.bodies, 1),
            BenchTable::number(milliseconds(sample.paint.median()), 2),
            QString::number(sample.constructCommands), QString::number(sample.updateCommands),
            BenchTable::number(double(sample.updateCommands) / sample.bodies, 1),
            QString::number(sample.paintCommands) });
        if (sample.rows != sample.bodies) {
            std::fprintf(
                stderr, "%d bodies but the table shows %d rows\n", sample.bodies, sample.rows);
            consistent = false;
        }
    }
    dialogTable.print();
    if (dialogs.size() >= 2) {
        const DialogSample &small = dialogs.at(dialogs.size() - 2);
        const DialogSample &large = dialogs.last();
        const double expected = double(large.bodies) / small.bodies;
        std::printf("ratios %d/%d bodies (linear: %.1f): reload time %.2f, build time %.2f, "
                    "reload commands %.2f\n",
            large.bodies, small.bodies, expected,
            ratio(large.update.median(), small.update.median()),
            ratio(large.construct.median(), small.construct.median()),
            ratio(large.updateCommands, small.updateCommands));
        // Fixed costs drown the small sizes; the step between the two
        // largest is what each further body costs.
        const int added = large.bodies - small.bodies;
        std::printf("each body from %d to %d: reload %.1f us, %.1f commands\n\n", small.bodies,
            large.bodies, (large.update.median() - small.update.median()) / 1e3 / added,
            double(large.updateCommands - small.updateCommands) / added);
    }

    QVector<LibrarySample> libraries;
    for (int targets : options.targets)
        libraries.append(measureLibrary(targets, options.repeats));

    BenchTable libraryTable(
        QStringLiteral("Target library (median of %1 runs)").arg(options.repeats),
        { QStringLiteral("targets"), QStringLiteral("load ms"), QStringLiteral("us/target"),
            QStringLiteral("cmds"), QStringLiteral("cmds/target"),
            QStringLiteral("dialog build ms") });
    for (const LibrarySample &sample : qAsConst(libraries)) {
        libraryTable.addRow({ QString::number(sample.targets),
            BenchTable::number(milliseconds(sample.load.median()), 2),
            BenchTable::number(sample.load.median() / 1e3 / sample.targets, 1),
            QString::number(sample.commands),
            BenchTable::number(double(sample.commands) / sample.targets, 1),
            BenchTable::number(milliseconds(sample.dialog.median()), 2) });
        if (sample.loaded != sample.targets) {
            std::fprintf(
                stderr, "%d targets but the library holds %d\n", sample.targets, sample.loaded);
            consistent = false;
        }
    }
    libraryTable.print();
    if (libraries.size() >= 2) {
        const LibrarySample &small = libraries.first();
        const LibrarySample &large = libraries.last();
        std::printf("ratios %d/%d targets (linear: %.1f): load time %.2f, commands %.2f, "
                    "dialog build time %.2f\n",
            large.targets, small.targets, double(large.targets) / small.targets,
            ratio(large.load.median(), small.load.median()), ratio(large.commands, small.commands),
            ratio(large.dialog.median(), small.dialog.median()));
    }
    return consistent ? 0 : 1;
}
