#include "standardadministration.h"

#include "filterdialog.h"
#include "targetlibrary.h"
#include "ui_standardadministration.h"

#include <QMessageBox>

#include <algorithm>

namespace
{

const QString Standard = QStringLiteral("standard");
const QString MeasurementToolReference = QStringLiteral("measurementtool_reference");
constexpr int DefaultMaximum = 4;

} // namespace

StandardAdministration::StandardAdministration(IOManager *ioManager, QWidget *parent,
    BackendVersions *backendVersions, const QString & /*text*/, Targetlibrary *targetLibrary)
    : BodyTypeAdministrationTab(ioManager, parent, backendVersions, targetLibrary)
    , ui(new Ui::StandardAdministrationClass)
{
    ui->setupUi(this);
    setWhatsThis(tr("Administration of standard bodies"));

    BodyTypeEntry &standard
        = addBodyType(Standard, ui->tableWidget_standard, ui->spinBox_standard_bodies,
            { IdColumn, ActiveColumn, ReferenceColumn, NameColumn, ExtraColumn, ExtraColumn,
                CalibrationColumn, FilterColumn, DeleteColumn, ResetColumn },
            QStringLiteral("%1"));
    filterAvailable = standard.filterAvailable;

    setUpBodyTable(ui->tableWidget_standard,
        { tr("ID"), tr("Active"), tr("Reference"), tr("Name"), tr("Model"), tr("Device ID"),
            tr("Calibration"), tr("Filter"), tr("Delete"), tr("Reset") },
        NameCol);
    ui->tableWidget_standard->setColumnHidden(FilterCol, !filterAvailable);
    reloadBodies(Standard);

    TargetSearch::Widgets widgets = TargetSearch::Widgets::ofForm(this);
    widgets.bodyTable = ui->tableWidget_standard;
    widgets.bodyType = Standard;
    widgets.targetType = Standard;
    // Kept: at the start of a search the Deselect rule looks at "Model".
    widgets.deselectColumnAtStart = ModelCol;
    setSearchWidgets(widgets);

    fillTargetTable(ui->comboBox_filter->currentText());
    targetRow = ui->tableWidget_targetlibrary->currentRow();
    fillCategories();
}

StandardAdministration::~StandardAdministration()
{
    delete ui;
}

QString StandardAdministration::tabTitle() const
{
    return tr("&Standard");
}

bool StandardAdministration::isTypeAvailable() const
{
    return true;
}

int StandardAdministration::currentRow() const
{
    return ui->tableWidget_standard->currentRow();
}

void StandardAdministration::fillCategories()
{
    const QSignalBlocker blocker(ui->comboBox_filter);
    ui->comboBox_filter->clear();
    ui->comboBox_filter->addItem(TargetStatus::FoundTargets);
    ui->comboBox_filter->addItems(targetStatus.categories(Standard));
}

// Number of bodies and the view.

int StandardAdministration::maxNumberOfBodies(const QString &btype)
{
    if (btype != Standard)
        return 0;
    return loader.maximum(QStringLiteral("standard max_number_of_bodies"), btype, DefaultMaximum,
        QStringLiteral("Error: Unable to get max number of %1 bodies"));
}

void StandardAdministration::setNumberOfBodies(const QString &btype, int count)
{
    if (btype == Standard)
        operations.setNumberOfBodies(QStringLiteral("standard number_of_bodies %1"), btype, count,
            QStringLiteral("Error: Unable to set number of %1 bodies to %2"));
}

void StandardAdministration::updateColumnsAndStatus()
{
    // Model and device id only mean something with inertial sensors.
    const BodyTypeEntry *standard = entry(Standard);
    const bool sensors = standard
        && std::any_of(standard->bodies.cbegin(), standard->bodies.cend(),
            [](const BodyRecord &body) { return body.hasInertialSensor(); });
    ui->tableWidget_standard->setColumnHidden(ModelCol, !sensors);
    ui->tableWidget_standard->setColumnHidden(DeviceCol, !sensors);
    BodyTableFiller::showMaximumReached(ui->label_error, ui->spinBox_standard_bodies,
        tr("<b><font color=red>Max. number of bodies is reached!</font></b>"));
    emit selection_changed();
}

