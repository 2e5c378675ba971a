#include "simulatorlogmodel.h"

#include <QBrush>
#include <QColor>
#include <QCoreApplication>
#include <QFont>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextStream>

using LogEntry = sim::SimulatedController::LogEntry;

namespace
{

// The target search reports its progress through the message log too; these
// are the only reports that are not errors, in English or translated.
bool isNotice(const QString &text)
{
    static const char *const notices[]
        = { "target library calibration started", "%1 already calibrated",
              "target library calibration stopped", "target library calibration cancelled" };
    for (const char *notice : notices) {
        for (const QString &form :
            { QString::fromLatin1(notice), QCoreApplication::translate("TargetSearch", notice) }) {
            const QString pattern = QRegularExpression::escape(form).replace(
                QLatin1String("\\%1"), QLatin1String(".+"));
            if (QRegularExpression(QLatin1Char('^') + pattern + QLatin1Char('$'))
                    .match(text)
                    .hasMatch())
                return true;
        }
    }
    return false;
}

} // namespace

SimulatorLogModel::SimulatorLogModel(int maximumRows, QObject *parent)
    : QAbstractTableModel(parent)
    , m_maximumRows(qMax(1, maximumRows))
{
}

int SimulatorLogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int SimulatorLogModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SimulatorLogModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return QVariant();
    const Row &row = m_rows.at(index.row());
    const bool failure = row.failure;
    const bool message = row.entry.kind == LogEntry::Message;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return cellText(row, index.column());
    case KindRole:
        return message ? Message : Call;
    case FailureRole:
        return failure;
    case PollingRole:
        return row.polling;
    case Qt::FontRole:
        // The time keeps its width: its column fits the regular digits.
        if (index.row() == m_latestReport && index.column() != TimeColumn) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return QVariant();
    case Qt::DecorationRole:
        if (failure && index.column() == OperationColumn)
            return QColor(200, 0, 0);
        return QVariant();
    case Qt::BackgroundRole:
        if (failure)
            return QBrush(QColor(255, 214, 214));
        if (message)
            return QBrush(QColor(232, 240, 255));
        return QVariant();
    case Qt::ForegroundRole:
        // Keep the text readable on the light highlights under a dark palette.
        if (failure || message)
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
    case TimeColumn:
        return tr("Time");
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
        return entry.operation == QLatin1String("sendMessage")
            && entry.receiver == QLatin1String("standard") && !isNotice(entry.text);
    return entry.kind != LogEntry::ReplyTimeout && entry.result != 0;
}

bool SimulatorLogModel::isPolling(const LogEntry &entry)
{
    static const QStringList polls { QStringLiteral("status active"),
        QStringLiteral("status step_active"), QStringLiteral("status progress") };
    return entry.kind == LogEntry::Query && entry.result == 0
        && (polls.contains(entry.text)
            || entry.text.startsWith(QLatin1String("targetlib target_status_tracked ")));
}

QModelIndex SimulatorLogModel::latestReport() const
{
    return m_latestReport < 0 ? QModelIndex() : index(m_latestReport, TextColumn);
}

void SimulatorLogModel::append(const LogEntry &entry)
{
    if (m_rows.size() >= m_maximumRows) {
        // Drop a tenth at a time so that a full table does not shift on every entry.
        const int dropped = qMax(1, m_maximumRows / 10);
        beginRemoveRows(QModelIndex(), 0, dropped - 1);
        m_rows.erase(m_rows.begin(), m_rows.begin() + dropped);
        m_latestReport = qMax(-1, m_latestReport - dropped);
        endRemoveRows();
    }
    const bool failure = isFailure(entry);
    beginInsertRows(QModelIndex(), m_rows.size(), m_rows.size());
    m_rows.append({ entry, QTime::currentTime(), failure, isPolling(entry) });
    endInsertRows();
    if (failure && entry.kind == LogEntry::Message) {
        const int previous = m_latestReport;
        m_latestReport = m_rows.size() - 1;
        if (previous >= 0)
            emit dataChanged(index(previous, 0), index(previous, ColumnCount - 1));
        emit errorReported(entry.text, index(m_latestReport, 0));
    }
    if (m_logFile.isOpen()) {
        m_logFile.write((lineText(m_rows.size() - 1) + QLatin1Char('\n')).toUtf8());
        m_logFile.flush();
    }
}

void SimulatorLogModel::clear()
{
    beginResetModel();
    m_rows.clear();
    m_latestReport = -1;
    endResetModel();
}

QString SimulatorLogModel::lineText(int row) const
{
    QStringList cells;
    for (int column = 0; column < ColumnCount; ++column)
        cells << cellText(m_rows.at(row), column);
    if (m_rows.at(row).failure)
        cells << QStringLiteral("FAILED");
    return cells.join(QLatin1Char('\t'));
}

bool SimulatorLogModel::save(const QString &fileName, QString *error) const
{
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        for (int row = 0; row < m_rows.size(); ++row)
            file.write((lineText(row) + QLatin1Char('\n')).toUtf8());
        if (file.commit())
            return true;
    }
    *error = tr("Cannot write the log to %1: %2").arg(fileName, file.errorString());
    return false;
}

bool SimulatorLogModel::setLogFile(const QString &fileName, QString *error)
{
    m_logFile.close();
    m_logFile.setFileName(fileName);
    if (!m_logFile.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        *error = tr("Cannot write the log to %1: %2").arg(fileName, m_logFile.errorString());
        return false;
    }
    for (int row = 0; row < m_rows.size(); ++row)
        m_logFile.write((lineText(row) + QLatin1Char('\n')).toUtf8());
    m_logFile.flush();
    return true;
}

QString SimulatorLogModel::cellText(const Row &row, int column) const
{
    const LogEntry &entry = row.entry;
    const bool message = entry.kind == LogEntry::Message;
    switch (column) {
    case TimeColumn:
        return row.time.toString(QStringLiteral("HH:mm:ss.zzz"));
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
