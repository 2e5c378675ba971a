#include "angletablewidget.h"
#include "fixedangledlg.h"

#include <testkit.h>

using testkit::clickLater;

namespace
{
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

class TestFixedAngleDlg : public QObject
{
    Q_OBJECT

private slots:
    void init() { testkit::useScenario(controller); }
    void cleanup() { testkit::closeAllAndCheck(); }
    void opening_data()
    {
        // setting: "path=value", or a query that fails
        // rows: the table's rows, body 3's between those of the scenario
        testkit::columns<int, QString, QString, QString>({ "minor", "setting", "rows", "report" });

        const QString b3("standard fixed_angle b03"), error("Error: Unable to check ");
        const QString before("1|Glasses|0.00[ ]|0.00[ ]|0.00[ ], "
                             "2|Room reference|0.00[ ]|0.00[ ]|0.00[ ], "),
            after(", 4||0.0|0.0|0.0 gray"), gray(before + "3|Handheld|0.0|0.0|0.0 gray" + after);
        // clang-format off
        QTest::newRow("as read") << 6 << "" << before + "3|Handheld|5.00[x]|0.00[ ]|0.00[ ]" + after << "";
        QTest::newRow("before 1.6 nothing") << 5 << "" << "" << "";
        QTest::newRow("spare blanks, cylinder target") << 24 << b3 + "=no 0.00  yes 12.5 no 0|body target_type standard b03=tt_2x5dof_cyl" << before + "3|Handheld|0.00[ ]|12.50[x]|0.00[ ]" + after << "";
        QTest::newRow("other target type") << 24 << "body target_type standard b03=tt_5dof" << gray << "";
        QTest::newRow("not calibrated") << 24 << "body calibrated standard b03=no" << gray << "";
        QTest::newRow("calibration unknown") << 24 << "body calibrated standard b03" << gray << error + "the calibration status of standard body";
        QTest::newRow("target type unknown") << 24 << "body target_type standard b03" << gray << error + "target type";
        QTest::newRow("name unknown") << 24 << "body desc standard b03" << before + "3||5.00[x]|0.00[ ]|0.00[ ]" + after << error + "name of standard body";
        QTest::newRow("angles unknown") << 24 << b3 << before + "3|Handheld|0.00[ ]|0.00[ ]|0.00[ ]" + after << error + "fixed angle of standard body";
        QTest::newRow("count unknown") << 24 << "body number_of_bodies standard" << "" << error + "number of standard bodies";
        // clang-format on
    }
    void opening()
    {
        QFETCH(int, minor);
        QFETCH(QString, setting);
        controller.backendVersions().backendVersion = { 1, minor, 0 };
        testkit::apply(controller, setting);
        bool usable = false;
        run([&](AngleTableWidget *table) {
            usable = table->isEnabled()
                && testkit::child(table->window(), "pushButton_ok")->isEnabled();
            clickLater(table->window(), "pushButton_cancel");
        });
        QTEST(shownRows.join(", "), "rows");
        QCOMPARE(usable, minor >= 6);
        QTEST(controller.reports().join('|'), "report");
        // Every field of every body is read, in this order, failed or not.
        QStringList commands { "body number_of_bodies standard" };
        for (int b = 1; b <= 4 && !setting.startsWith("body number"); ++b)
            for (const QString read : { "body desc standard", "body calibrated standard",
                     "body target_type standard", "standard fixed_angle" })
                commands << read + " b0" + QString::number(b);
        QCOMPARE(controller.commands(), minor < 6 ? QStringList() : commands);
    }
    void edits_data()
    {
        testkit::columns<QString, QString, QString>({ "typed", "shown", "sent" });
        for (const auto &row :
            { std::make_tuple("25", "0.00", "0.000000"), { "-19.999", "-20.00", "-20.000000" },
                { "letters", "0.00", "0.000000" }, { "20", "20.00", "20.000000" },
                { "-20.001", "0.00", "0.000000" }, { "3.14159", "3.14", "3.140000" } })
            QTest::newRow(std::get<0>(row))
                << std::get<0>(row) << std::get<1>(row) << std::get<2>(row);
    }
    // Space flips the hold of bodies 1 and 3, an angle is typed for body 2, then OK.
    void edits()
    {
        QString cell;
        bool nameEdited = true;
        const int result = run([&](AngleTableWidget *table) {
            table->setCurrentCell(0, AngleTableWidget::XColumn);
            QTest::keyClick(table, Qt::Key_Space);
            // F2, select all, type, Enter: as the operator edits an angle.
            table->setCurrentCell(1, AngleTableWidget::YColumn);
            QTest::keyClick(table, Qt::Key_F2);
            auto *editor = table->findChild<QLineEdit *>();
            QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(editor, testkit::fetch<QString>("typed"));
            QTest::keyClick(editor, Qt::Key_Return);
            // The view commits and closes the editor from the event loop.
            QApplication::processEvents();
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            cell = table->item(1, AngleTableWidget::YColumn)->text();
            table->setCurrentCell(2, AngleTableWidget::XColumn);
            QTest::keyClick(table, Qt::Key_Space);
            // A double click never opens the id or the name for editing.
            QTest::mouseDClick(table->viewport(), Qt::LeftButton, {},
                table->visualItemRect(table->item(0, AngleTableWidget::NameColumn)).center());
            nameEdited = table->findChild<QLineEdit *>();
            controller.clearLog();
            clickLater(table->window(), "pushButton_ok");
        });
        QCOMPARE(result, int(QDialog::Accepted));
        QTEST(cell, "shown");
        QVERIFY(!nameEdited);
        QCOMPARE(controller.commands(),
            QStringList({ "standard fixed_angle b01 yes 0.000000 no 0.000000 no 0.000000",
                "standard fixed_angle b02 no 0.000000 no " + testkit::fetch<QString>("sent")
                    + " no 0.000000",
                "standard fixed_angle b03 no 5.000000 no 0.000000 no 0.000000",
                "standard fixed_angle b04 no 0.000000 no 0.000000 no 0.000000" }));
    }
    // OK with a cell no edit could leave behind, then the help.
    void invalidDataAndHelp()
    {
        int pictures = 0;
        FixedAngleDlg dialog(&controller, nullptr, &controller.backendVersions());
        ModalDriver driver;
        driver.answer([&](QWidget *modal) {
            auto *table = modal->findChild<AngleTableWidget *>();
            const QSignalBlocker unchecked(table);
            table->item(1, AngleTableWidget::ZColumn)->setText("abc");
            controller.clearLog();
            clickLater(modal, "pushButton_ok");
        });
        driver.pressButton(QMessageBox::Ok);
        driver.answer([&](QWidget *modal) { clickLater(modal, "pushButton_help"); });
        driver.answer([&](QWidget *help) {
            for (const QLabel *label : help->findChildren<QLabel *>())
                pictures += !label->pixmap(Qt::ReturnByValue).isNull();
            clickLater(help, "pushButton_exit");
        });
        driver.reject();
        QCOMPARE(dialog.update_and_exec(), int(QDialog::Rejected));
        QStringList seen;
        for (const ModalDriver::Seen &modal : driver.seen())
            seen << modal.title + ": " + modal.text;
        QCOMPARE(seen.join(" | "),
            QString("Fixed Angle Settings:  | Fixed Angle: There is invalid data. | Fixed Angle "
                    "Settings:  | Fixed Angle Settings Help:  | Fixed Angle Settings: "));
        QCOMPARE(pictures, 2);
        // The rows before the invalid one have been sent.
        QCOMPARE(controller.commands(),
            QStringList { "standard fixed_angle b01 no 0.000000 no 0.000000 no 0.000000" });
    }

private:
    // Opens the dialog, keeps the rows it showed, hands its table to action
    // and returns how it closed.
    int run(const std::function<void(AngleTableWidget *)> &action)
    {
        controller.clearLog();
        FixedAngleDlg dialog(&controller, nullptr, &controller.backendVersions());
        ModalDriver driver;
        driver.answer([&](QWidget *modal) {
            shownRows = describeRows(modal->findChild<AngleTableWidget *>());
            action(modal->findChild<AngleTableWidget *>());
        });
        return dialog.update_and_exec();
    }

    QStringList shownRows;
    sim::SimulatedController controller;
};

QTEST_MAIN(TestFixedAngleDlg)
#include "tst_fixedangledlg.moc"