void StandardAdministration::updateMoveButtons()
{
    const QList<QTableWidgetItem *> selected = ui->tableWidget_standard->selectedItems();
    const int row = selected.isEmpty() || locked ? -1 : selected.first()->row();
    ui->pushButton_up->setEnabled(row > 0);
    ui->pushButton_down->setEnabled(row >= 0 && row < ui->tableWidget_standard->rowCount() - 1);
}

void StandardAdministration::updateView()
{
    updateColumnsAndStatus();
    updateMoveButtons();
}

void StandardAdministration::resizeEvent(QResizeEvent *event)
{
    BodyTableFiller::stretchColumn(ui->tableWidget_standard, NameCol);
    QWidget::resizeEvent(event);
}

void StandardAdministration::update_tab()
{
    beginRefresh();
    selectedType = Standard;
    selectedIndex = assignBodyRow;
    BodyTypeAdministrationTab::update_tab();
    endRefresh();
    ui->pushButton_filter->setEnabled(canFilterSelected());
}

// Moving bodies.

void StandardAdministration::moveBody(int step)
{
    const QList<QTableWidgetItem *> selected = ui->tableWidget_standard->selectedItems();
    if (selected.isEmpty() || locked)
        return;
    const int row = selected.first()->row();
    const int target = row + step;
    switchBodies(Standard, row, target);
    ui->tableWidget_standard->selectRow(target);
    selectedIndex = target;
    updateColumnsAndStatus();
    emit BodyTypeAdministrationTab::selection_changed(selectedType, target);
}

void StandardAdministration::on_pushButton_up_clicked()
{
    moveBody(-1);
}

void StandardAdministration::on_pushButton_down_clicked()
{
    moveBody(1);
}

void StandardAdministration::on_tableWidget_standard_itemSelectionChanged()
{
    updateMoveButtons();
    applySelectionRules();
}

void StandardAdministration::applySelectionRules()
{
    BodyTypeAdministrationTab::applySelectionRules();
    ui->pushButton_filter->setEnabled(!isSearching() && canFilterSelected());
}

// Activation with the reference question.

void StandardAdministration::setBodyActive(const QString &btype, int index, bool active)
{
    if (active || btype != Standard) {
        BodyTypeAdministrationTab::setBodyActive(btype, index, active);
        if (btype == Standard)
            updateColumnsAndStatus();
        return;
    }
    int referenceRow = -1;
    for (int row = 0; row < ui->tableWidget_standard->rowCount(); ++row) {
        const QTableWidgetItem *item = ui->tableWidget_standard->item(row, ReferenceCol);
        if (item && item->checkState() == Qt::Checked) {
            referenceRow = row;
            break;
        }
    }
    if (index == referenceRow) {
        QMessageBox question(QMessageBox::Warning, tr("Warning"),
            tr("After deactivating the reference target,\nall targets will not "
               "be tracked."),
            QMessageBox::Yes | QMessageBox::No, this);
        question.setInformativeText(tr("Continue?"));
        question.setDefaultButton(QMessageBox::No);
        if (question.exec() != QMessageBox::Yes) {
            reloadBodies(Standard);
            updateView();
            return;
        }
    }
    BodyTypeAdministrationTab::setBodyActive(btype, index, active);
    updateColumnsAndStatus();
}

void StandardAdministration::updateExtraColumn(
    const QString &btype, int index, int column, QTableWidgetItem *item)
{
    const BodyTypeEntry *standard = entry(Standard);
    if (btype != Standard || (column != ModelCol && column != DeviceCol) || !standard
        || !standard->contains(index))
        return;
    const QString sensor = standard->bodies.at(index).inertialSensor;
    if (sensor.isEmpty())
        return;
    // "VX IMU 'A1234'": the model in the first two words, the device in the third.
    const QStringList words = sensor.split(QLatin1Char(' '));
    if (column == ModelCol) {
        const QString model = words.mid(0, 2).join(QLatin1Char(' '));
        item->setText(CommandText::withoutDoubleQuotes(
            channel.stringOf(QStringLiteral("inertial sensor_model_desc %1").arg(model))));
    } else {
        item->setText(CommandText::withoutSingleQuotes(words.value(2)));
    }
}

