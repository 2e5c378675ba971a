#include "fixedangledlg.h"

#include "helpdialog.h"
#include "ui_fixedangledialog.h"

#include <QMessageBox>

FixedAngleDlg::FixedAngleDlg(
    IOManager *ioManager, QWidget *parent, const BackendVersions *backendVersions)
    : QDialog(parent)
    , ui(new Ui::FixedAngleDialog)
    , channel(ioManager, backendVersions)
{
    ui->setupUi(this);
}

FixedAngleDlg::~FixedAngleDlg()
{
    delete ui;
}

bool FixedAngleDlg::allowsFixedAngle(const QString &targetType)
{
    return targetType == QLatin1String("tt_std") || targetType == QLatin1String("tt_2x5dof_cyl");
}

int FixedAngleDlg::update_and_exec()
{
    records.clear();
    if (channel.atLeast(1, 6)) {
        readRecords();
    } else {
        ui->tableWidget_fixedAngle->setEnabled(false);
        ui->pushButton_ok->setEnabled(false);
    }
    ui->tableWidget_fixedAngle->fill(records);
    return exec();
}

void FixedAngleDlg::readRecords()
{
    int count = 0;
    if (channel.getInt(QStringLiteral("body number_of_bodies standard"), &count) != 0) {
        channel.report(QStringLiteral("Error: Unable to check number of standard bodies"));
        return;
    }
    for (int number = 1; number <= count; ++number)
        records << readRecord(number);
}

FixedAngle FixedAngleDlg::readRecord(int number) const
{
    const QString id = CommandText::bodyId(number);
    FixedAngle record;
    record.id = number;

    QString reply;
    if (channel.getString(QStringLiteral("body desc standard ") + id, &reply) != 0)
        channel.report(QStringLiteral("Error: Unable to check name of standard body"));
    record.name = CommandText::withoutDoubleQuotes(reply);

    if (channel.getString(QStringLiteral("body calibrated standard ") + id, &reply) != 0)
        channel.report(
            QStringLiteral("Error: Unable to check the calibration status of standard body"));
    record.usable = CommandText::isYes(reply);

    if (channel.getString(QStringLiteral("body target_type standard ") + id, &reply) != 0)
        channel.report(QStringLiteral("Error: Unable to check target type"));
    record.usable = record.usable && allowsFixedAngle(reply);

    if (channel.getString(QStringLiteral("standard fixed_angle ") + id, &reply) != 0)
        channel.report(QStringLiteral("Error: Unable to check fixed angle of standard body"));
    record.setFromReply(reply);
    return record;
}

void FixedAngleDlg::on_pushButton_ok_clicked()
{
    const AngleTableWidget *table = ui->tableWidget_fixedAngle;
    for (int row = 0; row < table->rowCount(); ++row) {
        QString command = QStringLiteral("standard fixed_angle ") + CommandText::bodyIdOfIndex(row);
        for (int column = AngleTableWidget::XColumn; column <= AngleTableWidget::ZColumn;
             ++column) {
            const QTableWidgetItem *cell = table->item(row, column);
            double angle = 0.0;
            if (!cell || !AngleTableWidget::parseAngle(cell->text(), &angle)) {
                // The rows before have been sent already; the user fixes this
                // one and presses OK again.
                QMessageBox::warning(
                    this, tr("Fixed Angle"), tr("There is invalid data."), QMessageBox::Ok);
                return;
            }
            command += QLatin1Char(' ') + CommandText::yesNo(cell->checkState() == Qt::Checked)
                + QString::asprintf(" %f", angle);
        }
        channel.setParameter(command);
    }
    accept();
}

void FixedAngleDlg::on_pushButton_cancel_clicked()
{
    reject();
}

void FixedAngleDlg::on_pushButton_help_clicked()
{
    HelpDialog help(this);
    help.exec();
}

void FixedAngleDlg::resizeEvent(QResizeEvent *event)
{
    // Equal columns; the stretching last one takes what is left.
    AngleTableWidget *table = ui->tableWidget_fixedAngle;
    const int width = table->width() / table->columnCount() - 2;
    for (int column = 0; column < table->columnCount() - 1; ++column)
        table->setColumnWidth(column, width);
    QDialog::resizeEvent(event);
}
