#include "bodytablefiller.h"

#include "bodyloader.h"
#include "commandchannel.h"

#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTableWidget>

// "inertial available" and "inertial warmup" are asked at most once per
// table refresh, and only when a row needs them.
namespace
{

// The column that takes the room left; set by stretchColumn.
const char *const StretchColumn = "trackingStretchColumn";
// A stretched column squeezed below its contents would show "B…": it keeps
// the width of this many characters at least, and the table scrolls.
constexpr int StretchMinimumCharacters = 30;

} // namespace

struct BodyTableFiller::InertialState {
    bool asked = false;
    bool available = false;
    bool warmingUp = false;
};

BodyTableFiller::BodyTableFiller(const CommandChannel &channel)
    : m_channel(channel)
    , m_green(QStringLiteral(":/green.png"))
    , m_yellow(QStringLiteral(":/yellow.png"))
    , m_red(QStringLiteral(":/red.png"))
    , m_delete(QStringLiteral(":/118.png"))
    , m_reset(QStringLiteral(":/48.png"))
    , m_redDisabled(disabledLook(m_red))
    , m_deleteDisabled(disabledLook(m_delete))
    , m_resetDisabled(disabledLook(m_reset))
{
}

QIcon BodyTableFiller::disabledLook(const QIcon &icon)
{
    const QList<QSize> sizes = icon.availableSizes();
    if (sizes.isEmpty())
        return QIcon();
    return QIcon(icon.pixmap(sizes.first(), QIcon::Disabled));
}

void BodyTableFiller::fill(const BodyTypeEntry &entry, const ExtraColumnFiller &extraColumn) const
{
    QTableWidget *table = entry.table;
    if (!table)
        return;
    // Filling is not editing: no itemChanged may reach the controller.
    const QSignalBlocker blocker(table);
    table->setColumnCount(entry.columnRoles.size());
    table->setRowCount(entry.bodies.size());
    InertialState inertial;
    for (int row = 0; row < entry.bodies.size(); ++row) {
        for (int column = 0; column < entry.columnRoles.size(); ++column) {
            const int role = entry.columnRoles.at(column);
            QTableWidgetItem *item = cell(entry, row, role, inertial);
            if (role < IdColumn || role > ResetColumn)
                extraColumn(row, column, item);
            table->setItem(row, column, item);
        }
    }
    fitColumns(table);
}

QTableWidgetItem *BodyTableFiller::cell(
    const BodyTypeEntry &entry, int index, int role, InertialState &inertial) const
{
    const BodyRecord &body = entry.bodies.at(index);
    auto *item = new QTableWidgetItem;
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    const auto checkable = [item](bool checked) {
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
        item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    };
    const auto usable = [item](const QIcon &icon, const QIcon &disabled, bool isUsable) {
        item->setIcon(isUsable ? icon : disabled);
        item->setData(UsableRole, isUsable ? 1 : 0);
    };

    switch (role) {
    case IdColumn:
        item->setText(entry.idFormat.arg(index + 1));
        break;
    case ActiveColumn:
        if (body.calibrated || body.active)
            checkable(body.active);
        break;
    case ReferenceColumn:
        if (body.calibrated || body.active)
            checkable(body.isReference);
        break;
    case NameColumn:
        item->setText(body.description);
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled);
        break;
    case CalibrationColumn:
        item->setText(BodyLoader::displayedCalibrationText(body));
        item->setFlags(Qt::ItemIsEnabled);
        if (!body.calibrated)
            item->setIcon(m_redDisabled);
        else if (body.hasInertialSensor() && !body.hybridCalibrated)
            item->setIcon(m_yellow);
        else
            item->setIcon(m_green);
        break;
    case FilterColumn:
        item->setText(body.filterText);
        break;
    case DeleteColumn:
        usable(m_delete, m_deleteDisabled, body.calibrated || body.hasInertialSensor());
        break;
    case ResetColumn:
        usable(m_reset, m_resetDisabled,
            (!body.targetLibraryName.isEmpty() && body.recalibrated)
                || sensorResetUsable(body, inertial));
        break;
    default:
        break;
    }
    return item;
}

bool BodyTableFiller::sensorResetUsable(const BodyRecord &body, InertialState &inertial) const
{
    if (!body.hasInertialSensor() || !m_channel.atLeast(1, 12))
        return false;
    if (!inertial.asked) {
        inertial.asked = true;
        QString reply;
        if (m_channel.getString(QStringLiteral("inertial available"), &reply) != 0)
            m_channel.report(tr("Error: Unable to get info inertial tracking available"));
        inertial.available = CommandText::isYes(reply);
        inertial.warmingUp
            = CommandText::isYes(m_channel.stringOf(QStringLiteral("inertial warmup")));
    }
    return inertial.available && !inertial.warmingUp;
}

void BodyTableFiller::setUp(QTableWidget *table, const QStringList &headers)
{
    table->setRowCount(0);
    table->setColumnCount(headers.size());
    table->setHorizontalHeaderLabels(headers);
    table->horizontalHeader()->setSectionsClickable(false);
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->hide();
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void BodyTableFiller::stretchColumn(QTableWidget *table, int column)
{
    // Columns sized by the header itself would be measured again over all
    // rows for every cell a fill sets; they are sized once per fill instead.
    QHeaderView *header = table->horizontalHeader();
    header->setStretchLastSection(false);
    for (int c = 0; c < header->count(); ++c) {
        if (c != column)
            header->setSectionResizeMode(c, QHeaderView::Fixed);
    }
    table->setProperty(StretchColumn, column);
    fitColumns(table);
}

void BodyTableFiller::fitColumns(QTableWidget *table)
{
    bool stretching = false;
    const int stretch = table->property(StretchColumn).toInt(&stretching);
    if (!stretching)
        return;
    QHeaderView *header = table->horizontalHeader();
    // The table's own measure of a column (protected in QTableView only).
    const QAbstractItemView *view = table;
    const auto contentWidth = [view, header](int column) {
        return qMax(header->sectionSizeHint(column), view->sizeHintForColumn(column));
    };
    int others = 0;
    for (int c = 0; c < header->count(); ++c) {
        if (c == stretch || header->isSectionHidden(c))
            continue;
        header->resizeSection(c, contentWidth(c));
        others += header->sectionSize(c);
    }
    if (stretch >= header->count())
        return;
    const int minimum = qMin(
        contentWidth(stretch), table->fontMetrics().averageCharWidth() * StretchMinimumCharacters);
    if (table->viewport()->width() - others >= minimum) {
        header->setSectionResizeMode(stretch, QHeaderView::Stretch);
    } else {
        header->setSectionResizeMode(stretch, QHeaderView::Interactive);
        header->resizeSection(stretch, minimum);
    }
}

void BodyTableFiller::showMaximumReached(
    QLabel *label, const QSpinBox *spinBox, const QString &text)
{
    label->setText(spinBox->value() >= spinBox->maximum() ? text : QString());
}
