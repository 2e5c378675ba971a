#ifndef TRACKING_SIM_LIBRARYTARGETS_H
#define TRACKING_SIM_LIBRARYTARGETS_H

#include <QString>
#include <QStringList>

namespace sim
{

class BodyModel;
class ParameterTable;

// The controller's target library as its parameters describe it: targets
// "tNN" with a name, a body type, a number of markers and their status
// (which body uses them, whether the camera sees them now).
class LibraryTargets
{
public:
    explicit LibraryTargets(ParameterTable &table);

    static QString targetId(int number);

    // The library's ids, in order, that have "targetlib PARAMETER tNN".
    QStringList idsWith(const char *parameter) const;
    // The name a body refers to its target by: the first word of the
    // target's name, without single quotes.
    QString nameOf(const QString &id) const;
    QString idOfName(const QString &name) const;
    QString bodyTypeOf(const QString &id) const;
    // Markers of the stored geometry; fallback when the library does not say.
    int markersOf(const QString &id, int fallback) const;

    // Which body the target's geometry went to ("standard b03" or "none").
    void setCalibratedBody(const QString &id, const QString &body);
    void setTracked(const QString &id, bool tracked);
    void clearTracked();
    // A custom-calibrated body whose geometry matches a library target
    // (same body type and number of markers) is recorded with the target.
    void checkCustomCalibration(const BodyModel &bodies);

private:
    ParameterTable &m_table;
    // The parameters as the last check left them: a host checks on every
    // refresh of its target table, mostly with nothing changed in between.
    quint64 m_checkedRevision = 0;
};

} // namespace sim

#endif // TRACKING_SIM_LIBRARYTARGETS_H
