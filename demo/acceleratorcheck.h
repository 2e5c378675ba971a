#ifndef ACCELERATORCHECK_H
#define ACCELERATORCHECK_H

#include <QChar>
#include <QString>
#include <QStringList>

class QWidget;

// Finds Alt letters that two controls of what a window shows right now both
// claim: buttons, labels with a buddy, group boxes and tab titles. Alt then
// reaches only one of them.
class AcceleratorCheck
{
public:
    // "&&" is a literal ampersand; returns a null QChar when there is none.
    static QChar letter(const QString &text);
    // One line per letter used twice: "Alt+S: &Standard, &Save", and one per
    // button whose shortcut is not the letter its text underlines.
    static QStringList clashes(QWidget *window);
};

#endif // ACCELERATORCHECK_H
