#include "bodytypeadministrationtab.h"

#include "bodytableinput.h"
#include "busycursor.h"
#include "editdelegate.h"
#include "filterdialog.h"
#include "handoverrequest.h"
#include "targetlibrary.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
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
    , targetSearch(new TargetSearch(this, channel, targetStatus))
    , dialog(parent)
    , delegate(new EditDelegate(this))
    , input(new BodyTableInput(this))
    , assignment(this)
{
    connect(targetSearch->measurementTimer(), &QTimer::timeout, this,
        &BodyTypeAdministrationTab::doMeasurement_tl);
    // A tab out of sight has nothing to show: its refresh waits, rather than
    // every tab visited asking the controller three times a second.
    connect(targetSearch->statusTimer(), &QTimer::timeout, this, [this] {
        if (isVisible())
            updateTrackedAndAcceptStatus_tl();
    });
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

    if (spinBox) {
        // A count is sent when it is finished (arrows, Enter, leaving the
        // box): typing "10" must not first send 1 and drop the bodies above.
        spinBox->setKeyboardTracking(false);
        spinBox->installEventFilter(input);
        connect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &BodyTypeAdministrationTab::ON_spinBox_valueChanged);
    }
    if (table) {
        table->installEventFilter(input);
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
        channel.report(QStringLiteral("Error: Unable to get info inertial tracking available"));
    if (!CommandText::isYes(reply))
        return false;
    if (channel.getString(
            QStringLiteral("inertial sensor_present %1").arg(body->inertialSensor), &reply)
        != 0)
        channel.report(QStringLiteral("Error: Unable to get info inertial sensor is present"));
    return CommandText::isYes(reply);
}

void BodyTypeAdministrationTab::setLocked(bool locked)
{
    // Only the flag: every edit path asks it, and the controls follow at the
    // next refresh. A lock that arrives during a search must not take the
    // Stop button from the operator.
    this->locked = locked;
}

void BodyTypeAdministrationTab::enableChildren()
{
    const bool enabled = !locked && isTypeAvailable();
    const QList<QWidget *> children
        = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children)
        child->setEnabled(enabled);
}

// Loading and showing the cache.

void BodyTypeAdministrationTab::update_tab()
{
    enableChildren();
    BusyCursor busy;
    busyCursor = &busy;
    for (auto it = types.begin(); it != types.end(); ++it)
        reloadBodies(it.key());
    busyCursor = nullptr;
    // Idle tabs follow the tracked targets.
    if (targetSearch->widgets().targetTable && !targetSearch->isSearching())
        targetSearch->startStatusTimer();
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
    if (busyCursor)
        busyCursor->poll();
}

void BodyTypeAdministrationTab::refreshSpinBox(const QString &type, bool reconnect)
{
    BodyTypeEntry *e = entry(type);
    if (!e || !e->numberSpinBox)
        return;
    QSpinBox *spinBox = e->numberSpinBox;
    // Showing the controller's count is no change of it: with reconnect no
    // handler hears it, and the handlers keep their order (a tab may listen
    // after the base).
    const QSignalBlocker blocker(reconnect ? spinBox : nullptr);
    spinBox->setMinimum(0);
    spinBox->setMaximum(maxNumberOfBodies(type));
    spinBox->setValue(e->bodies.size());
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
    if (locked) {
        // Back to the cached count without asking anything.
        const QSignalBlocker blocker(e->numberSpinBox);
        if (e->numberSpinBox)
            e->numberSpinBox->setValue(cached);
        return;
    }
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

// The name editor changes an item (F2, a double click or typing); filling
// never does, its signals are blocked. The check boxes act through the click.
void BodyTypeAdministrationTab::ON_tableWidget_itemChanged(QTableWidgetItem *item)
{
    const QString type = typeOf(sender());
    const BodyTypeEntry *e = entry(type);
    if (!item || !e || !e->contains(item->row())
        || e->columnRoles.value(item->column()) != NameColumn)
        return;
    if (locked) {
        refreshTable(type);
        return;
    }
    setBodyDescription(type, item->row(), item->text());
    updateView();
}

void BodyTypeAdministrationTab::ON_tableWidget_cellClicked(int iRow, int iCol)
{
    input->click(qobject_cast<QTableWidget *>(sender()), iRow, iCol);
}

void BodyTypeAdministrationTab::keyPressEvent(QKeyEvent *event)
{
    // The same for a name: the editor lets its Enter pass on.
    const QWidget *focus = QApplication::focusWidget();
    bool typed = false;
    for (auto it = types.cbegin(); it != types.cend() && focus; ++it)
        typed = typed || (it->table && focus != it->table && it->table->isAncestorOf(focus));
    if (typed && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
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
    // The selection signal of the table came before this one: the rules
    // are evaluated again on the body that is now current.
    applySelectionRules();
    emit selection_changed(selectedType, selectedIndex);
}

void BodyTypeAdministrationTab::toggleFilter(const QString &type, int index)
{
    const QString body = type + QLatin1Char(' ') + CommandText::bodyIdOfIndex(index);
    const bool enabled = CommandText::isYes(
        channel.stringOf(QStringLiteral("body filter6d_enabled %1").arg(body)));
    FilterDialog filter(ioManager, this, backendVersions);
    filter.setFilterEnabled(body, !enabled);
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
        channel.report(QStringLiteral("Unable to get info targetlib ID of body"));
    name = CommandText::noneToEmpty(name);
    deleteBody(type, index);
    if (!name.isEmpty() && targetLibrary)
        targetStatus.refreshCalibrated(targetLibrary->idOfName(name));
}

// Target search and assignment.

void BodyTypeAdministrationTab::setSearchWidgets(const TargetSearch::Widgets &widgets)
{
    targetSearch->setWidgets(widgets);
    if (widgets.targetTable)
        // Choosing a target may make Select usable.
        connect(widgets.targetTable, &QTableWidget::itemSelectionChanged, this,
            &BodyTypeAdministrationTab::applySelectionRules);
}

void BodyTypeAdministrationTab::about_to_exit()
{
    targetSearch->stopTimers();
}

void BodyTypeAdministrationTab::doMeasurement_tl()
{
    targetSearch->measurementStep();
}

void BodyTypeAdministrationTab::updateTrackedAndAcceptStatus_tl()
{
    targetSearch->statusStep();
}

void BodyTypeAdministrationTab::applySelectionRules()
{
    assignment.applyRules(-1);
}

void BodyTypeAdministrationTab::setSearchControlsEnabled(bool /*enabled*/) { }

bool BodyTypeAdministrationTab::resolveTargetConflict(const QString & /*shortName*/)
{
    return true;
}

void BodyTypeAdministrationTab::targetAssigned(const QString & /*targetId*/) { }

// Pieces the tabs share.

void BodyTypeAdministrationTab::setUpBodyTable(
    QTableWidget *table, const QStringList &headers, int nameColumn)
{
    BodyTableFiller::setUp(table, headers);
    if (nameColumn >= 0)
        table->setItemDelegateForColumn(nameColumn, delegate);
}

void BodyTypeAdministrationTab::handOverCustomCalibration(const QString &type, int row)
{
    if (row < 0)
        return;
    if (dialog)
        dialog->hide();
    HandOverRequest::customCalibration(type, row).send(channel);
}
