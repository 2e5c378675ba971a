#include "trackingdlg.h"

#include <testkit.h>

#include <csignal>
#include <sys/resource.h>

using testkit::child;

namespace
{
const QString Folder = "/.ZEM/VELORA4/modules/trackingsettings/v3.0.5/config";
const QByteArray Previous("<VELORA><FIXED_ANGLE VISIBLE=\"true\"/></VELORA>");
QString preferencesFile()
{
    return QDir::homePath() + Folder + "/trackingsettings-preferences.xml";
}
QByteArray readPreferences()
{
    QFile file(preferencesFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
bool writePreferences(const QByteArray &content)
{
    QFile file(preferencesFile());
    return QDir().mkpath(QDir::homePath() + Folder) && file.open(QIODevice::WriteOnly)
        && file.write(content) == content.size();
}
} // namespace

class TestTrackingDlg : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QDir(QDir::homePath() + "/.ZEM").removeRecursively();
        QFile::remove(QDir::homePath() + "/.ZEM");
        testkit::useScenario(controller);
    }
    void cleanup() { testkit::closeAllAndCheck(); }
    // One opening from construction to the button: each gate appears at its
    // version and just below it.
    void session_data()
    {
        // file: the preferences file's text (none when empty) or obstacle:dir|file; changes:
        // scenario lines; keys: space: 3DOF box, down: axis combo, pulse:RADIO; controls: the
        // visible ones, disabled in brackets; commands: all from construction on; report: until
        // destroyed
        testkit::columns<QString, QString, QString, QString, QString, QString, QString, QString>(
            { "version", "file", "changes", "keys", "button", "controls", "commands", "report" });

        const QString L = "config is_changeable, ",
                      R = "standard calculate_marker, tracking auto_restart";
        const QString A = "standard number_of_bodies, standard fixed_angle b01, "
                          "standard fixed_angle b02, standard fixed_angle b03, ";
        const QString X = ", tracking axis_5dof_central", all = L + A + R + X;
        const QString forced = "tracking auto_restart yes, ", ok = " advanced ok cancel";
        const QString marker = ", standard calculate_marker ", restart = ", tracking auto_restart ";
        const QString pulse = all + ", tracking pulse ", error = "Error: Unable to set ";
        const QString plain = L + A + "standard fixed_angle b04, " + forced + R + X;
        const QString shown = "<VELORA><AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/></VELORA>",
                      remembered = QString(shown).insert(8, "<FIXED_ANGLE VISIBLE=\"true\"/>");
        const QString noAngle = "standard fixed_angle b03 = no 0 no 0 no 0";
        // clang-format off
        QTest::newRow("0.13: no auto restart") << "0.13" << shown << "" << "space" << "ok" << "force3d (autoReStart) (5dofAxis:x) ok cancel" << "standard calculate_marker, standard calculate_marker yes" + X + " 1.000 0.000 0.000" << "";
        QTest::newRow("0.13, hidden: not forced") << "0.13" << "" << "" << "" << "ok" << "force3d (5dofAxis:x) ok cancel" << "standard calculate_marker" << "";
        QTest::newRow("0.14, Cancel sends what was read") << "0.14" << shown << "" << "space" << "cancel" << "force3d autoReStart (5dofAxis:x) ok cancel" << R + marker + "no" + restart + "yes" << "";
        QTest::newRow("0.14, hidden: forced") << "0.14" << "" << "" << "" << "ok" << "force3d (5dofAxis:x) ok cancel" << forced + R << "";
        QTest::newRow("1.5 remembered: old") << "1.5" << remembered << "" << "" << "ok" << "force3d autoReStart (5dofAxis:x) (advanced) ok cancel" << R << "TrackingSettings: Old version of Pelicam Controller";
        QTest::newRow("1.6: a body holds an angle") << "1.6" << shown << "" << "" << "ok" << "force3d autoReStart (5dofAxis:x)" + ok << A + R << "";
        QTest::newRow("1.6: no angle held") << "1.6" << shown << noAngle << "" << "ok" << "force3d autoReStart (5dofAxis:x) ok cancel" << A + "standard fixed_angle b04, " + R << "";
        QTest::newRow("1.6: remembered, not searched") << "1.6" << remembered << noAngle << "" << "ok" << "force3d autoReStart (5dofAxis:x)" + ok << R << "";
        QTest::newRow("1.8: never locked") << "1.8" << shown << "config is_changeable = no" << "" << "ok" << "force3d autoReStart (5dofAxis:x)" + ok << A + R << "";
        QTest::newRow("1.9 locked, hidden: not forced") << "1.9" << "" << "config is_changeable = no" << "" << "cancel" << "lock (force3d) (5dofAxis:x) (advanced) (ok) cancel" << L + A + R << "";
        QTest::newRow("1.11: the axis unread, its first item sent") << "1.11" << shown << "" << "space" << "ok" << "force3d autoReStart (5dofAxis:x)" + ok << L + A + R + marker + "yes" + restart + "yes" + X + " 1.000 0.000 0.000" << "";
        QTest::newRow("1.12: only the axis changed") << "1.12" << shown << "" << "down" << "ok" << "force3d autoReStart 5dofAxis:z" + ok << all + marker + "no" + restart + "yes" + X + " 0.000 0.000 -1.000" << "";
        QTest::newRow("1.24 locked") << "1.24" << shown << "config is_changeable = no" << "" << "cancel" << "lock (force3d) (autoReStart) (5dofAxis:z) (advanced) (ok) cancel" << all << "";
        QTest::newRow("OK untouched sends nothing") << "1.24" << shown << "" << "" << "ok" << "force3d autoReStart 5dofAxis:z" + ok << all << "";
        QTest::newRow("Cancel untouched sends nothing") << "1.24" << "" << "" << "" << "cancel" << "force3d 5dofAxis:z" + ok << L + A + forced + R + X << "";
        QTest::newRow("axis -x") << "1.24" << shown << "tracking axis_5dof_central = -1 0 0" << "" << "cancel" << "force3d autoReStart 5dofAxis:-x" + ok << all << "";
        QTest::newRow("axis tilted, in mm") << "1.24" << shown << "tracking axis_5dof_central = 0.5 0 0.866" << "" << "cancel" << "force3d autoReStart 5dofAxis:" + ok + " x = 0.500 mm, y = 0.000 mm, z = 0.866 mm" << all << "";
        QTest::newRow("axis split at single blanks") << "1.24" << shown << "tracking axis_5dof_central = 0  -1 0" << "" << "cancel" << "force3d autoReStart 5dofAxis:" + ok << all << "";
        QTest::newRow("axis: first three fields used") << "1.24" << shown << "tracking axis_5dof_central = 0 0 -1 extra" << "" << "cancel" << "force3d autoReStart 5dofAxis:-z" + ok << all << "";
        QTest::newRow("axis: too few fields") << "1.24" << shown << "tracking axis_5dof_central = 0 1" << "" << "cancel" << "force3d autoReStart 5dofAxis:" + ok << all << "";
        QTest::newRow("axis: no number") << "1.24" << shown << "tracking axis_5dof_central = 0 up 1" << "" << "cancel" << "force3d autoReStart 5dofAxis:" + ok << all << "";
        QTest::newRow("axis unread") << "1.24" << shown << "@fail tracking axis_5dof_central" << "" << "cancel" << "force3d autoReStart 5dofAxis:" + ok << all << "";
        QTest::newRow("axis refused") << "1.24" << shown << "@fail tracking axis_5dof_central *" << "space" << "ok" << "force3d autoReStart 5dofAxis:z" + ok << all + marker + "yes" + restart + "yes" + X + " 0.000 0.000 1.000" << error + "values of the 5DOF central axis";
        QTest::newRow("ORBILUX, off: turned on") << "1.24" << shown << "@system-type ORBILUX compact|tracking auto_restart = no" << "" << "ok" << "force3d 5dofAxis:z" + ok << "tracking auto_restart, tracking auto_restart yes, " + all << "";
        QTest::newRow("ORBILUX 0.14, on: left") << "0.14" << shown << "@system-type ORBILUX compact" << "" << "ok" << "force3d (5dofAxis:x) ok cancel" << "tracking auto_restart, standard calculate_marker, tracking auto_restart" << "";
        QTest::newRow("ORBILUX 0.13: not asked") << "0.13" << shown << "@system-type ORBILUX compact" << "" << "ok" << "force3d (5dofAxis:x) ok cancel" << "standard calculate_marker" << "";
        QTest::newRow("pulse frequency refused") << "1.21" << shown << "@fail tracking pulse*" << "pulse:frequency" << "ok" << "force3d autoReStart 5dofAxis:z" + ok << pulse + "frequency 60.000000" << error + "inertial tracking frequency";
        QTest::newRow("pulse cameras refused") << "1.21" << shown << "@fail tracking pulse*" << "pulse:cameraSynchronous" << "ok" << "force3d autoReStart 5dofAxis:z" + ok << pulse + "synchronous_cameras" << error + "inertial tracking synchronous to cameras";
        QTest::newRow("pulse sensor refused") << "1.21" << shown << "@fail tracking pulse*" << "pulse:inertialSensor" << "ok" << "force3d autoReStart 5dofAxis:z" + ok << pulse + "inertial_sensor " << error + "inertial tracking to sensor";
        QTest::newRow("pulse before 1.21") << "1.20" << shown << "" << "pulse:frequency" << "ok" << "force3d autoReStart 5dofAxis:z" + ok << all << error + "inertial tracking settings";
        QTest::newRow("exact words: only HIDE true hides") << "1.24" << "<VELORA><FIXED_ANGLE VISIBLE=\"True\"/><AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"TRUE\"/></VELORA>" << noAngle << "" << "cancel" << "force3d autoReStart 5dofAxis:z ok cancel" << L + A + "standard fixed_angle b04, " + R + X << "";
        QTest::newRow("no attributes: neither") << "1.24" << "<VELORA><FIXED_ANGLE/><AUTO_RESTART_MEA_AFTER_SYNC_LOST/><OTHER/></VELORA>" << noAngle << "" << "cancel" << "force3d 5dofAxis:z ok cancel" << plain << "";
        QTest::newRow("a comment clears the advanced button") << "1.24" << "<VELORA><FIXED_ANGLE VISIBLE=\"true\"/><!-- x --></VELORA>" << noAngle << "" << "cancel" << "force3d 5dofAxis:z ok cancel" << plain << "";
        QTest::newRow("wrong root") << "1.24" << "<ZEM><FIXED_ANGLE VISIBLE=\"true\"/></ZEM>" << noAngle << "" << "cancel" << "force3d 5dofAxis:z ok cancel" << plain << "Error: Loading tracking settings preferences while parsing " + preferencesFile() + " : The file doesn't look like a valid preferences file" + ". Using built-in values";
        QTest::newRow("malformed") << "1.24" << "<VELORA><FIXED_ANGLE/></VELORA" << noAngle << "" << "cancel" << "force3d 5dofAxis:z ok cancel" << plain << "Error: Loading tracking settings preferences while parsing " + preferencesFile() + " (Line 1, Column 31) :\nunexpected end of file" + ". Using built-in values";
        QTest::newRow("a directory where the file belongs") << "1.24" << "obstacle:file" << noAngle << "" << "cancel" << "force3d 5dofAxis:z ok cancel" << plain << "Error: Loading tracking settings preferences. File " + preferencesFile() + " cannot be opened for reading" + ". Using built-in values" + "|Error: Writing tracking preferences. File " + preferencesFile() + " cannot be opened for writing";
        QTest::newRow("a file where the directory belongs") << "1.24" << "obstacle:dir" << noAngle << "" << "cancel" << "force3d 5dofAxis:z ok cancel" << plain << "Error: Writing tracking preferences. Directory " + QDir::homePath() + Folder + " doesn't exist and cannot be created";
        // clang-format on
    }
    void session()
    {
        QFETCH(QString, file);
        QFETCH(QString, keys);
        QFETCH(QString, button);
        QVERIFY(controller.takeScenarioLine(
            "@backend-version " + testkit::fetch<QString>("version") + ".0"));
        // The menus were just built: the body administration has asked for the
        // lock before it changes.
        CommandChannel(&controller, nullptr).stringOf("config is_changeable");
        controller.clearLog();
        for (const QString &line :
            testkit::fetch<QString>("changes").split('|', Qt::SkipEmptyParts))
            QVERIFY(controller.takeScenarioLine(line));
        // Things in the way stop even root, whom permissions would not.
        if (file == "obstacle:file")
            QVERIFY(QDir().mkpath(preferencesFile()));
        else if (file == "obstacle:dir")
            QVERIFY(QFile(QDir::homePath() + "/.ZEM").open(QIODevice::WriteOnly));
        else if (!file.isEmpty())
            QVERIFY(writePreferences(file.toUtf8()));
        QScopedPointer<TrackingDlg> dialog(newDialog());
        QStringList controls;
        ModalDriver driver;
        driver.answer([&](QWidget *modal) {
            if (modal->windowTitle() != "Single Markers")
                controls << "untitled";
            if (modal->windowIcon().pixmap(16).toImage()
                == QIcon(":/lock.png").pixmap(16).toImage())
                controls << "lock";
            for (const char *name :
                { "checkBox_force3d", "checkBox_autoReStart", "comboBox_5dofAxis",
                    "pushButton_advanced", "pushButton_ok", "pushButton_cancel" }) {
                QString shortName = QString(name).section('_', 1);
                const QWidget *widget = child(modal, name);
                if (const auto combo = qobject_cast<const QComboBox *>(widget))
                    shortName += ':' + combo->currentText(); // the axis
                if (widget->isVisible())
                    controls << (widget->isEnabled() ? shortName : '(' + shortName + ')');
            }
            if (const QString vector = child<QLabel>(modal, "label_display5dof")->text();
                !vector.isEmpty())
                controls << vector;
            if (keys.contains("space"))
                QTest::keyClick(child(modal, "checkBox_force3d"), Qt::Key_Space);
            if (keys.contains("down"))
                QTest::keyClick(child(modal, "comboBox_5dofAxis"), Qt::Key_Down);
            if (keys.startsWith("pulse:")) { // hidden at every opening; its rules still hold
                child<QRadioButton>(modal, "radioButton_frequency")->setChecked(true);
                child<QRadioButton>(modal, qPrintable("radioButton_" + keys.mid(6)))
                    ->setChecked(true);
                child<QDoubleSpinBox>(modal, "doubleSpinBox_frequency")->setValue(60);
            }
            testkit::clickLater(modal, qPrintable("pushButton_" + button));
        });
        QCOMPARE(
            dialog->update_and_exec(), int(button == "ok" ? QDialog::Accepted : QDialog::Rejected));
        QTEST(controls.join(' '), "controls");
        QTEST(controller.commands().join(", "), "commands");
        // Destroying the dialog writes what it showed: once offered, the
        // advanced button stays offered at the next start.
        dialog.reset();
        QTEST(controller.reports().join('|'), "report");
        if (file.startsWith("obstacle:"))
            return;
        const bool hide = !controls.contains("autoReStart") && !file.contains("HIDE=\"false\"");
        QCOMPARE(readPreferences(),
            QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VELORA>\n    <FIXED_ANGLE")
                + (controls.join(' ').contains("advanced") ? " VISIBLE=\"true\"" : "")
                + "/>\n    <AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"" + (hide ? "true" : "false")
                + "\"/>\n</VELORA>\n");
    }
    // Built and destroyed unopened: no button was shown, whatever the file
    // said. A disk that is full after 16 bytes keeps the previous file.
    void destroyedUnopened_data()
    {
        testkit::columns<int, QByteArray, QString>({ "limit", "file", "report" });
        const QByteArray written(
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VELORA>\n"
            "    <FIXED_ANGLE/>\n"
            "    <AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"true\"/>\n</VELORA>\n");
        const QString full("Error: Writing tracking preferences. File " + preferencesFile()
            + " cannot be opened for writing");
        QTest::newRow("written") << 0 << written << "";
        QTest::newRow("disk full") << 16 << Previous << full;
    }
    void destroyedUnopened()
    {
        QFETCH(int, limit);
        QVERIFY(writePreferences(Previous));
        QScopedPointer<TrackingDlg> dialog(newDialog());
        rlimit saved {};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &saved), 0);
        const rlimit small { rlim_t(limit), saved.rlim_max };
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        QCOMPARE(setrlimit(RLIMIT_FSIZE, limit ? &small : &saved), 0);
        dialog.reset();
        setrlimit(RLIMIT_FSIZE, &saved);
        std::signal(SIGXFSZ, handler);
        QTEST(controller.reports().join('|'), "report");
        QTEST(readPreferences(), "file");
        QCOMPARE(controller.commands(), QStringList());
    }

private:
    TrackingDlg *newDialog()
    {
        return new TrackingDlg(&controller, nullptr, &controller.backendVersions(), "v3.0.5");
    }

    sim::SimulatedController controller;
};

// The dialog keeps its preferences under the home directory: a home of its
// own, set before QApplication reads it.
int main(int argc, char **argv)
{
    QTemporaryDir home;
    qputenv("HOME", QFile::encodeName(home.path()));
    QApplication app(argc, argv);
    TestTrackingDlg test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_trackingdlg.moc"
