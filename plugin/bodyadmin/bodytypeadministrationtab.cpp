#include "bodytypeadministrationtab.h"

#include "target.h"
#include "targetlibrary.h"

#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTableWidget>

#include <algorithm>

namespace
{

const QString Standard = QStringLiteral("standard");

} // namespace

BodyTypeAdministrationTab::BodyTypeAdministrationTab(IOManager *ioManager, QWidget *parent,
    BackendVersions *backendVersions, Targetlibrary *targetLibrary)
    : QWidget(parent)
    , ioManager(ioManager)
    , backendVersions(backendVersions)
    , targetLibrary(targetLibrary)
    , channel(ioManager, backendVersions)
    , loader(channel)
    , operations(channel, this)
    , targetStatus(channel, targetLibrary)
    , tableFiller(channel)
{
    measurementTimer.setInterval(MeasurementInterval);
    statusTimer.setInterval(StatusInterval);
    connect(
        &measurementTimer, &QTimer::timeout, this, &BodyTypeAdministrationTab::doMeasurement_tl);
    connect(&statusTimer, &QTimer::timeout, this,
        &BodyTypeAdministrationTab::updateTrackedAndAcceptStatus_tl);
}

BodyTypeAdministrationTab::~BodyTypeAdministrationTab() = default;

QString BodyTypeAdministrationTab::tabTitle() const
{
    return QString();
}

BodyTypeEntry &BodyTypeAdministrationTab::addBodyType(const QString &type, QTableWidget *table,
    QSpinBox *spinBox, const QVector<int> &columnRoles, const QString &idFormat)
{
    BodyTypeEntry &e = types[type];
    e.table = table;
    e.numberSpinBox = spinBox;
    e.columnRoles = columnRoles;
    e.idFormat = idFormat;
    e.typeDescription = loader.typeDescription(type);
    e.filterAvailable = loader.filterAvailable(type);
    if (selectedType.isEmpty())
        selectedType = type;

    if (spinBox)
        connect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &BodyTypeAdministrationTab::ON_spinBox_valueChanged);
    if (table) {
        connect(table, &QTableWidget::itemChanged, this,
            &BodyTypeAdministrationTab::ON_tableWidget_itemChanged);
        connect(table, &QTableWidget::cellClicked, this,
            &BodyTypeAdministrationTab::ON_tableWidget_cellClicked);
        connect(table, &QTableWidget::cellDoubleClicked, this,
            &BodyTypeAdministrationTab::ON_tableWidget_cellDoubleClicked);
        connect(table, &QTableWidget::currentItemChanged, this,
            &BodyTypeAdministrationTab::ON_tableWidget_currentItemChanged);
    }
    return e;
}

const BodyTypeEntry *BodyTypeAdministrationTab::entry(const QString &type) const
{
    const auto it = types.constFind(type);
    return it == types.constEnd() ? nullptr : &*it;
}

BodyTypeEntry *BodyTypeAdministrationTab::entry(const QString &type)
{
    const auto it = types.find(type);
    return it == types.end() ? nullptr : &*it;
}

QString BodyTypeAdministrationTab::typeOf(const QObject *widget) const
{
    for (auto it = types.cbegin(); it != types.cend(); ++it) {
        if (widget && (it->table == widget || it->numberSpinBox == widget))
            return it.key();
    }
    return QString();
}

QString BodyTypeAdministrationTab::calibrationText(const QString &type, int index) const
{
    const BodyTypeEntry *e = entry(type);
    return e && e->contains(index) ? e->bodies.at(index).calibrationText : QString();
}

const BodyRecord *BodyTypeAdministrationTab::selectedBody() const
{
    const BodyTypeEntry *e = entry(selectedType);
    return e && e->contains(selectedIndex) ? &e->bodies.at(selectedIndex) : nullptr;
}

// Enable rules of the dialog's buttons.

bool BodyTypeAdministrationTab::isBodySelected() const
{
    return !locked && selectedBody();
}

