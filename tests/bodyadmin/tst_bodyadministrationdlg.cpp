#include "bodyadminfixture.h"
#include "bodytabfactory.h"

#include <QTranslator>

class TestBodyAdministrationDlg : public QObject
{
    Q_OBJECT

    QPushButton *button(const char *name) const { return f.widget<QPushButton>(name); }
    QTabWidget *tabs() const { return f.widget<QTabWidget>("tabWidget"); }
    // Runs the dialog's modal loop, does this inside it and closes it.
    int exec(const std::function<void(QDialog *)> &inside)
    {
        f.driver->answer([inside](QWidget *modal) {
            inside(static_cast<QDialog *>(modal));
            static_cast<QDialog *>(modal)->reject();
        });
        return f.dialog->update_and_exec();
    }
    BodyAdminFixture f;

private slots:
    void init() { f.init(); }
    void cleanup() { FIXTURE_CLEANUP(f); }

    void form()
    {
        f.build();
        QCOMPARE(f.dialog->windowTitle(), QString("Body Administration"));
        QCOMPARE(f.dialog->minimumSize(), QSize(1400, 800));
        QCOMPARE(tabs()->widget(0), f.dialog->tab(BodyTabFactory::Standard));
        for (const char *name : { "pushButton_filter", "pushButton_calibration",
                 "pushButton_hybridCalibration", "pushButton_body_adjustment" }) {
            QVERIFY2(button(name)->isHidden(), name);
            QVERIFY2(!button(name)->autoDefault(), name);
        }
        QVERIFY(button("pushButton_exit")->autoDefault());
        QCOMPARE(button("pushButton_calibration")->shortcut(), QKeySequence("Alt+C"));
        // F8 moves to the next tab, round.
        QList<int> indices;
        exec([&](QDialog *modal) {
            for (int i = 0; i < tabs()->count(); ++i) {
                QTest::keyClick(modal, Qt::Key_F8);
                indices << tabs()->currentIndex();
            }
        });
        QCOMPARE(indices, QList<int>({ 1, 2, 3, 0 }));
    }

    void tabSets_data()
    {
        columns<QString, int, int, int, int, QStringList>(
            { "system", "systemMinor", "systemPatch", "major", "minor", "titles" });
        const QString s = "&Standard", g = "&Gripwand", i = "F&ingertracking",
                      m = "&Measurement Tool";
        row("0.16", QString("VELORA TX8"), 1, 0, 0, 16, QStringList { s, g });
        row("0.17", QString("VELORA TX8"), 1, 0, 0, 17, QStringList { s, g, i });
        row("1.3", QString("VELORA TX8"), 1, 0, 1, 3, QStringList { s, g, i, m });
        row("ORBILUX 2.9.3", QString("ORBILUX compact"), 9, 3, 1, 24, QStringList { s, g });
        row("ORBILUX 2.9.4", QString("ORBILUX compact"), 9, 4, 1, 3, QStringList { s, g, m });
        row("ORBILUX 2.10.0, 1.2", QString("ORBILUX"), 10, 0, 1, 2, QStringList { s, g });
    }
    void tabSets()
    {
        BackendVersions &versions = f.controller->backendVersions();
        versions.systemType = fetch<QString>("system");
        versions.systemVersion = { 2, fetch<int>("systemMinor"), fetch<int>("systemPatch") };
        versions.backendVersion = { fetch<int>("major"), fetch<int>("minor"), 0 };
        f.build();
        QStringList shown;
        for (int i = 0; i < tabs()->count(); ++i)
            shown << tabs()->tabText(i);
        QCOMPARE(shown, fetch<QStringList>("titles"));

        // The third tab of an ORBILUX is the measurement tool's, with its button.
        if (shown.size() == 3 && shown.last() == "&Measurement Tool") {
            bool calibrationShown = false;
            exec([&](QDialog *) {
                tabs()->setCurrentIndex(2);
                calibrationShown = button("pushButton_calibration")->isVisible();
            });
            QVERIFY(calibrationShown);
            QCOMPARE(f.dialog->currentTab(), f.dialog->tab(BodyTabFactory::MeasurementTool));
        }
    }

    void lock_data()
    {
        columns<int, int, QString, bool>({ "minor", "patch", "changeable", "locked" });
        row("1.9, no", 9, 0, "no", true);
        row("1.9.-1 passes the gate", 9, -1, "no", true);
        row("1.9.-2 fails it", 9, -2, "no", false);
        row("1.8, no: the gate fails", 8, 0, "no", false);
        row("1.24, No", 24, 0, "No", false);
        row("query fails", 24, 0, "", false);
    }
    void lock()
    {
        const QString changeable = fetch<QString>("changeable");
        const bool locked = fetch<bool>("locked");
        f.controller->backendVersions().backendVersion
            = { 1, fetch<int>("minor"), fetch<int>("patch") };
        if (changeable.isEmpty())
            f.controller->failCommand("config is_changeable");
        else
            f.controller->setValue("config is_changeable", changeable);
        f.build();

        bool lockIcon = false;
        QStringList enabled;
        const QStringList watched
            = L("spinBox_standard_bodies | pushButton_up | pushButton_down | tableWidget_standard");
        const int result = exec([&](QDialog *modal) {
            const QImage lockImage = QIcon(":/lock.png").pixmap(16).toImage();
            lockIcon = modal->windowIcon().pixmap(16).toImage() == lockImage;
            for (const QString &name : watched) {
                if (f.widget(name)->isEnabled())
                    enabled << name;
            }
        });
        QCOMPARE(result, int(QDialog::Accepted));

        QCOMPARE(f.dialog->isLocked(), locked);
        QCOMPARE(f.dialog->tab(0)->isLocked(), locked);
        QCOMPARE(lockIcon, locked);
        // The first body is selected: Up stays off, Down follows the lock.
        QCOMPARE(enabled,
            locked ? QStringList() : QStringList({ watched.at(0), watched.at(2), watched.at(3) }));
    }

