#include "versiongate.h"

bool VersionGate::passes(const BackendVersions::Version &version, int major, int minor)
{
    if (version.major != major)
        return version.major > major;
    if (version.minor != minor)
        return version.minor > minor;
    return version.patch >= 0 || version.patch == -1;
}

bool VersionGate::atLeast(int major, int minor) const
{
    return m_versions && passes(m_versions->backendVersion, major, minor);
}

bool VersionGate::isOrbilux() const
{
    return m_versions && m_versions->systemType.startsWith(QLatin1String("ORBILUX"));
}

bool VersionGate::systemVersionAbove(int major, int minor, int patch) const
{
    if (!m_versions)
        return false;
    const BackendVersions::Version &v = m_versions->systemVersion;
    if (v.major != major)
        return v.major > major;
    if (v.minor != minor)
        return v.minor > minor;
    return v.patch > patch;
}
