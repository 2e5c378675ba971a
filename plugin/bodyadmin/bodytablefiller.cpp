#include "bodytablefiller.h"

#include "bodyloader.h"
#include "celltooltips.h"
#include "commandchannel.h"

#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTableWidget>

namespace
{

// The column that stretches once the tab has laid the table out; without it
// the last section stretches, as the table was set up.
const char *const StretchColumn = "trackingStretchColumn";

} // namespace

struct BodyTableFiller::Icons {
    QIcon green { QStringLiteral(":/green.png") };
    QIcon yellow { QStringLiteral(":/yellow.png") };
    QIcon red { QStringLiteral(":/red.png") };
    QIcon remove { QStringLiteral(":/118.png") };
    QIcon reset { QStringLiteral(":/48.png") };
    // Drawn once: every unusable row shows them.
    QIcon redDisabled = disabledLook(red);
    QIcon removeDisabled = disabledLook(remove);
    QIcon resetDisabled = disabledLook(reset);

    // Pixmaps may not outlive the application: they go with it, and the
    // next application decodes them again.
    static Icons *shared;
    static void release()
    {
        delete shared;
        shared = nullptr;
    }
};

BodyTableFiller::Icons *BodyTableFiller::Icons::shared = nullptr;

const BodyTableFiller::Icons &BodyTableFiller::icons()
{
    if (!Icons::shared) {
        Icons::shared = new Icons;
        qAddPostRoutine(Icons::release);
    }
    return *Icons::shared;
}

// What decides whether a body's inertial sensor can be reset; asked once for
// each fill of a table.
struct BodyTableFiller::InertialState {
    bool available = false;
    bool warmingUp = false;
};

BodyTableFiller::BodyTableFiller(const CommandChannel &channel)
    : m_channel(channel)
    , m_icons(icons())
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
    // Filling is not editing: no itemChanged may reach the controller. The
    // columns are measured once, after the last cell, not for every cell.
    const QSignalBlocker blocker(table);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->setColumnCount(entry.columnRoles.size());
    table->setRowCount(entry.bodies.size());
    const InertialState inertial = inertialState();
    for (int row = 0; row < entry.bodies.size(); ++row) {
        for (int column = 0; column < entry.columnRoles.size(); ++column) {
            const int role = entry.columnRoles.at(column);
            QTableWidgetItem *item = cell(entry, row, role, inertial);
            if (role < IdColumn || role > ResetColumn)
                extraColumn(row, column, item);
            table->setItem(row, column, item);
        }
    }
    applyHeaderModes(table);
}

QTableWidgetItem *BodyTableFiller::cell(
    const BodyTypeEntry &entry, int index, int role, const InertialState &inertial) const
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
            item->setIcon(m_icons.redDisabled);
        else if (body.hasInertialSensor() && !body.hybridCalibrated)
            item->setIcon(m_icons.yellow);
        else
            item->setIcon(m_icons.green);
        break;
    case FilterColumn:
        item->setText(body.filterText);
        break;
    case DeleteColumn:
        usable(m_icons.remove, m_icons.removeDisabled, body.calibrated || body.hasInertialSensor());
        break;
    case ResetColumn:
        usable(m_icons.reset, m_icons.resetDisabled,
            (!body.targetLibraryName.isEmpty() && body.recalibrated)
                || sensorResetUsable(body, inertial));
        break;
    default:
        break;
    }
    // Set before the item joins the table: a tip set afterwards is a change
    // the view hears, cell by cell.
    const QString tip = CellToolTips::of(body, role, item->data(UsableRole).toInt() == 1);
    if (!tip.isEmpty())
        item->setToolTip(tip);
    return item;
}

BodyTableFiller::InertialState BodyTableFiller::inertialState() const
{
    InertialState inertial;
    if (!m_channel.atLeast(1, 12))
        return inertial;
    QString reply;
    if (m_channel.getString(QStringLiteral("inertial available"), &reply) != 0)
        m_channel.report(QStringLiteral("Error: Unable to get info inertial tracking available"));
    inertial.available = CommandText::isYes(reply);
    inertial.warmingUp = CommandText::isYes(m_channel.stringOf(QStringLiteral("inertial warmup")));
    return inertial;
}

bool BodyTableFiller::sensorResetUsable(const BodyRecord &body, const InertialState &inertial)
{
    return body.hasInertialSensor() && inertial.available && !inertial.warmingUp;
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
    // Tab goes on to the next control, not through every cell.
    table->setTabKeyNavigation(false);
}

void BodyTableFiller::stretchColumn(QTableWidget *table, int column)
{
    table->setProperty(StretchColumn, column);
    applyHeaderModes(table);
}

void BodyTableFiller::applyHeaderModes(QTableWidget *table)
{
    QHeaderView *header = table->horizontalHeader();
    bool stretching = false;
    const int stretch = table->property(StretchColumn).toInt(&stretching);
    if (!stretching) {
        header->setSectionResizeMode(QHeaderView::Interactive);
        header->setStretchLastSection(true);
        return;
    }
    header->setStretchLastSection(false);
    // The stretched column is never squeezed below its contents ("Room
    // ref…"): where the others leave too little room, it fits its contents
    // too and the table scrolls. The others' contents are measured once, by
    // the header sizing them (now, not later), and read back from it: a
    // measurement of our own would walk every row of every column again.
    const auto setMode = [header](int column, QHeaderView::ResizeMode mode) {
        // A mode set again has the header measure every column once more.
        if (header->sectionResizeMode(column) != mode)
            header->setSectionResizeMode(column, mode);
    };
    // Until measured, the stretched column keeps what it had; a column
    // number beyond the table leaves every column to its contents.
    const bool inTable = stretch < header->count();
    const bool squeezed
        = !inTable || header->sectionResizeMode(stretch) == QHeaderView::ResizeToContents;
    for (int c = 0; c < header->count(); ++c)
        setMode(c, c != stretch || squeezed ? QHeaderView::ResizeToContents : QHeaderView::Stretch);
    if (!inTable)
        return;
    const int room = table->viewport()->width() - header->length() + header->sectionSize(stretch);
    const QAbstractItemView *view = table;
    const int content = qMax(header->sectionSizeHint(stretch), view->sizeHintForColumn(stretch));
    setMode(stretch, room < content ? QHeaderView::ResizeToContents : QHeaderView::Stretch);
}

void BodyTableFiller::showMaximumReached(
    QLabel *label, const QSpinBox *spinBox, const QString &text)
{
    label->setText(spinBox->value() >= spinBox->maximum() ? text : QString());
}
