#include "mtadministration.h"

#include "ui_mtadministration.h"

#include <QMessageBox>

namespace
{

const QString Tool = QStringLiteral("measurementtool");
const QString Reference = QStringLiteral("measurementtool_reference");
const QString Standard = QStringLiteral("standard");
constexpr int DefaultMaximum = 4;

// The first refresh in the process has no selection worth keeping.
bool firstRefresh = true;

QString referenceText(int referenceIndex)
{
    return QStringLiteral("MR%1").arg(referenceIndex + 1);
}

} // namespace

MtAdministration::MtAdministration(IOManager *ioManager, QWidget *parent,
    BackendVersions *backendVersions, const QString & /*text*/, Targetlibrary *targetLibrary)
    : BodyTypeAdministrationTab(ioManager, parent, backendVersions, targetLibrary)
    , ui(new Ui::MtAdministrationClass)
{
    ui->setupUi(this);
    setWhatsThis(tr("Administration of Measurement Tools"));
    setUpBodyTable(ui->tableWidget_mt,
        { tr("ID"), tr("Active"), tr("Reference ID"), tr("Calibration"), tr("Delete"),
            tr("Reset") },
        -1);
    setUpBodyTable(ui->tableWidget_mtref,
        { tr("ID"), tr("Active"), tr("Name"), tr("Calibration"), tr("Delete"), tr("Reset") },
        LinkCol);

    TargetSearch::Widgets widgets = TargetSearch::Widgets::ofForm(this);
    widgets.bodyTable = ui->tableWidget_mtref;
    widgets.bodyType = Reference;
    widgets.targetType = Standard; // references sit on standard targets
    // Kept: at the start of a search the Deselect rule looks at "Delete".
    widgets.deselectColumnAtStart = DeleteCol;
    setSearchWidgets(widgets);
    targetRow = ui->tableWidget_targetlibrary->currentRow();

    {
        const QSignalBlocker blocker(ui->comboBox_filter);
        ui->comboBox_filter->addItem(TargetStatus::FoundTargets);
        ui->comboBox_filter->addItems(targetStatus.categories(Standard));
    }
    testAvailability();
}

MtAdministration::~MtAdministration()
{
    delete ui;
}

QString MtAdministration::tabTitle() const
{
    return tr("&Measurement Tool");
}

bool MtAdministration::isTypeAvailable() const
{
    return measurementToolAvailable;
}

bool MtAdministration::canAdjustSelected() const
{
    return false;
}

int MtAdministration::currentRow() const
{
    return ui->tableWidget_mt->currentRow();
}

void MtAdministration::testAvailability()
{
    if (measurementToolAvailable)
        return;
    if (!channel.atLeast(1, 3)
        || !CommandText::isYes(channel.stringOf(QStringLiteral("measurementtool available")))) {
        ui->label_error->setText(
            tr("<b><font color=red>Measurement Tool is not available!</font></b>"));
        return;
    }
    measurementToolAvailable = true;
    addBodyType(Tool, ui->tableWidget_mt, ui->spinBox_mt,
        { IdColumn, ActiveColumn, ExtraColumn, CalibrationColumn, DeleteColumn, ResetColumn },
        QStringLiteral("M%1"));
    addBodyType(Reference, ui->tableWidget_mtref, ui->spinBox_mtref,
        { IdColumn, ActiveColumn, NameColumn, CalibrationColumn, DeleteColumn, ResetColumn },
        QStringLiteral("MR%1"));
}

// Numbers and the view.

int MtAdministration::maxNumberOfBodies(const QString &btype)
{
    const QString error = QStringLiteral("Error: Unable to get max number of %1 bodies");
    if (btype == Tool)
        return loader.maximum(
            QStringLiteral("measurementtool max_number_of_tools"), btype, DefaultMaximum, error);
    if (btype == Reference)
        return loader.maximum(QStringLiteral("measurementtool max_number_of_references"), btype,
            DefaultMaximum, error);
    return DefaultMaximum;
}

void MtAdministration::setNumberOfBodies(const QString &btype, int count)
{
    const QString error = QStringLiteral("Error: Unable to set number of %1 bodies to %2");
    if (btype == Tool)
        operations.setNumberOfBodies(
            QStringLiteral("measurementtool number_of_tools %1"), btype, count, error);
    else if (btype == Reference)
        operations.setNumberOfBodies(
            QStringLiteral("measurementtool number_of_references %1"), btype, count, error);
}

