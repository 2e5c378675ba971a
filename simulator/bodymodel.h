#ifndef TRACKING_SIM_BODYMODEL_H
#define TRACKING_SIM_BODYMODEL_H

#include <QList>
#include <QString>
#include <QStringList>

namespace sim
{

class ParameterTable;

// What the controller knows about bodies: which parameters belong to body
// "T bNN", how many bodies a type has (under both of its names), and what
// happens to those parameters when bodies are added, removed, exchanged or
// lose their geometry.
class BodyModel
{
public:
    // Body ids have at most three digits.
    static constexpr int MaxBodyNumber = 999;

    explicit BodyModel(ParameterTable &table);

    static QStringList types();
    static QString bodyId(int number);
    // 1-based number of "b07", or -1 for anything that is not a body id.
    static int bodyNumber(const QString &id);
    // "standard b03"
    static QString bodyText(const QString &type, int number);
    // Reads "standard b03" back; false for anything else.
    static bool parseBodyText(const QString &text, QString *type, int *number);

    // The paths that hold a type's count: "body number_of_bodies T" and the
    // type's own name for it ("standard number_of_bodies", ...).
    static QStringList countPaths(const QString &type);
    static QString maximumPath(const QString &type);
    // The type whose count path is, or an empty text.
    static QString typeOfCountPath(const QString &path);

    int count(const QString &type) const; // -1 when the controller has no such type
    int maximum(const QString &type) const; // -1 when there is no limit
    bool exists(const QString &type, int number) const;

    // Every parameter of body "type bNN": "body NAME type bNN ..." and the
    // type's own per-body parameters ("standard fixed_angle bNN").
    QStringList parameterPaths(const QString &type, int number) const;

    // Sets the count under both names, creating default bodies when it grows
    // and dropping bodies (and references to them) when it shrinks.
    bool resize(const QString &type, int count, QString *error);
    // Exchanges everything of two bodies of one type, including what refers
    // to them (reference body, library targets, tools' references).
    bool exchange(const QString &type, int first, int second, QString *error);
    // The body loses its geometry and whatever came with it.
    void uncalibrate(const QString &type, int number);
    void calibrate(const QString &type, int number, const QString &targetName, int markers);
    // Presets and modes a body may use depend on its inertial sensor.
    void updateFilterAvailability(const QString &type, int number);

private:
    struct OwnedPath {
        QStringList words;
        int idIndex = 0; // the word that is the body id
    };
    QList<OwnedPath> ownedPaths(const QString &type, int number) const;
    QString defaultValue(
        const QString &type, const OwnedPath &path, const QString &templateValue) const;
    // Values that name a body: the reference, library targets, tools'
    // references. dropped: the body is gone; otherwise the two swap.
    void swapReferences(const QString &type, int first, int second);
    void dropReferences(const QString &type, int number);
    // pattern: the paths of the body to follow; without one, the basics.
    void createBody(const QString &type, int number, const QList<OwnedPath> *pattern);
    void removeBody(const QString &type, int number);

    ParameterTable &m_table;
};

} // namespace sim

#endif // TRACKING_SIM_BODYMODEL_H
