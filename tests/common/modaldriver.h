#ifndef MODALDRIVER_H
#define MODALDRIVER_H

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>

class QMessageBox;
class QWidget;

// Answers the modal dialogs and message boxes that the code under test opens.
//
// The driver polls QApplication::activeModalWidget() from a timer. Each
// queued step takes the next modal widget that appears, records what it
// showed (title, text) and answers it. Assert on the records after exec()
// has returned: a failing check inside the timer would leave the modal loop
// running.
class ModalDriver : public QObject
{
    Q_OBJECT

public:
    struct Seen {
        QString className;
        QString title;
        QString text; // of a message box
    };
    using Action = std::function<void(QWidget *modal)>;

    explicit ModalDriver(QObject *parent = nullptr);

    // Queue a step for the next modal widget.
    void answer(Action action);
    // A message box: press the button with this standard role (QMessageBox::Yes, ...).
    void pressButton(int standardButton);
    // Any dialog: reject() it (Escape).
    void reject();

    // What the driven widgets showed, in order.
    const QList<Seen> &seen() const { return m_seen; }
    // Closes every modal widget still open (used in cleanup() so that a
    // test that failed early does not hang the next one).
    static void closeAllModals();
    // Class and object names of the top-level widgets still alive; a test
    // leaves none behind.
    static QStringList topLevelWidgetNames();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void poll();

    QTimer m_timer;
    QList<Action> m_steps;
    QList<Seen> m_seen;
    QPointer<QWidget> m_lastHandled;
};

#endif // MODALDRIVER_H
