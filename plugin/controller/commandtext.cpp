#include "commandtext.h"

#include <cmath>
#include <limits>

QString CommandText::twoDigits(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

QString CommandText::id(char letter, int number)
{
    return QLatin1Char(letter) + twoDigits(number);
}

QString CommandText::quoted(const QString &text)
{
    return QLatin1Char('"') + cut(text) + QLatin1Char('"');
}

int CommandText::truncated(double value)
{
    if (std::isnan(value))
        return 0;
    if (value >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (value <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return int(value);
}
