#include "standinmodules.h"

#include <iomanager.h>

#include <QMessageBox>
#include <QTimer>

namespace
{

const char ReplyTo[] = "BodyAdministrationModule";
const char Broadcast[] = "GlobalEvent";

struct StandIn {
    const char *name;
    const char *request; // the request word, followed by one blank and its arguments
    const char *work;
};

const StandIn standIns[] = {
    { "BodyCalModule", "OpenBodyCalDialog",
        QT_TRANSLATE_NOOP("StandInModules", "body calibration") },
    { "BodyAdjustmentModule", "OpenBodyAdjustmentDialog",
        QT_TRANSLATE_NOOP("StandInModules", "body adjustment") },
    { "HybridBodyCalibration", "OpenHybridBodyCalibration",
        QT_TRANSLATE_NOOP("StandInModules", "hybrid body calibration") },
};

} // namespace

StandInModules::StandInModules(IOManager *ioManager, QWidget *dialogParent, QObject *parent)
    : QObject(parent)
    , m_ioManager(ioManager)
    , m_dialogParent(dialogParent)
{
    for (const StandIn &standIn : standIns)
        m_ioManager->registerReceiver(standIn.name, this);
}

StandInModules::~StandInModules()
{
    for (const StandIn &standIn : standIns)
        m_ioManager->unregisterReceiver(standIn.name, this);
}

void StandInModules::announce()
{
    m_ioManager->sendMessage(Broadcast, "BodyCalModule", 1, "bodycalibration available");
    m_ioManager->sendMessage(Broadcast, "BodyAdjustmentModule", 1, "bodyadjustment available");
}

void StandInModules::announceConfigurationChanged()
{
    m_ioManager->sendMessage(Broadcast, "ConfigurationModule", 1, "ActiveConfigurationChanged");
}

int StandInModules::receiveMessage(const char *receiver, const char *, const char *text)
{
    const QString module = QString::fromLatin1(receiver);
    const QString description = describeRequest(module, QString::fromLatin1(text));
    if (description.isEmpty())
        return 1;
    // The sender is still inside its sendMessage call; a modal loop started
    // here would run inside the delivery.
    QTimer::singleShot(0, this, [this, module, description] { handOver(module, description); });
    return 0;
}

QString StandInModules::describeRequest(const QString &receiver, const QString &text)
{
    for (const StandIn &standIn : standIns) {
        if (receiver != QLatin1String(standIn.name))
            continue;
        const QString request = QLatin1String(standIn.request) + QLatin1Char(' ');
        if (!text.startsWith(request))
            return QString();
        const QString arguments = text.mid(request.size());
        // Calibration names the body as "type bNN"; the others as "type|N|calibration".
        const QStringList parts = arguments.split(QLatin1Char('|'));
        const QString body = parts.size() == 3
            ? tr("%1 body %2 (%3)").arg(parts.at(0), parts.at(1), parts.at(2))
            : arguments;
        return tr("Simulated %1 of %2.\n\nThe real module would take over here. "
                  "Press OK to return to the body administration.")
            .arg(tr(standIn.work), body);
    }
    return QString();
}

void StandInModules::handOver(const QString &module, const QString &description)
{
    QMessageBox box(QMessageBox::Information, tr("%1 (simulated)").arg(module), description,
        QMessageBox::Ok, m_dialogParent);
    box.setObjectName(QStringLiteral("standInMessageBox"));
    QPointer<StandInModules> alive(this);
    box.exec();
    if (alive)
        m_ioManager->sendMessage(ReplyTo, module.toLatin1().constData(), 1, "reopen");
}
