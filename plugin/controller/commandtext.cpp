#include "commandtext.h"

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
