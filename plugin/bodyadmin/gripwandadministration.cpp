#include "gripwandadministration.h"

#include "filterdialog.h"
#include "ui_gripwandadministration.h"

namespace
{

const QString Gripwand = QStringLiteral("gripwand");
const QString Head = QStringLiteral("multiusergripwand_head");
constexpr int DefaultMaximum = 20;
constexpr int SerialLength = 5;

} // namespace

GripwandAdministration::GripwandAdministration(IOManager *ioManager, QWidget *parent,
    BackendVersions *backendVersions, const QString & /*text*/, Targetlibrary *targetLibrary)
    : BodyTypeAdministrationTab(ioManager, parent, backendVersions, targetLibrary)
    , ui(new Ui::GripwandAdministrationClass)
{
    ui->setupUi(this);
    setWhatsThis(tr("Administration of Gripwands"));

    BodyTypeEntry &gripwands
        = addBodyType(Gripwand, ui->tableWidget_gripwand, ui->spinBox_gripwands,
            { IdColumn, ActiveColumn, NameColumn, ExtraColumn, ExtraColumn, CalibrationColumn,
                FilterColumn, DeleteColumn, ResetColumn },
            QStringLiteral("G%1"));
    // After the base's own handler: the heads follow the new count.
    connect(ui->spinBox_gripwands, QOverload<int>::of(&QSpinBox::valueChanged), this,
        &GripwandAdministration::ON_spinBox_gripwands_valueChanged);
    filterAvailable = gripwands.filterAvailable;

    setUpBodyTable(ui->tableWidget_gripwand,
        { tr("ID"), tr("Active"), tr("Name"), tr("Model"), tr("Serial"), tr("Calibration"),
            tr("Filter"), tr("Delete"), tr("Reset") },
        NameCol);
    ui->tableWidget_gripwand->setColumnHidden(FilterCol, !filterAvailable);
    reloadBodies(Gripwand);

    TargetSearch::Widgets widgets = TargetSearch::Widgets::ofForm(this);
    widgets.bodyTable = ui->tableWidget_gripwand;
    widgets.bodyType = Gripwand;
    widgets.targetType = Gripwand;
    // Kept: at the start of a search the Deselect rule looks at "Serial".
    widgets.deselectColumnAtStart = SerialCol;
    widgets.recountAtEnd = false;
    setSearchWidgets(widgets);
    fillTargetTable(QString());

    ui->label_head->hide();
    ui->tableWidget_head->hide();
}

GripwandAdministration::~GripwandAdministration()
{
    delete ui;
}

QString GripwandAdministration::tabTitle() const
{
    return tr("&Gripwand");
}

bool GripwandAdministration::isTypeAvailable() const
{
    return true;
}

int GripwandAdministration::currentRow() const
{
    return ui->tableWidget_gripwand->currentRow();
}

int GripwandAdministration::maxNumberOfBodies(const QString &btype)
{
    // Heads follow the Gripwands, so every type gets the Gripwand maximum.
    return loader.maximum(QStringLiteral("gripwand max_number_of_devices"), btype, DefaultMaximum,
        QStringLiteral("Error: Unable to get max number of %1 bodies"));
}

void GripwandAdministration::setNumberOfBodies(const QString &btype, int count)
{
    if (btype == Gripwand)
        operations.setNumberOfBodies(QStringLiteral("gripwand number_of_devices %1"), btype, count,
            QStringLiteral("Error: Unable to set number of %1 bodies to %2"));
}

// Radio devices.

void GripwandAdministration::updateExtraColumn(
    const QString &btype, int index, int column, QTableWidgetItem *item)
{
    if (btype != Gripwand || (column != ModelCol && column != SerialCol))
        return;
    const QString device = channel.stringOf(
        QStringLiteral("gripwand device %1").arg(CommandText::bodyIdOfIndex(index)));
    if (CommandText::isNone(device)) {
        item->setText(column == ModelCol ? CommandText::none() : QString());
        return;
    }
    // "wpan VENDOR MODEL SERIAL"
    const QStringList words = device.split(QLatin1Char(' '));
    if (column == SerialCol)
        item->setText(words.value(3).rightJustified(SerialLength, QLatin1Char('0'), true));
    else
        item->setText(modelOf(words));
}

QString GripwandAdministration::modelOf(const QStringList &words)
{
    const QString unknown = tr("unknown");
    if (!channel.atLeast(1, 3))
        return unknown;
    QString description;
    if (channel.getString(
            QStringLiteral("zemwpan device_model_desc %1 %2").arg(words.value(1), words.value(2)),
            &description)
        != 0) {
        // The vendor word fills both places; the log's readers know it so.
        channel.report(
            QStringLiteral("Error: Unable to get model description of vendor %1 model %2")
                .arg(words.value(1), words.value(1)));
        return unknown;
    }
    return CommandText::withoutDoubleQuotes(description);
}