bool BodyTypeAdministrationTab::canAdjustSelected() const
{
    const BodyRecord *body = selectedBody();
    return !locked && body && body->calibrated;
}

bool BodyTypeAdministrationTab::canFilterSelected() const
{
    const BodyRecord *body = selectedBody();
    if (locked || !body || !body->calibrated || types.isEmpty())
        return false;
    const BodyTypeEntry &first = types.first();
    return first.filterAvailable
        && std::any_of(first.bodies.cbegin(), first.bodies.cend(),
            [](const BodyRecord &b) { return b.calibrated; });
}

bool BodyTypeAdministrationTab::canHybridCalibrateSelected() const
{
    const BodyRecord *body = selectedBody();
    if (locked || !body || !body->active || !body->calibrated || !body->hasInertialSensor())
        return false;
    QString reply;
    if (channel.getString(QStringLiteral("inertial available"), &reply) != 0)
        channel.report(tr("Error: Unable to get info inertial tracking available"));
    if (!CommandText::isYes(reply))
        return false;
    if (channel.getString(
            QStringLiteral("inertial sensor_present %1").arg(body->inertialSensor), &reply)
        != 0)
        channel.report(tr("Error: Unable to get info inertial sensor is present"));
    return CommandText::isYes(reply);
}

// Loading and showing the cache.

void BodyTypeAdministrationTab::update_tab()
{
    const bool enabled = !locked && isTypeAvailable();
    const QList<QWidget *> children
        = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children)
        child->setEnabled(enabled);

    for (auto it = types.begin(); it != types.end(); ++it)
        reloadBodies(it.key());
    updateView();
    emit selection_changed(selectedType, selectedIndex);
}

void BodyTypeAdministrationTab::reloadBodies(const QString &type)
{
    BodyTypeEntry *e = entry(type);
    if (!e)
        return;
    e->bodies.resize(loader.numberOfBodies(type));
    refreshSpinBox(type, true);
    for (int i = 0; i < e->bodies.size(); ++i)
        loadBody(type, i);
    refreshTable(type);
}

void BodyTypeAdministrationTab::loadBody(const QString &type, int index)
{
    BodyTypeEntry *e = entry(type);
    if (e && e->contains(index))
        e->bodies[index] = loader.load(type, index);
}

void BodyTypeAdministrationTab::refreshSpinBox(const QString &type, bool reconnect)
{
    BodyTypeEntry *e = entry(type);
    if (!e || !e->numberSpinBox)
        return;
    QSpinBox *spinBox = e->numberSpinBox;
    const auto slot = &BodyTypeAdministrationTab::ON_spinBox_valueChanged;
    if (reconnect)
        disconnect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this, slot);
    spinBox->setMinimum(0);
    spinBox->setMaximum(maxNumberOfBodies(type));
    spinBox->setValue(e->bodies.size());
    if (reconnect)
        connect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this, slot);
}

void BodyTypeAdministrationTab::refreshTable(const QString &type)
{
    if (const BodyTypeEntry *e = entry(type))
        tableFiller.fill(*e, [this, &type](int index, int column, QTableWidgetItem *item) {
            updateExtraColumn(type, index, column, item);
        });
}

