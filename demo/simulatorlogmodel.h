#ifndef SIMULATORLOGMODEL_H
#define SIMULATORLOGMODEL_H

#include <simulatedcontroller.h>

#include <QAbstractTableModel>
#include <QFile>
#include <QTime>
#include <QVector>

// The simulated controller's exchanges as table rows, newest last, each with
// the time it happened. A long session with a running target search logs
// several commands a second, so the oldest rows are dropped once the table
// reaches its cap; a log file keeps everything.
class SimulatorLogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TimeColumn, OperationColumn, TextColumn, ReplyColumn, ResultColumn, ColumnCount };
    enum Role { KindRole = Qt::UserRole, FailureRole, PollingRole };
    // What the log can be filtered by.
    enum Kind { Call, Message, Failure };

    explicit SimulatorLogModel(int maximumRows = 50000, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(
        int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    // A failed operation, or an error report to the message log (every
    // report there but the target search's progress notices).
    static bool isFailure(const sim::SimulatedController::LogEntry &entry);
    // A read the module repeats on a timer (several a second while a
    // dialog is open) and that went well: the log can hide these.
    static bool isPolling(const sim::SimulatedController::LogEntry &entry);

    // The text of the newest error report, marked in the table; invalid when
    // there is none.
    QModelIndex latestReport() const;

    void append(const sim::SimulatedController::LogEntry &entry);
    void clear();

    // One line per row: time, operation, text, reply, result, and "FAILED"
    // where the row is marked.
    QString lineText(int row) const;
    bool save(const QString &fileName, QString *error) const;
    // Writes every row so far to the file, then each new one as it comes.
    bool setLogFile(const QString &fileName, QString *error);

signals:
    // A new error report: its text, and the row that holds it.
    void errorReported(const QString &text, const QModelIndex &index);

private:
    struct Row {
        sim::SimulatedController::LogEntry entry;
        QTime time;
        bool failure; // worked out once: the notice check is not cheap
        bool polling;
    };
    QString cellText(const Row &row, int column) const;

    QVector<Row> m_rows;
    int m_maximumRows;
    int m_latestReport = -1;
    QFile m_logFile;
};

#endif // SIMULATORLOGMODEL_H
