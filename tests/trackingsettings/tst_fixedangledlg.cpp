#include "angletablewidget.h"
#include "fixedangledlg.h"

#include "temporaryhome.h"

#include <modaldriver.h>
#include <simulatedcontroller.h>

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

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
    void helpAndResize();

private:
    // Opens the dialog and answers it with action; returns the rows shown.
    QStringList run(const std::function<void(QWidget *)> &action, int *result = nullptr);

    sim::SimulatedController *controller = nullptr;
    ModalDriver *driver = nullptr;
};

namespace
{

AngleTableWidget *tableOf(QWidget *dialog)
{
    return dialog->findChild<AngleTableWidget *>();
}

void clickLater(QWidget *dialog, const char *button)
{
    // Queued: the button may open a modal loop of its own.
    QMetaObject::invokeMethod(
        dialog->findChild<QPushButton *>(button), "click", Qt::QueuedConnection);
}

// "3|Handheld|5.00[x]|0.00[ ]|0.00[ ]", and " gray" for rows that cannot be set.
QStringList describeRows(const QTableWidget *table)
{
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row) {
        QStringList cells;
        bool gray = true;
        for (int column = 0; column < table->columnCount(); ++column) {
            const QTableWidgetItem *item = table->item(row, column);
            const QVariant check = item->data(Qt::CheckStateRole);
            cells << item->text() + (!check.isValid() ? "" : check == Qt::Checked ? "[x]" : "[ ]");
            gray = gray && item->flags() == Qt::ItemIsSelectable
                && item->foreground().color() == QColor(Qt::lightGray);
        }
        rows << cells.join('|') + (gray ? " gray" : "");
    }
    return rows;
}

} // namespace

void TestFixedAngleDlg::init()
{
    controller = new sim::SimulatedController;
    QVERIFY(controller->loadScenario(sim::SimulatedController::defaultScenario()));
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

QStringList TestFixedAngleDlg::run(const std::function<void(QWidget *)> &action, int *result)
{
    QStringList rows;
    FixedAngleDlg dialog(controller, nullptr, &controller->backendVersions());
    driver->answer([&](QWidget *modal) {
        rows = describeRows(tableOf(modal));
        action(modal);
    });
    controller->clearLog();
    const int code = dialog.update_and_exec();
    if (result)
        *result = code;
    return rows;
}

void TestFixedAngleDlg::fillsOneRowPerBody()
{
    const QStringList rows = run([](QWidget *modal) { clickLater(modal, "pushButton_cancel"); });
    QCOMPARE(rows,
        QStringList(
            { "1|Glasses|0.00[ ]|0.00[ ]|0.00[ ]", "2|Room reference|0.00[ ]|0.00[ ]|0.00[ ]",
                "3|Handheld|5.00[x]|0.00[ ]|0.00[ ]", "4||0.0|0.0|0.0 gray" }));
    QStringList expected { "body number_of_bodies standard" };
    for (const QString id : { "b01", "b02", "b03", "b04" })
        expected << "body desc standard " + id << "body calibrated standard " + id
                 << "body target_type standard " + id << "standard fixed_angle " + id;
    QCOMPARE(controller->commands(), expected);
    QCOMPARE(controller->reports(), QStringList());
}

void TestFixedAngleDlg::rowOfBody_data()
{
    QTest::addColumn<QString>("calibrated");
    QTest::addColumn<QString>("targetType");
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QString>("report");

    const QStringList usable { "1|Glasses|0.00[ ]|12.50[x]|0.00[ ]" };
    const QStringList gray { "1|Glasses|0.0|0.0|0.0 gray" };
    const auto row = [](const char *name, const char *calibrated, const char *targetType,
                         const char *failing, const QStringList &rows, const char *report) {
        QTest::newRow(name) << calibrated << targetType << failing << rows << report;
    };
    row("calibrated tt_2x5dof_cyl", "yes", "tt_2x5dof_cyl", "", usable, "");
    row("other target type", "yes", "tt_5dof", "", gray, "");
    row("not calibrated", "no", "tt_std", "", gray, "");
    row("calibration unknown", "yes", "tt_std", "body calibrated standard b01", gray,
        "Error: Unable to check the calibration status of standard body");
    row("number of bodies unknown", "yes", "tt_std", "body number_of_bodies standard", {},
        "Error: Unable to check number of standard bodies");
}

void TestFixedAngleDlg::rowOfBody()
{
    QFETCH(QString, calibrated);
    QFETCH(QString, targetType);
    QFETCH(QString, failing);
    QFETCH(QStringList, rows);
    QFETCH(QString, report);

    controller->setValue("body number_of_bodies standard", "1");
    controller->setValue("body desc standard b01", "\"Gla\"sses\"");
    controller->setValue("body calibrated standard b01", calibrated);
    controller->setValue("body target_type standard b01", targetType);
    controller->setValue("standard fixed_angle b01", "no 0.00  yes 12.5 no 0");
    if (!failing.isEmpty())
        controller->failCommand(failing);

    QCOMPARE(run([](QWidget *modal) { clickLater(modal, "pushButton_cancel"); }), rows);
    QCOMPARE(controller->reports(), report.isEmpty() ? QStringList() : QStringList { report });
}

void TestFixedAngleDlg::typedAngle_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");

    for (const auto &row :
        { std::make_pair("25", "0.00"), { "-19.999", "-20.00" }, { "letters", "0.00" },
            { "20", "20.00" }, { "-20.001", "0.00" }, { "0.005", "0.00" }, { "3.14159", "3.14" } })
        QTest::newRow(row.first) << row.first << row.second;
}

