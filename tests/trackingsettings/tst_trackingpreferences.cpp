#include "trackingpreferences.h"

#include "temporaryhome.h"

#include <csignal>
#include <sys/resource.h>

class TestTrackingPreferences : public QObject
{
    Q_OBJECT

private slots:
    void init() { removePreferences(); }
    void read_data();
    void read();
    void writeAndReadBack();
    void writeFailures_data();
    void writeFailures();
    void failedWriteKeepsPreviousFile();
};

namespace
{

const QByteArray Unreadable("a directory where the file belongs");
const QByteArray NoFile("no file");

QByteArray document(const QByteArray &children)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VELORA>\n" + children + "</VELORA>\n";
}

void row(const char *name, const QByteArray &content, bool fixedAngle, bool autoRestart,
    const QString &report = QString())
{
    QTest::newRow(name) << content << fixedAngle << autoRestart << report;
}

} // namespace

void TestTrackingPreferences::read_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("fixedAngleVisible");
    QTest::addColumn<bool>("autoRestartVisible");
    QTest::addColumn<QString>("report");

    const QString error("Error: Loading tracking settings preferences");
    const QByteArray both(
        "<FIXED_ANGLE VISIBLE=\"true\"/><AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>");
    // clang-format off
    row("no file: built-in values, silently", NoFile, false, false);
    row("both offered", document(both), true, true);
    row("no attributes: not visible, hidden", document("<FIXED_ANGLE/><AUTO_RESTART_MEA_AFTER_SYNC_LOST/><OTHER/>"), false, false);
    row("exact comparison: only HIDE true hides", document("<FIXED_ANGLE VISIBLE=\"True\"/><AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"TRUE\"/>"), false, true);
    row("a comment after FIXED_ANGLE clears it", document("<FIXED_ANGLE VISIBLE=\"true\"/><!-- by hand -->"), false, false);
    row("wrong root", "<?xml version=\"1.0\"?>\n<ZEM><FIXED_ANGLE VISIBLE=\"true\"/></ZEM>", false, false, error + " while parsing %1 : The file doesn't look like a valid preferences file. Using built-in values");
    row("malformed", document("<FIXED_ANGLE VISIBLE=\"true\">\n"), false, false, error + " while parsing %1 (Line 4, Column 9) :\ntag mismatch. Using built-in values");
    row("unreadable", Unreadable, false, false, error + ". File %1 cannot be opened for reading. Using built-in values");
    // clang-format on
}

void TestTrackingPreferences::read()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, report);

    if (content == Unreadable)
        QVERIFY(QDir().mkpath(preferencesFile()));
    else if (content != NoFile)
        QVERIFY(writePreferences(content));
    TrackingPreferences preferences("v3.0.5");
    QCOMPARE(preferences.fileName(), preferencesFile());
    QCOMPARE(preferences.read(), report.isEmpty() ? report : report.arg(preferencesFile()));
    QTEST(preferences.fixedAngleVisible(), "fixedAngleVisible");
    QTEST(preferences.autoRestartVisible(), "autoRestartVisible");
}

void TestTrackingPreferences::writeAndReadBack()
{
    QVERIFY(writePreferences(document(
        "<FIXED_ANGLE VISIBLE=\"true\"/><AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>")));
    TrackingPreferences preferences("v3.0.5");
    QCOMPARE(preferences.read(), QString());
    removePreferences();

    // Not opened in this session: what the last opening showed stays.
    QCOMPARE(preferences.write(), QString());
    QCOMPARE(readPreferences(),
        document("    <FIXED_ANGLE VISIBLE=\"true\"/>\n"
                 "    <AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>\n"));
    preferences.setAdvancedShown(false);
    QCOMPARE(preferences.write(), QString());
    QCOMPARE(readPreferences(),
        document("    <FIXED_ANGLE/>\n    <AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>\n"));
    QCOMPARE(QDir(preferencesDirectory()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        QStringList { "trackingsettings-preferences.xml" });

    TrackingPreferences again("v3.0.5");
    QCOMPARE(again.read(), QString());
    QVERIFY(!again.fixedAngleVisible());
    QVERIFY(again.autoRestartVisible());
}

void TestTrackingPreferences::writeFailures_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<QString>("report");

    QTest::newRow("a file where the directory belongs")
        << QDir::homePath() + "/.ZEM"
        << "Error: Writing tracking preferences. Directory " + preferencesDirectory()
            + " doesn't exist and cannot be created";
    QTest::newRow("a directory where the file belongs")
        << preferencesFile()
        << "Error: Writing tracking preferences. File " + preferencesFile()
            + " cannot be opened for writing";
}

void TestTrackingPreferences::writeFailures()
{
    QFETCH(QString, obstacle);

    // Permissions would not stop root; things in the way stop everyone.
    if (obstacle == preferencesFile()) {
        QVERIFY(QDir().mkpath(obstacle));
    } else {
        QFile file(obstacle);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QTEST(TrackingPreferences("v3.0.5").write(), "report");
}

void TestTrackingPreferences::failedWriteKeepsPreviousFile()
{
    const QByteArray previous = document("<FIXED_ANGLE VISIBLE=\"true\"/>");
    QVERIFY(writePreferences(previous));
    TrackingPreferences preferences("v3.0.5");
    preferences.read();

    // A disk that is full after 16 bytes.
    rlimit saved {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &saved), 0);
    rlimit small = saved;
    small.rlim_cur = 16;
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const QString error = preferences.write();
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, handler);

    QCOMPARE(error,
        "Error: Writing tracking preferences. File " + preferencesFile()
            + " cannot be opened for writing");
    QCOMPARE(readPreferences(), previous);
    QCOMPARE(QDir(preferencesDirectory()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        QStringList { "trackingsettings-preferences.xml" });
}

TRACKING_TEST_MAIN_WITH_TEMPORARY_HOME(TestTrackingPreferences)
#include "tst_trackingpreferences.moc"
