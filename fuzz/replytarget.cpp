#include "replytarget.h"

#include "fuzztext.h"
#include "modalcloser.h"
#include "replyplan.h"

#include <bodyadministrationdlg.h>
#include <bodyloader.h>
#include <bodytypeadministrationtab.h>
#include <commandchannel.h>
#include <filterdialog.h>
#include <simulatedcontroller.h>
#include <target.h>
#include <targetlibrary.h>
#include <trackingdlg.h>

#include <QRegularExpression>
#include <QTableWidget>

FuzzTarget *createFuzzTarget()
{
    return new ReplyTarget;
}

namespace
{

// Body ids have at most three digits.
constexpr int MaxBodies = 999;
// Every dialog opened once with every list at its longest stays well below.
constexpr int CommandBudget = 400000;
// Groups and members per group both above this are the known fault below.
constexpr qint64 NestedCountLimit = 100;

const char *const BodyTypes[] = { "standard", "gripwand", "multiusergripwand_head",
    "fingertracking", "measurementtool", "measurementtool_reference" };

QString shown(const QString &text)
{
    return FuzzText::escaped(text.toLatin1(), 120);
}

} // namespace

void ReplyTarget::setUp()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("HOME", QFile::encodeName(m_home->path()));
    // The offscreen platform says so for every dialog shown; thousands of
    // times in a run.
    static const QtMessageHandler previous = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext &context, const QString &message) {
            if (!message.startsWith(QLatin1String("This plugin does not support")))
                previous(type, context, message);
        });
}

QList<QByteArray> ReplyTarget::seeds() const
{
    return {
        QByteArray(),
        "fail *",
        "reply * = ",
        "open * = ",
        "once * = none\nonce * = yes\nonce * = 0",
        "reply body number_of_bodies * = 2147483647",
        "reply body number_of_bodies gripwand = 2147483647\n"
        "reply body number_of_bodies multiusergripwand_head = 1000",
        "reply body number_of_bodies standard = -5\nreply standard max_number_of_bodies = -5",
        "reply standard max_number_of_bodies = 2147483647\nbodies 2",
        "open body desc * = " + QByteArray(210, 'x') + "\nopen targetlib target_name * = 'T' "
            + QByteArray(210, 'y'),
        "bodies 30\nreply body filter6d_preset * = preset6d_std_custom\n"
        "reply body filter6d_prediction * = 1e308\nreply body filter6d_strength * = nan",
        "reply body filter6d_preset * = preset6d_hybrid_custom\n"
        "reply body filter6d_prediction * = -1e308\nreply filter6d mode_desc * = \"\\0\"",
        "reply tracking reference = standard b2147483648\n"
        "reply body inertial_sensor * = %s%s%n\nreply inertial sensor_handeye * = none",
        "reply body filter6d_preset * = preset6d_default\\nstandard number_of_bodies 0",
        "version 0.15.0\nsystem ORBILUX C2",
        "version 1.23.99\nreply config is_changeable = no",
        "version 2147483647.2147483647.2147483647\nsystem ",
        "reply targetlib number_of_targets = 2147483647",
        "reply targetlib number_of_groups = 3\n"
        "reply targetlib number_of_group_members * = 2147483647",
        "reply targetlib number_of_targets = -5\nreply targetlib number_of_groups = -2147483648",
        "reply targetlib number_of_groups = 999\nreply targetlib number_of_group_members * = 999\n"
        "reply targetlib group_name * = G",
        "reply targetlib target_name * = \\xff'\\x00' \"\n"
        "reply targetlib group_member * = t01\nreply targetlib group_name * = \"\"\"\"\n"
        "reply targetlib target_bodytype * = ''''",
        "once body number_of_bodies standard = 7\nbodies 3",
        "set standard number_of_bodies = 50\nset body number_of_bodies standard = 50",
        "bodies 60\nreply tracking reference = standard b60",
        "reply tracking axis_5dof_central = 1e308 nan\nreply tracking pulse = frequency -5\n"
        "reply standard fixed_angle * = yes 1e308 no\nreply standard calculate_marker = maybe",
        "reply gripwand number_of_devices = 2147483647\nreply gripwand device * = wpan\n"
        "reply zemwpan device_model_desc * = \\n\nreply gripwand multiuser = yes",
        "reply body calibrated * = yes\nreply body inertial_sensor * = VX IMU 'A1234'\n"
        "reply inertial available = yes\nreply inertial sensor_present * = yes",
        "reply status step_active = cal targetlib\nreply status progress = 1e308\n"
        "reply targetlib target_status_tracked * = yes",
        "reply status step_active = cal\nreply status progress = -nan\n"
        "once status active = none\nreply targetlib target_bodytype * = 'gripwand'",
        "reply filter6d number_of_presets = 2147483647",
        "reply filter6d number_of_modes = 3\nreply filter6d mode_id * = \"\"\n"
        "reply filter6d limit prediction_max = 1e308\nreply filter6d limit strength_min = nan\n"
        "reply body filter6d_enabled * = yes\nreply body calibrated * = yes",
    };
}

