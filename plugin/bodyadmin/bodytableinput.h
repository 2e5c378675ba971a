#ifndef TRACKING_BODYTABLEINPUT_H
#define TRACKING_BODYTABLEINPUT_H

#include <QObject>

class BodyTypeAdministrationTab;
class QTableWidget;
class QTableWidgetItem;
struct BodyTypeEntry;

// What the operator does in a tab's body tables and count boxes, with the
// mouse or the keyboard: a click runs the action of its cell's column, and
// each key does what the mouse would do there.
class BodyTableInput : public QObject
{
    Q_OBJECT

public:
    explicit BodyTableInput(BodyTypeAdministrationTab *tab);

    // A click anywhere in a cell, on its check box or beside it.
    void click(QTableWidget *table, int row, int column);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void act(const QString &type, int row, int role, const QTableWidgetItem *item);
    bool pressCheckCell(QTableWidget *table, const BodyTypeEntry &entry);
    bool tableKey(QTableWidget *table, int key);

    BodyTypeAdministrationTab *m_tab;
};

#endif // TRACKING_BODYTABLEINPUT_H
