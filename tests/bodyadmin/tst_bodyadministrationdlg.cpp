#include "bodyadministrationdlg.h"
#include "bodyadminmessagereceiver.h"
#include "bodytabfactory.h"
#include "bodytypeadministrationtab.h"
#include "versiongate.h"

#include <modaldriver.h>
#include <simulatedcontroller.h>

#include <QApplication>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

class TestBodyAdministrationDlg : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void form();
    void tabsOffered_data();
    void tabsOffered();
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
    void screenshots();

private:
    sim::SimulatedController *controller = nullptr;
    BodyAdministrationDlg *dialog = nullptr;
    void build();
    QPushButton *button(const char *name) const
    {
        return dialog->findChild<QPushButton *>(QString::fromLatin1(name));
    }
};

void TestBodyAdministrationDlg::init()
{
    controller = new sim::SimulatedController;
    controller->setManualClock(true);
}

void TestBodyAdministrationDlg::build()
{
    dialog = new BodyAdministrationDlg(controller, nullptr, &controller->backendVersions());
}

void TestBodyAdministrationDlg::cleanup()
{
    ModalDriver::closeAllModals();
    delete dialog;
    dialog = nullptr;
    delete controller;
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(),
        qPrintable(ModalDriver::topLevelWidgetNames().join(", ")));
}

void TestBodyAdministrationDlg::form()
{
    build();
    QCOMPARE(dialog->objectName(), QString("BodyAdminDialog"));
    QCOMPARE(dialog->windowTitle(), QString("Body Administration"));
    QCOMPARE(dialog->minimumSize(), QSize(1400, 800));
    auto *tabs = dialog->findChild<QTabWidget *>("tabWidget");
    QCOMPARE(tabs->tabText(0), QString("&Standard"));
    QCOMPARE(tabs->widget(0), dialog->tab(BodyTabFactory::Standard));
    for (const char *name : { "pushButton_filter", "pushButton_calibration",
             "pushButton_hybridCalibration", "pushButton_body_adjustment" }) {
        QVERIFY2(button(name)->isHidden(), name);
        QVERIFY2(!button(name)->autoDefault(), name);
    }
    QVERIFY(button("pushButton_exit")->autoDefault());
    QCOMPARE(button("pushButton_calibration")->shortcut(), QKeySequence("Alt+C"));
}

void TestBodyAdministrationDlg::tabsOffered_data()
{
    QTest::addColumn<QString>("systemType");
    QTest::addColumn<QString>("systemVersion");
    QTest::addColumn<QString>("backend");
    QTest::addColumn<QString>("keys"); // offered keys: 0 standard ... 3 measurement tool

    QTest::newRow("0.16: standard and Gripwand") << "VELORA TX8"
                                                 << "3.1.0"
                                                 << "0.16.0"
                                                 << "01";
    QTest::newRow("1.2: finger tracking joins") << "VELORA TX8"
                                                << "3.1.0"
                                                << "1.2.0"
                                                << "012";
    QTest::newRow("1.3: all four") << "VELORA TX8"
                                   << "3.1.0"
                                   << "1.3.0"
                                   << "0123";
    QTest::newRow("ORBILUX 2.9.3: two") << "ORBILUX compact"
                                        << "2.9.3"
                                        << "1.24.0"
                                        << "01";
    QTest::newRow("ORBILUX 2.9.4: measurement tools") << "ORBILUX compact"
                                                      << "2.9.4"
                                                      << "1.3.0"
                                                      << "013";
    QTest::newRow("ORBILUX 2.10.0, backend 1.2") << "ORBILUX"
                                                 << "2.10.0"
                                                 << "1.2.0"
                                                 << "01";
}

