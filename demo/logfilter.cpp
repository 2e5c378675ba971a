#include "logfilter.h"
#include "simulatorlogmodel.h"

LogFilter::LogFilter(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setFilterKeyColumn(-1);
}

void LogFilter::setShow(Show show)
{
    m_show = show;
    invalidateFilter();
}

void LogFilter::setHidePolling(bool hide)
{
    m_hidePolling = hide;
    invalidateFilter();
}

bool LogFilter::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    if (m_hidePolling && index.data(SimulatorLogModel::PollingRole).toBool())
        return false;
    const int kind = index.data(SimulatorLogModel::KindRole).toInt();
    const bool accepted = m_show == All || (m_show == Calls && kind == SimulatorLogModel::Call)
        || (m_show == Messages && kind == SimulatorLogModel::Message)
        || (m_show == Failures && index.data(SimulatorLogModel::FailureRole).toBool());
    return accepted && QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent);
}
