#include "modaldriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMessageBox>

ModalDriver::ModalDriver(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(10);
    connect(&m_timer, &QTimer::timeout, this, &ModalDriver::poll);
}

void ModalDriver::answer(Action action)
{
    m_steps.append(std::move(action));
    m_timer.start();
}

namespace
{
// The button with that standard role of a message box, else reject(), else close().
void dismiss(QWidget *modal, int standardButton = QMessageBox::NoButton)
{
    auto *box = qobject_cast<QMessageBox *>(modal);
    if (QAbstractButton *button
        = box ? box->button(QMessageBox::StandardButton(standardButton)) : nullptr)
        button->click();
    else if (auto *dialog = qobject_cast<QDialog *>(modal))
        dialog->reject();
    else
        modal->close();
}
} // namespace

void ModalDriver::pressButton(int standardButton)
{
    answer([standardButton](QWidget *modal) { dismiss(modal, standardButton); });
}

void ModalDriver::reject()
{
    answer([](QWidget *modal) { dismiss(modal); });
}

void ModalDriver::poll()
{
    QWidget *modal = QApplication::activeModalWidget();
    // Wait until the previous answer has closed its widget.
    if (!modal || modal == m_lastHandled || !modal->isVisible())
        return;
    if (m_steps.isEmpty()) {
        m_timer.stop();
        return;
    }
    const auto *box = qobject_cast<const QMessageBox *>(modal);
    m_seen.append({ QString::fromLatin1(modal->metaObject()->className()), modal->windowTitle(),
        box ? box->text() : QString() });
    // The same dialog may come back (a reopened dialog): it counts as new
    // once it has been hidden.
    m_lastHandled = modal;
    modal->installEventFilter(this);
    const Action action = m_steps.takeFirst();
    action(modal);
    if (m_steps.isEmpty())
        m_timer.stop();
}

bool ModalDriver::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide && watched == m_lastHandled) {
        watched->removeEventFilter(this);
        m_lastHandled = nullptr;
    }
    return QObject::eventFilter(watched, event);
}

void ModalDriver::closeAllModals()
{
    while (QWidget *modal = QApplication::activeModalWidget()) {
        dismiss(modal);
        QApplication::processEvents();
        if (QApplication::activeModalWidget() == modal)
            break;
    }
}

QStringList ModalDriver::topLevelWidgetNames()
{
    QStringList names;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets)
        names << QString::fromLatin1(widget->metaObject()->className()) + QLatin1Char('/')
                + widget->objectName();
    return names;
}
