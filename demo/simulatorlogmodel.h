#ifndef SIMULATORLOGMODEL_H
#define SIMULATORLOGMODEL_H

#include <simulatedcontroller.h>

#include <QAbstractTableModel>
#include <QVector>

// The simulated controller's exchanges as table rows, newest last. A long
// session with a running target search logs several commands a second, so
// the oldest rows are dropped once the table reaches its cap.
class SimulatorLogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { OperationColumn, TextColumn, ReplyColumn, ResultColumn, ColumnCount };

    explicit SimulatorLogModel(int maximumRows = 50000, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(
        int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    // A failed operation, a time-out, or an error report to the message log.
    static bool isFailure(const sim::SimulatedController::LogEntry &entry);

    void append(const sim::SimulatedController::LogEntry &entry);
    void clear();

private:
    QString cellText(const sim::SimulatedController::LogEntry &entry, int column) const;

    QVector<sim::SimulatedController::LogEntry> m_entries;
    int m_maximumRows;
};

#endif // SIMULATORLOGMODEL_H