void BodyTypeAdministrationTab::changeNumberOfBodies(const QString &type, int count)
{
    BodyTypeEntry *e = entry(type);
    if (!e)
        return;
    const int cached = e->bodies.size();
    if (count == cached)
        return;
    // Only the last body is looked at: the controller moves the reference
    // to it when bodies are reordered.
    if (type == Standard && count < cached && e->bodies.at(cached - 1).isReference) {
        const auto answer = QMessageBox::warning(this, tr("VELORA4"),
            tr("Decreasing the number of standard bodies will disable the reference!\n\n")
                + tr("Continue?"),
            QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
        if (answer != QMessageBox::Yes) {
            refreshSpinBox(type, true);
            return;
        }
    }

    e->bodies.resize(count);
    setNumberOfBodies(type, count);
    if (cached < count) {
        refreshSpinBox(type, false);
        for (int i = cached; i < count; ++i)
            loadBody(type, i);
    } else if (selectedIndex >= count) {
        selectedIndex = count - 1;
    }
    emit selection_changed(selectedType, selectedIndex);
    refreshTable(type);
    updateView();
}

void BodyTypeAdministrationTab::ON_spinBox_valueChanged(int num)
{
    changeNumberOfBodies(typeOf(sender()), num);
}

// Table slots.

void BodyTypeAdministrationTab::ON_tableWidget_itemChanged(QTableWidgetItem *item)
{
    const QString type = typeOf(sender());
    const BodyTypeEntry *e = entry(type);
    if (!e || !item || e->columnRoles.value(item->column()) != NameColumn)
        return;
    setBodyDescription(type, item->row(), item->text());
    updateView();
}

void BodyTypeAdministrationTab::ON_tableWidget_cellClicked(int iRow, int iCol)
{
    auto *table = qobject_cast<QTableWidget *>(sender());
    if (!table || !table->isVisible())
        return;
    QTableWidgetItem *item = table->item(iRow, iCol);
    if (!item)
        return;
    table->setCurrentItem(item);
    const QString type = typeOf(table);
    BodyTypeEntry *e = entry(type);
    if (!e || locked || !e->contains(iRow))
        return;

    const bool checked = item->checkState() == Qt::Checked;
    const bool usable = item->data(BodyTableFiller::UsableRole).toInt() == 1;
    switch (e->columnRoles.value(iCol)) {
    case ActiveColumn:
        setBodyActive(type, iRow, checked);
        break;
    case ReferenceColumn:
        setReferenceBody(type, iRow, checked);
        break;
    case FilterColumn:
        if (e->filterAvailable && e->bodies.at(iRow).calibrated) {
            toggleFilter(type, iRow);
            e->bodies[iRow].filterText = loader.filterText(type, iRow);
            refreshTable(type);
        }
        break;
    case DeleteColumn:
        if (usable) {
            deleteFromTable(type, iRow);
            update_tab();
        }
        break;
    case ResetColumn:
        if (usable)
            resetBody(type, iRow);
        break;
    default:
        break;
    }
    emit selection_changed(selectedType, selectedIndex);
    storeSelection();
}

void BodyTypeAdministrationTab::ON_tableWidget_cellDoubleClicked(int iRow, int iCol)
{
    auto *table = qobject_cast<QTableWidget *>(sender());
    const BodyTypeEntry *e = entry(typeOf(table));
    if (!e || locked || e->columnRoles.value(iCol) != NameColumn)
        return;
    if (QTableWidgetItem *item = table->item(iRow, iCol))
        table->editItem(item);
}

void BodyTypeAdministrationTab::ON_tableWidget_currentItemChanged(
    QTableWidgetItem *current, QTableWidgetItem * /*previous*/)
{
    if (!current)
        return;
    selectedType = typeOf(sender());
    selectedIndex = current->row();
    emit selection_changed(selectedType, selectedIndex);
}

void BodyTypeAdministrationTab::toggleFilter(const QString &type, int index)
{
    const QString body = type + QLatin1Char(' ') + CommandText::bodyIdOfIndex(index);
    const bool enabled = CommandText::isYes(
        channel.stringOf(QStringLiteral("body filter6d_enabled %1").arg(body)));
    if (channel.setParameter(
            QStringLiteral("body filter6d_enabled %1 %2").arg(body, CommandText::yesNo(!enabled)))
        != 0)
        channel.report(tr("Error: Unable to activate/deactivate filter 6d for body %1").arg(body));
}

// Body operations.

void BodyTypeAdministrationTab::setBodyActive(const QString &btype, int index, bool active)
{
    if (BodyTypeEntry *e = entry(btype))
        operations.setActive(*e, btype, index, active);
}

void BodyTypeAdministrationTab::setBodyDescription(
    const QString &btype, int index, const QString &text)
{
    if (BodyTypeEntry *e = entry(btype))
        operations.setDescription(*e, btype, index, text);
}

void BodyTypeAdministrationTab::setReferenceBody(const QString &type, int index, bool set)
{
    BodyTypeEntry *e = entry(type);
    if (!e || type != Standard || !e->contains(index) || !e->bodies.at(index).calibrated)
        return;
    operations.setReference(*e, type, index, set);
    // Also after a refusal: the check box goes back.
    refreshTable(type);
}

bool BodyTypeAdministrationTab::resetBody(const QString &btype, int index)
{
    const BodyTypeEntry *e = entry(btype);
    if (!e || !operations.reset(*e, btype, index))
        return false;
    loadBody(btype, index);
    refreshTable(btype);
    updateView();
    return true;
}

bool BodyTypeAdministrationTab::deleteBody(const QString &btype, int index)
{
    const BodyTypeEntry *e = entry(btype);
    if (!e || !operations.remove(*e, btype, index))
        return false;
    loadBody(btype, index);
    refreshTable(btype);
    updateView();
    return true;
}

bool BodyTypeAdministrationTab::switchBodies(const QString &btype, int indexA, int indexB)
{
    const BodyTypeEntry *e = entry(btype);
    if (!e || !operations.switchBodies(*e, btype, indexA, indexB))
        return false;
    loadBody(btype, indexA);
    loadBody(btype, indexB);
    refreshTable(btype);
    updateView();
    return true;
}

void BodyTypeAdministrationTab::updateExtraColumn(
    const QString & /*btype*/, int /*index*/, int /*column*/, QTableWidgetItem * /*item*/)
{
}

void BodyTypeAdministrationTab::storeSelection() { }

void BodyTypeAdministrationTab::ON_activeConfigurationChanged() { }

void BodyTypeAdministrationTab::deleteFromTable(const QString &type, int index)
{
    QString name;
    if (channel.getString(QStringLiteral("body targetlib_name %1 %2")
                              .arg(type, CommandText::bodyIdOfIndex(index)),
            &name)
        != 0)
        channel.report(tr("Unable to get info targetlib ID of body"));
    name = CommandText::noneToEmpty(name);
    deleteBody(type, index);
    if (!name.isEmpty() && targetLibrary)
        targetStatus.refreshCalibrated(targetLibrary->idOfName(name));
}

// Target search.

void BodyTypeAdministrationTab::setSearchWidgets(const SearchWidgets &widgets)
{
    search = widgets;
    if (!search.targetTable)
        return;
    TargetStatus::setUpTable(search.targetTable);
    // Choosing a target may make Select usable.
    connect(search.targetTable, &QTableWidget::itemSelectionChanged, this,
        &BodyTypeAdministrationTab::applySelectionRules);
}

void BodyTypeAdministrationTab::startStatusTimer()
{
    statusTimer.start(StatusInterval);
    statusTimerId = statusTimer.timerId();
}

void BodyTypeAdministrationTab::stopStatusTimer()
{
    statusTimer.stop();
    statusTimerId = -1;
}

void BodyTypeAdministrationTab::startMeasurementTimer()
{
    measurementTimer.start(MeasurementInterval);
    measurementTimerId = measurementTimer.timerId();
}

void BodyTypeAdministrationTab::stopMeasurementTimer()
{
    measurementTimer.stop();
    measurementTimerId = -1;
}

void BodyTypeAdministrationTab::about_to_exit()
{
    if (measurementTimerId != -1)
        stopMeasurementTimer();
    if (statusTimerId != -1)
        stopStatusTimer();
}

void BodyTypeAdministrationTab::applySelectionRules()
{
    const BodyTypeEntry *e = entry(search.bodyType);
    applySelectDeselectRules(e ? e->columnOf(NameColumn) : -1);
}

void BodyTypeAdministrationTab::applySelectDeselectRules(int deselectColumn)
{
    const BodyTypeEntry *e = entry(search.bodyType);
    QTableWidget *bodies = e ? e->table : nullptr;
    const bool idle = search.start && search.start->isEnabled();
    const int bodyRow = bodies ? bodies->currentRow() : -1;
    const int targetRow = search.targetTable ? search.targetTable->currentRow() : -1;
    if (search.select)
        search.select->setEnabled(idle && bodyRow >= 0 && targetRow >= 0);
    if (search.deselect) {
        const QTableWidgetItem *name
            = bodyRow >= 0 ? bodies->item(bodyRow, deselectColumn) : nullptr;
        search.deselect->setEnabled(idle && name && !name->text().isEmpty());
    }
}

void BodyTypeAdministrationTab::setSearchControlsEnabled(bool /*enabled*/) { }

void BodyTypeAdministrationTab::fillTargetTable(const QString &group)
{
    if (search.targetTable)
        targetStatus.fillTable(search.targetTable, search.bodyType, group);
}

void BodyTypeAdministrationTab::announceFoundTargets(int count)
{
    QString text;
    if (count < 1)
        text = tr("No targets could be identified in library");
    else if (count == 1)
        text = tr("One target could be identified in library");
    else
        text = tr("%1 targets could be identified in library").arg(count);
    QMessageBox::information(this, tr("VELORA4"), text, QMessageBox::Ok);
}

void BodyTypeAdministrationTab::on_start_search()
{
    const QString refused = tr("Error: Unable to start target library calibration");
    if (!CommandText::isYes(channel.stringOf(QStringLiteral("cal available targetlib")))) {
        channel.report(refused + tr(". Calibration type is not available"));
        return;
    }
    QString active;
    if (channel.getString(QStringLiteral("status active"), &active) != 0) {
        channel.report(refused);
        return;
    }
    if (!CommandText::isNone(active) && active != QLatin1String("err")) {
        channel.report(refused + tr(". Calibration is already active."));
        return;
    }

    search.start->setEnabled(false);
    search.stop->setEnabled(true);
    if (search.deselectColumnAtStart >= 0)
        applySelectDeselectRules(search.deselectColumnAtStart);
    else
        applySelectionRules();
    setSearchControlsEnabled(false);
    stopMeasurementTimer();
    stopStatusTimer();
    if (channel.sendMetaCommand(QStringLiteral("velora2 cal targetlib start")) != 0) {
        channel.report(refused);
        search.start->setEnabled(true);
        startStatusTimer();
        return;
    }

    channel.report(tr("target library calibration started"));
    const QList<Target *> found
        = targetStatus.targetsOf(search.bodyType, TargetStatus::FoundTargets);
    for (const Target *target : found) {
        if (target->calibrated)
            channel.report(tr("%1 already calibrated").arg(target->name));
    }
    if (search.progressBar)
        search.progressBar->setValue(0);
    startMeasurementTimer();
}

void BodyTypeAdministrationTab::restartStatusTimerAfterSearch()
{
    search.start->setEnabled(true);
    search.stop->setEnabled(false);
    applySelectionRules();
    setSearchControlsEnabled(true);
    startStatusTimer();
}

void BodyTypeAdministrationTab::doMeasurement_tl()
{
    QString step;
    if (channel.getString(QStringLiteral("status step_active"), &step) != 0) {
        stopMeasurementTimer();
        channel.report(tr("Error during target library calibration. Calibration aborted"));
        search.start->setEnabled(true);
        search.stop->setEnabled(false);
        startStatusTimer();
        return;
    }
    if (step.startsWith(QLatin1String("cal"))) {
        double progress = 0.0;
        if (channel.getDouble(QStringLiteral("status progress"), &progress) == 0
            && search.progressBar)
            search.progressBar->setValue(int(progress * 100));
        updateTrackedAndAcceptStatus_tl();
        return;
    }

    stopMeasurementTimer();
    channel.report(tr("target library calibration stopped"));
    if (search.progressBar)
        search.progressBar->setValue(search.progressBar->maximum());
    stopStatusTimer();
    targetStatus.refreshTracked(search.bodyType);
    foundTargets = targetStatus.targetsOf(search.bodyType, TargetStatus::FoundTargets).size();
    if (search.resultLabel)
        search.resultLabel->clear();
    announceFoundTargets(foundTargets);
    restartStatusTimerAfterSearch();
}

void BodyTypeAdministrationTab::on_stop_search()
{
    stopMeasurementTimer();
    if (search.progressBar)
        search.progressBar->setValue(0);
    channel.sendCommand(QStringLiteral("velora2 cal targetlib stop"));
    channel.report(tr("target library calibration cancelled"));
    search.start->setEnabled(true);
    search.stop->setEnabled(false);
    applySelectionRules();
    setSearchControlsEnabled(true);
    if (search.resultLabel)
        search.resultLabel->clear();
    announceFoundTargets(foundTargets);
    startStatusTimer();
}

void BodyTypeAdministrationTab::updateTrackedAndAcceptStatus_tl()
{
    if (!search.targetTable)
        return;
    const int targetRow = search.targetTable->currentRow();
    if (!search.categoryCombo
        || search.categoryCombo->currentText().startsWith(TargetStatus::FoundTargets)) {
        targetStatus.refreshTracked(search.bodyType);
        fillTargetTable(TargetStatus::FoundTargets);
    }
    targetStatus.showTracked(search.targetTable);

    const QList<Target *> found
        = targetStatus.targetsOf(search.bodyType, TargetStatus::FoundTargets);
    foundTargets = found.size();
    const int calibrated = int(
        std::count_if(found.cbegin(), found.cend(), [](const Target *t) { return t->calibrated; }));
    if (search.resultLabel) {
        const int progress = search.progressBar ? search.progressBar->value() : 0;
        if (progress < 1 || progress >= 100)
            search.resultLabel->clear();
        else
            search.resultLabel->setText(
                tr("found targets: %1, already calibrated: %2").arg(foundTargets).arg(calibrated));
    }
    search.targetTable->setCurrentCell(targetRow, 0);
}

bool BodyTypeAdministrationTab::confirmOverwrite(const QString &bodyName)
{
    return bodyName.isEmpty()
        || QMessageBox::warning(this, tr("Warning"),
               tr("Overwrite body calibration data of %1?").arg(bodyName),
               QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel)
        == QMessageBox::Ok;
}

bool BodyTypeAdministrationTab::assignTarget(int bodyRow, int targetRow)
{
    BodyTypeEntry *e = entry(search.bodyType);
    const QTableWidgetItem *idItem = search.targetTable
        ? search.targetTable->item(targetRow, TargetStatus::IdColumn)
        : nullptr;
    const Target *target
        = idItem && targetLibrary ? targetLibrary->target(idItem->text()) : nullptr;
    if (!e || !e->contains(bodyRow) || !target)
        return false;
    const QString type = search.bodyType;

    QList<int> affected;
    const bool assigned
        = operations.calibrateFromTarget(*e, type, bodyRow, target->name, &affected);
    for (int i : qAsConst(affected))
        loadBody(type, i);
    targetStatus.refreshCalibrated(target->id);
    refreshTable(type);
    return assigned;
}

void BodyTypeAdministrationTab::removeTarget(int bodyRow)
{
    const BodyTypeEntry *e = entry(search.bodyType);
    if (e && e->contains(bodyRow))
        deleteFromTable(search.bodyType, bodyRow);
}

void BodyTypeAdministrationTab::refreshTargetStatus(const QString &type)
{
    targetStatus.refreshCalibratedOfGroup(type, QString());
    if (search.targetTable)
        fillTargetTable(search.categoryCombo ? search.categoryCombo->currentText() : QString());
}