void TestBodyAdministrationDlg::tabsOffered()
{
    QFETCH(QString, systemType);
    QFETCH(QString, systemVersion);
    QFETCH(QString, backend);
    QFETCH(QString, keys);

    const auto version = [](const QString &text) {
        const QStringList parts = text.split('.');
        return BackendVersions::Version { parts.value(0).toInt(), parts.value(1).toInt(),
            parts.value(2).toInt() };
    };
    BackendVersions versions;
    versions.systemType = systemType;
    versions.systemVersion = version(systemVersion);
    versions.backendVersion = version(backend);
    QString offered;
    for (int key = 0; key < 4; ++key) {
        if (BodyTabFactory::isOffered(key, VersionGate(&versions)))
            offered += QString::number(key);
    }
    QCOMPARE(offered, keys);
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
    QTest::newRow("backend 0.16") << "VELORA TX8" << 1 << 0 << 0 << 16 << QStringList { s, g };
    QTest::newRow("backend 1.2") << "VELORA TX8" << 1 << 0 << 1 << 2 << QStringList { s, g, f };
    QTest::newRow("backend 1.3") << "VELORA TX8" << 1 << 0 << 1 << 3 << QStringList { s, g, f, m };
    QTest::newRow("ORBILUX 2.9.3")
        << "ORBILUX compact" << 9 << 3 << 1 << 24 << QStringList { s, g };
    QTest::newRow("ORBILUX 2.9.4")
        << "ORBILUX compact" << 9 << 4 << 1 << 3 << QStringList { s, g, m };
}

void TestBodyAdministrationDlg::tabSets()
{
    QFETCH(QString, systemType);
    QFETCH(int, systemMinor);
    QFETCH(int, systemPatch);
    QFETCH(int, backendMajor);
    QFETCH(int, backendMinor);
    QFETCH(QStringList, titles);

    BackendVersions &versions = controller->backendVersions();
    versions.systemType = systemType;
    versions.systemVersion = { 2, systemMinor, systemPatch };
    versions.backendVersion = { backendMajor, backendMinor, 0 };
    build();
    auto *tabs = dialog->findChild<QTabWidget *>("tabWidget");
    QStringList shown;
    for (int i = 0; i < tabs->count(); ++i)
        shown << tabs->tabText(i);
    QCOMPARE(shown, titles);

    // The third tab of an ORBILUX is the measurement tool's, with its button.
    if (titles.size() == 3 && titles.last() == "&Measurement Tool") {
        bool calibrationShown = false;
        ModalDriver driver;
        driver.answer([&](QWidget *modal) {
            tabs->setCurrentIndex(2);
            calibrationShown = button("pushButton_calibration")->isVisible();
            static_cast<QDialog *>(modal)->reject();
        });
        dialog->update_and_exec();
        QVERIFY(calibrationShown);
        QCOMPARE(dialog->currentTab(), dialog->tab(BodyTabFactory::MeasurementTool));
    }
}

void TestBodyAdministrationDlg::f8MovesToTheNextTab()
{
    build();
    auto *tabs = dialog->findChild<QTabWidget *>("tabWidget");
    QList<int> indices;
    ModalDriver driver;
    driver.answer([&](QWidget *modal) {
        for (int i = 0; i < tabs->count(); ++i) {
            QTest::keyClick(modal, Qt::Key_F8);
            indices << tabs->currentIndex();
        }
        static_cast<QDialog *>(modal)->reject();
    });
    dialog->update_and_exec();
    QCOMPARE(indices, QList<int>({ 1, 2, 3, 0 }));
}

void TestBodyAdministrationDlg::lock_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QString>("changeable");
    QTest::addColumn<bool>("locked");

    QTest::newRow("1.9, no") << 9 << "no" << true;
    QTest::newRow("1.8, no: the gate fails") << 8 << "no" << false;
    QTest::newRow("1.24, yes") << 24 << "yes" << false;
    QTest::newRow("1.24, No") << 24 << "No" << false;
    QTest::newRow("query fails") << 24 << "" << false;
}

void TestBodyAdministrationDlg::lock()
{
    QFETCH(int, minor);
    QFETCH(QString, changeable);
    QFETCH(bool, locked);

    controller->backendVersions().backendVersion = { 1, minor, 0 };
    if (changeable.isEmpty())
        controller->failCommand("config is_changeable");
    else
        controller->setValue("config is_changeable", changeable);
    build();

    bool lockIcon = false;
    bool spinBoxEnabled = false;
    ModalDriver driver;
    driver.answer([&](QWidget *modal) {
        const QImage lockImage = QIcon(":/lock.png").pixmap(16).toImage();
        lockIcon = modal->windowIcon().pixmap(16).toImage() == lockImage;
        spinBoxEnabled = modal->findChild<QSpinBox *>("spinBox_standard_bodies")->isEnabled();
        static_cast<QDialog *>(modal)->reject();
    });
    QCOMPARE(dialog->update_and_exec(), int(QDialog::Accepted));

    QCOMPARE(driver.pending(), 0);
    QCOMPARE(dialog->isLocked(), locked);
    QCOMPARE(dialog->tab(0)->isLocked(), locked);
    QCOMPARE(lockIcon, locked);
    QCOMPARE(spinBoxEnabled, !locked);
}

