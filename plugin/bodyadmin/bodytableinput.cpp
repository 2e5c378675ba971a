#include "bodytableinput.h"

#include "bodytypeadministrationtab.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTableWidget>

BodyTableInput::BodyTableInput(BodyTypeAdministrationTab *tab)
    : QObject(tab)
    , m_tab(tab)
{
}

void BodyTableInput::click(QTableWidget *table, int row, int column)
{
    if (!table || !table->isVisible())
        return;
    QTableWidgetItem *item = table->item(row, column);
    if (!item)
        return;
    table->setCurrentItem(item);
    const QString type = m_tab->typeOf(table);
    const BodyTypeEntry *e = m_tab->entry(type);
    if (!e)
        return;
    // The state the cell shows now: a click on a check box has toggled it.
    if (!m_tab->locked && e->contains(row))
        act(type, row, e->columnRoles.value(column), item);
    emit m_tab->selection_changed(m_tab->selectedType, m_tab->selectedIndex);
    m_tab->storeSelection();
}

void BodyTableInput::act(const QString &type, int row, int role, const QTableWidgetItem *item)
{
    BodyTypeEntry *e = m_tab->entry(type);
    const bool usable = item && item->data(BodyTableFiller::UsableRole).toInt() == 1;
    const bool checked = item && item->checkState() == Qt::Checked;
    switch (role) {
    case ActiveColumn:
        m_tab->setBodyActive(type, row, checked);
        break;
    case ReferenceColumn:
        m_tab->setReferenceBody(type, row, checked);
        break;
    case FilterColumn:
        if (e->filterAvailable && e->bodies.at(row).calibrated) {
            m_tab->toggleFilter(type, row);
            e->bodies[row].filterText = m_tab->loader.filterText(type, row);
            m_tab->refreshTable(type);
        }
        break;
    case DeleteColumn:
        if (usable) {
            m_tab->deleteFromTable(type, row);
            m_tab->update_tab();
        }
        break;
    case ResetColumn:
        if (usable)
            m_tab->resetBody(type, row);
        break;
    default:
        break;
    }
}

bool BodyTableInput::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    // Enter finishes a count where it was typed; it must not also press the
    // dialog's default button and close the dialog.
    if (auto *spinBox = qobject_cast<QSpinBox *>(watched)) {
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        spinBox->interpretText();
        spinBox->selectAll();
        return true;
    }
    auto *table = qobject_cast<QTableWidget *>(watched);
    return table && !m_tab->typeOf(table).isEmpty() && tableKey(table, key);
}

// F2 edits the name, Delete deletes the body, Space on a check cell clicks
// it. Enter edits the name too, as in a spreadsheet (a table without names
// moves on a row): it must not press the dialog's default button.
bool BodyTableInput::tableKey(QTableWidget *table, int key)
{
    const BodyTypeEntry &e = *m_tab->entry(m_tab->typeOf(table));
    if (key == Qt::Key_Space)
        return pressCheckCell(table, e);
    const int row = table->currentRow();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (enter && e.columnOf(NameColumn) < 0) {
        if (row + 1 < table->rowCount())
            table->setCurrentCell(row + 1, qMax(table->currentColumn(), 0));
        return true;
    }
    if ((key != Qt::Key_F2 && key != Qt::Key_Delete && !enter) || !e.contains(row))
        return enter;
    if (m_tab->locked)
        return true;
    if (key != Qt::Key_Delete) {
        if (QTableWidgetItem *name = table->item(row, e.columnOf(NameColumn)))
            table->editItem(name);
    } else {
        act(m_tab->typeOf(table), row, DeleteColumn, table->item(row, e.columnOf(DeleteColumn)));
        emit m_tab->selection_changed(m_tab->selectedType, m_tab->selectedIndex);
        m_tab->storeSelection();
    }
    return true;
}

// The box toggles as under the mouse, and the column's action runs once.
bool BodyTableInput::pressCheckCell(QTableWidget *table, const BodyTypeEntry &entry)
{
    const int role = entry.columnRoles.value(table->currentColumn());
    QTableWidgetItem *item = table->currentItem();
    if (!item || (role != ActiveColumn && role != ReferenceColumn))
        return false;
    if (!m_tab->locked && (item->flags() & Qt::ItemIsUserCheckable)) {
        const QSignalBlocker blocker(table);
        item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    }
    click(table, item->row(), item->column());
    return true;
}
