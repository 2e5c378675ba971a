#include "bodyadminfixture.h"
#include "bodytabfactory.h"

#include <QTranslator>

class TestBodyAdministrationDlg : public QObject
{
    Q_OBJECT

private slots:
    void init() { f.init(); }
    void cleanup() { FIXTURE_CLEANUP(f); }

    void form();
    void tabSets_data();
    void tabSets();
    void f8MovesToTheNextTab();
    void lock_data();
    void lock();
    void refusesToCloseDuringCalibration();
    void calibrationNeedsAnnouncement();
    void handOverTexts_data();
    void handOverTexts();
    void reopenRoundTrip();

private:
    QPushButton *button(const char *name) const { return f.widget<QPushButton>(name); }
    QTabWidget *tabs() const { return f.widget<QTabWidget>("tabWidget"); }
    BodyAdminFixture f;
};

void TestBodyAdministrationDlg::form()
{
    f.build();
    QCOMPARE(f.dialog->objectName(), QString("BodyAdminDialog"));
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
}

void TestBodyAdministrationDlg::tabSets_data()
{
    QTest::addColumn<QString>("systemType");
    QTest::addColumn<int>("systemMinor");
    QTest::addColumn<int>("systemPatch");
    QTest::addColumn<int>("backendMajor");
    QTest::addColumn<int>("backendMinor");
    QTest::addColumn<QStringList>("titles");

    const QString s = "&Standard", g = "&Gripwand", f = "F&ingertracking", m = "&Measurement Tool";
    QTest::newRow("0.16") << "VELORA TX8" << 1 << 0 << 0 << 16 << QStringList { s, g };
    QTest::newRow("0.17") << "VELORA TX8" << 1 << 0 << 0 << 17 << QStringList { s, g, f };
    QTest::newRow("1.2") << "VELORA TX8" << 1 << 0 << 1 << 2 << QStringList { s, g, f };
    QTest::newRow("1.3") << "VELORA TX8" << 1 << 0 << 1 << 3 << QStringList { s, g, f, m };
    QTest::newRow("ORBILUX 2.9.3")
        << "ORBILUX compact" << 9 << 3 << 1 << 24 << QStringList { s, g };
    QTest::newRow("ORBILUX 2.9.4")
        << "ORBILUX compact" << 9 << 4 << 1 << 3 << QStringList { s, g, m };
    QTest::newRow("ORBILUX 2.10.0, 1.2") << "ORBILUX" << 10 << 0 << 1 << 2 << QStringList { s, g };
}

void TestBodyAdministrationDlg::tabSets()
{
    QFETCH(QString, systemType);
    QFETCH(int, systemMinor);
    QFETCH(int, systemPatch);
    QFETCH(int, backendMajor);
    QFETCH(int, backendMinor);
    QFETCH(QStringList, titles);

    BackendVersions &versions = f.controller->backendVersions();
    versions.systemType = systemType;
    versions.systemVersion = { 2, systemMinor, systemPatch };
    versions.backendVersion = { backendMajor, backendMinor, 0 };
    f.build();
    QStringList shown;
    for (int i = 0; i < tabs()->count(); ++i)
        shown << tabs()->tabText(i);
    QCOMPARE(shown, titles);

    // The third tab of an ORBILUX is the measurement tool's, with its button.
    if (titles.size() == 3 && titles.last() == "&Measurement Tool") {
        bool calibrationShown = false;
        f.driver->answer([&](QWidget *modal) {
            tabs()->setCurrentIndex(2);
            calibrationShown = button("pushButton_calibration")->isVisible();
            static_cast<QDialog *>(modal)->reject();
        });
        f.dialog->update_and_exec();
        QVERIFY(calibrationShown);
        QCOMPARE(f.dialog->currentTab(), f.dialog->tab(BodyTabFactory::MeasurementTool));
    }
}

void TestBodyAdministrationDlg::f8MovesToTheNextTab()
{
    f.build();
    QList<int> indices;
    f.driver->answer([&](QWidget *modal) {
        for (int i = 0; i < tabs()->count(); ++i) {
            QTest::keyClick(modal, Qt::Key_F8);
            indices << tabs()->currentIndex();
        }
        static_cast<QDialog *>(modal)->reject();
    });
    f.dialog->update_and_exec();
    QCOMPARE(indices, QList<int>({ 1, 2, 3, 0 }));
}

void TestBodyAdministrationDlg::lock_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("patch");
    QTest::addColumn<QString>("changeable");
    QTest::addColumn<bool>("locked");

    QTest::newRow("1.9, no") << 9 << 0 << "no" << true;
    QTest::newRow("1.9.-1 passes the gate") << 9 << -1 << "no" << true;
    QTest::newRow("1.9.-2 fails it") << 9 << -2 << "no" << false;
    QTest::newRow("1.8, no: the gate fails") << 8 << 0 << "no" << false;
    QTest::newRow("1.24, No") << 24 << 0 << "No" << false;
    QTest::newRow("query fails") << 24 << 0 << "" << false;
}

