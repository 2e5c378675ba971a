#include "angletablewidget.h"
#include "fixedangledlg.h"

#include "temporaryhome.h"

#include <modaldriver.h>
#include <simulatedcontroller.h>

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

class TestFixedAngleDlg : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fillsOneRowPerBody();
    void rowOfBody_data();
    void rowOfBody();
    void typedAngle_data();
    void typedAngle();
    void okSendsEveryRow();
    void invalidDataStopsOk();
    void noBodies();
    void versionGate_data();
    void versionGate();
    void helpShowsPictures();
    void resizeSharesWidth();

private:
    struct Outcome {
        int result = -1;
        QStringList rows;
        bool tableEnabled = false;
        bool okEnabled = false;
    };
    // Opens the dialog; action runs on it while it is shown.
    Outcome run(const std::function<void(FixedAngleDlg *)> &action = {});

    SimulatedController *controller = nullptr;
    ModalDriver *driver = nullptr;
};

namespace
{

AngleTableWidget *tableOf(QWidget *dialog)
{
    return dialog->findChild<AngleTableWidget *>();
}

// "3|Handheld|5.00[x]|0.00[ ]|0.00[ ]", with " gray" for rows that cannot be set.
QString describeRow(const QTableWidget *table, int row)
{
    QStringList cells;
    bool gray = true;
    for (int column = 0; column < table->columnCount(); ++column) {
        const QTableWidgetItem *item = table->item(row, column);
        QString text = item->text();
        const QVariant check = item->data(Qt::CheckStateRole);
        if (check.isValid())
            text += check.toInt() == Qt::Checked ? "[x]" : "[ ]";
        cells << text;
        gray = gray && item->flags() == Qt::ItemIsSelectable
            && item->foreground().color() == QColor(Qt::lightGray);
    }
    return cells.join('|') + (gray ? " gray" : "");
}

QStringList describeRows(const QTableWidget *table)
{
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row)
        rows << describeRow(table, row);
    return rows;
}

void clickLater(QWidget *dialog, const char *button)
{
    // Queued: the button may open a modal loop of its own.
    QMetaObject::invokeMethod(
        dialog->findChild<QPushButton *>(button), "click", Qt::QueuedConnection);
}

} // namespace

void TestFixedAngleDlg::init()
{
    controller = new SimulatedController;
    QVERIFY(controller->loadScenario(SimulatedController::defaultScenario()));
    driver = new ModalDriver;
}

void TestFixedAngleDlg::cleanup()
{
    ModalDriver::closeAllModals();
    delete driver;
    delete controller;
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(),
        qPrintable(ModalDriver::topLevelWidgetNames().join(", ")));
}

TestFixedAngleDlg::Outcome TestFixedAngleDlg::run(
    const std::function<void(FixedAngleDlg *)> &action)
{
    Outcome outcome;
    FixedAngleDlg dialog(controller, nullptr, &controller->backendVersions());
    driver->answer([&](QWidget *modal) {
        AngleTableWidget *table = tableOf(modal);
        outcome.rows = describeRows(table);
        outcome.tableEnabled = table->isEnabled();
        outcome.okEnabled = modal->findChild<QPushButton *>("pushButton_ok")->isEnabled();
        if (action)
            action(&dialog);
        else
            clickLater(modal, "pushButton_cancel");
    });
    controller->clearLog();
    outcome.result = dialog.update_and_exec();
    return outcome;
}

void TestFixedAngleDlg::fillsOneRowPerBody()
{
    const Outcome outcome = run();
    QCOMPARE(outcome.rows,
        QStringList(
            { "1|Glasses|0.00[ ]|0.00[ ]|0.00[ ]", "2|Room reference|0.00[ ]|0.00[ ]|0.00[ ]",
                "3|Handheld|5.00[x]|0.00[ ]|0.00[ ]", "4||0.0|0.0|0.0 gray" }));
    QStringList expected { "body number_of_bodies standard" };
    for (const char *body : { "b01", "b02", "b03", "b04" })
        expected << QString("body desc standard %1").arg(body)
                 << QString("body calibrated standard %1").arg(body)
                 << QString("body target_type standard %1").arg(body)
                 << QString("standard fixed_angle %1").arg(body);
    QCOMPARE(controller->commands(), expected);
    QCOMPARE(controller->reports(), QStringList());
    QCOMPARE(outcome.result, int(QDialog::Rejected));
}

