#include "fingertrackingadministration.h"

#include "ui_fingertrackingadministration.h"

namespace
{

const QString Fingertracking = QStringLiteral("fingertracking");
constexpr int DefaultMaximum = 4;

} // namespace

FingertrackingAdministration::FingertrackingAdministration(IOManager *ioManager, QWidget *parent,
    BackendVersions *backendVersions, const QString & /*text*/, Targetlibrary *targetLibrary)
    : BodyTypeAdministrationTab(ioManager, parent, backendVersions, targetLibrary)
    , ui(new Ui::FingertrackingAdministrationClass)
{
    ui->setupUi(this);
    setWhatsThis(tr("Administration of Fingertracking"));
    setUpBodyTable(ui->tableWidget_fingertracking,
        { tr("ID"), tr("Active"), tr("Name"), tr("Calibration"), tr("Delete"), tr("Reset") },
        NameCol);

    TargetSearch::Widgets widgets = TargetSearch::Widgets::ofForm(this);
    widgets.bodyTable = ui->tableWidget_fingertracking;
    widgets.bodyType = Fingertracking;
    widgets.targetType = Fingertracking;
    // Kept: at the start of a search the Deselect rule looks at "Delete".
    widgets.deselectColumnAtStart = DeleteCol;
    widgets.recountAtEnd = false;
    setSearchWidgets(widgets);

    testAvailability();
}

FingertrackingAdministration::~FingertrackingAdministration()
{
    delete ui;
}

QString FingertrackingAdministration::tabTitle() const
{
    return tr("F&ingertracking");
}

bool FingertrackingAdministration::isTypeAvailable() const
{
    return fingertrackingAvailable;
}

bool FingertrackingAdministration::canAdjustSelected() const
{
    return false;
}

int FingertrackingAdministration::currentRow() const
{
    return ui->tableWidget_fingertracking->currentRow();
}

void FingertrackingAdministration::testAvailability()
{
    const QString notAvailable
        = tr("<b><font color=red>Fingertracking is not available!</font></b>");
    if (fingertrackingAvailable) {
        ui->label_error->setText(notAvailable);
        return;
    }
    bool available = false;
    if (channel.atLeast(1, 22))
        available = true;
    else if (channel.atLeast(0, 17))
        available
            = CommandText::isYes(channel.stringOf(QStringLiteral("fingertracking available")));
    if (!available) {
        ui->label_error->setText(notAvailable);
        return;
    }
    // Once offered, the hands stay usable for the dialog's life.
    fingertrackingAvailable = true;
    addBodyType(Fingertracking, ui->tableWidget_fingertracking, ui->spinBox_fingertracking,
        { IdColumn, ActiveColumn, NameColumn, CalibrationColumn, DeleteColumn, ResetColumn },
        QStringLiteral("H%1"));
}

int FingertrackingAdministration::maxNumberOfBodies(const QString &btype)
{
    if (btype != Fingertracking)
        return DefaultMaximum;
    return loader.maximum(QStringLiteral("fingertracking max_number_of_hands"), btype,
        DefaultMaximum, QStringLiteral("Error: Unable to get max number of %1 hand bodies"));
}

void FingertrackingAdministration::setNumberOfBodies(const QString &btype, int count)
{
    if (btype == Fingertracking)
        operations.setNumberOfBodies(QStringLiteral("fingertracking number_of_hands %1"), btype,
            count, QStringLiteral("Error: Unable to set number of %1 hand bodies to %2"));
}

void FingertrackingAdministration::resizeEvent(QResizeEvent *event)
{
    BodyTableFiller::stretchColumn(ui->tableWidget_fingertracking, NameCol);
    QWidget::resizeEvent(event);
}

void FingertrackingAdministration::updateView()
{
    BodyTableFiller::showMaximumReached(ui->label_error_fingertracking, ui->spinBox_fingertracking,
        tr("<b><font color=red>Max. number of Hands is reached!</font></b>"));
    BodyTableFiller::stretchColumn(ui->tableWidget_fingertracking, NameCol);
}

void FingertrackingAdministration::update_tab()
{
    beginRefresh();
    testAvailability();
    ui->label_error->setVisible(!fingertrackingAvailable);
    BodyTypeAdministrationTab::update_tab();
    endRefresh();
}

void FingertrackingAdministration::on_tableWidget_fingertracking_itemSelectionChanged()
{
    applySelectionRules();
}

void FingertrackingAdministration::on_pushButton_select_clicked()
{
    selectCurrentTarget(false);
}

void FingertrackingAdministration::on_pushButton_deselect_clicked()
{
    deselectCurrentTarget();
}

void FingertrackingAdministration::on_pushButton_start_clicked()
{
    targetSearch->start();
}

void FingertrackingAdministration::on_pushButton_stop_clicked()
{
    targetSearch->stop();
}

void FingertrackingAdministration::on_pushButton_calibration_clicked()
{
    handOverCustomCalibration(Fingertracking, ui->tableWidget_fingertracking->currentRow());
}