void TestBodyAdministrationDlg::lock()
{
    QFETCH(int, minor);
    QFETCH(int, patch);
    QFETCH(QString, changeable);
    QFETCH(bool, locked);

    f.controller->backendVersions().backendVersion = { 1, minor, patch };
    if (changeable.isEmpty())
        f.controller->failCommand("config is_changeable");
    else
        f.controller->setValue("config is_changeable", changeable);
    f.build();

    bool lockIcon = false;
    QStringList enabled;
    f.driver->answer([&](QWidget *modal) {
        const QImage lockImage = QIcon(":/lock.png").pixmap(16).toImage();
        lockIcon = modal->windowIcon().pixmap(16).toImage() == lockImage;
        for (const char *name : { "spinBox_standard_bodies", "pushButton_up", "pushButton_down",
                 "tableWidget_standard" }) {
            if (f.widget(name)->isEnabled())
                enabled << name;
        }
        static_cast<QDialog *>(modal)->reject();
    });
    QCOMPARE(f.dialog->update_and_exec(), int(QDialog::Accepted));

    QCOMPARE(f.dialog->isLocked(), locked);
    QCOMPARE(f.dialog->tab(0)->isLocked(), locked);
    QCOMPARE(lockIcon, locked);
    // The first body is selected: Up stays off, Down follows the lock.
    const QStringList unlocked { "spinBox_standard_bodies", "pushButton_down",
        "tableWidget_standard" };
    QCOMPARE(enabled, locked ? QStringList() : unlocked);
}

void TestBodyAdministrationDlg::refusesToCloseDuringCalibration()
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
        QString("Unable to close dialog during calibration is running|").repeated(3).chopped(1));
}

void TestBodyAdministrationDlg::calibrationNeedsAnnouncement()
{
    f.build();
    bool before = true;
    bool after = false;
    f.driver->answer([&](QWidget *modal) {
        before = button("pushButton_calibration")->isEnabled();
        f.controller->sendMessage("GlobalEvent", "BodyCalModule", 1, "bodycalibration available");
        f.dialog->onAdminTabWidget_selectionChanged("standard", 1);
        after = button("pushButton_calibration")->isEnabled();
        static_cast<QDialog *>(modal)->reject();
    });
    f.dialog->update_and_exec();
    QVERIFY(!before);
    QVERIFY(after);
}

void TestBodyAdministrationDlg::handOverTexts_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("message");

    QTest::newRow("custom calibration, b12")
        << "pushButton_calibration" << 11 << "OpenBodyCalDialog standard b12";
    QTest::newRow("adjustment, bare 12")
        << "pushButton_body_adjustment" << 11 << "OpenBodyAdjustmentDialog standard|12|calibrated";
    QTest::newRow("adjustment of an uncalibrated body")
        << "pushButton_body_adjustment" << 3 << "OpenBodyAdjustmentDialog standard|4|uncalibrated";
    QTest::newRow("hybrid") << "pushButton_hybridCalibration" << 2
                            << "OpenHybridBodyCalibration standard|3|Full";
    QTest::newRow("hybrid, library re-calibrated")
        << "pushButton_hybridCalibration" << 0
        << "OpenHybridBodyCalibration standard|1|Target Library, re-calibrated";
    QTest::newRow("nothing selected") << "pushButton_calibration" << -1 << "";
}

// The calibration state is data: with the German translation installed the
// table speaks German, the other modules still get the controller's words.
void TestBodyAdministrationDlg::handOverTexts()
{
    QFETCH(QString, button);
    QFETCH(int, index);
    QFETCH(QString, message);

    QTranslator german;
    QVERIFY(german.load(TRACKING_QM_FILE));
    QCoreApplication::installTranslator(&german);
    f.open();
    QCOMPARE(f.table()->item(3, 6)->text(), QString("nicht kalibriert"));
    QCOMPARE(f.table()->item(2, 6)->text(), QString::fromUtf8("Vollst\xc3\xa4ndig"));
    f.dialog->onAdminTabWidget_selectionChanged("standard", index);
    QMetaObject::invokeMethod(f.dialog, qPrintable("on_" + button + "_clicked"));
    QCoreApplication::removeTranslator(&german);

    QCOMPARE(f.controller->messages(), message.isEmpty() ? QStringList() : QStringList { message });
    QCOMPARE(f.dialog->isVisible(), message.isEmpty());
}

void TestBodyAdministrationDlg::reopenRoundTrip()
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

QTEST_MAIN(TestBodyAdministrationDlg)
#include "tst_bodyadministrationdlg.moc"