void MtAdministration::applyHeaderModes()
{
    BodyTableFiller::stretchColumn(ui->tableWidget_mt, LinkCol);
    BodyTableFiller::stretchColumn(ui->tableWidget_mtref, LinkCol);
}

void MtAdministration::resizeEvent(QResizeEvent *event)
{
    applyHeaderModes();
    QWidget::resizeEvent(event);
}

void MtAdministration::updateView()
{
    BodyTableFiller::showMaximumReached(ui->label_error_mt, ui->spinBox_mt,
        tr("<b><font color=red>Max. number of Measurement Tools is reached!</font></b>"));
    BodyTableFiller::showMaximumReached(ui->label_error_mtref, ui->spinBox_mtref,
        tr("<b><font color=red>Max. number of Measurement references is reached!</font></b>"));
    applyHeaderModes();
}

void MtAdministration::updateExtraColumn(
    const QString &btype, int index, int column, QTableWidgetItem *item)
{
    if (btype != Tool || column != LinkCol)
        return;
    QString reference;
    if (channel.getString(QStringLiteral("measurementtool reference_of_tool %1")
                              .arg(CommandText::bodyIdOfIndex(index)),
            &reference)
            == 0
        && !CommandText::isNone(reference))
        item->setText(QStringLiteral("MR%1").arg(reference.toInt()));
}

// Selection kept across refreshes.

void MtAdministration::storeSelection()
{
    storedToolRow = qMax(ui->tableWidget_mt->currentRow(), 0);
    storedReferenceRow = qMax(ui->tableWidget_mtref->currentRow(), 0);
    storedTargetRow = qMax(ui->tableWidget_targetlibrary->currentRow(), 0);
    storedFocus = ui->tableWidget_mtref->hasFocus() ? 1 : 0;
}

void MtAdministration::update_tab()
{
    if (firstRefresh)
        firstRefresh = false;
    else
        storeSelection();
    testAvailability();
    fillTargetTable(ui->comboBox_filter->currentText());
    BodyTypeAdministrationTab::update_tab();
    ui->label_error->setVisible(!measurementToolAvailable);

    QTableWidget *focused = ui->tableWidget_mt;
    if (storedFocus == 1) {
        ui->tableWidget_mt->setCurrentCell(-1, -1);
        ui->tableWidget_targetlibrary->setCurrentCell(-1, -1);
        ui->tableWidget_mtref->setCurrentCell(storedReferenceRow, 0);
        focused = ui->tableWidget_mtref;
    } else {
        ui->tableWidget_mtref->setCurrentCell(-1, -1);
        ui->tableWidget_targetlibrary->setCurrentCell(-1, -1);
        ui->tableWidget_mt->setCurrentCell(storedToolRow, 0);
    }
    focused->setFocus();
    ui->progressBar->setValue(0);
    ui->pushButton_stop->setEnabled(false);
    applySelectionRules();
}

// References: deleting and deactivating keep the tools' links right.

QList<int> MtAdministration::toolsUsing(int referenceIndex) const
{
    QList<int> rows;
    for (int row = 0; row < ui->tableWidget_mt->rowCount(); ++row) {
        const QTableWidgetItem *link = ui->tableWidget_mt->item(row, LinkCol);
        if (link && link->text() == referenceText(referenceIndex))
            rows.append(row);
    }
    return rows;
}

bool MtAdministration::ask(const QString &text)
{
    QMessageBox question(
        QMessageBox::Warning, tr("Warning"), text, QMessageBox::Yes | QMessageBox::No, this);
    question.setInformativeText(tr("Continue?"));
    question.setDefaultButton(QMessageBox::No);
    return question.exec() == QMessageBox::Yes;
}

