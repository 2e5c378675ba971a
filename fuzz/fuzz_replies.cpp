// Whatever the controller answers, the module reports, goes on with a
// neutral value and never crashes, overflows or hangs. The input doctors
// the simulated controller, one rule a line, so that a failing input reads
// as what it does:
//
//   version 1.11.0          controller software
//   system ORBILUX C2       tracking-system model
//   reply PATTERN = TEXT    every matching command answers TEXT
//   once PATTERN = TEXT     the next matching command does
//   open PATTERN = TEXT     TEXT fills the whole buffer, no zero byte
//   fail PATTERN            every matching command fails
//   set PATH = TEXT         the parameter itself holds TEXT
//
// A pattern is a command or a prefix ending in '*'. After a line "--", a
// byte chooses what opens (the body administration, one of its tabs
// reloaded while closed, the filter dialog or the tracking dialog), the
// rest is a user's clicks there.
#include "fuzzing.h"

#include <bodyadministrationdlg.h>
#include <bodytabfactory.h>
#include <bodytypeadministrationtab.h>
#include <filterdialog.h>
#include <simulatedcontroller.h>
#include <trackingdlg.h>
#include <versiongate.h>

#include <QApplication>

#include <algorithm>

namespace
{

constexpr int MaxCount = 200;

void applyRule(sim::SimulatedController &controller, const QByteArray &line)
{
    const QByteArray word = line.left(line.indexOf(' '));
    const QByteArray rest = line.mid(word.size() + 1);
    const int equals = rest.indexOf(" = ");
    const QString pattern = QString::fromLatin1(equals < 0 ? rest : rest.left(equals));
    QByteArray text = equals < 0 ? QByteArray() : rest.mid(equals + 3);
    // The module asks as many bodies, targets and presets as the controller
    // counts; a count in the millions is a slow input, not a finding.
    bool number = false;
    if ((pattern.contains(QLatin1String("number")) || pattern.endsWith(QLatin1Char('*')))
        && text.trimmed().toLongLong(&number) > MaxCount && number)
        text = QByteArray::number(MaxCount);
    BackendVersions &versions = controller.backendVersions();
    if (word == "version") {
        const QList<QByteArray> parts = rest.split('.');
        versions.backendVersion
            = { parts.value(0).toInt(), parts.value(1).toInt(), parts.value(2).toInt() };
    } else if (word == "system") {
        versions.systemType = QString::fromLatin1(rest);
    } else if (word == "fail") {
        controller.failCommand(pattern);
    } else if (word == "set") {
        controller.setValue(pattern, QString::fromLatin1(text));
    } else if (equals > 0 && (word == "reply" || word == "once" || word == "open")) {
        controller.replaceReply(pattern, text, word == "once" ? 1 : -1, word == "open");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input
        = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    const int clicksAt = input.indexOf("\n--\n");
    // It outlives the application: never deleted.
    static sim::SimulatedController &controller = *new sim::SimulatedController;
    controller.loadScenario(sim::SimulatedController::defaultScenario());
    controller.clearInjections();
    controller.clearLog();
    controller.setManualClock(true);
    for (const QByteArray &line : input.left(clicksAt).split('\n'))
        applyRule(controller, line);
    const int clicksFrom = clicksAt < 0 ? int(size) : clicksAt + 4;
    FuzzBytes bytes { data + clicksFrom, size - size_t(clicksFrom) };
    Fuzzing::driveModals(&bytes, &controller);

    BackendVersions *versions = &controller.backendVersions();
    // The module builds its dialogs once and reloads them on every opening;
    // building costs more than an input. Of the version only the tabs it
    // offers shape the administration dialog, and only whether an ORBILUX
    // system restarts by itself the tracking dialog: one of each is kept
    // per shape, and the dialogs carry their state over to the next input,
    // as in a host. More kept windows would cost every modal dialog, which
    // tells each of them it is blocked.
    const VersionGate gate(versions);
    int adminShape = 0;
    for (int key : { BodyTabFactory::Fingertracking, BodyTabFactory::MeasurementTool })
        adminShape = adminShape * 2 + BodyTabFactory::isOffered(key, gate);
    const int trackingShape = gate.isOrbilux() + (gate.isOrbilux() && gate.atLeast(0, 14));
    static QHash<int, BodyAdministrationDlg *> admins;
    static QHash<int, TrackingDlg *> trackings;
    BodyAdministrationDlg *&admin = admins[adminShape];
    if (!admin)
        admin = new BodyAdministrationDlg(&controller, nullptr, versions);
    TrackingDlg *&tracking = trackings[trackingShape];
    if (!tracking)
        tracking = new TrackingDlg(&controller, nullptr, versions, QStringLiteral("v3.0.5"));
    // One opening an input, as the input chooses.
    switch (bytes.pick(4)) {
    case 0:
        admin->update_and_exec();
        break;
    case 1:
        // A tab reloaded while the dialog is closed, as a message makes it.
        if (BodyTypeAdministrationTab *tab = admin->tab(bytes.pick(4)))
            tab->update_tab();
        break;
    case 2:
        FilterDialog(&controller, nullptr, versions).update_and_exec(bytes.pick(4), bytes.pick(3));
        break;
    default:
        tracking->update_and_exec();
    }
    Fuzzing::driveModals(nullptr);

    // A plain scan: a regular expression over every command was a sixtieth
    // of an input.
    const auto isControl = [](QChar c) { return c.unicode() < 0x20; };
    for (const QString &command : controller.commands()) {
        if (std::any_of(command.cbegin(), command.cend(), isControl))
            Fuzzing::fail("a control character in: " + command.toUtf8().toPercentEncoding(" "));
    }
    for (const QString &report : controller.reports())
        Fuzzing::require(!report.trimmed().isEmpty(), "an empty report");
    QApplication::processEvents();
    return 0;
}
