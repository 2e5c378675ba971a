#ifndef TRACKING_VERSIONGATE_H
#define TRACKING_VERSIONGATE_H

#include <backendversions.h>

// Decides which features the connected controller offers. Older controllers
// lack commands; every feature that depends on the controller's software
// version asks here, with the version it first appeared in.
class VersionGate
{
public:
    explicit VersionGate(const BackendVersions *versions)
        : m_versions(versions)
    {
    }

    // True when the controller software is at least major.minor. A patch
    // number of -1 marks an unreleased build of major.minor and passes; other
    // negative patches are pre-releases and fail.
    bool atLeast(int major, int minor) const;

    // The compact ORBILUX tracking system changes several defaults.
    bool isOrbilux() const;

    // Plain three-level comparison of the tracking system's own version.
    bool systemVersionAbove(int major, int minor, int patch) const;

    static bool passes(const BackendVersions::Version &version, int major, int minor);

private:
    const BackendVersions *m_versions;
};

#endif // TRACKING_VERSIONGATE_H
