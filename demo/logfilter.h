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
    // Hides the module's successful polling reads; on from the start.
    void setHidePolling(bool hide);
    bool hidesPolling() const { return m_hidePolling; }

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    Show m_show = All;
    bool m_hidePolling = true;
};

#endif // LOGFILTER_H
