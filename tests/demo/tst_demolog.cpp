#include "consoleline.h"
#include "demooptions.h"
#include "demowindow.h"
#include "logfilter.h"
#include "logwindow.h"
#include "simulatorlogmodel.h"

#include <modaldriver.h>

#include <QAction>
#include <QDialog>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using LogEntry = sim::SimulatedController::LogEntry;

namespace
{

LogEntry entry(LogEntry::Kind kind, const QString &text, int result = 0,
    const QString &receiver = QString(), const QString &reply = QString())
{
    LogEntry e;
    e.kind = kind;
    e.operation
        = kind == LogEntry::Message ? QStringLiteral("sendMessage") : QStringLiteral("getString");
    e.text = text;
    e.result = result;
    e.receiver = receiver;
    e.sender = receiver.isEmpty() ? QString() : QStringLiteral("VELORA4");
    e.reply = reply;
    return e;
}

// A query, a failed setting, an error report, a notice, a hand-over message.
void fill(SimulatorLogModel *model)
{
    model->append(entry(LogEntry::Query, "status active", 0, QString(), "none"));
    model->append(entry(LogEntry::Setting, "standard number_of_bodies 5", 3));
    model->append(entry(LogEntry::Message, "Error: Unable to get group name", 0, "standard"));
    model->append(entry(LogEntry::Message, "t04 already calibrated", 0, "standard"));
    model->append(entry(LogEntry::Message, "OpenBodyCalDialog standard b01", 0, "BodyCalModule"));
}

QStringList texts(const QAbstractItemModel &model)
{
    QStringList shown;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QString text = model.index(row, SimulatorLogModel::TextColumn).data().toString();
        shown << (text.contains(QChar(0x2192)) ? text.section(": ", 1) : text);
    }
    return shown;
}

} // namespace

class TestDemoLog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void marksFailuresAndErrorReports();
    void filters_data();
    void filters();
    void followsTailOnlyAtBottom();
    void savesAndWritesAsItHappens();
    void staysUsableWhileModuleDialogRuns();
    void consoleTakesLinesWithHistory();
};

void TestDemoLog::cleanup()
{
    ModalDriver::closeAllModals();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QStringList left = ModalDriver::topLevelWidgetNames();
    QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1String(", "))));
}

void TestDemoLog::marksFailuresAndErrorReports()
{
    SimulatorLogModel model;
    fill(&model);
    QStringList marked;
    for (int row = 0; row < model.rowCount(); ++row)
        marked << model.lineText(row).section('\t', 2, 2)
                + (model.lineText(row).endsWith("\tFAILED") ? "!" : "");
    QCOMPARE(marked,
        QStringList({ "status active", "standard number_of_bodies 5!",
            "VELORA4 \u2192 standard: Error: Unable to get group name!",
            "VELORA4 \u2192 standard: t04 already calibrated",
            "VELORA4 \u2192 BodyCalModule: OpenBodyCalDialog standard b01" }));
    QVERIFY(QTime::fromString(model.lineText(0).section('\t', 0, 0), "HH:mm:ss.zzz").isValid());
    QCOMPARE(model.lineText(0).section('\t', 3, 4), QStringLiteral("none\t0"));
    // Oldest rows go once the cap is reached; the newest stay in order.
    SimulatorLogModel capped(10);
    for (int i = 1; i <= 25; ++i)
        capped.append(entry(LogEntry::Query, QString::number(i)));
    QCOMPARE(texts(capped).last(), QStringLiteral("25"));
    QVERIFY(capped.rowCount() <= 10 && texts(capped).first().toInt() == 26 - capped.rowCount());
}

void TestDemoLog::filters_data()
{
    QTest::addColumn<int>("show");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("shown");

    QTest::newRow("calls") << int(LogFilter::Calls) << QString()
                           << QStringList { "status active", "standard number_of_bodies 5" };
    QTest::newRow("failures") << int(LogFilter::Failures) << QString()
                              << QStringList { "standard number_of_bodies 5",
                                     "Error: Unable to get group name" };
    QTest::newRow("messages with text, any case") << int(
        LogFilter::Messages) << "STANDARD b01" << QStringList { "OpenBodyCalDialog standard b01" };
    QTest::newRow("text in the reply")
        << int(LogFilter::All) << "none" << QStringList { "status active" };
}

