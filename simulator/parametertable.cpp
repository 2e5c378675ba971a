#include "parametertable.h"

namespace sim
{

void ParameterTable::update(const QString &path, const QString &value)
{
    auto it = m_values.find(path);
    if (it != m_values.end())
        it.value() = value;
}

QStringList ParameterTable::pathsStartingWith(const QString &prefix) const
{
    QStringList paths;
    for (auto it = m_values.lowerBound(prefix); it != m_values.cend(); ++it) {
        if (!it.key().startsWith(prefix))
            break;
        paths << it.key();
    }
    return paths;
}

bool ParameterTable::split(const QString &command, QString *path, QString *value) const
{
    path->clear();
    value->clear();
    if (m_values.contains(command)) {
        *path = command;
        return false;
    }
    // Words are separated by single blanks; keeping empty words lets the
    // value be cut out of the text exactly as it was sent.
    int end = command.lastIndexOf(QLatin1Char(' '));
    while (end > 0) {
        const QString candidate = command.left(end);
        if (m_values.contains(candidate)) {
            *path = candidate;
            *value = command.mid(end + 1);
            return !value->isEmpty();
        }
        end = command.lastIndexOf(QLatin1Char(' '), end - 1);
    }
    return false;
}

bool ParameterTable::toInt(const QString &text, qint32 *value)
{
    bool ok = false;
    const qint32 number = text.trimmed().toInt(&ok);
    if (ok)
        *value = number;
    return ok;
}

bool ParameterTable::toDouble(const QString &text, double *value)
{
    bool ok = false;
    const double number = text.trimmed().toDouble(&ok);
    if (ok)
        *value = number;
    return ok;
}

bool ParameterTable::toBool(const QString &text, bool *value)
{
    if (!isYesNo(text))
        return false;
    *value = text == QLatin1String("yes");
    return true;
}

bool ParameterTable::isNumber(const QString &text)
{
    double ignored = 0.0;
    return toDouble(text, &ignored);
}

bool ParameterTable::isYesNo(const QString &text)
{
    return text == QLatin1String("yes") || text == QLatin1String("no");
}

} // namespace sim