void TestFixedAngleDlg::rowOfBody_data()
{
    QTest::addColumn<QString>("calibrated");
    QTest::addColumn<QString>("targetType");
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("report");

    const QString usable("1|Glasses|0.00[ ]|12.50[x]|0.00[ ]");
    const QString gray("1|Glasses|0.0|0.0|0.0 gray");
    QTest::newRow("calibrated tt_std") << "yes"
                                       << "tt_std" << QString() << usable << QString();
    QTest::newRow("calibrated tt_2x5dof_cyl")
        << "yes"
        << "tt_2x5dof_cyl" << QString() << usable << QString();
    QTest::newRow("other target type") << "yes"
                                       << "tt_5dof" << QString() << gray << QString();
    QTest::newRow("target type with a trailing blank")
        << "yes"
        << "tt_std " << QString() << gray << QString();
    QTest::newRow("not calibrated") << "no"
                                    << "tt_std" << QString() << gray << QString();
    QTest::newRow("calibration query fails")
        << "yes"
        << "tt_std"
        << "body calibrated standard b01" << gray
        << "Error: Unable to check the calibration status of standard body";
    QTest::newRow("target type query fails")
        << "yes"
        << "tt_std"
        << "body target_type standard b01" << gray << "Error: Unable to check target type";
    QTest::newRow("name query fails") << "yes"
                                      << "tt_std"
                                      << "body desc standard b01"
                                      << "1||0.00[ ]|12.50[x]|0.00[ ]"
                                      << "Error: Unable to check name of standard body";
    QTest::newRow("fixed angle query fails")
        << "yes"
        << "tt_std"
        << "standard fixed_angle b01"
        << "1|Glasses|0.00[ ]|0.00[ ]|0.00[ ]"
        << "Error: Unable to check fixed angle of standard body";
}

void TestFixedAngleDlg::rowOfBody()
{
    QFETCH(QString, calibrated);
    QFETCH(QString, targetType);
    QFETCH(QString, failing);
    QFETCH(QString, row);
    QFETCH(QString, report);

    controller->setValue("body number_of_bodies standard", "1");
    controller->setValue("body calibrated standard b01", calibrated);
    controller->setValue("body target_type standard b01", targetType);
    controller->setValue("standard fixed_angle b01", "no 0.00 yes 12.5 no 0");
    if (!failing.isEmpty())
        controller->failCommand(failing);

    const Outcome outcome = run();
    QCOMPARE(outcome.rows, QStringList { row });
    QCOMPARE(controller->reports(), report.isEmpty() ? QStringList() : QStringList { report });
}

void TestFixedAngleDlg::typedAngle_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");

    QTest::newRow("above the range") << "25"
                                     << "0.00";
    QTest::newRow("rounds to the limit") << "-19.999"
                                         << "-20.00";
    QTest::newRow("letters") << "abc"
                             << "0.00";
    QTest::newRow("empty") << ""
                           << "0.00";
    QTest::newRow("the limit itself") << "20"
                                      << "20.00";
    QTest::newRow("just beyond the limit") << "-20.001"
                                           << "0.00";
    QTest::newRow("two decimals") << "3.14159"
                                  << "3.14";
    QTest::newRow("single precision: 0.005 is just below") << "0.005"
                                                           << "0.00";
    QTest::newRow("exponent") << "1e1"
                              << "10.00";
    QTest::newRow("not a number") << "nan"
                                  << "0.00";
    QTest::newRow("decimal comma") << "1,5"
                                   << "0.00";
}

void TestFixedAngleDlg::typedAngle()
{
    QFETCH(QString, typed);
    QFETCH(QString, shown);

    FixedAngle body;
    body.id = 1;
    body.usable = true;
    AngleTableWidget table;
    table.fill({ body });
    for (int column = AngleTableWidget::XColumn; column <= AngleTableWidget::ZColumn; ++column) {
        table.item(0, column)->setText(typed);
        QCOMPARE(table.item(0, column)->text(), shown);
    }
    // Typing into the name is left alone.
    table.item(0, AngleTableWidget::NameColumn)->setText(typed);
    QCOMPARE(table.item(0, AngleTableWidget::NameColumn)->text(), typed);
}

void TestFixedAngleDlg::okSendsEveryRow()
{
    Qt::ItemFlags idFlags;
    Qt::ItemFlags nameFlags;
    Qt::ItemFlags angleFlags;
    const Outcome outcome = run([&](FixedAngleDlg *dialog) {
        controller->clearLog();
        AngleTableWidget *table = tableOf(dialog);
        idFlags = table->item(0, AngleTableWidget::IdColumn)->flags();
        nameFlags = table->item(0, AngleTableWidget::NameColumn)->flags();
        angleFlags = table->item(0, AngleTableWidget::XColumn)->flags();
        table->item(0, AngleTableWidget::XColumn)->setCheckState(Qt::Checked);
        table->item(1, AngleTableWidget::YColumn)->setText("-7.5");
        table->item(2, AngleTableWidget::XColumn)->setCheckState(Qt::Unchecked);
        table->item(2, AngleTableWidget::ZColumn)->setCheckState(Qt::Checked);
        clickLater(dialog, "pushButton_ok");
    });
    QCOMPARE(outcome.result, int(QDialog::Accepted));
    QCOMPARE(controller->commands(),
        QStringList({ "standard fixed_angle b01 yes 0.000000 no 0.000000 no 0.000000",
            "standard fixed_angle b02 no 0.000000 no -7.500000 no 0.000000",
            "standard fixed_angle b03 no 5.000000 no 0.000000 yes 0.000000",
            "standard fixed_angle b04 no 0.000000 no 0.000000 no 0.000000" }));
    QCOMPARE(controller->value("standard fixed_angle b03"),
        QString("no 5.000000 no 0.000000 yes 0.000000"));
    // Only the angles of a usable row can be edited and checked.
    QVERIFY(!(idFlags & Qt::ItemIsEditable));
    QVERIFY(!(nameFlags & Qt::ItemIsEditable));
    QVERIFY(angleFlags & Qt::ItemIsEditable);
    QVERIFY(angleFlags & Qt::ItemIsUserCheckable);
}