void TestFixedAngleDlg::typedAngle()
{
    QFETCH(QString, typed);
    QFETCH(QString, shown);

    FixedAngle body;
    body.usable = true;
    AngleTableWidget table;
    table.fill({ body });
    for (int column = AngleTableWidget::XColumn; column <= AngleTableWidget::ZColumn; ++column) {
        table.item(0, column)->setText(typed);
        QCOMPARE(table.item(0, column)->text(), shown);
    }
}

void TestFixedAngleDlg::okSendsEveryRow()
{
    Qt::ItemFlags idFlags, nameFlags, angleFlags;
    int result = -1;
    run(
        [&](QWidget *modal) {
            controller->clearLog();
            AngleTableWidget *table = tableOf(modal);
            idFlags = table->item(0, AngleTableWidget::IdColumn)->flags();
            nameFlags = table->item(0, AngleTableWidget::NameColumn)->flags();
            angleFlags = table->item(0, AngleTableWidget::XColumn)->flags();
            table->item(0, AngleTableWidget::XColumn)->setCheckState(Qt::Checked);
            table->item(1, AngleTableWidget::YColumn)->setText("-7.5");
            table->item(2, AngleTableWidget::XColumn)->setCheckState(Qt::Unchecked);
            clickLater(modal, "pushButton_ok");
        },
        &result);
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(controller->commands(),
        QStringList({ "standard fixed_angle b01 yes 0.000000 no 0.000000 no 0.000000",
            "standard fixed_angle b02 no 0.000000 no -7.500000 no 0.000000",
            "standard fixed_angle b03 no 5.000000 no 0.000000 no 0.000000",
            "standard fixed_angle b04 no 0.000000 no 0.000000 no 0.000000" }));
    QVERIFY(!(idFlags & Qt::ItemIsEditable) && !(nameFlags & Qt::ItemIsEditable));
    QVERIFY((angleFlags & Qt::ItemIsEditable) && (angleFlags & Qt::ItemIsUserCheckable));
}

void TestFixedAngleDlg::invalidDataStopsOk()
{
    FixedAngleDlg dialog(controller, nullptr, &controller->backendVersions());
    driver->answer([&](QWidget *modal) {
        controller->clearLog();
        // Text that no edit could leave behind.
        const QSignalBlocker unchecked(tableOf(modal));
        tableOf(modal)->item(1, AngleTableWidget::ZColumn)->setText("abc");
        clickLater(modal, "pushButton_ok");
    });
    driver->pressButton(QMessageBox::Ok);
    driver->answer([](QWidget *modal) { clickLater(modal, "pushButton_cancel"); });
    QCOMPARE(dialog.update_and_exec(), int(QDialog::Rejected));

    QCOMPARE(driver->seen().size(), 3);
    QCOMPARE(driver->seen().at(1).title, QString("Fixed Angle"));
    QCOMPARE(driver->seen().at(1).text, QString("There is invalid data."));
    QCOMPARE(driver->seen().at(2).className, QString("FixedAngleDlg"));
    QCOMPARE(controller->commands(),
        QStringList { "standard fixed_angle b01 no 0.000000 no 0.000000 no 0.000000" });
}

void TestFixedAngleDlg::helpAndResize()
{
    int widthsWrong = -1;
    int pictures = 0;
    driver->answer([&](QWidget *modal) {
        modal->resize(640, 300);
        const AngleTableWidget *table = tableOf(modal);
        widthsWrong = 0;
        for (int column = 0; column < AngleTableWidget::ColumnCount - 1; ++column)
            widthsWrong += table->columnWidth(column) != table->width() / 5 - 2;
        clickLater(modal, "pushButton_help");
    });
    driver->answer([&](QWidget *help) {
        for (const QLabel *label : help->findChildren<QLabel *>())
            pictures += !label->pixmap(Qt::ReturnByValue).isNull();
        clickLater(help, "pushButton_exit");
    });
    driver->reject();
    FixedAngleDlg dialog(controller, nullptr, &controller->backendVersions());
    dialog.update_and_exec();

    QCOMPARE(widthsWrong, 0);
    QCOMPARE(driver->seen().size(), 3);
    QCOMPARE(driver->seen().at(1).className, QString("HelpDialog"));
    QCOMPARE(driver->seen().at(1).title, QString("Fixed Angle Settings Help"));
    QCOMPARE(pictures, 2);
}

TRACKING_TEST_MAIN_WITH_TEMPORARY_HOME(TestFixedAngleDlg)
#include "tst_fixedangledlg.moc"
