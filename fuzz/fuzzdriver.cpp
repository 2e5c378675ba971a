#include "fuzzdriver.h"

#include "fuzzmutator.h"
#include "fuzztarget.h"
#include "fuzztext.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

// Present only when a sanitizer runtime is linked in.
extern "C" void __sanitizer_set_death_callback(void (*callback)(void)) __attribute__((weak));

namespace
{

// Mutants that join the pool get mutated again later; a bounded pool keeps
// the walk from drifting too far from the seeds.
constexpr int PoolLimit = 256;
// What a child may report of its failed checks through the pipe.
constexpr int ReportLimit = 16384;

void print(const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stderr);
    std::fputc('\n', stderr);
    std::fflush(stderr);
}

const char *const Usage
    = "usage: %s [options] [FILE|FOLDER...]\n"
      "  Runs the seed corpus (or the given inputs), then deterministic mutations.\n"
      "  --runs N            mutations after the seeds (default 300; 0: none)\n"
      "  --seconds S         time budget of the mutations (default 3)\n"
      "  --seed N            of the mutations (default 1)\n"
      "  --max-len N         longest input\n"
      "  --timeout MS        one input longer than this is a hang (default 20000)\n"
      "  --memory-mb N       address-space limit without sanitizers (default 8192)\n"
      "  --fork              every input in a child process: collect all findings\n"
      "  --skip-known        leave out inputs that hit a known open fault\n"
      "  --artifacts DIR     where failing inputs are saved (default .)\n"
      "  --quiet             no line per finding beyond the first ten\n"
      "  --write-seeds DIR   write the seed corpus and stop\n"
      "  --write-dict FILE   write the dictionary in libFuzzer's format and stop\n";

} // namespace

FuzzDriver::FuzzDriver(FuzzTarget &target)
    : m_target(target)
{
}

bool FuzzDriver::parseOptions(const QStringList &arguments)
{
    for (int i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        const bool hasValue = i + 1 < arguments.size();
        bool ok = true;
        if (argument == QLatin1String("--runs") && hasValue)
            m_options.runs = arguments.at(++i).toInt(&ok);
        else if (argument == QLatin1String("--seconds") && hasValue)
            m_options.seconds = arguments.at(++i).toDouble(&ok);
        else if (argument == QLatin1String("--seed") && hasValue)
            m_options.seed = arguments.at(++i).toULongLong(&ok);
        else if (argument == QLatin1String("--max-len") && hasValue)
            m_options.maxLength = arguments.at(++i).toInt(&ok);
        else if (argument == QLatin1String("--timeout") && hasValue)
            m_options.timeoutMs = arguments.at(++i).toInt(&ok);
        else if (argument == QLatin1String("--memory-mb") && hasValue)
            m_options.memoryMb = arguments.at(++i).toInt(&ok);
        else if (argument == QLatin1String("--artifacts") && hasValue)
            m_options.artifacts = arguments.at(++i);
        else if (argument == QLatin1String("--write-seeds") && hasValue)
            m_options.writeSeeds = arguments.at(++i);
        else if (argument == QLatin1String("--write-dict") && hasValue)
            m_options.writeDictionary = arguments.at(++i);
        else if (argument == QLatin1String("--fork"))
            m_options.fork = true;
        else if (argument == QLatin1String("--skip-known"))
            m_options.skipKnown = true;
        else if (argument == QLatin1String("--quiet"))
            m_options.quiet = true;
        else if (!argument.startsWith(QLatin1String("--")))
            m_options.inputs << argument;
        else
            ok = false;
        if (!ok || m_options.runs < 0) {
            std::fprintf(stderr, Usage, qPrintable(arguments.value(0)));
            return false;
        }
    }
    if (m_options.maxLength <= 0)
        m_options.maxLength = m_target.maxLength();
    return true;
}

QList<QByteArray> FuzzDriver::readInputs(QStringList *names) const
{
    QList<QByteArray> inputs;
    for (const QString &path : m_options.inputs) {
        QStringList files;
        if (QFileInfo(path).isDir()) {
            const QDir folder(path);
            for (const QString &name : folder.entryList(QDir::Files, QDir::Name))
                files << folder.filePath(name);
        } else {
            files << path;
        }
        for (const QString &name : qAsConst(files)) {
            QFile file(name);
            if (!file.open(QIODevice::ReadOnly)) {
                print(QStringLiteral("cannot read %1: %2").arg(name, file.errorString()));
                continue;
            }
            inputs << file.readAll();
            *names << name;
        }
    }
    return inputs;
}

