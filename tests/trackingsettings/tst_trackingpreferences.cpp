#include "trackingpreferences.h"

#include "temporaryhome.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

class TestTrackingPreferences : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void pathCarriesModuleVersion();
    void missingFileIsSilent();
    void read_data();
    void read();
    void unreadableFile();
    void writeAndReadBack_data();
    void writeAndReadBack();
    void writeFailures_data();
    void writeFailures();
    void failedWriteKeepsPreviousFile();
};

namespace
{

const QByteArray Header("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");

QByteArray document(const QByteArray &children)
{
    return Header + "<VELORA>\n" + children + "</VELORA>\n";
}

} // namespace

void TestTrackingPreferences::init()
{
    removePreferences();
}

void TestTrackingPreferences::cleanup()
{
    removePreferences();
}

void TestTrackingPreferences::pathCarriesModuleVersion()
{
    const TrackingPreferences preferences(QStringLiteral("v3.0.5"));
    QCOMPARE(preferences.directory(), preferencesDirectory());
    QCOMPARE(preferences.fileName(), preferencesFile());
}

void TestTrackingPreferences::missingFileIsSilent()
{
    TrackingPreferences preferences(QStringLiteral("v3.0.5"));
    QCOMPARE(preferences.read(), QString());
    QVERIFY(!preferences.fixedAngleVisible());
    QVERIFY(!preferences.autoRestartVisible());
    QVERIFY(!QFile::exists(preferencesDirectory()));
}

void TestTrackingPreferences::read_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("fixedAngleVisible");
    QTest::addColumn<bool>("autoRestartVisible");
    QTest::addColumn<QString>("report");

    const QString invalidRoot("Error: Loading tracking settings preferences while parsing %1 : "
                              "The file doesn't look like a valid preferences file. Using "
                              "built-in values");

    QTest::newRow("both offered") << document(
        "<FIXED_ANGLE VISIBLE=\"true\"/>\n"
        "<AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>\n")
                                  << true << true << QString();
    QTest::newRow("attributes missing: not visible, hidden")
        << document("<FIXED_ANGLE/>\n<AUTO_RESTART_MEA_AFTER_SYNC_LOST/>\n") << false << false
        << QString();
    QTest::newRow("VISIBLE compared case-sensitively")
        << document("<FIXED_ANGLE VISIBLE=\"True\"/>\n") << false << false << QString();
    QTest::newRow("any HIDE but exactly true shows the option")
        << document("<AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"TRUE\"/>\n") << false << true
        << QString();
    QTest::newRow("unknown elements ignored")
        << document("<OTHER VISIBLE=\"false\"/>\n<FIXED_ANGLE VISIBLE=\"true\"/>\n<MORE/>\n")
        << true << false << QString();
    QTest::newRow("comment after FIXED_ANGLE clears it")
        << document("<FIXED_ANGLE VISIBLE=\"true\"/>\n<!-- edited by hand -->\n"
                    "<AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>\n")
        << false << true << QString();
    QTest::newRow("comment before FIXED_ANGLE does not")
        << document("<!-- edited by hand -->\n<FIXED_ANGLE VISIBLE=\"true\"/>\n") << true << false
        << QString();
    QTest::newRow("wrong root") << QByteArray(Header
        + "<ZEM>\n<FIXED_ANGLE VISIBLE=\"true\"/>\n"
          "<AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>\n</ZEM>\n")
                                << false << false << invalidRoot;
    QTest::newRow("root differs in case")
        << QByteArray(Header + "<velora/>\n") << false << false << invalidRoot;
    QTest::newRow("unclosed element, found at the root's end tag")
        << document("<FIXED_ANGLE VISIBLE=\"true\">\n") << false << false
        << QString("Error: Loading tracking settings preferences while parsing %1 (Line 4, "
                   "Column 9) :\ntag mismatch. Using built-in values");
    QTest::newRow("empty file") << QByteArray() << false << false
                                << QString("Error: Loading tracking settings preferences while "
                                           "parsing %1 (Line 1, Column 1) :\nunexpected end of "
                                           "file. Using built-in values");
    QTest::newRow("binary garbage")
        << QByteArray("\x00\xff\xfe<VELORA>", 11) << false << false
        << QString("Error: Loading tracking settings preferences while parsing %1 (Line 1, "
                   "Column 1) :\nerror occurred while parsing element. Using built-in values");
}

void TestTrackingPreferences::read()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, fixedAngleVisible);
    QFETCH(bool, autoRestartVisible);
    QFETCH(QString, report);

    QVERIFY(writePreferences(content));
    TrackingPreferences preferences(QStringLiteral("v3.0.5"));
    const QString error = preferences.read();
    QCOMPARE(error, report.isEmpty() ? QString() : report.arg(preferencesFile()));
    QCOMPARE(preferences.fixedAngleVisible(), fixedAngleVisible);
    QCOMPARE(preferences.autoRestartVisible(), autoRestartVisible);
}

