// A scenario file of any content: every bad line is reported with a line
// that exists, and the controller keeps answering within its reply buffer.
#include "fuzzing.h"

#include <simulatedcontroller.h>

#include <QRegularExpression>

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
    static const QRegularExpression report(QStringLiteral("^fuzz\\.scn:(\\d+): \\S"));
    const int lines = text.count(QLatin1Char('\n')) + 1;
    for (const QString &error : qAsConst(errors)) {
        const int line = report.match(error).captured(1).toInt();
        Fuzzing::require(line >= 1 && line <= lines, error);
    }

    constexpr int BufferSize = IOManager::ReplyBufferSize;
    char buffer[BufferSize + 32];
    const auto exchange = [&](bool meta, const char *command) {
        std::memset(buffer, 'G', sizeof buffer);
        meta ? controller.sendCommand(buffer, "%s", command)
             : controller.getString(buffer, "%s", command);
        Fuzzing::require(
            std::all_of(buffer + BufferSize, std::end(buffer), [](char c) { return c == 'G'; }),
            QStringLiteral("reply to %1 overruns").arg(command));
    };
    const QStringList paths = controller.parameters().keys();
    for (int i = 0; i < paths.size() && i < 60; ++i)
        exchange(false, paths.at(i).toLatin1().constData());
    qint32 count = 0;
    if (controller.getInt(&count, "body number_of_bodies standard") == 0 && count >= 0) {
        controller.setParameter("standard number_of_bodies %lld", qint64(count) + 1);
        controller.setParameter("standard number_of_bodies 0");
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
