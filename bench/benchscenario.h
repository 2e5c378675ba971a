#ifndef BENCHSCENARIO_H
#define BENCHSCENARIO_H

#include <QString>

namespace sim
{
class SimulatedController;
}

// Grows the default scenario to the sizes a benchmark needs, the way a
// crowded installation would look: bodies and library targets are copies of
// the default ones, so every kind of row (library, custom, inertial, empty)
// keeps its share.
class BenchScenario
{
public:
    struct Size {
        int standard = 100;
        int gripwands = 20; // in multi-user mode, each with its head
        int hands = 4;
        int tools = 4;
        int references = 4;
        int targets = 200;
        int groups = 20;
        int tracked = 30;
    };
    static void apply(sim::SimulatedController &controller, const Size &size);

private:
    // Bodies 1..count of the type, cycling through the default ones; the
    // controller's own count parameters follow.
    static void setBodies(sim::SimulatedController &controller, const QString &type, int count,
        const QString &countPath, const QString &maximumPath);
    static void setLibrary(sim::SimulatedController &controller, const Size &size);
};

#endif // BENCHSCENARIO_H
