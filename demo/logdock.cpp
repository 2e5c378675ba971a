#include "logdock.h"
#include "simulatorlogmodel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

LogDock::LogDock(SimulatorLogModel *model, QWidget *parent)
    : QDockWidget(tr("Controller log"), parent)
    , m_model(model)
    , m_view(new QTableView)
    , m_count(new QLabel)
{
    setObjectName(QStringLiteral("controllerLogDock"));

    m_view->setModel(model);
    m_view->setWordWrap(false);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    // Fixed row heights and column widths: sizing to contents would visit
    // every row on each insert.
    QHeaderView *rows = m_view->verticalHeader();
    rows->hide();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultSectionSize(m_view->fontMetrics().height() + 6);
    QHeaderView *columns = m_view->horizontalHeader();
    columns->setSectionResizeMode(QHeaderView::Interactive);
    columns->setSectionResizeMode(SimulatorLogModel::TextColumn, QHeaderView::Stretch);
    const int character = m_view->fontMetrics().averageCharWidth();
    columns->resizeSection(SimulatorLogModel::OperationColumn, 19 * character);
    columns->resizeSection(SimulatorLogModel::ReplyColumn, 22 * character);
    columns->resizeSection(SimulatorLogModel::ResultColumn, 9 * character);

    auto *clear = new QPushButton(tr("C&lear"));
    clear->setToolTip(tr("Forget every exchange logged so far"));
    connect(clear, &QPushButton::clicked, this, &LogDock::clearRequested);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_count, 1);
    buttons->addWidget(clear);
    auto *body = new QWidget;
    auto *layout = new QVBoxLayout(body);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_view);
    layout->addLayout(buttons);
    setWidget(body);

    connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        const QScrollBar *bar = m_view->verticalScrollBar();
        m_following = bar->value() == bar->maximum();
    });
    connect(model, &QAbstractItemModel::rowsInserted, this, [this] {
        if (m_following)
            m_view->scrollToBottom();
        updateCount();
    });
    connect(model, &QAbstractItemModel::rowsRemoved, this, &LogDock::updateCount);
    connect(model, &QAbstractItemModel::modelReset, this, &LogDock::updateCount);
    updateCount();
}

void LogDock::updateCount()
{
    const int rows = m_model->rowCount();
    m_count->setText(rows == 1 ? tr("1 entry") : tr("%1 entries").arg(rows));
}
