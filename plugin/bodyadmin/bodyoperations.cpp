#include "bodyoperations.h"

#include "commandchannel.h"

#include <QMessageBox>

#include <algorithm>

namespace
{

const QString Standard = QStringLiteral("standard");
const QString DefaultPreset = QStringLiteral("preset6d_default");

// Questions and warnings name a body by its type's description and its
// number: "Reset %1 %2?" reads "Reset Standard body 3?".
QString named(const QString &text, const BodyTypeEntry &entry, int index)
{
    return text.arg(entry.typeDescription, QString::number(index + 1));
}

} // namespace

BodyOperations::BodyOperations(const CommandChannel &channel, QWidget *parent)
    : m_channel(channel)
    , m_parent(parent)
{
}

bool BodyOperations::ask(const QString &question) const
{
    return QMessageBox::warning(m_parent, tr("Warning"), question,
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

void BodyOperations::warn(const QString &text) const
{
    QMessageBox::warning(m_parent, tr("Warning"), text, QMessageBox::Ok);
}

QString BodyOperations::bodyCommand(const char *parameter, const QString &type, int index) const
{
    return QStringLiteral("body %1 %2 %3")
        .arg(QLatin1String(parameter), type, CommandText::bodyIdOfIndex(index));
}

void BodyOperations::setActive(
    BodyTypeEntry &entry, const QString &type, int index, bool active) const
{
    if (!entry.contains(index) || !entry.bodies.at(index).calibrated)
        return;
    entry.bodies[index].active = active;
    if (!m_channel.atLeast(1, 11))
        return;
    if (m_channel.setParameter(
            bodyCommand("active", type, index) + QLatin1Char(' ') + CommandText::yesNo(active))
        != 0)
        // The report names the index, not the number: the log readers expect it so.
        m_channel.report(QStringLiteral("Error: Unable to set activeness of body %1 b%2")
                             .arg(type, CommandText::twoDigits(index)));
}

void BodyOperations::setDescription(
    BodyTypeEntry &entry, const QString &type, int index, const QString &text) const
{
    if (!entry.contains(index))
        return;
    entry.bodies[index].description = CommandText::cut(text);
    if (!m_channel.atLeast(0, 16))
        return;
    if (m_channel.setParameter(
            bodyCommand("desc", type, index) + QLatin1Char(' ') + CommandText::quoted(text))
        != 0)
        m_channel.report(QStringLiteral("Error: Unable to set description of body %1 b%2")
                             .arg(type, CommandText::twoDigits(index + 1)));
}

bool BodyOperations::setReference(
    BodyTypeEntry &entry, const QString &type, int index, bool set) const
{
    if (type != Standard || !entry.contains(index) || !entry.bodies.at(index).calibrated)
        return false;

    if (set) {
        if (!entry.bodies.at(index).active) {
            QMessageBox::warning(m_parent, tr("Warning"),
                tr("A de-activated body cannot be set as reference.\n"
                   "Please activate this body before."),
                QMessageBox::Ok);
            return false;
        }
        for (BodyRecord &body : entry.bodies)
            body.isReference = false;
        entry.bodies[index].isReference = true;
        if (m_channel.atLeast(1, 24)
            && m_channel.setParameter(QStringLiteral("tracking reference %1 %2")
                                          .arg(type, CommandText::bodyIdOfIndex(index)))
                != 0)
            m_channel.report(QStringLiteral("Error: Unable to set body %1 b%2 as reference body")
                                 .arg(type, CommandText::twoDigits(index)));
        return true;
    }

    entry.bodies[index].isReference = false;
    QString reference;
    if (m_channel.getString(QStringLiteral("tracking reference"), &reference) != 0) {
        m_channel.report(QStringLiteral("Unable to information of reference body"));
        return true;
    }
    const bool stillMarked = std::any_of(entry.bodies.cbegin(), entry.bodies.cend(),
        [](const BodyRecord &body) { return body.isReference; });
    // The leading blank is what the controller has always been sent here.
    if (!CommandText::isNone(reference) && !stillMarked
        && m_channel.setParameter(QStringLiteral(" tracking reference none")) != 0)
        m_channel.report(QStringLiteral("Error: Unable to de-activate the reference body"));
    return true;
}

bool BodyOperations::reset(const BodyTypeEntry &entry, const QString &type, int index) const
{
    if (!entry.contains(index))
        return false;
    const BodyRecord &body = entry.bodies.at(index);
    if (!body.targetLibraryName.isEmpty())
        return resetToTargetLibrary(entry, type, index);
    if (body.hasInertialSensor())
        return resetSensor(entry, index);
    warn(named(tr("Unknown reset of %1 %2!"), entry, index));
    return false;
}

bool BodyOperations::resetToTargetLibrary(
    const BodyTypeEntry &entry, const QString &type, int index) const
{
    const BodyRecord &body = entry.bodies.at(index);
    if (!ask(named(tr("Reset %1 %2\nto Target-Library geometry?"), entry, index)))
        return false;
    if (m_channel.sendMetaCommand(
            QStringLiteral("velora2 body calibrate_from_targetlib %1 %2 %3")
                .arg(type, CommandText::bodyIdOfIndex(index), body.targetLibraryName))
        != 0) {
        m_channel.report(QStringLiteral("Error: Unable to reset body from target library"));
        warn(named(tr("Reset of %1 %2 failed!"), entry, index));
        return false;
    }
    return true;
}

bool BodyOperations::resetSensor(const BodyTypeEntry &entry, int index) const
{
    const BodyRecord &body = entry.bodies.at(index);
    const QString &sensor = body.inertialSensor;
    bool hasStorage = false;
    if (m_channel.atLeast(1, 21)
        && m_channel.getBool(
               QStringLiteral("inertial sensor_has_storage %1").arg(sensor), &hasStorage)
            != 0)
        m_channel.report(QStringLiteral("Unable to get storage info from sensor"));

    QString handEye = CommandText::none();
    if (hasStorage) {
        if (!ask(named(tr("Reset %1 %2\nto sensor stored values?"), entry, index)))
            return false;
    } else {
        if (m_channel.getString(QStringLiteral("inertial sensor_handeye %1").arg(sensor), &handEye)
            != 0) {
            m_channel.report(
                QStringLiteral("Unable to get info about hand eye calibration from sensor"));
            handEye = CommandText::none();
        }
        const QString question = CommandText::isNone(handEye)
            ? named(tr("Reset %1 %2?"), entry, index)
            : named(tr("Reset %1 %2?\nHand eye calibration will be deleted!"), entry, index);
        if (!ask(question))
            return false;
    }

    // The sensors must not warm up while their calibration changes.
    bool restartWarmup = false;
    QString warmup;
    if (m_channel.getString(QStringLiteral("inertial warmup"), &warmup) != 0)
        m_channel.report(QStringLiteral("Could not get warmup status"));
    if (CommandText::isYes(warmup)) {
        if (m_channel.setParameter(QStringLiteral("inertial warmup no")) == 0)
            restartWarmup = true;
        else
            m_channel.report(QStringLiteral("Could not stop warmup of sensors"));
    }

    bool failed = false;
    if (hasStorage) {
        failed = m_channel.sendMetaCommand(
                     QStringLiteral("velora2 set inertial sensor_default %1").arg(sensor))
            != 0;
    } else if (!CommandText::isNone(handEye)) {
        failed
            = m_channel.setParameter(QStringLiteral("inertial sensor_handeye %1 none").arg(sensor))
            != 0;
        if (failed)
            m_channel.report(QStringLiteral("Unable to reset sensor hand eye calibration"));
    }

    if (restartWarmup && m_channel.setParameter(QStringLiteral("inertial warmup yes")) != 0)
        m_channel.report(QStringLiteral("Could not start warmup of sensors"));

    if (failed) {
        m_channel.report(QStringLiteral("Error: Unable to reset body to sensor stored values"));
        warn(named(tr("Reset of %1 %2 failed!"), entry, index));
        return false;
    }
    return true;
}

bool BodyOperations::remove(const BodyTypeEntry &entry, const QString &type, int index) const
{
    if (!entry.contains(index))
        return false;
    const BodyRecord &body = entry.bodies.at(index);
    const bool reference = type == Standard && body.isReference;

    QString question;
    if (reference)
        question = named(tr("Delete geometry of %1 %2?\nIf yes, the assignment as reference to "
                            "other bodies will be deleted."),
            entry, index);
    else if (body.hasInertialSensor())
        question = tr("Delete assignment of sensor %1 and \ndelete geometry of %2 %3?")
                       .arg(body.inertialSensor, entry.typeDescription, QString::number(index + 1));
    else
        question = named(tr("Delete geometry of %1 %2?"), entry, index);
    if (!ask(question))
        return false;

    const auto fail = [&](const QString &error) {
        m_channel.report(named(error, entry, index));
        warn(named(tr("Delete %1 %2 failed"), entry, index));
        return false;
    };

    if (reference) {
        QString current;
        if (m_channel.getString(QStringLiteral("tracking reference"), &current) != 0)
            m_channel.report(QStringLiteral("Unable to information of reference body"));
        else if (!CommandText::isNone(current)
            && m_channel.setParameter(QStringLiteral("tracking reference none")) != 0)
            m_channel.report(QStringLiteral("Unable to reset reference body"));
    }

    if (m_channel.atLeast(1, 12) && entry.filterAvailable) {
        bool available = true;
        bool asked = true;
        if (m_channel.atLeast(1, 21)
            && m_channel.getBool(bodyCommand("filter6d_preset_available", type, index)
                       + QLatin1Char(' ') + DefaultPreset,
                   &available)
                != 0) {
            m_channel.report(QStringLiteral("Error: Unable to get info preset available"));
            asked = false;
        }
        if (asked && available
            && m_channel.setParameter(
                   bodyCommand("filter6d_preset", type, index) + QLatin1Char(' ') + DefaultPreset)
                != 0)
            return fail(QStringLiteral("Unable to reset filter6d of %1 %2"));
    }

    if (m_channel.atLeast(1, 12) && body.hasInertialSensor()
        && m_channel.setParameter(
               bodyCommand("inertial_sensor", type, index) + QLatin1String(" none"))
            != 0)
        return fail(QStringLiteral("Unable to reset sensor of %1 %2"));

    if (body.calibrated) {
        if (m_channel.setParameter(
                bodyCommand("number_of_marker", type, index) + QLatin1String(" 0"))
            != 0)
            return fail(QStringLiteral("Unable to reset markers of %1 %2"));
        if (m_channel.setParameter(bodyCommand("desc", type, index) + QLatin1Char(' ')
                + CommandText::quoted(QString()))
            != 0)
            return fail(QStringLiteral("Unable to reset description of %1 %2"));
    }
    return true;
}

bool BodyOperations::switchBodies(
    const BodyTypeEntry &entry, const QString &type, int indexA, int indexB) const
{
    if (!entry.contains(indexA) || !entry.contains(indexB) || !m_channel.atLeast(1, 11))
        return false;
    if (m_channel.sendMetaCommand(
            QStringLiteral("velora2 body switch %1 %2 %1 %3")
                .arg(type, CommandText::bodyIdOfIndex(indexA), CommandText::bodyIdOfIndex(indexB)))
        == 0)
        return true;
    m_channel.report(QStringLiteral("Error: Unable to switch bodies"));
    warn(tr("Switching %1 %2 and %3 failed!")
             .arg(entry.typeDescription, QString::number(indexA + 1), QString::number(indexB + 1)));
    return false;
}

bool BodyOperations::calibrateFromTarget(const BodyTypeEntry &entry, const QString &type, int index,
    const QString &targetName, QList<int> *affected) const
{
    if (!entry.contains(index))
        return false;

    // A target calibrates one body of a type: free the others that use it.
    affected->append(index);
    for (int i = 0; i < entry.bodies.size(); ++i) {
        if (i == index)
            continue;
        QString name;
        if (m_channel.getString(bodyCommand("targetlib_name", type, i), &name) != 0) {
            m_channel.report(QStringLiteral("Unable to get info targetlib ID of body"));
            continue;
        }
        if (name != targetName)
            continue;
        affected->append(i);
        if (m_channel.setParameter(bodyCommand("number_of_marker", type, i) + QLatin1String(" 0"))
            != 0)
            m_channel.report(QStringLiteral("Unable to reset markers of target %1 %2")
                                 .arg(type, QString::number(i + 1)));
        if (m_channel.setParameter(
                bodyCommand("desc", type, i) + QLatin1Char(' ') + CommandText::quoted(QString()))
            != 0)
            // Names the type twice; the log's readers know it so.
            m_channel.report(
                QStringLiteral("Unable to reset description of target %1 %1").arg(type));
    }

    if (m_channel.sendMetaCommand(QStringLiteral("velora2 body calibrate_from_targetlib %1 %2 %3")
                                      .arg(type, CommandText::bodyIdOfIndex(index), targetName))
        == 0)
        return true;
    m_channel.report(QStringLiteral("Error: Unable to calibrate body from target library"));
    return false;
}

void BodyOperations::setNumberOfBodies(
    const QString &command, const QString &type, int count, const QString &error) const
{
    if (m_channel.setParameter(command.arg(count)) != 0)
        m_channel.report(error.arg(type).arg(count));
}

void BodyOperations::switchGlobalFilterOn(
    const QString &parameter, const QString &readError, const QString &writeError) const
{
    if (!m_channel.atLeast(1, 12))
        return;
    QString filter;
    if (m_channel.getString(parameter, &filter) != 0) {
        m_channel.report(readError);
        return;
    }
    if (filter == CommandText::no()
        && m_channel.setParameter(parameter + QLatin1Char(' ') + CommandText::yes()) != 0)
        m_channel.report(writeError);
}
