#ifndef MODALCLOSER_H
#define MODALCLOSER_H

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

// Closes every modal dialog or message box as soon as its event loop runs,
// the safe way (reject, Escape), so that update_and_exec() and the warnings
// it may raise return at once. A dialog that refuses (the body
// administration stays open while the controller says a calibration runs)
// is ended with done() after a few tries, as its owner would on shutdown.
class ModalCloser : public QObject
{
public:
    ModalCloser();

    int closed() const { return m_closed; }

private:
    void closeModal();

    QTimer m_timer;
    QPointer<QWidget> m_last;
    int m_tries = 0;
    int m_closed = 0;
};

#endif // MODALCLOSER_H