bool FuzzDriver::writeSeeds() const
{
    if (!QDir().mkpath(m_options.writeSeeds))
        return false;
    const QList<QByteArray> seeds = m_target.seeds();
    for (int i = 0; i < seeds.size(); ++i) {
        QFile file(QDir(m_options.writeSeeds)
                       .filePath(QStringLiteral("seed-%1").arg(i, 3, 10, QLatin1Char('0'))));
        if (!file.open(QIODevice::WriteOnly) || file.write(seeds.at(i)) != seeds.at(i).size())
            return false;
    }
    return true;
}

bool FuzzDriver::writeDictionary() const
{
    QFile file(m_options.writeDictionary);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    for (const QByteArray &word : m_target.dictionary()) {
        QByteArray line = "\"";
        for (char c : word) {
            const unsigned char u = static_cast<unsigned char>(c);
            if (u < 0x20 || u >= 0x7f || c == '"' || c == '\\')
                line += QByteArray("\\x") + QByteArray::number(u, 16).rightJustified(2, '0');
            else
                line += c;
        }
        file.write(line + "\"\n");
    }
    return true;
}

QString FuzzDriver::saveArtifact(const char *kind, const QByteArray &input) const
{
    const QString hash = QString::fromLatin1(
        QCryptographicHash::hash(input, QCryptographicHash::Sha1).toHex().left(12));
    const QString path
        = QDir(m_options.artifacts)
              .filePath(QStringLiteral("%1-%2-%3").arg(m_target.name(), QLatin1String(kind), hash));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(input);
    return path;
}

FuzzDriver::Outcome FuzzDriver::runInProcess(const QByteArray &input, QStringList *failures)
{
    const QByteArray artifact = QFile::encodeName(
        QDir(m_options.artifacts)
            .filePath(m_target.name() + QStringLiteral("-crash-or-hang-")
                + QString::fromLatin1(
                    QCryptographicHash::hash(input, QCryptographicHash::Sha1).toHex().left(12))));
    m_watchdog.arm(input, artifact);
    *failures = m_target.run(input);
    m_watchdog.disarm();
    return failures->isEmpty() ? Passed : Failed;
}

FuzzDriver::Outcome FuzzDriver::runForked(const QByteArray &input, QStringList *failures)
{
    int channel[2];
    if (pipe(channel) != 0) {
        *failures << QStringLiteral("cannot make a pipe");
        return Failed;
    }
    std::fflush(stdout);
    std::fflush(stderr);
    const pid_t child = fork();
    if (child < 0) {
        close(channel[0]);
        close(channel[1]);
        *failures << QStringLiteral("cannot fork");
        return Failed;
    }
    if (child == 0) {
        close(channel[0]);
        const QByteArray report = m_target.run(input).join(QLatin1Char('\n')).toUtf8();
        const ssize_t ignored
            = write(channel[1], report.constData(), size_t(qMin(report.size(), ReportLimit)));
        (void)ignored;
        std::fflush(stdout);
        std::fflush(stderr);
        _exit(report.isEmpty() ? 0 : 1);
    }
    close(channel[1]);

    QElapsedTimer clock;
    clock.start();
    int status = 0;
    bool timedOut = false;
    while (waitpid(child, &status, WNOHANG) == 0) {
        if (m_options.timeoutMs > 0 && clock.elapsed() > m_options.timeoutMs) {
            kill(child, SIGKILL);
            waitpid(child, &status, 0);
            timedOut = true;
            break;
        }
        usleep(200);
    }
    QByteArray report;
    char buffer[4096];
    ssize_t n;
    while ((n = read(channel[0], buffer, sizeof buffer)) > 0)
        report.append(buffer, int(n));
    close(channel[0]);

    if (timedOut) {
        *failures << QStringLiteral("no result within %1 ms").arg(m_options.timeoutMs);
        return TimedOut;
    }
    if (WIFSIGNALED(status)) {
        *failures << QStringLiteral("killed by signal %1").arg(WTERMSIG(status));
        return Crashed;
    }
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0)
        return Passed;
    *failures = QString::fromUtf8(report).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (failures->isEmpty())
        *failures << QStringLiteral("exit status %1").arg(WEXITSTATUS(status));
    return WEXITSTATUS(status) == 1 ? Failed : Crashed;
}