void StandardAdministration::ON_activeConfigurationChanged()
{
    if (!locked)
        operations.switchGlobalFilterOn(QStringLiteral("standard filter_bodies"),
            QStringLiteral("Error: Unable to get global filter6d status of standard bodies"),
            QStringLiteral("Error: Unable to set global filter6d status of standard bodies"));
}

// Target assignment.

bool StandardAdministration::resolveTargetConflict(const QString &shortName)
{
    if (shortName.isEmpty())
        return true;
    int references = 0;
    channel.getCount(QStringLiteral("measurementtool number_of_references"), &references);
    for (int i = 1; i <= references; ++i) {
        QString name;
        if (channel.getString(QStringLiteral("body targetlib_name %1 %2")
                                  .arg(MeasurementToolReference, CommandText::bodyId(i)),
                &name)
                != 0
            || name != shortName)
            continue;
        QMessageBox question(QMessageBox::Warning, tr("Warning"),
            tr("This target is already calibrated as Measurement Tool Reference MR%1.").arg(i),
            QMessageBox::Ok | QMessageBox::Cancel, this);
        question.setInformativeText(tr("Delete the Measurement Tool Reference MR%1?").arg(i));
        question.setDefaultButton(QMessageBox::Cancel);
        if (question.exec() != QMessageBox::Ok)
            return false;
        const QString body = MeasurementToolReference + QLatin1Char(' ') + CommandText::bodyId(i);
        channel.setParameter(QStringLiteral("body number_of_marker %1 0").arg(body));
        channel.setParameter(
            QStringLiteral("body desc %1 %2").arg(body, CommandText::quoted(QString())));
        return true;
    }
    return true;
}

void StandardAdministration::targetAssigned(const QString &targetId)
{
    // Glasses and head-mounted displays may bend when they are mounted.
    const QString category = targetLibrary ? targetLibrary->groupOf(targetId) : QString();
    if (category != QLatin1String("Glasses Target") && category != QLatin1String("HMD Target"))
        return;
    QMessageBox::warning(this, tr("Warning"),
        tr("%1 can bend\ntherefore a re-calibration is strongly recommended!")
                .arg(targetLibrary->descriptionOf(targetId))
            + tr("\n\n(To avoid any changes of the geometry\nmount the target to "
                 "the device prior re-calibration)"),
        QMessageBox::Ok);
}

void StandardAdministration::on_pushButton_select_clicked()
{
    selectCurrentTarget(true);
}

void StandardAdministration::on_pushButton_deselect_clicked()
{
    deselectCurrentTarget();
}

void StandardAdministration::on_pushButton_customCalibration_clicked()
{
    handOverCustomCalibration(Standard, ui->tableWidget_standard->currentRow());
}

void StandardAdministration::on_pushButton_filter_clicked()
{
    {
        FilterDialog filter(ioManager, this, backendVersions);
        filter.update_and_exec(0, ui->tableWidget_standard->currentRow());
    }
    update_tab();
}

void StandardAdministration::on_comboBox_filter_currentIndexChanged(const QString &group)
{
    showCategory(group);
}

// Target search.

void StandardAdministration::on_pushButton_start_clicked()
{
    targetSearch->start();
}

void StandardAdministration::on_pushButton_stop_clicked()
{
    targetSearch->stop();
}

void StandardAdministration::setSearchControlsEnabled(bool enabled)
{
    ui->spinBox_standard_bodies->setEnabled(enabled);
    ui->pushButton_filter->setEnabled(enabled);
    ui->pushButton_customCalibration->setEnabled(enabled);
    ui->comboBox_filter->setEnabled(enabled);
}
