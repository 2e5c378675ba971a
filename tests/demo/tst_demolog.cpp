#include "logdock.h"
#include "simulatorlogmodel.h"

#include <modaldriver.h>

#include <QScrollBar>
#include <QTableView>
#include <QtTest>

using LogEntry = sim::SimulatedController::LogEntry;

namespace
{

LogEntry command(const QString &text, int result = 0)
{
    LogEntry entry;
    entry.kind = LogEntry::Query;
    entry.operation = QStringLiteral("getString");
    entry.text = text;
    entry.result = result;
    return entry;
}

} // namespace

Q_DECLARE_METATYPE(LogEntry::Kind)

class TestDemoLog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void showsEntry_data();
    void showsEntry();
    void insertsOneRowPerEntry();
    void dropsOldestAtCap();
    void followsTailOnlyAtBottom();
};

void TestDemoLog::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QStringList left = ModalDriver::topLevelWidgetNames();
    QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1String(", "))));
}

void TestDemoLog::showsEntry_data()
{
    QTest::addColumn<LogEntry::Kind>("kind");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reply");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("sender");
    QTest::addColumn<QString>("receiver");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("shownText");
    QTest::addColumn<QString>("shownReply");
    QTest::addColumn<QString>("shownResult");
    QTest::addColumn<bool>("failure");

    const QString none;
    QTest::newRow("meta command done")
        << LogEntry::Command << "sendCommand"
        << "velora2 cal targetlib start"
        << "velora2 ok" << 0 << none << none << none << "velora2 cal targetlib start"
        << "velora2 ok"
        << "0" << false;
    QTest::newRow("setting refused, with the reason")
        << LogEntry::Setting << "setParameter"
        << "standard number_of_bodies 9" << none << 2 << none << none << "out of range"
        << "standard number_of_bodies 9"
        << "out of range"
        << "2" << true;
    QTest::newRow("reply and reason") << LogEntry::Query << "getInt"
                                      << "status progress"
                                      << "abc" << 2 << none << none << "no number"
                                      << "status progress"
                                      << "abc (no number)"
                                      << "2" << true;
    QTest::newRow("reply time-out set")
        << LogEntry::ReplyTimeout << "setReplyTimeout"
        << "0 5000 0" << none << 0 << none << none << none << "0 5000 0" << none << none << false;
    QTest::newRow("request to a module")
        << LogEntry::Message << "sendMessage"
        << "OpenBodyCalDialog standard b01" << none << 0 << "BodyAdministrationModule"
        << "BodyCalModule" << none
        << "BodyAdministrationModule \u2192 BodyCalModule: OpenBodyCalDialog standard b01" << none
        << none << false;
    QTest::newRow("error report") << LogEntry::Message << "sendMessage"
                                  << "Error: Unable to get group name" << none << 0 << "VELORA4"
                                  << "standard" << none
                                  << "VELORA4 \u2192 standard: Error: Unable to get group name"
                                  << none << none << true;
    QTest::newRow("notice") << LogEntry::Message << "sendMessage"
                            << "target library calibration started" << none << 0 << "VELORA4"
                            << "standard" << none
                            << "VELORA4 \u2192 standard: target library calibration started" << none
                            << none << false;
    QTest::newRow("registration") << LogEntry::Message << "registerReceiver" << none << none << 0
                                  << none << "GlobalEvent" << none << "GlobalEvent" << none << none
                                  << false;
}

void TestDemoLog::showsEntry()
{
    QFETCH(LogEntry::Kind, kind);
    QFETCH(QString, operation);
    QFETCH(QString, text);
    QFETCH(QString, reply);
    QFETCH(int, result);
    QFETCH(QString, sender);
    QFETCH(QString, receiver);
    QFETCH(QString, error);
    QFETCH(QString, shownText);
    QFETCH(QString, shownReply);
    QFETCH(QString, shownResult);
    QFETCH(bool, failure);

    LogEntry entry;
    entry.kind = kind;
    entry.operation = operation;
    entry.text = text;
    entry.reply = reply;
    entry.result = result;
    entry.sender = sender;
    entry.receiver = receiver;
    entry.error = error;

    SimulatorLogModel model;
    model.append(command(QStringLiteral("status active"), 1));
    model.append(entry);
    const auto cell = [&model](int column, int role = Qt::DisplayRole) {
        return model.data(model.index(1, column), role);
    };
    QCOMPARE(cell(SimulatorLogModel::OperationColumn).toString(), operation);
    QCOMPARE(cell(SimulatorLogModel::TextColumn).toString(), shownText);
    QCOMPARE(cell(SimulatorLogModel::ReplyColumn).toString(), shownReply);
    QCOMPARE(cell(SimulatorLogModel::ResultColumn).toString(), shownResult);
    QCOMPARE(SimulatorLogModel::isFailure(entry), failure);
    // Failures share one look that nothing else has.
    const QVariant failureLook = model.data(model.index(0, 0), Qt::BackgroundRole);
    QCOMPARE(cell(0, Qt::BackgroundRole) == failureLook, failure);
}

void TestDemoLog::insertsOneRowPerEntry()
{
    SimulatorLogModel model;
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    for (int i = 0; i < 3; ++i)
        model.append(command(QStringLiteral("c%1").arg(i)));

    QCOMPARE(inserted.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(inserted.at(i).at(1).toInt(), i);
        QCOMPARE(inserted.at(i).at(2).toInt(), i);
    }
    QCOMPARE(reset.size(), 0);

    model.clear();
    QCOMPARE(model.rowCount(), 0);
}

void TestDemoLog::dropsOldestAtCap()
{
    const int cap = 20;
    SimulatorLogModel model(cap);
    for (int i = 1; i <= 45; ++i)
        model.append(command(QStringLiteral("c%1").arg(i)));

    const int rows = model.rowCount();
    QVERIFY2(rows <= cap && rows >= cap - cap / 10, qPrintable(QString::number(rows)));
    // What is left is the newest entries, in order.
    for (int row = 0; row < rows; ++row)
        QCOMPARE(model.data(model.index(row, SimulatorLogModel::TextColumn)).toString(),
            QStringLiteral("c%1").arg(45 - rows + 1 + row));
}

void TestDemoLog::followsTailOnlyAtBottom()
{
    SimulatorLogModel model;
    LogDock dock(&model);
    dock.resize(400, 200);
    dock.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dock));
    const QScrollBar *bar = dock.view()->verticalScrollBar();

    for (int i = 0; i < 100; ++i)
        model.append(command(QStringLiteral("c%1").arg(i)));
    QTRY_VERIFY(bar->maximum() > 0);
    QTRY_COMPARE(bar->value(), bar->maximum());

    // Someone reading older rows is not yanked away by new ones.
    dock.view()->scrollToTop();
    model.append(command(QStringLiteral("late")));
    QCoreApplication::processEvents();
    QCOMPARE(bar->value(), 0);
}

QTEST_MAIN(TestDemoLog)
#include "tst_demolog.moc"
