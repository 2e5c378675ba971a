// What the module's command channel adds to a round trip: the same query
// through CommandChannel and straight through IOManager, on one simulated
// controller that answers at once. The simulator's own cost is in both, so
// the ratio overstates the channel's share on a real link; it is there to
// catch the channel doing more per command than it should.
//
//   bench_channel [--calls N] [--rounds N] [--smoke]

#include "benchclock.h"
#include "benchtable.h"

#include <commandchannel.h>
#include <simulatedcontroller.h>

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>
#include <functional>

namespace
{

struct Options {
    int calls = 2000; // per timed batch
    int rounds = 15; // batches of each kind, interleaved
};

struct Query {
    const char *name;
    std::function<int()> raw;
    std::function<int()> channel;
};

// Interleaved batches, so that drift of the machine hits both sides alike.
// The controller's log is emptied between batches, outside the clock.
void measure(sim::SimulatedController &controller, const Query &query, const Options &options,
    BenchClock *raw, BenchClock *channel, int *failures)
{
    QElapsedTimer timer;
    for (int round = 0; round < options.rounds; ++round) {
        controller.clearLog();
        timer.start();
        for (int i = 0; i < options.calls; ++i)
            *failures += query.raw() != 0;
        raw->add(timer.nsecsElapsed() / options.calls);

        controller.clearLog();
        timer.start();
        for (int i = 0; i < options.calls; ++i)
            *failures += query.channel() != 0;
        channel->add(timer.nsecsElapsed() / options.calls);
    }
}

bool parseOptions(const QStringList &arguments, Options *options)
{
    for (int i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (argument == QLatin1String("--smoke")) {
            options->calls = 50;
            options->rounds = 2;
        } else if (argument == QLatin1String("--calls") && i + 1 < arguments.size()) {
            options->calls = qMax(1, arguments.at(++i).toInt());
        } else if (argument == QLatin1String("--rounds") && i + 1 < arguments.size()) {
            options->rounds = qMax(1, arguments.at(++i).toInt());
        } else {
            std::fprintf(stderr, "usage: bench_channel [--calls N] [--rounds N] [--smoke]\n");
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    Options options;
    if (!parseOptions(application.arguments(), &options))
        return 2;

    sim::SimulatedController controller;
    controller.setManualClock(true);
    const CommandChannel channel(&controller, &controller.backendVersions());
    const QString descPath = QStringLiteral("body desc standard b01");
    const QString countPath = QStringLiteral("standard max_number_of_bodies");
    const QByteArray descBytes = descPath.toLatin1();
    const QByteArray countBytes = countPath.toLatin1();

    const QList<Query> queries {
        { "getString",
            [&] {
                char reply[IOManager::ReplyBufferSize];
                return controller.getString(reply, "%s", descBytes.constData());
            },
            [&] {
                QString value;
                return channel.getString(descPath, &value);
            } },
        { "getInt",
            [&] {
                qint32 value = 0;
                return controller.getInt(&value, "%s", countBytes.constData());
            },
            [&] {
                int value = 0;
                return channel.getInt(countPath, &value);
            } },
    };

    BenchTable table(QStringLiteral("Command round trip, %1 calls x %2 rounds (median ns/call)")
                         .arg(options.calls)
                         .arg(options.rounds),
        { QStringLiteral("query"), QStringLiteral("IOManager ns"), QStringLiteral("channel ns"),
            QStringLiteral("channel/IOManager") });
    int failures = 0;
    for (const Query &query : queries) {
        BenchClock raw;
        BenchClock viaChannel;
        measure(controller, query, options, &raw, &viaChannel, &failures);
        table.addRow({ QLatin1String(query.name), QString::number(raw.median()),
            QString::number(viaChannel.median()),
            BenchTable::number(
                raw.median() > 0 ? double(viaChannel.median()) / raw.median() : 0, 2) });
    }
    table.print();
    if (failures != 0) {
        std::fprintf(stderr, "%d queries failed\n", failures);
        return 1;
    }
    return 0;
}