QList<QByteArray> ReplyTarget::dictionary() const
{
    return { "reply ", "once ", "open ", "fail ", "set ", "bodies ", "version ", "system ", " = ",
        "\n", "*", "\\n", "\\r", "\\0", "\\xff", "\"", "'", "yes", "no", "none", "2147483647",
        "-2147483648", "-5", "999", "1000", "1e308", "nan", "standard b01", "standard b", "b00",
        "preset6d_std_custom", "preset6d_hybrid_custom", "preset6d_", "_custom", "%s%n",
        "velora2 ok", "ORBILUX", "1.24.0", "0.16.0", "1.11.0", "targetlib number_of_targets",
        "targetlib target_name *", "targetlib target_bodytype *",
        "targetlib target_status_calibrated *", "targetlib number_of_groups",
        "targetlib group_name *", "targetlib number_of_group_members *", "targetlib group_member *",
        "body number_of_bodies standard", "body number_of_bodies *",
        "standard max_number_of_bodies", "body type_desc *", "filter6d available *",
        "body desc standard b01", "body desc *", "body targetlib_name *", "body active *",
        "body calibrated *", "body recalibrated *", "body inertial_sensor *",
        "inertial sensor_handeye *", "inertial sensor_present *", "inertial available",
        "body filter6d_enabled *", "body filter6d_preset *", "filter6d preset_desc *",
        "body filter6d_prediction *", "body filter6d_mode *", "filter6d mode_desc *",
        "body filter6d_strength *", "tracking reference", "config is_changeable",
        "cal available targetlib", "status active", "standard fixed_angle *",
        "standard calculate_marker", "tracking auto_restart", "tracking axis_5dof_central",
        "tracking pulse", "gripwand number_of_devices", "gripwand device *", "gripwand multiuser",
        "fingertracking available", "measurementtool available", "status step_active",
        "status progress", "targetlib target_status_tracked *", "cal targetlib",
        "filter6d number_of_presets", "filter6d preset_id *", "filter6d number_of_modes",
        "filter6d mode_id *", "filter6d limit *", "body filter6d_preset_available *",
        "body filter6d_mode_available *" };
}

void ReplyTarget::checkReports(
    const sim::SimulatedController &controller, const QString &where, QStringList *failures)
{
    for (const QString &report : controller.reports()) {
        if (!report.startsWith(QLatin1String("Error: ")))
            *failures << QStringLiteral("%1 reports a failure without \"Error: \": %2")
                             .arg(where, shown(report));
    }
}

void ReplyTarget::checkLibrary(sim::SimulatedController &controller, QStringList *failures)
{
    controller.clearLog();
    const Targetlibrary library(&controller, &controller.backendVersions(), nullptr);
    static const QRegularExpression targetId(QStringLiteral("^t\\d{2,}$"));
    for (auto it = library.targets.cbegin(); it != library.targets.cend(); ++it) {
        const Target *target = it.value();
        if (!target || target->id != it.key() || !targetId.match(target->id).hasMatch()) {
            *failures << QStringLiteral("library holds a target under id %1").arg(shown(it.key()));
            continue;
        }
        if (target->name.contains(QLatin1Char('\'')))
            *failures << QStringLiteral("target name keeps a quote: ") + shown(target->name);
        if (target->description.contains(QLatin1Char('"')))
            *failures << QStringLiteral("target description keeps a quote: ")
                    + shown(target->description);
        if (target->bodyType.contains(QLatin1Char('\'')))
            *failures << QStringLiteral("target body type keeps a quote: ")
                    + shown(target->bodyType);
        if (target->group.contains(QLatin1Char('"')))
            *failures << QStringLiteral("target group keeps a quote: ") + shown(target->group);
        if (target->tracked)
            *failures << QStringLiteral("a target is tracked before any search");
    }
    if (!library.idOfName(QString()).isEmpty())
        *failures << QStringLiteral("an empty name finds a target");
    checkReports(controller, QStringLiteral("the target library"), failures);
}

