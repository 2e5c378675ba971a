// libFuzzer's entry points, shared by every fuzz target. A failed check is
// a crash to libFuzzer: it keeps the input and minimises it. With
// TRACKING_FUZZ_SKIP_KNOWN=1 in the environment, inputs that run into a known
// open fault are passed over, as the plain driver's --skip-known does.

#include "fuzztarget.h"
#include "fuzztext.h"

#include <QApplication>
#include <QCoreApplication>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace
{

FuzzTarget *target = nullptr;
bool skipKnown = false;
// Qt keeps references to argc and argv for the application's whole life.
int qtArgc = 1;
char *qtArgv[] = { const_cast<char *>("fuzz"), nullptr };

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    target = createFuzzTarget();
    if (target->needsWidgets())
        new QApplication(qtArgc, qtArgv);
    else
        new QCoreApplication(qtArgc, qtArgv);
    target->setUp();
    skipKnown = qEnvironmentVariableIntValue("TRACKING_FUZZ_SKIP_KNOWN") != 0;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size > size_t(target->maxLength()))
        return 0;
    const QByteArray input
        = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    if (skipKnown && !target->knownFault(input).isEmpty())
        return 0;
    const QStringList failures = target->run(input);
    if (failures.isEmpty())
        return 0;
    for (const QString &failure : failures)
        std::fprintf(stderr, "==fuzz== %s\n", qPrintable(failure));
    std::fprintf(stderr, "==fuzz== input: %s\n", qPrintable(FuzzText::escaped(input, 400)));
    std::abort();
}
