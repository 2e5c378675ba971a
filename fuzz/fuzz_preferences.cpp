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
    static const QString version = QStringLiteral("v3.0.5");
    TrackingPreferences preferences(version);
    static const QString fileName = preferences.fileName();
    static const bool directoryMade = QDir().mkpath(preferences.directory());
    QFile file(fileName);
    Fuzzing::require(directoryMade && file.open(QIODevice::WriteOnly | QIODevice::Truncate)
            && file.write(input) == input.size(),
        QStringLiteral("cannot write ") + fileName);
    file.close();

    const QString error = preferences.read();
    if (!error.isEmpty() && !(error.startsWith("Error: ") && error.contains(fileName)))
        Fuzzing::fail("report: " + error);
    Fuzzing::require(
        file.open(QIODevice::ReadOnly) && file.readAll() == input, "reading changed the file");
    file.close();

    // What is written depends on the two settings alone: each pair is
    // written and read back once a process, not once an input.
    preferences.setAdvancedShown(preferences.fixedAngleVisible());
    static bool checked[2][2] = {};
    bool &done = checked[preferences.advancedShown()][preferences.autoRestartVisible()];
    if (done)
        return 0;
    done = true;
    Fuzzing::require(preferences.write().isEmpty(), "writing failed");
    TrackingPreferences written(version);
    Fuzzing::require(written.read().isEmpty(), "the written file does not read back");
    Fuzzing::require(written.fixedAngleVisible() == preferences.advancedShown()
            && written.autoRestartVisible() == preferences.autoRestartVisible(),
        "the written file reads back other settings");
    return 0;
}
