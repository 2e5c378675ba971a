#include "simulatorlogmodel.h"

#include <QBrush>
#include <QColor>

using LogEntry = sim::SimulatedController::LogEntry;

SimulatorLogModel::SimulatorLogModel(int maximumRows, QObject *parent)
    : QAbstractTableModel(parent)
    , m_maximumRows(qMax(1, maximumRows))
{
}

int SimulatorLogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

int SimulatorLogModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SimulatorLogModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return QVariant();
    const LogEntry &entry = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return cellText(entry, index.column());
    case Qt::BackgroundRole:
        if (isFailure(entry))
            return QBrush(QColor(255, 214, 214));
        if (entry.kind == LogEntry::Message)
            return QBrush(QColor(232, 240, 255));
        return QVariant();
    case Qt::ForegroundRole:
        // Keep the text readable on the light highlights under a dark palette.
        if (isFailure(entry) || entry.kind == LogEntry::Message)
            return QBrush(Qt::black);
        return QVariant();
    case Qt::TextAlignmentRole:
        if (index.column() == ResultColumn)
            return int(Qt::AlignRight | Qt::AlignVCenter);
        return QVariant();
    default:
        return QVariant();
    }
}

QVariant SimulatorLogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case OperationColumn:
        return tr("Operation");
    case TextColumn:
        return tr("Command or message");
    case ReplyColumn:
        return tr("Reply");
    case ResultColumn:
        return tr("Result");
    default:
        return QVariant();
    }
}

bool SimulatorLogModel::isFailure(const LogEntry &entry)
{
    if (entry.kind == LogEntry::Message)
        return entry.receiver == QLatin1String("standard")
            && entry.text.startsWith(QLatin1String("Error"));
    return entry.kind != LogEntry::ReplyTimeout && entry.result != 0;
}

void SimulatorLogModel::append(const LogEntry &entry)
{
    if (m_entries.size() >= m_maximumRows) {
        // Drop a tenth at a time so that a full table does not shift on every entry.
        const int dropped = qMax(1, m_maximumRows / 10);
        beginRemoveRows(QModelIndex(), 0, dropped - 1);
        m_entries.erase(m_entries.begin(), m_entries.begin() + dropped);
        endRemoveRows();
    }
    beginInsertRows(QModelIndex(), m_entries.size(), m_entries.size());
    m_entries.append(entry);
    endInsertRows();
}

void SimulatorLogModel::clear()
{
    beginResetModel();
    m_entries.clear();
    endResetModel();
}

QString SimulatorLogModel::cellText(const LogEntry &entry, int column) const
{
    const bool message = entry.kind == LogEntry::Message;
    switch (column) {
    case OperationColumn:
        return entry.operation;
    case TextColumn:
        // (Un)registrations are message entries with a name and nothing else.
        if (message && entry.sender.isEmpty() && entry.text.isEmpty())
            return entry.receiver;
        if (message)
            return tr("%1 \u2192 %2: %3").arg(entry.sender, entry.receiver, entry.text);
        return entry.text;
    case ReplyColumn:
        if (entry.error.isEmpty())
            return entry.reply;
        return entry.reply.isEmpty() ? entry.error : tr("%1 (%2)").arg(entry.reply, entry.error);
    case ResultColumn:
        // Messages and the reply time-out have no result.
        if (message || entry.kind == LogEntry::ReplyTimeout)
            return QString();
        return QString::number(entry.result);
    default:
        return QString();
    }
}
