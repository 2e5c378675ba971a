#include "acceleratorcheck.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QTabBar>

QChar AcceleratorCheck::letter(const QString &text)
{
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('&'))
            continue;
        if (text.at(i + 1) != QLatin1Char('&'))
            return text.at(i + 1).toUpper();
        ++i;
    }
    return QChar();
}

QStringList AcceleratorCheck::clashes(QWidget *window)
{
    QMap<QChar, QStringList> texts;
    QStringList mismatches;
    const auto add = [&texts](const QString &text) {
        const QChar key = letter(text);
        if (!key.isNull())
            texts[key] << text;
    };
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!widget->isVisibleTo(window) || widget->isWindow())
            continue;
        if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
            // A form may give a button a shortcut of its own in place of its mnemonic.
            const int key = button->shortcut().isEmpty() ? 0 : button->shortcut()[0];
            const QChar shortcut = QChar(key & ~Qt::KeyboardModifierMask).toUpper();
            const QChar shown = letter(button->text());
            if (!(key & Qt::AltModifier))
                add(button->text());
            else if (!shown.isNull() && shown != shortcut)
                mismatches << QStringLiteral("Alt+%1: %2 underlines %3")
                                  .arg(shortcut, button->text(), shown);
            else
                texts[shortcut] << button->text();
        } else if (auto *label = qobject_cast<QLabel *>(widget); label && label->buddy())
            add(label->text());
        else if (auto *box = qobject_cast<QGroupBox *>(widget))
            add(box->title());
        else if (auto *tabs = qobject_cast<QTabBar *>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                add(tabs->tabText(i));
    }
    QStringList lines;
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        if (it.value().size() > 1)
            lines
                << QStringLiteral("Alt+%1: %2").arg(it.key(), it.value().join(QLatin1String(", ")));
    }
    return lines + mismatches;
}