    void refusesToCloseDuringCalibration()
    {
        f.build();
        f.controller->setValue("status active", "cal targetlib");
        QList<bool> stillOpen;
        f.driver->answer([&](QWidget *modal) {
            auto *self = static_cast<QDialog *>(modal);
            self->reject();
            stillOpen << self->isVisible();
            QTest::keyClick(self, Qt::Key_Escape);
            stillOpen << self->isVisible();
            self->close();
            stillOpen << self->isVisible();
            f.controller->setValue("status active", "none");
            QApplication::processEvents(); // the operator's next click comes later
            QTest::mouseClick(button("pushButton_exit"), Qt::LeftButton);
            stillOpen << self->isVisible();
        });
        QCOMPARE(f.dialog->update_and_exec(), int(QDialog::Accepted));
        QCOMPARE(stillOpen, QList<bool>({ true, true, true, false }));
        QCOMPARE(f.controller->reports().join('|'),
            QString("Unable to close dialog during calibration is running|")
                .repeated(3)
                .chopped(1));
    }

    void calibrationNeedsAnnouncement()
    {
        f.build();
        QList<bool> enabled;
        exec([&](QDialog *) {
            enabled << button("pushButton_calibration")->isEnabled();
            f.controller->sendMessage(
                "GlobalEvent", "BodyCalModule", 1, "bodycalibration available");
            f.dialog->onAdminTabWidget_selectionChanged("standard", 1);
            enabled << button("pushButton_calibration")->isEnabled();
        });
        QCOMPARE(enabled, QList<bool>({ false, true }));
    }

    void handOverTexts_data()
    {
        columns<QString, int, QString>({ "button", "index", "message" });
        row("custom calibration, b12", "pushButton_calibration", 11,
            "OpenBodyCalDialog standard b12");
        row("adjustment, bare 12", "pushButton_body_adjustment", 11,
            "OpenBodyAdjustmentDialog standard|12|calibrated");
        row("adjustment of an uncalibrated body", "pushButton_body_adjustment", 3,
            "OpenBodyAdjustmentDialog standard|4|uncalibrated");
        row("hybrid", "pushButton_hybridCalibration", 2,
            "OpenHybridBodyCalibration standard|3|Full");
        row("hybrid, library re-calibrated", "pushButton_hybridCalibration", 0,
            "OpenHybridBodyCalibration standard|1|Target Library, re-calibrated");
        row("nothing selected", "pushButton_calibration", -1, "");
    }
    // The calibration state is data: with the German translation installed the
    // table speaks German, the other modules still get the controller's words.
    void handOverTexts()
    {
        const QString message = fetch<QString>("message");
        QTranslator german;
        QVERIFY(german.load(TRACKING_QM_FILE));
        QCoreApplication::installTranslator(&german);
        f.open();
        QCOMPARE(f.table()->item(3, 6)->text(), QString("nicht kalibriert"));
        QCOMPARE(f.table()->item(2, 6)->text(), QString::fromUtf8("Vollst\xc3\xa4ndig"));
        f.dialog->onAdminTabWidget_selectionChanged("standard", fetch<int>("index"));
        QMetaObject::invokeMethod(
            f.dialog, qPrintable("on_" + fetch<QString>("button") + "_clicked"));
        QCoreApplication::removeTranslator(&german);

        QCOMPARE(
            f.controller->messages(), message.isEmpty() ? QStringList() : QStringList { message });
        QCOMPARE(f.dialog->isVisible(), message.isEmpty());
    }

    void reopenRoundTrip()
    {
        f.build();
        int shown = 0;
        f.driver->answer([&](QWidget *) {
            ++shown;
            f.dialog->onAdminTabWidget_selectionChanged("standard", 0);
            f.dialog->on_pushButton_calibration_clicked(); // hides: exec() returns
            f.controller->sendMessage("BodyAdministrationModule", "BodyCalModule", 1, "reopen");
        });
        f.driver->answer([&](QWidget *modal) {
            ++shown;
            static_cast<QDialog *>(modal)->reject();
        });
        f.dialog->update_and_exec();
        QTRY_COMPARE(shown, 2);
        QTRY_VERIFY(!f.dialog->isVisible());
        QCOMPARE(f.controller->messages().first(), QString("OpenBodyCalDialog standard b01"));
    }
};

QTEST_MAIN(TestBodyAdministrationDlg)
#include "tst_bodyadministrationdlg.moc"
