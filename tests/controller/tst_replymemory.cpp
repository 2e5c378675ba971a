#include "commandchannel.h"

#include <testkit.h>

#include <thread>

class TestReplyMemory : public QObject
{
    Q_OBJECT

    enum Between {
        Nothing,
        FailedFirst,
        Write,
        MetaCommand,
        EventLoopWaits,
        ProcessEvents,
        ModalLoop
    };

private slots:
    void betweenReads_data()
    {
        testkit::columns<int, QString>({ "between", "second" });
        QTest::newRow("same burst: answered from memory") << int(Nothing) << "none";
        QTest::newRow("a failed read is asked again") << int(FailedFirst) << "cal";
        QTest::newRow("a write") << int(Write) << "cal";
        QTest::newRow("a meta command") << int(MetaCommand) << "cal";
        QTest::newRow("the event loop waits") << int(EventLoopWaits) << "cal";
        QTest::newRow("events processed") << int(ProcessEvents) << "cal";
        QTest::newRow("a nested modal loop") << int(ModalLoop) << "cal";
    }
    void betweenReads()
    {
        QFETCH(int, between);
        QFETCH(QString, second);
        sim::SimulatedController controller;
        controller.setValue("status active", "none");
        // Two channels on one link share what they heard, as a dialog and its tabs do.
        CommandChannel dialog(&controller, &controller.backendVersions());
        CommandChannel tab(&controller, &controller.backendVersions());
        if (between == FailedFirst)
            controller.failCommand("status active", 3, 1);
        QCOMPARE(dialog.stringOf("status active"), between == FailedFirst ? "" : "none");
        controller.setValue("status active", "cal");
        if (between == Write) {
            tab.setParameter("tracking auto_restart yes");
        } else if (between == MetaCommand) {
            tab.sendCommand("velora2 targetlib check_custom_calibration");
        } else if (between == EventLoopWaits) {
            QEventLoop loop;
            QTimer::singleShot(0, &loop, &QEventLoop::quit);
            loop.exec();
        } else if (between == ProcessEvents) {
            QCoreApplication::processEvents();
        } else if (between == ModalLoop) {
            ModalDriver driver;
            driver.pressButton(QMessageBox::Ok);
            QMessageBox::information(nullptr, "VELORA4", "modal");
        }
        QCOMPARE(tab.stringOf("status active"), second);
        QCOMPARE(controller.commands().count("status active"), second == "none" ? 1 : 2);
    }

    void withoutEventDispatcher()
    {
        // Nothing tells where a burst ends there, so every read goes out.
        sim::SimulatedController controller;
        std::thread([&controller] {
            CommandChannel channel(&controller, &controller.backendVersions());
            channel.stringOf("status active");
            channel.stringOf("status active");
        }).join();
        QCOMPARE(controller.commands().count("status active"), 2);
    }

    void lineBreaksStayInReplies()
    {
        sim::SimulatedController controller;
        controller.replaceReply(
            "body inertial_sensor standard b01", "VX\r\nstandard number_of_bodies 0");
        CommandChannel channel(&controller, &controller.backendVersions());
        const QString sensor = channel.stringOf("body inertial_sensor standard b01");
        QCOMPARE(sensor, "VX\r\nstandard number_of_bodies 0");
        // Where the reply leaves again, it cannot end the line early.
        channel.stringOf("inertial sensor_handeye " + sensor);
        channel.sendMessage(
            "BodyCalModule", "BodyAdministrationModule", "OpenBodyCalDialog " + sensor);
        QCOMPARE(controller.commands().last(),
            "inertial sensor_handeye VX  standard number_of_bodies 0");
        QCOMPARE(controller.messages().last(), "OpenBodyCalDialog VX  standard number_of_bodies 0");
    }
};

QTEST_MAIN(TestReplyMemory)
#include "tst_replymemory.moc"
