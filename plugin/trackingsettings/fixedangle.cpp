#include "fixedangle.h"

#include "commandtext.h"

#include <QStringList>

#include <cmath>

namespace
{

// The controller stores angles in single precision.
double angleOf(const QString &field)
{
    bool ok = false;
    const float angle = field.toFloat(&ok);
    return ok && std::isfinite(angle) ? double(angle) : 0.0;
}

} // namespace

void FixedAngle::setFromReply(const QString &reply)
{
    const QStringList fields = reply.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    fixX = CommandText::isYes(fields.value(0));
    angleX = angleOf(fields.value(1));
    fixY = CommandText::isYes(fields.value(2));
    angleY = angleOf(fields.value(3));
    fixZ = CommandText::isYes(fields.value(4));
    angleZ = angleOf(fields.value(5));
}