void TestDemoLog::filters()
{
    QFETCH(int, show);
    QFETCH(QString, text);
    SimulatorLogModel model;
    fill(&model);
    LogFilter filter;
    filter.setSourceModel(&model);
    filter.setShow(LogFilter::Show(show));
    filter.setFilterFixedString(text);
    QTEST(texts(filter), "shown");
}

void TestDemoLog::followsTailOnlyAtBottom()
{
    SimulatorLogModel model;
    LogWindow window(&model);
    window.resize(400, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QScrollBar *bar = window.view()->verticalScrollBar();
    for (int i = 0; i < 100; ++i)
        model.append(entry(LogEntry::Query, QString::number(i)));
    QTRY_VERIFY(bar->maximum() > 0);
    QTRY_COMPARE(bar->value(), bar->maximum());

    // Someone reading older rows is not yanked away by new ones.
    window.view()->scrollToTop();
    model.append(entry(LogEntry::Query, "late"));
    QCoreApplication::processEvents();
    QCOMPARE(bar->value(), 0);
}

void TestDemoLog::savesAndWritesAsItHappens()
{
    QTemporaryDir dir;
    SimulatorLogModel model;
    model.append(entry(LogEntry::Query, "before"));
    QString error;
    QVERIFY(model.setLogFile(dir.filePath("live.log"), &error));
    fill(&model);
    // Written as it happens: readable before anything is closed.
    QFile live(dir.filePath("live.log"));
    QVERIFY(live.open(QIODevice::ReadOnly));
    const QByteArray written = live.readAll();
    QCOMPARE(written.count('\n'), 6);
    QVERIFY(model.save(dir.filePath("saved.log"), &error));
    QFile saved(dir.filePath("saved.log"));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QCOMPARE(saved.readAll(), written);
    QVERIFY(!model.save(dir.filePath("no/such/folder/x.log"), &error));
    QVERIFY(error.contains("no/such/folder"));
}

// Qt blocks every window but the modal dialog and its transient children;
// the log window must be one of those.
void TestDemoLog::staysUsableWhileModuleDialogRuns()
{
    DemoWindow window { DemoOptions() };
    window.show();
    window.logWindow()->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.logWindow()));
    QTableView *view = window.logWindow()->view();
    QVERIFY(view->model()->rowCount() > 2);
    int clicked = -1, currentRow = -2;
    ModalDriver driver;
    driver.answer([&](QWidget *modal) {
        clicked = view->model()->rowCount() - 2;
        const QModelIndex target = view->model()->index(clicked, 1);
        view->scrollTo(target);
        // Through the window system's path, where Qt applies modality.
        const QPoint at
            = view->viewport()->mapTo(view->window(), view->visualRect(target).center());
        QTest::mouseClick(view->window()->windowHandle(), Qt::LeftButton, {}, at);
        currentRow = view->currentIndex().row();
        static_cast<QDialog *>(modal)->reject();
    });
    window.moduleActions().at(1)->trigger(); // body administration
    QCOMPARE(driver.pending(), 0);
    QCOMPARE(currentRow, clicked);
    window.close();
}

void TestDemoLog::consoleTakesLinesWithHistory()
{
    DemoWindow window { DemoOptions() };
    ConsoleLine *console = window.logWindow()->console();
    for (const char *line :
        { "config is_changeable = no", "@backend-version 1.x", "@fail status step_active" }) {
        QTest::keyClicks(console, line);
        QTest::keyClick(console, Qt::Key_Return);
    }
    QCOMPARE(window.controller()->value("config is_changeable"), QStringLiteral("no"));
    char reply[200] = {};
    QCOMPARE(window.controller()->getString(reply, "status step_active"), 1);
    // The bad line is logged as failed with its reason.
    const QString bad = window.logModel()->lineText(window.logModel()->rowCount() - 3);
    QVERIFY2(bad.contains("@backend-version 1.x\tbad version") && bad.endsWith("FAILED"),
        qPrintable(bad));
    QTest::keyClick(console, Qt::Key_Up);
    QTest::keyClick(console, Qt::Key_Up);
    QCOMPARE(console->text(), QStringLiteral("@backend-version 1.x"));
    QTest::keyClick(console, Qt::Key_Down);
    QTest::keyClick(console, Qt::Key_Down);
    QCOMPARE(console->text(), QString());
}

QTEST_MAIN(TestDemoLog)
#include "tst_demolog.moc"