void TestTrackingPreferences::unreadableFile()
{
    // A directory where the file should be cannot be read, even by root.
    QVERIFY(QDir().mkpath(preferencesFile()));
    TrackingPreferences preferences(QStringLiteral("v3.0.5"));
    QCOMPARE(preferences.read(),
        QString("Error: Loading tracking settings preferences. File %1 cannot be opened for "
                "reading. Using built-in values")
            .arg(preferencesFile()));
    QVERIFY(!preferences.fixedAngleVisible());
    QVERIFY(!preferences.autoRestartVisible());
}

void TestTrackingPreferences::writeAndReadBack_data()
{
    QTest::addColumn<bool>("advancedShown");
    QTest::addColumn<bool>("autoRestartVisible");
    QTest::addColumn<QByteArray>("written");

    QTest::newRow("advanced shown, option hidden")
        << true << false
        << document("    <FIXED_ANGLE VISIBLE=\"true\"/>\n"
                    "    <AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"true\"/>\n");
    QTest::newRow("advanced not shown: no attribute, option shown")
        << false << true
        << document("    <FIXED_ANGLE/>\n"
                    "    <AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>\n");
}

void TestTrackingPreferences::writeAndReadBack()
{
    QFETCH(bool, advancedShown);
    QFETCH(bool, autoRestartVisible);
    QFETCH(QByteArray, written);

    if (autoRestartVisible)
        QVERIFY(writePreferences(document("<AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>")));
    TrackingPreferences preferences(QStringLiteral("v3.0.5"));
    QCOMPARE(preferences.read(), QString());
    QCOMPARE(preferences.autoRestartVisible(), autoRestartVisible);
    // The directory is made with all its parents when it is missing.
    removePreferences();
    preferences.setAdvancedShown(advancedShown);
    QCOMPARE(preferences.write(), QString());
    QCOMPARE(readPreferences(), written);

    TrackingPreferences again(QStringLiteral("v3.0.5"));
    QCOMPARE(again.read(), QString());
    QCOMPARE(again.fixedAngleVisible(), advancedShown);
    QCOMPARE(again.autoRestartVisible(), autoRestartVisible);
    // Nothing but the file itself is left in the directory.
    QCOMPARE(QDir(preferencesDirectory()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        QStringList { "trackingsettings-preferences.xml" });
}

void TestTrackingPreferences::writeFailures_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<bool>("isFile");
    QTest::addColumn<QString>("report");

    QTest::newRow("a file where a directory belongs")
        << QDir::homePath() + "/.ZEM" << true
        << QString("Error: Writing tracking preferences. Directory %1 doesn't exist and cannot be "
                   "created")
               .arg(preferencesDirectory());
    QTest::newRow("a directory where the file belongs")
        << preferencesFile() << false
        << QString("Error: Writing tracking preferences. File %1 cannot be opened for writing")
               .arg(preferencesFile());
}

void TestTrackingPreferences::writeFailures()
{
    QFETCH(QString, obstacle);
    QFETCH(bool, isFile);
    QFETCH(QString, report);

    if (isFile) {
        QFile file(obstacle);
        QVERIFY(file.open(QIODevice::WriteOnly));
    } else {
        QVERIFY(QDir().mkpath(obstacle));
    }
    TrackingPreferences preferences(QStringLiteral("v3.0.5"));
    QCOMPARE(preferences.write(), report);
    QCOMPARE(QFileInfo(obstacle).isFile(), isFile);
}

void TestTrackingPreferences::failedWriteKeepsPreviousFile()
{
    const QByteArray previous
        = document("    <FIXED_ANGLE VISIBLE=\"true\"/>\n"
                   "    <AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>\n");
    QVERIFY(writePreferences(previous));
    TrackingPreferences preferences(QStringLiteral("v3.0.5"));
    QCOMPARE(preferences.read(), QString());

    // A disk that fills up after a few bytes.
    rlimit saved {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &saved), 0);
    rlimit small = saved;
    small.rlim_cur = 16;
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const QString error = preferences.write();
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, oldHandler);

    QCOMPARE(error,
        QString("Error: Writing tracking preferences. File %1 cannot be opened for writing")
            .arg(preferencesFile()));
    QCOMPARE(readPreferences(), previous);
    QCOMPARE(QDir(preferencesDirectory()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        QStringList { "trackingsettings-preferences.xml" });
}

TRACKING_TEST_MAIN_WITH_TEMPORARY_HOME(TestTrackingPreferences)
#include "tst_trackingpreferences.moc"