void ReplyTarget::checkRecord(const QString &where, const BodyRecord &body, QStringList *failures)
{
    static const QStringList calibrationTexts { QStringLiteral("not calibrated"),
        QStringLiteral("Full"), QStringLiteral("Optical"), QStringLiteral("Custom"),
        QStringLiteral("Target Library"), QStringLiteral("Custom, re-calibrated"),
        QStringLiteral("Target Library, re-calibrated") };
    if (body.description.contains(QLatin1Char('"')))
        *failures << where + QStringLiteral(": description keeps a quote: ")
                + shown(body.description);
    if (body.filterText.contains(QLatin1Char('"')))
        *failures << where + QStringLiteral(": filter text keeps a quote: ")
                + shown(body.filterText);
    if (!calibrationTexts.contains(body.calibrationText))
        *failures << where + QStringLiteral(": calibration text ") + shown(body.calibrationText);
    if (body.targetLibraryName == QLatin1String("none")
        || body.inertialSensor == QLatin1String("none"))
        *failures << where + QStringLiteral(": \"none\" kept as a name");
}

void ReplyTarget::checkLoader(sim::SimulatedController &controller, QStringList *failures)
{
    controller.clearLog();
    const CommandChannel channel(&controller, &controller.backendVersions());
    const BodyLoader loader(channel);
    const QString standard = QStringLiteral("standard");
    const int count = loader.numberOfBodies(standard);
    if (count < 0 || count > MaxBodies)
        *failures << QStringLiteral("%1 standard bodies").arg(count);
    for (int index = 0; index < qMin(count, 3); ++index)
        checkRecord(QStringLiteral("standard body %1").arg(index + 1), loader.load(standard, index),
            failures);
    // A body the controller does not have, and one of another kind.
    const BodyRecord missing = loader.load(standard, count);
    checkRecord(QStringLiteral("standard body past the end"), missing, failures);
    checkRecord(QStringLiteral("Gripwand 1"), loader.load(QStringLiteral("gripwand"), 0), failures);
    const BodyRecord other = loader.load(QStringLiteral("measurementtool"), 0);
    checkRecord(QStringLiteral("measurement tool 1"), other, failures);
    if (other.isReference)
        *failures << QStringLiteral("a measurement tool is taken for the reference");
    checkReports(controller, QStringLiteral("the body loader"), failures);

    // The channel hands out text that fits the buffer, whatever was written.
    QString text;
    for (const char *path : { "body desc standard b01", "targetlib target_name t01" }) {
        channel.getString(QLatin1String(path), &text);
        if (text.size() >= IOManager::ReplyBufferSize || text.contains(QChar(0)))
            *failures << QStringLiteral("the channel hands out %1 characters for \"%2\"")
                             .arg(text.size())
                             .arg(QLatin1String(path));
    }
}

void ReplyTarget::checkTab(int key, const BodyTypeAdministrationTab *tab, QStringList *failures)
{
    for (const char *type : BodyTypes) {
        const BodyTypeEntry *entry = tab->entry(QLatin1String(type));
        if (!entry)
            continue;
        const int bodies = entry->bodies.size();
        if (bodies > MaxBodies)
            *failures << QStringLiteral("tab %1 keeps %2 %3 bodies")
                             .arg(key)
                             .arg(bodies)
                             .arg(QLatin1String(type));
        if (entry->table && entry->table->rowCount() != bodies)
            *failures << QStringLiteral("tab %1 shows %2 rows for %3 %4 bodies")
                             .arg(key)
                             .arg(entry->table->rowCount())
                             .arg(bodies)
                             .arg(QLatin1String(type));
        for (int index = 0; index < qMin(bodies, 3); ++index)
            checkRecord(QStringLiteral("tab %1, %2 body %3")
                            .arg(key)
                            .arg(QLatin1String(type))
                            .arg(index + 1),
                entry->bodies.at(index), failures);
    }
}