void FuzzDriver::runOne(const QByteArray &input, const QString &origin)
{
    if (m_options.skipKnown) {
        const QString fault = m_target.knownFault(input);
        if (!fault.isEmpty()) {
            ++m_skipped[fault];
            return;
        }
    }
    ++m_executed;
    QStringList failures;
    const Outcome outcome
        = m_options.fork ? runForked(input, &failures) : runInProcess(input, &failures);
    if (outcome == Passed)
        return;
    ++m_findings;
    static const char *const kinds[] = { "passed", "failure", "crash", "hang" };
    const QString artifact = saveArtifact(kinds[outcome], input);
    if (m_options.quiet && m_findings > 10)
        return;
    print(QStringLiteral("==fuzz== %1 %2 on %3, saved in %4")
              .arg(m_target.name(), QLatin1String(kinds[outcome]), origin, artifact));
    const QString known = m_target.knownFault(input);
    if (!known.isEmpty())
        print(QStringLiteral("  (known open fault: %1)").arg(known));
    for (const QString &failure : qAsConst(failures))
        print(QStringLiteral("  ") + failure);
    print(QStringLiteral("  input: ") + FuzzText::escaped(input, 400));
}

int FuzzDriver::run(const QStringList &arguments)
{
    if (!parseOptions(arguments))
        return 2;
    if (!m_options.writeSeeds.isEmpty())
        return writeSeeds() ? 0 : 1;
    if (!m_options.writeDictionary.isEmpty())
        return writeDictionary() ? 0 : 1;
    QDir().mkpath(m_options.artifacts);
    // A runaway input fails an allocation and aborts (its input saved)
    // instead of taking the machine with it. Sanitizers map terabytes of
    // shadow memory and watch the heap themselves.
    if (m_options.memoryMb > 0 && !__sanitizer_set_death_callback) {
        const rlim_t bytes = rlim_t(m_options.memoryMb) * 1024 * 1024;
        const struct rlimit limit {
            bytes, bytes
        };
        setrlimit(RLIMIT_AS, &limit);
    }
    if (!m_options.fork)
        m_watchdog.start(m_options.timeoutMs);

    QElapsedTimer clock;
    clock.start();
    QStringList names;
    QList<QByteArray> pool;
    if (m_options.inputs.isEmpty()) {
        pool = m_target.seeds();
        for (int i = 0; i < pool.size(); ++i)
            names << QStringLiteral("seed %1").arg(i);
    } else {
        pool = readInputs(&names);
    }
    for (int i = 0; i < pool.size(); ++i)
        runOne(pool.at(i), names.at(i));
    const int fixed = m_executed;

    FuzzMutator mutator(m_options.seed, m_target.dictionary(), m_options.maxLength);
    QElapsedTimer budget;
    budget.start();
    int mutations = 0;
    while (!pool.isEmpty() && mutations < m_options.runs
        && budget.elapsed() < qint64(m_options.seconds * 1000)) {
        const QByteArray &parent = pool.at(mutator.below(pool.size()));
        const QByteArray mutant = mutator.mutate(parent, pool.at(mutator.below(pool.size())));
        ++mutations;
        runOne(mutant, QStringLiteral("mutation %1 (seed %2)").arg(mutations).arg(m_options.seed));
        if (pool.size() < PoolLimit)
            pool << mutant;
        else
            pool[mutator.below(PoolLimit)] = mutant;
    }

    QString summary = QStringLiteral("%1: %2 fixed inputs and %3 mutations in %4 s, %5 findings")
                          .arg(m_target.name())
                          .arg(fixed)
                          .arg(m_executed - fixed)
                          .arg(clock.elapsed() / 1000.0, 0, 'f', 1)
                          .arg(m_findings);
    for (auto it = m_skipped.cbegin(); it != m_skipped.cend(); ++it)
        summary += QStringLiteral("; %1 inputs left out for the known fault \"%2\"")
                       .arg(it.value())
                       .arg(it.key());
    std::printf("%s\n", qPrintable(summary));
    return m_findings == 0 ? 0 : 1;
}
