#include "target.h"

Target::Target(const QString &id, const QString &name, const QString &description,
    const QString &bodyType, bool calibrated, QObject *parent)
    : QObject(parent)
    , id(id)
    , name(name)
    , description(description)
    , bodyType(bodyType)
    , calibrated(calibrated)
    , tracked(false)
{
}