void ReplyTarget::checkDialogs(sim::SimulatedController &controller, QStringList *failures)
{
    controller.clearLog();
    {
        const ModalCloser closer;
        BodyAdministrationDlg dialog(&controller, nullptr, &controller.backendVersions());
        for (int key = 0; key < 4; ++key) {
            BodyTypeAdministrationTab *tab = dialog.tab(key);
            if (!tab)
                continue;
            tab->update_tab();
            checkTab(key, tab, failures);
            search(tab);
        }
        dialog.update_and_exec();
    }
    for (int tabIndex : { 0, 1 }) {
        const ModalCloser closer;
        FilterDialog dialog(&controller, nullptr, &controller.backendVersions());
        dialog.update_and_exec(tabIndex, tabIndex - 1);
    }
    {
        const ModalCloser closer;
        TrackingDlg dialog(
            &controller, nullptr, &controller.backendVersions(), QStringLiteral("v3.0.5"));
        dialog.update_and_exec();
    }
    for (const QString &report : controller.reports()) {
        if (report.trimmed().isEmpty())
            *failures << QStringLiteral("an empty report");
    }
}

// A target search as the user runs it, with the timer steps taken at once:
// start, a few measurement steps, a refresh, assign, stop.
void ReplyTarget::search(BodyTypeAdministrationTab *tab)
{
    for (const char *slot : { "on_pushButton_start_clicked", "doMeasurement_tl", "doMeasurement_tl",
             "updateTrackedAndAcceptStatus_tl", "doMeasurement_tl", "on_pushButton_select_clicked",
             "on_pushButton_stop_clicked", "about_to_exit" }) {
        if (tab->metaObject()->indexOfMethod(QByteArray(slot) + "()") >= 0)
            QMetaObject::invokeMethod(tab, slot, Qt::DirectConnection);
    }
}

void ReplyTarget::checkCommands(const sim::SimulatedController &controller, QStringList *failures)
{
    // The link is line-based: a line break inside a command would make the
    // controller run its second half as a command of its own.
    for (const sim::SimulatedController::LogEntry &entry : controller.log()) {
        if ((entry.kind == sim::SimulatedController::LogEntry::Command
                || entry.kind == sim::SimulatedController::LogEntry::Query
                || entry.kind == sim::SimulatedController::LogEntry::Setting)
            && (entry.text.contains(QLatin1Char('\n')) || entry.text.contains(QLatin1Char('\r')))) {
            *failures << QStringLiteral("a command carries a line break: ") + shown(entry.text);
            return;
        }
    }
}

QStringList ReplyTarget::run(const QByteArray &input)
{
    QStringList failures;
    const ReplyPlan plan = ReplyPlan::parse(input);
    sim::SimulatedController controller;
    controller.setManualClock(true);
    plan.applyTo(controller);

    qint64 commands = 0;
    QObject::connect(&controller, &sim::SimulatedController::logged,
        [&](const sim::SimulatedController::LogEntry &entry) {
            if (entry.kind != sim::SimulatedController::LogEntry::Command
                && entry.kind != sim::SimulatedController::LogEntry::Query
                && entry.kind != sim::SimulatedController::LogEntry::Setting)
                return;
            // Past the budget the input has failed already; keep the log
            // from eating the machine until the loop ends or the watchdog
            // calls it a hang.
            if (++commands > CommandBudget && controller.log().size() > 10000)
                controller.clearLog();
        });

    // Each stage empties the log first; its commands are checked after it.
    for (const auto stage :
        { &ReplyTarget::checkLibrary, &ReplyTarget::checkLoader, &ReplyTarget::checkDialogs }) {
        stage(controller, &failures);
        checkCommands(controller, &failures);
    }
    if (commands > CommandBudget)
        failures << QStringLiteral("%1 commands to load everything once").arg(commands);
    failures.removeDuplicates();
    return failures;
}

QString ReplyTarget::knownFault(const QByteArray &input) const
{
    const ReplyPlan plan = ReplyPlan::parse(input);
    if (plan.claimsMoreThan(QStringLiteral("targetlib number_of_groups"), NestedCountLimit)
        && plan.claimsMoreThan(
            QStringLiteral("targetlib number_of_group_members"), NestedCountLimit))
        return QStringLiteral("the target library asks for every member of every group");
    return QString();
}
