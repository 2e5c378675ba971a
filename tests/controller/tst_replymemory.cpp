#include "bodyloader.h"
#include "commandchannel.h"
#include "modaldriver.h"

#include <simulatedcontroller.h>

#include <QEventLoop>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

#include <thread>

class TestReplyMemory : public QObject
{
    Q_OBJECT

private slots:
    void betweenReads_data();
    void betweenReads();
    void failedReadIsAskedAgain();
    void withoutEventDispatcher();
    void exactReplies_data();
    void exactReplies();
    void lineBreaksStayInReplies();
};

enum Between { Nothing, Write, MetaCommand, EventLoopWaits, ProcessEvents, ModalLoop };

void TestReplyMemory::betweenReads_data()
{
    QTest::addColumn<int>("between");
    QTest::addColumn<QString>("second");

    QTest::newRow("same burst: answered from memory") << int(Nothing) << "none";
    QTest::newRow("a write") << int(Write) << "cal";
    QTest::newRow("a meta command") << int(MetaCommand) << "cal";
    QTest::newRow("the event loop waits") << int(EventLoopWaits) << "cal";
    QTest::newRow("events processed") << int(ProcessEvents) << "cal";
    QTest::newRow("a nested modal loop") << int(ModalLoop) << "cal";
}

void TestReplyMemory::betweenReads()
{
    QFETCH(int, between);
    QFETCH(QString, second);

    sim::SimulatedController controller;
    controller.setValue("status active", "none");
    // Two channels on one link share what they heard, as a dialog and its tabs do.
    CommandChannel dialog(&controller, &controller.backendVersions());
    CommandChannel tab(&controller, &controller.backendVersions());
    QString value;
    QCOMPARE(dialog.getString("status active", &value), 0);
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
    QCOMPARE(tab.getString("status active", &value), 0);
    QCOMPARE(value, second);
    QCOMPARE(controller.commands().count("status active"), second == "none" ? 1 : 2);
}

void TestReplyMemory::failedReadIsAskedAgain()
{
    sim::SimulatedController controller;
    controller.failCommand("body type_desc standard", 3);
    CommandChannel channel(&controller, &controller.backendVersions());
    BodyLoader loader(channel);
    loader.typeDescription("standard");
    loader.typeDescription("standard");
    QCOMPARE(controller.commands().count("body type_desc standard"), 2);
    QCOMPARE(
        controller.reports().count("Error: Unable to get description of bodytype standard"), 2);
}

void TestReplyMemory::withoutEventDispatcher()
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

void TestReplyMemory::exactReplies_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("yes");
    QTest::addColumn<bool>("done");

    QTest::newRow("yes") << QByteArray("yes") << true << false;
    QTest::newRow("yes and a carriage return") << QByteArray("yes\r") << false << false;
    QTest::newRow("yes and a tab") << QByteArray("yes\t") << false << false;
    QTest::newRow("velora2 ok") << QByteArray("velora2 ok") << false << true;
    QTest::newRow("velora2 ok and a line break") << QByteArray("velora2 ok\n") << false << false;
    QTest::newRow("escape inside") << QByteArray("velora2\x1b ok") << false << false;
}

void TestReplyMemory::exactReplies()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, yes);
    QFETCH(bool, done);

    sim::SimulatedController controller;
    controller.replaceReply("inertial available", reply);
    controller.replaceReply("velora2 cal targetlib stop", reply);
    CommandChannel channel(&controller, &controller.backendVersions());
    QCOMPARE(CommandText::isYes(channel.stringOf("inertial available")), yes);
    QCOMPARE(channel.sendMetaCommand("velora2 cal targetlib stop") == 0, done);
}

void TestReplyMemory::lineBreaksStayInReplies()
{
    sim::SimulatedController controller;
    controller.replaceReply(
        "body inertial_sensor standard b01", "VX\r\nstandard number_of_bodies 0");
    CommandChannel channel(&controller, &controller.backendVersions());
    const QString sensor = channel.stringOf("body inertial_sensor standard b01");
    QCOMPARE(sensor, "VX\r\nstandard number_of_bodies 0");
    // Where the reply leaves again, it cannot end the line early.
    channel.stringOf("inertial sensor_handeye " + sensor);
    channel.sendMessage("BodyCalModule", "BodyAdministrationModule", "OpenBodyCalDialog " + sensor);
    QCOMPARE(
        controller.commands().last(), "inertial sensor_handeye VX  standard number_of_bodies 0");
    QCOMPARE(controller.messages().last(), "OpenBodyCalDialog VX  standard number_of_bodies 0");
}

QTEST_MAIN(TestReplyMemory)
#include "tst_replymemory.moc"
