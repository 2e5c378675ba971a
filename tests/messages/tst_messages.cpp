#include "bodyadminmessagereceiver.h"
#include "commandchannel.h"
#include "handoverrequest.h"

#include <testkit.h>

using MakeRequest = std::function<HandOverRequest()>;
Q_DECLARE_METATYPE(MakeRequest)

class TestMessages : public QObject
{
    Q_OBJECT

private slots:
    void matching_data()
    {
        testkit::columns<QByteArray, QByteArray, QString>({ "sender", "text", "signal" });
        const QByteArray config("ConfigurationModule"); // no signal: ignored
        // clang-format off
        QTest::newRow("reopen wins over the configuration test") << config << QByteArray("reopen") << "dialogReopen";
        QTest::newRow("reopen with a trailing blank") << config << QByteArray("reopen ") << "";
        QTest::newRow("calibration announced, more text") << QByteArray("x") << QByteArray("bodycalibration available v2") << "BodyCalAvailable";
        QTest::newRow("capital B is not the announcement") << QByteArray("x") << QByteArray("Bodycalibration available") << "";
        QTest::newRow("adjustment announced") << QByteArray("") << QByteArray("bodyadjustment available") << "BodyAdjustmentAvailable";
        QTest::newRow("configuration changed") << config << QByteArray("ActiveConfigurationChanged") << "activeConfigurationChanged";
        QTest::newRow("configuration changed, other sender") << QByteArray("BodyCalModule") << QByteArray("ActiveConfigurationChanged") << "";
        QTest::newRow("configuration changed, more text") << config << QByteArray("ActiveConfigurationChanged!") << "";
        QTest::newRow("missing text") << config << QByteArray() << "";
        // clang-format on
    }
    void matching()
    {
        QFETCH(QByteArray, text);
        BodyAdminMessageReceiver receiver;
        QStringList emitted;
        using R = BodyAdminMessageReceiver;
        for (const auto &[signal, name] : { std::make_pair(&R::dialogReopen, "dialogReopen"),
                 { &R::BodyCalAvailable, "BodyCalAvailable" },
                 { &R::BodyAdjustmentAvailable, "BodyAdjustmentAvailable" },
                 { &R::activeConfigurationChanged, "activeConfigurationChanged" } })
            connect(&receiver, signal, this, [&emitted, name = name] { emitted << name; });
        QCOMPARE(
            receiver.receiveMessage("GlobalEvent", testkit::fetch<QByteArray>("sender").constData(),
                text.isNull() ? nullptr : text.constData()),
            0);
        QTEST(emitted.join(' '), "signal");
    }

    void requests_data()
    {
        testkit::columns<MakeRequest, QString>({ "request", "sent" }); // sent: "receiver: text"
        // clang-format off
        QTest::newRow("custom calibration pads the number") << MakeRequest([] { return HandOverRequest::customCalibration("standard", 11); }) << "BodyCalModule: OpenBodyCalDialog standard b12";
        QTest::newRow("custom calibration of body 100") << MakeRequest([] { return HandOverRequest::customCalibration("gripwand", 99); }) << "BodyCalModule: OpenBodyCalDialog gripwand b100";
        QTest::newRow("adjustment sends the bare number") << MakeRequest([] { return HandOverRequest::bodyAdjustment("standard", 11, "Custom"); }) << "BodyAdjustmentModule: OpenBodyAdjustmentDialog standard|12|calibrated";
        QTest::newRow("adjustment of an uncalibrated body") << MakeRequest([] { return HandOverRequest::bodyAdjustment("fingertracking", 0, "not calibrated"); }) << "BodyAdjustmentModule: OpenBodyAdjustmentDialog fingertracking|1|uncalibrated";
        QTest::newRow("only the exact text means uncalibrated") << MakeRequest([] { return HandOverRequest::bodyAdjustment("standard", 0, "Not calibrated"); }) << "BodyAdjustmentModule: OpenBodyAdjustmentDialog standard|1|calibrated";
        QTest::newRow("hybrid passes the calibration text") << MakeRequest([] { return HandOverRequest::hybridCalibration("standard", 2, "Target Library, re-calibrated"); }) << "HybridBodyCalibration: OpenHybridBodyCalibration standard|3|Target Library, re-calibrated";
        // clang-format on
    }
    void requests()
    {
        sim::SimulatedController controller;
        testkit::fetch<MakeRequest>("request")().send(
            CommandChannel(&controller, &controller.backendVersions()));
        QCOMPARE(controller.log().size(), 1);
        const sim::SimulatedController::LogEntry entry = controller.log().first();
        QTEST(entry.receiver + ": " + entry.text, "sent");
        QCOMPARE(entry.sender + ' ' + QString::number(entry.level), "BodyAdministrationModule 1");
    }
};

QTEST_GUILESS_MAIN(TestMessages)
#include "tst_messages.moc"
