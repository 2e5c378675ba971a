#ifndef TRACKING_SIM_SCENARIO_H
#define TRACKING_SIM_SCENARIO_H

#include "faultinjector.h"

#include <backendversions.h>

#include <QHash>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace sim
{

// One controller described in a text file:
//
//   # comment
//   body desc standard b01 = "Glasses"      query text = reply text
//   @backend-version 1.24.0                 controller software
//   @system-version 2.9.4                   tracking system
//   @system-type ORBILUX compact            tracking system model
//   @present t01 t03                        targets a search finds
//   @search-duration 3000                   milliseconds a search takes
//   @fail PATTERN                           commands that fail
//   @reply PATTERN = TEXT                   commands with a doctored reply
//   @unfail PATTERN                         lifts the @fail and @reply lines
//                                           PATTERN covers ("*": all of them)
//   @note TEXT                              what the scenario is for, shown
//                                           by the demo host
//
// A bad line is reported as "NAME:LINE: reason" and skipped; the rest of the
// file still counts. A parameter path must start with a word the controller
// knows, so that a misspelt group is not silently a parameter of its own.
class Scenario
{
public:
    bool parse(const QString &text, const QString &name);

    const QMap<QString, QString> &parameters() const { return m_parameters; }
    int lineOf(const QString &path) const { return m_lines.value(path); }
    const BackendVersions &versions() const { return m_versions; }
    const QStringList &presentTargets() const { return m_present; }
    int searchDuration() const { return m_searchDuration; } // 0: not given
    const QList<FaultInjector::Injection> &injections() const { return m_faults.injections(); }
    // The @unfail patterns, in order; each has already lifted what stood above it.
    const QStringList &lifted() const { return m_lifted; }
    const QString &note() const { return m_note; }
    const QStringList &errors() const { return m_errors; }
    // Whether the text gave the directive ("@present", ...) at all.
    bool has(const QString &directive) const { return m_given.contains(directive); }

    // Reads "MAJOR.MINOR.PATCH"; the patch may be negative (pre-releases).
    static bool parseVersion(const QString &text, BackendVersions::Version *version);

private:
    // A line that is neither blank nor a comment.
    void parseLine(const QString &line, int number);
    void parseDirective(const QString &directive, const QString &rawArgument, int number);
    void addError(int line, const QString &reason);
    bool once(const QString &directive, int line);

    QString m_name;
    QMap<QString, QString> m_parameters;
    QHash<QString, int> m_lines;
    BackendVersions m_versions;
    QStringList m_present;
    int m_searchDuration = 0;
    FaultInjector m_faults;
    QStringList m_lifted;
    QString m_note;
    QHash<QString, int> m_directiveLines;
    QStringList m_errors;
    QStringList m_given;
};

} // namespace sim

#endif // TRACKING_SIM_SCENARIO_H
