#ifndef LOGDOCK_H
#define LOGDOCK_H

#include <QDockWidget>

class QLabel;
class QTableView;
class SimulatorLogModel;

// Shows the controller log as it grows. It follows new rows while the view
// is scrolled to the bottom, and stays put when the user has scrolled up to
// read something.
class LogDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit LogDock(SimulatorLogModel *model, QWidget *parent = nullptr);

    QTableView *view() const { return m_view; }

signals:
    void clearRequested();

private:
    void updateCount();

    SimulatorLogModel *m_model;
    QTableView *m_view;
    QLabel *m_count;
    bool m_following = true;
};

#endif // LOGDOCK_H