void TestBodyAdministrationDlg::refusesToCloseDuringCalibration()
{
    build();
    controller->setValue("status active", "cal targetlib");
    QList<bool> stillOpen;
    ModalDriver driver;
    driver.answer([&](QWidget *modal) {
        auto *self = static_cast<QDialog *>(modal);
        self->reject();
        stillOpen << self->isVisible();
        QTest::keyClick(self, Qt::Key_Escape);
        stillOpen << self->isVisible();
        self->close();
        stillOpen << self->isVisible();
        controller->setValue("status active", "none");
        // The controller changed meanwhile: what follows is the operator's next step.
        QCoreApplication::processEvents();
        self->findChild<QPushButton *>("pushButton_exit")->click();
        stillOpen << self->isVisible();
    });
    QCOMPARE(dialog->update_and_exec(), int(QDialog::Accepted));
    QCOMPARE(stillOpen, QList<bool>({ true, true, true, false }));
    QCOMPARE(
        controller->reports().count("Unable to close dialog during calibration is running"), 3);
}

void TestBodyAdministrationDlg::calibrationNeedsAnnouncement()
{
    build();
    ModalDriver driver;
    bool before = true;
    bool after = false;
    driver.answer([&](QWidget *modal) {
        before = button("pushButton_calibration")->isEnabled();
        controller->sendMessage("GlobalEvent", "BodyCalModule", 1, "bodycalibration available");
        dialog->onAdminTabWidget_selectionChanged("standard", 1);
        after = button("pushButton_calibration")->isEnabled();
        static_cast<QDialog *>(modal)->reject();
    });
    dialog->update_and_exec();
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
    QTest::newRow("nothing selected") << "pushButton_calibration" << -1 << "";
}

void TestBodyAdministrationDlg::handOverTexts()
{
    QFETCH(QString, button);
    QFETCH(int, index);
    QFETCH(QString, message);

    build();
    dialog->tab(0)->update_tab();
    dialog->show();
    dialog->onAdminTabWidget_selectionChanged("standard", index);
    controller->clearLog();
    QMetaObject::invokeMethod(dialog, qPrintable("on_" + button + "_clicked"));

    QCOMPARE(controller->messages(), message.isEmpty() ? QStringList() : QStringList { message });
    QCOMPARE(dialog->isVisible(), message.isEmpty());
}

void TestBodyAdministrationDlg::reopenRoundTrip()
{
    build();
    int shown = 0;
    ModalDriver driver;
    driver.answer([&](QWidget *) {
        ++shown;
        dialog->onAdminTabWidget_selectionChanged("standard", 0);
        dialog->on_pushButton_calibration_clicked(); // hides: exec() returns
        controller->sendMessage("BodyAdministrationModule", "BodyCalModule", 1, "reopen");
    });
    driver.answer([&](QWidget *modal) {
        ++shown;
        static_cast<QDialog *>(modal)->reject();
    });
    dialog->update_and_exec();
    QTRY_COMPARE(shown, 2);
    QTRY_VERIFY(!dialog->isVisible());
    QCOMPARE(controller->messages().first(), QString("OpenBodyCalDialog standard b01"));
}

// Pictures for the README: SCREENSHOT_DIR=$PWD/docs ctest -R tst_bodyadministrationdlg
void TestBodyAdministrationDlg::screenshots()
{
    const QString directory = qEnvironmentVariable("SCREENSHOT_DIR");
    if (directory.isEmpty())
        QSKIP("SCREENSHOT_DIR not set");
    build();
    auto *tabs = dialog->findChild<QTabWidget *>("tabWidget");
    const QStringList names { "standard", "gripwand", "fingertracking", "measurementtool" };
    ModalDriver driver;
    driver.answer([&](QWidget *modal) {
        for (int index = 0; index < tabs->count(); ++index) {
            tabs->setCurrentIndex(index);
            QApplication::processEvents();
            modal->grab().save(directory + "/bodyadmin-" + names.value(index) + ".png");
        }
        static_cast<QDialog *>(modal)->reject();
    });
    dialog->update_and_exec();
    QCOMPARE(driver.pending(), 0);
}

QTEST_MAIN(TestBodyAdministrationDlg)
#include "tst_bodyadministrationdlg.moc"
