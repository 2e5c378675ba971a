#include "targetassignment.h"

#include "bodytypeadministrationtab.h"
#include "target.h"
#include "targetlibrary.h"

#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

namespace
{

QString textOf(const QTableWidget *table, int row, int column)
{
    const QTableWidgetItem *item = table && row >= 0 ? table->item(row, column) : nullptr;
    return item ? item->text() : QString();
}

} // namespace

TargetAssignment::TargetAssignment(BodyTypeAdministrationTab *tab)
    : m_tab(tab)
{
}

void TargetAssignment::selectCurrent(bool firstTargetWhenNone)
{
    const TargetSearch::Widgets &w = m_tab->targetSearch->widgets();
    const BodyTypeEntry *e = m_tab->entry(w.bodyType);
    if (!e || !w.bodyTable || w.bodyTable->currentRow() < 0)
        return;
    const int bodyRow = w.bodyTable->currentRow();
    int targetRow = w.targetTable ? w.targetTable->currentRow() : -1;
    if (firstTargetWhenNone)
        targetRow = qMax(targetRow, 0);
    m_tab->assignBodyRow = bodyRow;
    m_tab->assignTargetRow = targetRow;
    const QString bodyName = textOf(w.bodyTable, bodyRow, e->columnOf(NameColumn));
    const QString targetId = textOf(w.targetTable, targetRow, TargetStatus::IdColumn);
    const QString shortName = textOf(w.targetTable, targetRow, TargetStatus::ShortNameColumn);

    if (!confirmOverwrite(bodyName) || !m_tab->resolveTargetConflict(shortName))
        return;
    assign(bodyRow, targetId);
    m_tab->update_tab();
    m_tab->targetAssigned(targetId);
}

bool TargetAssignment::confirmOverwrite(const QString &bodyName) const
{
    return bodyName.isEmpty()
        || QMessageBox::warning(m_tab, tr("Warning"),
               tr("Overwrite body calibration data of %1?").arg(bodyName),
               QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel)
        == QMessageBox::Ok;
}

bool TargetAssignment::assign(int bodyRow, const QString &targetId)
{
    const QString type = m_tab->targetSearch->widgets().bodyType;
    BodyTypeEntry *e = m_tab->entry(type);
    const Target *target = m_tab->targetLibrary ? m_tab->targetLibrary->target(targetId) : nullptr;
    if (!e || !e->contains(bodyRow) || !target)
        return false;

    QList<int> affected;
    const bool assigned
        = m_tab->operations.calibrateFromTarget(*e, type, bodyRow, target->name, &affected);
    for (int i : qAsConst(affected))
        m_tab->loadBody(type, i);
    m_tab->targetStatus.refreshCalibrated(target->id);
    m_tab->refreshTable(type);
    return assigned;
}

void TargetAssignment::deselectCurrent()
{
    const TargetSearch::Widgets &w = m_tab->targetSearch->widgets();
    const BodyTypeEntry *e = m_tab->entry(w.bodyType);
    const int bodyRow = w.bodyTable ? w.bodyTable->currentRow() : -1;
    if (!e || !e->contains(bodyRow))
        return;
    m_tab->deleteFromTable(w.bodyType, bodyRow);
    m_tab->update_tab();
}

void TargetAssignment::showCategory(const QString &group)
{
    m_tab->targetStatus.refreshCalibratedOfGroup(m_tab->targetSearch->widgets().targetType, group);
    fillTargetTable(group);
    m_tab->applySelectionRules();
}

void TargetAssignment::refreshListedTargets()
{
    const TargetSearch::Widgets &w = m_tab->targetSearch->widgets();
    if (w.targetTable)
        m_tab->targetStatus.refreshCalibratedOfRows(w.targetTable);
    fillTargetTable(w.categoryCombo ? w.categoryCombo->currentText() : QString());
}

void TargetAssignment::fillTargetTable(const QString &group)
{
    m_tab->targetSearch->fillTargetTable(group);
}

void TargetAssignment::beginRefresh()
{
    const TargetSearch::Widgets &w = m_tab->targetSearch->widgets();
    m_tab->assignBodyRow = w.bodyTable ? qMax(w.bodyTable->currentRow(), 0) : 0;
    m_tab->assignTargetRow = w.targetTable ? w.targetTable->currentRow() : -1;
    fillTargetTable(w.categoryCombo ? w.categoryCombo->currentText() : QString());
}

void TargetAssignment::endRefresh()
{
    const TargetSearch::Widgets &w = m_tab->targetSearch->widgets();
    const int bodyRow = m_tab->assignBodyRow;
    const int targetRow = m_tab->assignTargetRow;
    if (w.bodyTable && bodyRow < w.bodyTable->rowCount())
        w.bodyTable->setCurrentCell(bodyRow, 0);
    if (w.targetTable && targetRow >= 0 && targetRow < w.targetTable->rowCount())
        w.targetTable->setCurrentCell(targetRow, 0);
    // Clearing an empty label still lays the page out and repaints it.
    if (w.resultLabel && !w.resultLabel->text().isEmpty())
        w.resultLabel->clear();
    if (w.progressBar)
        w.progressBar->setValue(0);
    if (w.stop)
        w.stop->setEnabled(false);
}

void TargetAssignment::applyRules(int deselectColumn)
{
    const TargetSearch::Widgets &w = m_tab->targetSearch->widgets();
    const BodyTypeEntry *e = m_tab->entry(w.bodyType);
    if (deselectColumn < 0 && e)
        deselectColumn = e->columnOf(NameColumn);
    const bool idle = w.start && w.start->isEnabled();
    const int bodyRow = w.bodyTable ? w.bodyTable->currentRow() : -1;
    const int targetRow = w.targetTable ? w.targetTable->currentRow() : -1;
    if (w.select)
        w.select->setEnabled(idle && bodyRow >= 0 && targetRow >= 0);
    if (w.deselect)
        w.deselect->setEnabled(idle && !textOf(w.bodyTable, bodyRow, deselectColumn).isEmpty());
}
