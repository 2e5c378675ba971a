#include "parametertable.h"

namespace sim
{

void ParameterTable::update(const QString &path, const QString &value)
{
    auto it = m_values.find(path);
    if (it != m_values.end()) {
        it.value() = value;
        ++m_revision;
    }
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

QString ParameterTable::numberedId(QLatin1Char letter, int number)
{
    // Every command about a body or target spells its id: no arg() here.
    const QString digits = QString::number(number);
    return QString(letter) + (digits.size() < 2 ? QLatin1Char('0') + digits : digits);
}

int ParameterTable::idNumber(QLatin1Char letter, const QString &id)
{
    if (id.size() < 3 || id.at(0) != letter || (id.size() > 3 && id.at(1) == QLatin1Char('0')))
        return -1;
    for (int i = 1; i < id.size(); ++i) {
        if (id.at(i) < QLatin1Char('0') || id.at(i) > QLatin1Char('9'))
            return -1;
    }
    bool ok = false;
    const int number = id.midRef(1).toInt(&ok);
    return ok && number >= 1 ? number : -1;
}

} // namespace sim
