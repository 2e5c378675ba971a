#ifndef BENCHSCENARIO_H
#define BENCHSCENARIO_H

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
    // Standard bodies 1..count, cycling through the four default ones.
    static bool setStandardBodies(sim::SimulatedController &controller, int count);
    // Library targets 1..count, cycling through the eight default ones, each
    // new one in one of the three default groups.
    static void setLibraryTargets(sim::SimulatedController &controller, int count);
};

#endif // BENCHSCENARIO_H
