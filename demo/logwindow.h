#ifndef LOGWINDOW_H
#define LOGWINDOW_H

#include <QWidget>

class ConsoleLine;
class QCheckBox;
class LogFilter;
class QComboBox;
class QLabel;
class QLineEdit;
class QTableView;
class SimulatorLogModel;

// The controller log and the console, in a window of their own: a module
// dialog runs application-modal and would block a dock of the main window,
// but a window whose transient parent is the open dialog stays usable. The
// window follows each modal dialog for that. The log follows new rows while
// it is scrolled to the bottom, and stays put when the user scrolled up.
class LogWindow : public QWidget
{
    Q_OBJECT

public:
    explicit LogWindow(SimulatorLogModel *model, QWidget *parent = nullptr);

    QTableView *view() const { return m_view; }
    LogFilter *filter() const { return m_filter; }
    ConsoleLine *console() const { return m_console; }
    QCheckBox *hidePolling() const { return m_hidePolling; }

    // Shows the window with the model's row selected, lifting the filters
    // that hide it.
    void showEntry(const QModelIndex &sourceIndex);

signals:
    void clearRequested();
    void saveRequested();
    void lineEntered(const QString &line);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void updateCount();
    void followModal(QWidget *modal);

    SimulatorLogModel *m_model;
    LogFilter *m_filter;
    QTableView *m_view;
    QLineEdit *m_find;
    QComboBox *m_show;
    QCheckBox *m_hidePolling;
    ConsoleLine *m_console;
    QLabel *m_count;
    bool m_following = true;
};

#endif // LOGWINDOW_H
