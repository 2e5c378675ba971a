#include "targetstatus.h"

#include "commandchannel.h"
#include "target.h"
#include "targetlibrary.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QTableWidget>

const QString TargetStatus::FoundTargets = QStringLiteral("- Found Targets -");

namespace
{

const QColor TrackedColor(170, 230, 170);
const QColor UntrackedColor(245, 200, 200);

} // namespace

TargetStatus::TargetStatus(const CommandChannel &channel, Targetlibrary *library)
    : m_channel(channel)
    , m_library(library)
    , m_customIcon(QStringLiteral(":/green.png"))
{
}

bool TargetStatus::isTracked(const QString &id) const
{
    QString reply;
    m_channel.getString(QStringLiteral("targetlib target_status_tracked %1").arg(id), &reply);
    return reply.startsWith(QLatin1String("ye"));
}

void TargetStatus::refreshTracked(const QString &bodyType) const
{
    if (!m_library)
        return;
    for (Target *target : qAsConst(m_library->targets)) {
        if (target->bodyType == bodyType)
            target->tracked = isTracked(target->id);
    }
}

void TargetStatus::refreshCalibrated(const QString &id) const
{
    Target *target = m_library ? m_library->target(id) : nullptr;
    if (!target)
        return;
    QString reply;
    if (m_channel.getString(QStringLiteral("targetlib target_status_calibrated %1").arg(id), &reply)
        != 0)
        reply = CommandText::none();
    target->calibrated = !CommandText::isNone(reply);
}

void TargetStatus::refreshCalibratedOfGroup(const QString &bodyType, const QString &group) const
{
    const QList<Target *> targets = targetsOf(bodyType, group);
    for (const Target *target : targets)
        refreshCalibrated(target->id);
}

void TargetStatus::refreshCalibratedOfRows(const QTableWidget *table) const
{
    for (int row = 0; row < table->rowCount(); ++row) {
        if (const QTableWidgetItem *id = table->item(row, IdColumn))
            refreshCalibrated(id->text());
    }
}

int TargetStatus::countTracked(const QString &bodyType) const
{
    int count = 0;
    if (!m_library)
        return count;
    for (const Target *target : qAsConst(m_library->targets)) {
        if (target->bodyType == bodyType && isTracked(target->id))
            ++count;
    }
    return count;
}

QStringList TargetStatus::categories(const QString &bodyType) const
{
    QStringList groups;
    if (!m_library)
        return groups;
    for (const Target *target : qAsConst(m_library->targets)) {
        // A target in no group has no category: an empty one would list
        // every target.
        if (target->bodyType == bodyType && !target->group.isEmpty()
            && !groups.contains(target->group))
            groups.append(target->group);
    }
    groups.sort(Qt::CaseSensitive);
    return groups;
}

QList<Target *> TargetStatus::targetsOf(const QString &bodyType, const QString &group) const
{
    QList<Target *> result;
    if (!m_library)
        return result;
    const bool found = group == FoundTargets;
    for (Target *target : qAsConst(m_library->targets)) {
        if (target->bodyType != bodyType)
            continue;
        if (found ? target->tracked : (group.isEmpty() || target->group == group))
            result.append(target);
    }
    return result;
}

void TargetStatus::setUpTable(QTableWidget *table)
{
    table->setColumnCount(4);
    table->setHorizontalHeaderLabels({ tr("ID"), tr("Name"), tr("Short Name"), tr("Used") });
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionsClickable(false);
    // The long name gets the room; ids and states are short.
    QHeaderView *header = table->horizontalHeader();
    header->setStretchLastSection(false);
    for (int column = 0; column < table->columnCount(); ++column)
        header->setSectionResizeMode(
            column, column == NameColumn ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
}

QString TargetStatus::customCalibrationOf(const QString &id) const
{
    if (!m_channel.atLeast(1, 12))
        return CommandText::none();
    QString reply;
    if (m_channel.getString(
            QStringLiteral("targetlib target_status_calibrated_custom %1").arg(id), &reply)
        != 0)
        return CommandText::none();
    return reply;
}

void TargetStatus::fillTable(
    QTableWidget *table, const QString &bodyType, const QString &group) const
{
    // As after emptying the table: no current row, nothing selected.
    table->selectionModel()->clear();

    // The check is slow and would disturb a running search or measurement.
    const QString active = m_channel.stringOf(QStringLiteral("status active"));
    if (!active.startsWith(QLatin1String("cal")) && !active.startsWith(QLatin1String("mea"))) {
        m_channel.setReplyTimeout(0, 5000, 0);
        m_channel.sendCommand(QStringLiteral("velora2 targetlib check_custom_calibration"));
    }

    // Rows are kept where they show the same target again: the refresh of
    // the found targets then repaints only what changed, instead of the
    // table's removal and return moving its scroll bar and the page.
    const QList<Target *> targets = targetsOf(bodyType, group);
    table->setRowCount(targets.size());
    for (int row = 0; row < targets.size(); ++row) {
        const Target *target = targets.at(row);
        const bool custom = !CommandText::isNone(customCalibrationOf(target->id));
        const QTableWidgetItem *id = table->item(row, IdColumn);
        if (id && id->text() == target->id) {
            // Text set to what it was is no change.
            table->item(row, NameColumn)->setText(target->description);
            table->item(row, ShortNameColumn)->setText(target->name);
        } else {
            table->setItem(row, IdColumn, new QTableWidgetItem(target->id));
            table->setItem(row, NameColumn, new QTableWidgetItem(target->description));
            table->setItem(row, ShortNameColumn, new QTableWidgetItem(target->name));
        }
        const QString state = custom ? tr("custom") : tr("no");
        const QTableWidgetItem *shown = table->item(row, CustomColumn);
        if (shown && shown->text() == state)
            continue;
        auto *item
            = custom ? new QTableWidgetItem(m_customIcon, state) : new QTableWidgetItem(state);
        item->setFlags(Qt::ItemIsEnabled);
        table->setItem(row, CustomColumn, item);
    }
}

void TargetStatus::showTracked(QTableWidget *table) const
{
    for (int row = 0; row < table->rowCount(); ++row) {
        const QTableWidgetItem *id = table->item(row, IdColumn);
        QTableWidgetItem *name = table->item(row, NameColumn);
        if (!id || !name)
            continue;
        const bool tracked = isTracked(id->text());
        name->setBackground(tracked ? TrackedColor : UntrackedColor);
        if (Target *target = m_library ? m_library->target(id->text()) : nullptr)
            target->tracked = tracked;
    }
}
