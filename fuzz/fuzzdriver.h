#ifndef FUZZDRIVER_H
#define FUZZDRIVER_H

#include "fuzzwatchdog.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class FuzzTarget;

// The plain driver: runs the target's seed corpus, then a bounded number of
// deterministic mutations within a time budget, and fails when any check
// fails. A crash or a hang ends the run in-process (the watchdog saves the
// input); with --fork every input runs in a child process instead, so that
// one run collects every finding.
class FuzzDriver
{
public:
    explicit FuzzDriver(FuzzTarget &target);

    // Returns the process exit code: 0 when every check held.
    int run(const QStringList &arguments);

private:
    enum Outcome { Passed, Failed, Crashed, TimedOut };

    struct Options {
        int runs = 300; // mutations after the seeds
        double seconds = 3.0; // for the mutations; seeds always run
        quint64 seed = 1;
        int maxLength = 0; // 0: the target's own
        int timeoutMs = 20000; // one input
        int memoryMb = 8192; // address space, when no sanitizer reserves its own
        bool fork = false;
        bool skipKnown = false;
        bool quiet = false;
        QString artifacts = QStringLiteral(".");
        QString writeSeeds; // folder: write the seed corpus there and stop
        QString writeDictionary; // file: write the dictionary (libFuzzer format) and stop
        QStringList inputs; // files or folders to run instead of the seeds
    };

    bool parseOptions(const QStringList &arguments);
    QList<QByteArray> readInputs(QStringList *names) const;
    bool writeSeeds() const;
    bool writeDictionary() const;
    void runOne(const QByteArray &input, const QString &origin);
    Outcome runInProcess(const QByteArray &input, QStringList *failures);
    Outcome runForked(const QByteArray &input, QStringList *failures);
    QString saveArtifact(const char *kind, const QByteArray &input) const;

    FuzzTarget &m_target;
    Options m_options;
    FuzzWatchdog m_watchdog;
    QMap<QString, int> m_skipped;
    int m_executed = 0;
    int m_findings = 0;
};

#endif // FUZZDRIVER_H
