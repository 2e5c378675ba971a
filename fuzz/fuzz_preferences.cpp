// A preferences file of any content: reading it fails with a report naming
// the file or succeeds, never changes it, and what the dialog then writes
// reads back with the same settings.
#include "fuzzing.h"

#include <trackingpreferences.h>

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QString version = QStringLiteral("v3.0.5");
    TrackingPreferences preferences(version);
    static const QString fileName = preferences.fileName();
    static const QByteArray path = QFile::encodeName(fileName);
    static const bool directoryMade = QDir().mkpath(preferences.directory());
    // The target's own file work in plain C: QFile's buffers took a fifth
    // of an input's time.
    std::FILE *file = std::fopen(path.constData(), "wb");
    const bool stored = file && std::fwrite(data, 1, size, file) == size;
    Fuzzing::require(directoryMade && file && std::fclose(file) == 0 && stored,
        QStringLiteral("cannot write ") + fileName);

    const QString error = preferences.read();
    if (!error.isEmpty() && !(error.startsWith("Error: ") && error.contains(fileName)))
        Fuzzing::fail("report: " + error);
    std::vector<uint8_t> after(size + 1);
    file = std::fopen(path.constData(), "rb");
    const size_t read = file ? std::fread(after.data(), 1, after.size(), file) : 0;
    Fuzzing::require(file && std::fclose(file) == 0 && read == size
            && std::equal(data, data + size, after.begin()),
        "reading changed the file");

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
