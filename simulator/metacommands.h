#ifndef TRACKING_SIM_METACOMMANDS_H
#define TRACKING_SIM_METACOMMANDS_H

#include <QString>

namespace sim
{

class BodyModel;
class LibraryTargets;
class ParameterTable;
class TargetSearch;

// The controller's "velora2 ..." commands. Each answers with a reply text:
// "velora2 ok", or "velora2 error: <reason>" when it refuses.
class MetaCommands
{
public:
    MetaCommands(
        ParameterTable &table, BodyModel &bodies, LibraryTargets &targets, TargetSearch &search);

    static QString ok();
    static QString error(const QString &reason);

    // command is trimmed; now is the controller's clock in milliseconds.
    QString execute(const QString &command, qint64 now);

private:
    QString switchBodies(const QStringList &words);
    QString calibrateFromLibrary(const QStringList &words);
    QString setSensorDefault(const QString &sensor);
    QString checkCustomCalibration();
    bool searchRunning() const;

    ParameterTable &m_table;
    BodyModel &m_bodies;
    LibraryTargets &m_targets;
    TargetSearch &m_search;
};

} // namespace sim

#endif // TRACKING_SIM_METACOMMANDS_H
