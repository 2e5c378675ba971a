// A preferences file of any content: reading it fails with a report naming
// the file or succeeds, never changes it, and what the dialog then writes
// reads back with the same settings.
#include "fuzzing.h"

#include <trackingpreferences.h>

#include <QDir>
#include <QFile>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    const QString version = QStringLiteral("v3.0.5");
    TrackingPreferences preferences(version);
    const QString fileName = preferences.fileName();
    QDir().mkpath(preferences.directory());
    QFile file(fileName);
    Fuzzing::require(
        file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(input) == input.size(),
        "cannot write " + fileName);
    file.close();

    const QString error = preferences.read();
    Fuzzing::require(error.isEmpty() || (error.startsWith("Error: ") && error.contains(fileName)),
        "report: " + error);
    Fuzzing::require(
        file.open(QIODevice::ReadOnly) && file.readAll() == input, "reading changed the file");
    file.close();

    Fuzzing::require(preferences.write().isEmpty(), "writing failed");
    TrackingPreferences written(version);
    Fuzzing::require(written.read().isEmpty(), "the written file does not read back");
    Fuzzing::require(written.fixedAngleVisible() == preferences.advancedShown()
            && written.autoRestartVisible() == preferences.autoRestartVisible(),
        "the written file reads back other settings");
    return 0;
}
