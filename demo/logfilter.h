#ifndef LOGFILTER_H
#define LOGFILTER_H

#include <QSortFilterProxyModel>

// Narrows the controller log to one kind of row and to rows whose cells
// contain a text (case-insensitive).
class LogFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    enum Show { All, Calls, Messages, Failures };

    explicit LogFilter(QObject *parent = nullptr);

    void setShow(Show show);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    Show m_show = All;
};

#endif // LOGFILTER_H
