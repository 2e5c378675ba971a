#include "modalcloser.h"

#include <QApplication>
#include <QDialog>

namespace
{

constexpr int PoliteTries = 3;

} // namespace

ModalCloser::ModalCloser()
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &ModalCloser::closeModal);
    m_timer.start();
}

void ModalCloser::closeModal()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal)
        return;
    m_tries = modal == m_last ? m_tries + 1 : 1;
    m_last = modal;
    ++m_closed;
    auto *dialog = qobject_cast<QDialog *>(modal);
    if (dialog && m_tries > PoliteTries)
        dialog->done(QDialog::Rejected);
    else if (dialog)
        dialog->reject();
    else
        modal->close();
}
