#ifndef CONSOLELINE_H
#define CONSOLELINE_H

#include <QLineEdit>
#include <QStringList>

// A line for typing to the simulated controller. Return hands the line over
// and keeps it in the history, which Up and Down walk through.
class ConsoleLine : public QLineEdit
{
    Q_OBJECT

public:
    explicit ConsoleLine(QWidget *parent = nullptr);

    QStringList history() const { return m_history; }

signals:
    void lineEntered(const QString &line);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QStringList m_history;
    int m_position = 0; // == m_history.size(): the line being typed
    QString m_typing;
};

#endif // CONSOLELINE_H