void TestFixedAngleDlg::invalidDataStopsOk()
{
    FixedAngleDlg dialog(controller, nullptr, &controller->backendVersions());
    driver->answer([&](QWidget *modal) {
        controller->clearLog();
        // Text that no edit could leave behind.
        AngleTableWidget *table = tableOf(modal);
        const QSignalBlocker unchecked(table);
        table->item(1, AngleTableWidget::ZColumn)->setText("abc");
        clickLater(modal, "pushButton_ok");
    });
    driver->pressButton(QMessageBox::Ok);
    bool stillOpen = false;
    driver->answer([&](QWidget *modal) {
        stillOpen = modal == &dialog;
        clickLater(modal, "pushButton_cancel");
    });
    QCOMPARE(dialog.update_and_exec(), int(QDialog::Rejected));

    QCOMPARE(driver->seen().size(), 3);
    QCOMPARE(driver->seen().at(1).title, QString("Fixed Angle"));
    QCOMPARE(driver->seen().at(1).text, QString("There is invalid data."));
    QVERIFY(stillOpen);
    QCOMPARE(controller->commands(),
        QStringList { "standard fixed_angle b01 no 0.000000 no 0.000000 no 0.000000" });
}

void TestFixedAngleDlg::noBodies()
{
    controller->setValue("body number_of_bodies standard", "0");
    const Outcome outcome = run([](FixedAngleDlg *dialog) { clickLater(dialog, "pushButton_ok"); });
    QCOMPARE(outcome.rows, QStringList());
    QCOMPARE(controller->commands(), QStringList { "body number_of_bodies standard" });
    QCOMPARE(outcome.result, int(QDialog::Accepted));
}

void TestFixedAngleDlg::versionGate_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("patch");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("1.5 runs empty and disabled") << 5 << 9 << false;
    QTest::newRow("1.6 unreleased build is enough") << 6 << -1 << true;
}

void TestFixedAngleDlg::versionGate()
{
    QFETCH(int, minor);
    QFETCH(int, patch);
    QFETCH(bool, enabled);

    controller->backendVersions().backendVersion = { 1, minor, patch };
    const Outcome outcome = run();
    QCOMPARE(outcome.tableEnabled, enabled);
    QCOMPARE(outcome.okEnabled, enabled);
    QCOMPARE(outcome.rows.size(), enabled ? 4 : 0);
    QCOMPARE(controller->commands().isEmpty(), !enabled);
}

void TestFixedAngleDlg::helpShowsPictures()
{
    QStringList texts;
    bool picturesLoaded = false;
    driver->answer([](QWidget *modal) { clickLater(modal, "pushButton_help"); });
    driver->answer([&](QWidget *help) {
        for (const QLabel *label : help->findChildren<QLabel *>()) {
            if (!label->pixmap(Qt::ReturnByValue).isNull())
                picturesLoaded = true;
            else
                texts << label->text();
        }
        clickLater(help, "pushButton_exit");
    });
    driver->reject();
    FixedAngleDlg dialog(controller, nullptr, &controller->backendVersions());
    dialog.update_and_exec();

    QCOMPARE(driver->seen().size(), 3);
    QCOMPARE(driver->seen().at(1).className, QString("HelpDialog"));
    QCOMPARE(driver->seen().at(1).title, QString("Fixed Angle Settings Help"));
    QCOMPARE(driver->seen().at(2).className, QString("FixedAngleDlg"));
    QVERIFY(picturesLoaded);
    QVERIFY(texts.contains("Setting is impossible for gray uncalibrated bodies."));
}

void TestFixedAngleDlg::resizeSharesWidth()
{
    FixedAngleDlg dialog(controller, nullptr, &controller->backendVersions());
    dialog.resize(640, 300);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const AngleTableWidget *table = tableOf(&dialog);
    for (int column = 0; column < AngleTableWidget::ColumnCount - 1; ++column)
        QCOMPARE(table->columnWidth(column), table->width() / 5 - 2);
    dialog.hide();
}

TRACKING_TEST_MAIN_WITH_TEMPORARY_HOME(TestFixedAngleDlg)
#include "tst_fixedangledlg.moc"
