#ifndef TRACKING_FUZZING_H
#define TRACKING_FUZZING_H

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

#include <simulatedcontroller.h>

class QWidget;

// Every target gets a headless QApplication and a private home.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

// The fuzz input read as a user's decisions: every choice takes one byte,
// and an exhausted input always chooses 0.
struct FuzzBytes {
    const uint8_t *data;
    size_t size;
    size_t at = 0;

    bool atEnd() const { return at >= size; }
    int pick(int choices) { return atEnd() || choices <= 0 ? 0 : data[at++] % choices; }
    // A length byte, then that many bytes (as far as there are).
    QByteArray text(int maxLength);
};

namespace Fuzzing
{

// A failed check is a crash to libFuzzer: it keeps and shrinks the input.
void require(bool ok, const QString &what);
// The same where building the report costs: called only once it failed.
[[noreturn]] void fail(const QString &what);
// One user action on an enabled widget of window: a button click, a table
// cell clicked, double-clicked, typed into, (un)checked or given a key, a
// number typed into a spin box, a combo box, line edit or tab changed.
void poke(QWidget *window, FuzzBytes &bytes);
// While set, every modal dialog that opens is worked on with poke() and then
// answered (Yes, No, OK, Cancel) from bytes; with none, modal dialogs are
// rejected at once. With a clock, time also passes there (passTime()).
void driveModals(FuzzBytes *bytes, sim::SimulatedController *clock = nullptr);
// Up to 12.75 s pass on the clock, and the running timers of the target
// searches in window fire 0 to 3 times each at once: no input waits for one.
void passTime(QWidget *window, sim::SimulatedController &clock, FuzzBytes &bytes);

} // namespace Fuzzing

#endif // TRACKING_FUZZING_H
