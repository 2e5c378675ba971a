// A scenario file of any content: every bad line is reported with a line
// that exists, and the controller keeps answering within its reply buffer.
#include "fuzzing.h"

#include <bodymodel.h>
#include <simulatedcontroller.h>

#include <algorithm>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    // Loading replaces all the state an input reaches; building a controller
    // costs more than an input. It outlives the application: never deleted.
    static sim::SimulatedController &controller = *new sim::SimulatedController;
    controller.clearLog();
    controller.setManualClock(true);
    QStringList errors;
    const bool loaded = controller.loadScenarioText(text, QStringLiteral("fuzz.scn"), &errors);
    Fuzzing::require(loaded == errors.isEmpty(), "load result and error reports disagree");
    const int lines = text.count(QLatin1Char('\n')) + 1;
    // Each report names its line, "fuzz.scn:LINE: reason" (a regular
    // expression checking that took a sixteenth of the time).
    const QString name = QStringLiteral("fuzz.scn:");
    for (const QString &error : qAsConst(errors)) {
        const int colon = error.indexOf(QLatin1String(": "), name.size());
        bool number = false;
        const int line
            = colon < 0 ? 0 : error.midRef(name.size(), colon - name.size()).toInt(&number);
        Fuzzing::require(error.startsWith(name) && number && line >= 1 && line <= lines
                && colon + 2 < error.size() && !error.at(colon + 2).isSpace(),
            error);
    }

    constexpr int BufferSize = IOManager::ReplyBufferSize;
    char buffer[BufferSize + 32];
    const auto exchange = [&](bool meta, const char *command) {
        std::memset(buffer, 'G', sizeof buffer);
        meta ? controller.sendCommand(buffer, "%s", command)
             : controller.getString(buffer, "%s", command);
        if (!std::all_of(buffer + BufferSize, std::end(buffer), [](char c) { return c == 'G'; }))
            Fuzzing::fail(QStringLiteral("reply to %1 overruns").arg(command));
    };
    // Only a long value can overrun the buffer (a character may take up to
    // three bytes); a few short ones show the usual replies.
    const QMap<QString, QString> parameters = controller.parameters();
    int asked = 0;
    for (auto it = parameters.cbegin(); it != parameters.cend() && asked < 16; ++it) {
        if (asked < 4 || it.value().size() * 3 >= BufferSize) {
            exchange(false, it.key().toUtf8().constData());
            ++asked;
        }
    }
    // One body more and back: both ways of a resize, at the cost of one body.
    // Where the two counts disagree, a resize starts from either and made
    // hundreds of bodies an input.
    const QString counted = parameters.value(QStringLiteral("body number_of_bodies standard"));
    bool number = false;
    const int count = counted.toInt(&number);
    if (number && counted == parameters.value(QStringLiteral("standard number_of_bodies"))
        && count >= 0 && count < sim::BodyModel::MaxBodyNumber) {
        controller.setParameter("standard number_of_bodies %d", count + 1);
        controller.setParameter("standard number_of_bodies %d", count);
    }
    controller.setParameter("tracking reference standard b01");
    exchange(true, "velora2 body switch standard b01 standard b02");
    exchange(true, "velora2 cal targetlib start");
    controller.advanceClock(500);
    exchange(false, "targetlib target_status_tracked t01");
    controller.advanceClock(600000);
    exchange(false, "status active");
    exchange(true, "velora2 targetlib check_custom_calibration");
    exchange(true, "velora2 body calibrate_from_targetlib standard b01 T");
    return 0;
}