// Multi-user mode and the head table.

bool GripwandAdministration::askMultiUser(const QString &parameter, const QString &error, bool *on)
{
    QString reply;
    if (channel.getString(parameter, &reply) != 0) {
        channel.report(error);
        return false;
    }
    *on = reply != CommandText::no();
    return true;
}

bool GripwandAdministration::isMultiUserActive()
{
    bool on = false;
    if (!askMultiUser(QStringLiteral("gripwand multiuser_available"),
            QStringLiteral("Error: Unable to get info whether multiuser gripwand is available"),
            &on)
        || !on)
        return false;
    if (channel.atLeast(0, 13)
        && (!askMultiUser(QStringLiteral("gripwand multiuser_with_head_available"),
                QStringLiteral("Error: Unable to get info multiuser gripwand with head available"),
                &on)
            || !on))
        return false;
    return askMultiUser(QStringLiteral("gripwand multiuser"),
               QStringLiteral("Error: Unable to get info whether multiuser gripwand is activated"),
               &on)
        && on;
}

void GripwandAdministration::setUpHeadTable()
{
    setUpBodyTable(
        ui->tableWidget_head, { tr("ID"), tr("Calibration"), tr("Delete"), tr("Reset") }, -1);
    addBodyType(Head, ui->tableWidget_head, nullptr,
        { IdColumn, CalibrationColumn, DeleteColumn, ResetColumn }, QStringLiteral("%1"));
    ui->tableWidget_head->setColumnHidden(3, true);
}

void GripwandAdministration::ON_spinBox_gripwands_valueChanged(int num)
{
    if (headShown)
        changeNumberOfBodies(Head, num);
}

// The view.

void GripwandAdministration::applyHeaderModes()
{
    BodyTableFiller::stretchColumn(ui->tableWidget_gripwand, NameCol);
    // Until it has rows the head table keeps its last section stretching.
    if (ui->tableWidget_head->rowCount() > 0)
        BodyTableFiller::stretchColumn(ui->tableWidget_head, 1);
}

void GripwandAdministration::resizeEvent(QResizeEvent *event)
{
    applyHeaderModes();
    QWidget::resizeEvent(event);
}

void GripwandAdministration::updateView()
{
    BodyTableFiller::showMaximumReached(ui->label_error, ui->spinBox_gripwands,
        tr("<b><font color=red>Max. number of gripwands is reached!</font></b>"));
    applyHeaderModes();
    emit selection_changed();
}

void GripwandAdministration::update_tab()
{
    beginRefresh();
    selectedType = Gripwand;
    selectedIndex = assignBodyRow;

    bool withHead = false;
    headShown = isMultiUserActive()
        && askMultiUser(QStringLiteral("gripwand multiuser_with_head"),
            QStringLiteral("Error: Unable to get info whether multiuser gripwand with head is "
                           "activated"),
            &withHead)
        && withHead;
    if (headShown && !entry(Head))
        setUpHeadTable();
    ui->label_head->setVisible(headShown);
    ui->tableWidget_head->setVisible(headShown);

    BodyTypeAdministrationTab::update_tab();
    endRefresh();
    ui->pushButton_filter->setEnabled(canFilterSelected());
}

void GripwandAdministration::ON_activeConfigurationChanged()
{
    if (!locked)
        operations.switchGlobalFilterOn(QStringLiteral("gripwand filter"),
            QStringLiteral("Error: Unable to get global filter6d status of Gripwand bodies"),
            QStringLiteral("Error: Unable to set global filter6d status of Gripwand bodies"));
}

// Buttons.

void GripwandAdministration::on_tableWidget_gripwand_itemSelectionChanged()
{
    applySelectionRules();
}

void GripwandAdministration::applySelectionRules()
{
    BodyTypeAdministrationTab::applySelectionRules();
    ui->pushButton_filter->setEnabled(canFilterSelected());
}

void GripwandAdministration::on_pushButton_select_clicked()
{
    selectCurrentTarget(false);
}

void GripwandAdministration::on_pushButton_deselect_clicked()
{
    deselectCurrentTarget();
}

void GripwandAdministration::on_pushButton_calibration_clicked()
{
    handOverCustomCalibration(Gripwand, ui->tableWidget_gripwand->currentRow());
}

void GripwandAdministration::on_pushButton_filter_clicked()
{
    {
        FilterDialog filter(ioManager, this, backendVersions);
        filter.update_and_exec(1, ui->tableWidget_gripwand->currentRow());
    }
    update_tab();
}

void GripwandAdministration::on_pushButton_start_clicked()
{
    targetSearch->start();
}

void GripwandAdministration::on_pushButton_stop_clicked()
{
    targetSearch->stop();
}
