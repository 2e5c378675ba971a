#include "bodyloader.h"

#include "commandchannel.h"

BodyLoader::BodyLoader(const CommandChannel &channel)
    : m_channel(channel)
{
}

int BodyLoader::numberOfBodies(const QString &type) const
{
    int count = 0;
    if (m_channel.getCount(QStringLiteral("body number_of_bodies %1").arg(type), &count) != 0)
        m_channel.report(QStringLiteral("Error: Unable to get number of %1 bodies").arg(type));
    return count;
}

int BodyLoader::maximum(
    const QString &query, const QString &type, int fallback, const QString &error) const
{
    int maximum = fallback;
    if (m_channel.getInt(query, &maximum) != 0) {
        m_channel.report(error.arg(type));
        maximum = fallback;
    }
    // A spin box cannot go below none.
    return qMax(maximum, 0);
}

QString BodyLoader::typeDescription(const QString &type) const
{
    QString description;
    if (m_channel.getString(QStringLiteral("body type_desc %1").arg(type), &description) != 0)
        m_channel.report(
            QStringLiteral("Error: Unable to get description of bodytype %1").arg(type));
    return description;
}

bool BodyLoader::filterAvailable(const QString &type) const
{
    QString reply;
    if (m_channel.getString(QStringLiteral("filter6d available %1").arg(type), &reply) != 0)
        m_channel.report(
            QStringLiteral("Error: Unable to get availability of filter6d for bodytype %1")
                .arg(type));
    return CommandText::isYes(reply);
}

QString BodyLoader::bodyQuery(const char *parameter, const QString &type, int index) const
{
    return QStringLiteral("body %1 %2 %3")
        .arg(QLatin1String(parameter), type, CommandText::bodyIdOfIndex(index));
}

BodyRecord BodyLoader::load(const QString &type, int index) const
{
    BodyRecord body;
    const QString number = CommandText::twoDigits(index + 1);
    const auto read = [&](const char *parameter, const QString &error, QString *value) {
        if (m_channel.getString(bodyQuery(parameter, type, index), value) == 0)
            return true;
        m_channel.report(error.arg(type, number));
        return false;
    };
    QString reply;

    if (m_channel.atLeast(0, 16)
        && read("desc", QStringLiteral("Error: Unable to get description of body %1 b%2 "), &reply))
        body.description = CommandText::withoutDoubleQuotes(reply);
    if (m_channel.atLeast(1, 11)
        && read("targetlib_name",
            QStringLiteral("Error: Unable to get targetlib name of body %1 b%2"), &reply))
        body.targetLibraryName = CommandText::noneToEmpty(reply);
    if (m_channel.atLeast(1, 11)
        && read("active", QStringLiteral("Error: Unable to get activeness of body %1 b%2"), &reply))
        body.active = CommandText::isYes(reply);
    if (m_channel.atLeast(0, 3)
        && read("calibrated",
            QStringLiteral("Error: Unable to get calibration state of body %1 b%2"), &reply))
        body.calibrated = CommandText::isYes(reply);
    if (m_channel.atLeast(1, 11)
        && read("recalibrated",
            QStringLiteral("Error: Unable to get recalibrated state of body %1 b%2"), &reply))
        body.recalibrated = CommandText::isYes(reply);
    if (m_channel.atLeast(1, 12)
        && read("inertial_sensor",
            QStringLiteral("Error: Unable to get inertial sensor of body %1 b%2"), &reply)) {
        body.inertialSensor = CommandText::noneToEmpty(reply);
        if (body.hasInertialSensor()) {
            QString handEye;
            if (m_channel.getString(
                    QStringLiteral("inertial sensor_handeye %1").arg(body.inertialSensor), &handEye)
                == 0)
                body.hybridCalibrated = !CommandText::isNone(handEye);
            else
                m_channel.report(QStringLiteral("Error: Unable to get handeye status of sensor %1")
                                     .arg(body.inertialSensor));
        }
    }
    body.calibrationText = calibrationText(body);
    body.filterText = filterText(type, index);
    // Asked for every body; only a standard body can be the one it names.
    if (m_channel.atLeast(1, 24)) {
        const int reference = referenceNumber();
        body.isReference = type == QLatin1String("standard") && reference == index + 1;
    }
    return body;
}

QString BodyLoader::calibrationText(const BodyRecord &body)
{
    return calibrationText(body, false);
}

QString BodyLoader::displayedCalibrationText(const BodyRecord &body)
{
    return calibrationText(body, true);
}

// The state is data: the hand-overs compare and send these words whatever
// language the user reads, so only the table translates them.
QString BodyLoader::calibrationText(const BodyRecord &body, bool translated)
{
    const auto word
        = [translated](const char *text) { return translated ? tr(text) : QLatin1String(text); };
    if (!body.calibrated)
        return word(QT_TR_NOOP("not calibrated"));
    if (body.hasInertialSensor())
        return body.hybridCalibrated ? word(QT_TR_NOOP("Full")) : word(QT_TR_NOOP("Optical"));
    QString text = body.targetLibraryName.isEmpty() ? word(QT_TR_NOOP("Custom"))
                                                    : word(QT_TR_NOOP("Target Library"));
    if (body.recalibrated)
        text += word(QT_TR_NOOP(", re-calibrated"));
    return text;
}

QString BodyLoader::filterText(const QString &type, int index) const
{
    QString enabled;
    m_channel.getString(bodyQuery("filter6d_enabled", type, index), &enabled);
    if (!CommandText::isYes(enabled))
        return tr("not active");

    const QString preset = m_channel.stringOf(bodyQuery("filter6d_preset", type, index));
    if (!CommandText::isCustomPreset(preset))
        return CommandText::withoutDoubleQuotes(
            m_channel.stringOf(QStringLiteral("filter6d preset_desc %1").arg(preset)));

    double prediction = 0.0;
    m_channel.getDouble(bodyQuery("filter6d_prediction", type, index), &prediction);
    const QString mode = m_channel.stringOf(bodyQuery("filter6d_mode", type, index));
    const QString modeDescription = CommandText::withoutDoubleQuotes(
        m_channel.stringOf(QStringLiteral("filter6d mode_desc %1").arg(mode)));
    const int milliseconds = CommandText::truncated(prediction * 1000);
    if (CommandText::isHybridPreset(preset))
        return QStringLiteral("%1ms/%2").arg(milliseconds).arg(modeDescription);

    double strength = 0.0;
    m_channel.getDouble(bodyQuery("filter6d_strength", type, index), &strength);
    return QStringLiteral("%1/%2ms/%3")
        .arg(strength, 0, 'f', 2)
        .arg(milliseconds)
        .arg(modeDescription);
}

int BodyLoader::referenceNumber() const
{
    QString reply;
    if (m_channel.getString(QStringLiteral("tracking reference"), &reply) != 0) {
        m_channel.report(QStringLiteral("Error: Unable to info body reference"));
        return 0;
    }
    if (CommandText::isNone(reply))
        return 0;
    const QStringList parts = reply.split(QLatin1Char(' '));
    // Only standard bodies can be the reference: "standard b03".
    return parts.size() >= 2 && parts.at(0) == QLatin1String("standard")
        ? parts.at(1).midRef(1).toInt()
        : 0;
}
