#include "consoleline.h"

#include <QKeyEvent>

ConsoleLine::ConsoleLine(QWidget *parent)
    : QLineEdit(parent)
{
}

void ConsoleLine::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        const QString line = text().trimmed();
        if (line.isEmpty())
            return;
        if (m_history.isEmpty() || m_history.last() != line)
            m_history << line;
        m_position = m_history.size();
        clear();
        emit lineEntered(line);
        return;
    }
    case Qt::Key_Up:
    case Qt::Key_Down: {
        // What was being typed comes back below the newest line.
        if (m_position == m_history.size())
            m_typing = text();
        const int step = event->key() == Qt::Key_Up ? -1 : 1;
        m_position = qBound(0, m_position + step, m_history.size());
        setText(m_position == m_history.size() ? m_typing : m_history.at(m_position));
        return;
    }
    default:
        QLineEdit::keyPressEvent(event);
    }
}
