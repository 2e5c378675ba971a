#include "logwindow.h"
#include "consoleline.h"
#include "logfilter.h"
#include "simulatorlogmodel.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>
#include <QWindow>

LogWindow::LogWindow(SimulatorLogModel *model, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_model(model)
    , m_filter(new LogFilter(this))
    , m_view(new QTableView)
    , m_find(new QLineEdit)
    , m_show(new QComboBox)
    , m_hidePolling(new QCheckBox(tr("Hide &polling")))
    , m_console(new ConsoleLine)
    , m_count(new QLabel)
{
    setObjectName(QStringLiteral("controller-log"));
    setWindowTitle(tr("Controller log"));
    m_filter->setSourceModel(model);

    m_view->setModel(m_filter);
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
    // Never narrower than the title, which a translation may lengthen.
    const auto size = [columns, character](int column, int characters) {
        columns->resizeSection(
            column, qMax(characters * character, columns->sectionSizeHint(column)));
    };
    size(SimulatorLogModel::TimeColumn, 14);
    size(SimulatorLogModel::OperationColumn, 19);
    size(SimulatorLogModel::ReplyColumn, 22);
    size(SimulatorLogModel::ResultColumn, 8);

    m_find->setClearButtonEnabled(true);
    m_find->setPlaceholderText(tr("text in any column"));
    connect(m_find, &QLineEdit::textChanged, m_filter, &LogFilter::setFilterFixedString);
    m_show->addItems({ tr("everything"), tr("calls"), tr("messages"), tr("failures") });
    connect(m_show, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        [this](int index) { m_filter->setShow(LogFilter::Show(index)); });
    m_hidePolling->setChecked(m_filter->hidesPolling());
    m_hidePolling->setToolTip(tr("Hide the reads the module repeats on a timer (status active, "
                                 "status step_active, status progress, target_status_tracked) "
                                 "while they succeed"));
    connect(m_hidePolling, &QCheckBox::toggled, m_filter, &LogFilter::setHidePolling);
    m_console->setObjectName(QStringLiteral("console"));
    m_console->setPlaceholderText(
        tr("a scenario line: config is_changeable = no, @fail status step_active, ..."));
    m_console->setToolTip(tr("The simulated controller takes the line as if it stood in its "
                             "scenario; @unfail * lifts every @fail. Up and Down recall earlier "
                             "lines."));
    connect(m_console, &ConsoleLine::lineEntered, this, &LogWindow::lineEntered);

    auto *save = new QPushButton(tr("Sa&ve log..."));
    save->setToolTip(tr("Write the whole log to a text file"));
    connect(save, &QPushButton::clicked, this, &LogWindow::saveRequested);
    auto *clear = new QPushButton(tr("C&lear"));
    clear->setToolTip(tr("Forget every exchange logged so far"));
    connect(clear, &QPushButton::clicked, this, &LogWindow::clearRequested);

    auto *filters = new QHBoxLayout;
    auto *findLabel = new QLabel(tr("&Find:"));
    findLabel->setBuddy(m_find);
    auto *showLabel = new QLabel(tr("S&how:"));
    showLabel->setBuddy(m_show);
    filters->addWidget(findLabel);
    filters->addWidget(m_find, 1);
    filters->addWidget(showLabel);
    filters->addWidget(m_show);
    filters->addWidget(m_hidePolling);
    filters->addWidget(m_count);
    auto *bottom = new QHBoxLayout;
    auto *consoleLabel = new QLabel(tr("&Controller:"));
    consoleLabel->setBuddy(m_console);
    bottom->addWidget(consoleLabel);
    bottom->addWidget(m_console, 1);
    bottom->addWidget(save);
    bottom->addWidget(clear);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(filters);
    layout->addWidget(m_view);
    layout->addLayout(bottom);

    // Following ends when the user leaves the bottom and resumes when he
    // returns there; a growing range alone keeps the view at the bottom.
    QScrollBar *bar = m_view->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this,
        [this, bar](int value) { m_following = value == bar->maximum(); });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int, int maximum) {
        if (m_following)
            bar->setValue(maximum);
    });
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, &LogWindow::updateCount);
    connect(m_filter, &QAbstractItemModel::rowsRemoved, this, &LogWindow::updateCount);
    connect(m_filter, &QAbstractItemModel::modelReset, this, &LogWindow::updateCount);
    connect(m_filter, &QAbstractItemModel::layoutChanged, this, &LogWindow::updateCount);
    updateCount();
    resize(1000, 380);
    qApp->installEventFilter(this);
}

bool LogWindow::eventFilter(QObject *watched, QEvent *event)
{
    // Show comes before the dialog's window is made visible, which is when
    // Qt decides which windows the dialog blocks.
    if ((event->type() == QEvent::Show || event->type() == QEvent::Hide) && watched != this
        && watched->isWidgetType()) {
        auto *widget = static_cast<QWidget *>(watched);
        if (!widget->isWindow() || !widget->isModal())
            return QWidget::eventFilter(watched, event);
        // A dialog of our own (saving the log) is our transient child already;
        // following it would make the two each other's parent.
        for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
            if (parent == this)
                return QWidget::eventFilter(watched, event);
        }
        followModal(event->type() == QEvent::Show ? widget : QApplication::activeModalWidget());
    }
    return QWidget::eventFilter(watched, event);
}

void LogWindow::followModal(QWidget *modal)
{
    if (!windowHandle())
        create();
    windowHandle()->setTransientParent(modal ? modal->windowHandle() : nullptr);
}

void LogWindow::showEntry(const QModelIndex &sourceIndex)
{
    if (!m_filter->mapFromSource(sourceIndex).isValid()) {
        m_find->clear();
        m_show->setCurrentIndex(LogFilter::All);
    }
    const QModelIndex shown = m_filter->mapFromSource(sourceIndex);
    m_view->setCurrentIndex(shown);
    m_view->scrollTo(shown);
    show();
    raise();
    activateWindow();
}

void LogWindow::updateCount()
{
    m_count->setText(tr("%1 of %2 entries").arg(m_filter->rowCount()).arg(m_model->rowCount()));
}
