#ifndef TRACKING_SIM_PARAMETERTABLE_H
#define TRACKING_SIM_PARAMETERTABLE_H

#include <QMap>
#include <QString>
#include <QStringList>

namespace sim
{

// The controller's parameters: path -> value text, exactly as the controller
// would answer a query. Paths are the query texts themselves ("body desc
// standard b01"), so lookups never interpret them.
class ParameterTable
{
public:
    bool contains(const QString &path) const { return m_values.contains(path); }
    QString value(const QString &path) const { return m_values.value(path); }
    void set(const QString &path, const QString &value)
    {
        m_values.insert(path, value);
        ++m_revision;
    }
    void remove(const QString &path)
    {
        m_values.remove(path);
        ++m_revision;
    }
    void clear()
    {
        m_values.clear();
        ++m_revision;
    }
    const QMap<QString, QString> &values() const { return m_values; }
    void replace(const QMap<QString, QString> &values)
    {
        m_values = values;
        ++m_revision;
    }
    // Changes with every write: what was derived from the parameters at one
    // revision holds until the next.
    quint64 revision() const { return m_revision; }

    // Sets value only where the path exists; a controller does not grow
    // parameters it never had.
    void update(const QString &path, const QString &value);
    // Every path that begins with prefix.
    QStringList pathsStartingWith(const QString &prefix) const;

    // Splits a setting "path value..." at the longest leading run of words
    // that is a known path. Returns false when no prefix is known or no
    // value follows it; *path is still set when the whole text is a path.
    bool split(const QString &command, QString *path, QString *value) const;

    // The controller's reading of a reply as a typed value.
    static bool toInt(const QString &text, qint32 *value);
    static bool toDouble(const QString &text, double *value);
    static bool toBool(const QString &text, bool *value);
    static bool isNumber(const QString &text);
    static bool isYesNo(const QString &text);

    // Bodies and targets are numbered "b07", "t12", "b120": a letter and at
    // least two digits. Only that spelling names one ("b7" and "b007" do
    // not); idNumber() is -1 for anything else.
    static QString numberedId(QLatin1Char letter, int number);
    static int idNumber(QLatin1Char letter, const QString &id);

private:
    QMap<QString, QString> m_values;
    quint64 m_revision = 1;
};

} // namespace sim

#endif // TRACKING_SIM_PARAMETERTABLE_H