bool MtAdministration::deleteBody(const QString &btype, int index)
{
    const BodyTypeEntry *references = entry(Reference);
    if (btype != Reference)
        return BodyTypeAdministrationTab::deleteBody(btype, index);
    if (!references || !references->contains(index))
        return false;

    const QList<int> tools = toolsUsing(index);
    const QString number = CommandText::twoDigits(index + 1);
    const QString question = tools.isEmpty()
        ? tr("Delete Measurement Tool reference body %1?").arg(number)
        : tr("Delete Measurement Tool reference body %1?\nIf yes, the assignment to the "
             "Measurement Tool will be deleted.")
              .arg(number);
    if (!ask(question))
        return false;

    const QString body = Reference + QLatin1Char(' ') + CommandText::bodyIdOfIndex(index);
    bool failed = channel.setParameter(QStringLiteral("body number_of_marker %1 0").arg(body)) != 0;
    if (channel.setParameter(
            QStringLiteral("body desc %1 %2").arg(body, CommandText::quoted(QString())))
        != 0) {
        channel.report(QStringLiteral("Unable to reset description of %1 %2")
                           .arg(references->typeDescription, QString::number(index + 1)));
        failed = true;
    }
    // Even a failed deletion unlinks the tools.
    for (int row : tools) {
        if (channel.setParameter(QStringLiteral("measurementtool reference_of_tool %1 none")
                                     .arg(CommandText::bodyIdOfIndex(row)))
            != 0)
            channel.report(QStringLiteral("Error: Unable to set ref. body"));
    }
    if (failed)
        QMessageBox::warning(
            this, tr("Warning"), tr("Delete body %1 failed").arg(index + 1), QMessageBox::Ok);
    reloadBodies(Tool);
    reloadBodies(Reference);
    updateView();
    return !failed;
}

void MtAdministration::setBodyActive(const QString &btype, int index, bool active)
{
    const BodyTypeEntry *references = entry(Reference);
    if (active || btype != Reference) {
        BodyTypeAdministrationTab::setBodyActive(btype, index, active);
        return;
    }
    if (!references || !references->contains(index) || !references->bodies.at(index).calibrated)
        return;
    const QList<int> tools = toolsUsing(index);
    // Red until the tool table is filled again.
    for (int row : tools)
        ui->tableWidget_mt->item(row, LinkCol)->setForeground(Qt::red);
    if (!tools.isEmpty()
        && !ask(tr("After deactivating the reference,\nthe corresponding Measurement Tool will "
                   "not be tracked."))) {
        reloadBodies(Reference);
        updateView();
        return;
    }
    BodyTypeAdministrationTab::setBodyActive(btype, index, active);
}

// Targets on references.

bool MtAdministration::resolveTargetConflict(const QString &shortName)
{
    if (shortName.isEmpty())
        return true;
    int bodies = 0;
    channel.getCount(QStringLiteral("standard number_of_bodies"), &bodies);
    for (int i = 1; i <= bodies; ++i) {
        const QString body = Standard + QLatin1Char(' ') + CommandText::bodyId(i);
        QString name;
        if (channel.getString(QStringLiteral("body targetlib_name %1").arg(body), &name) != 0
            || name != shortName)
            continue;
        QMessageBox question(QMessageBox::Warning, tr("Warning"),
            tr("This target is already calibrated as standard target ID %1.").arg(i),
            QMessageBox::Ok | QMessageBox::Cancel, this);
        question.setInformativeText(tr("Delete the standard target ID %1?").arg(i));
        question.setDefaultButton(QMessageBox::Cancel);
        if (question.exec() != QMessageBox::Ok)
            return false;
        channel.setParameter(QStringLiteral("body filter6d_preset %1 preset6d_default").arg(body));
        channel.setParameter(QStringLiteral("body number_of_marker %1 0").arg(body));
        channel.setParameter(
            QStringLiteral("body desc %1 %2").arg(body, CommandText::quoted(QString())));
        return true;
    }
    return true;
}

void MtAdministration::on_pushButton_select_clicked()
{
    selectCurrentTarget(false);
}

void MtAdministration::on_pushButton_deselect_clicked()
{
    deselectCurrentTarget();
}

void MtAdministration::on_comboBox_filter_currentIndexChanged(const QString &group)
{
    showCategory(group);
}

// Target search.

void MtAdministration::on_pushButton_start_clicked()
{
    targetSearch->start();
}

void MtAdministration::on_pushButton_stop_clicked()
{
    targetSearch->stop();
}

void MtAdministration::setSearchControlsEnabled(bool enabled)
{
    // The tool count stays changeable during a search.
    ui->spinBox_mtref->setEnabled(enabled);
    ui->comboBox_filter->setEnabled(enabled);
}
