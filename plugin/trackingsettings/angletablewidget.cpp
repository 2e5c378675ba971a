#include "angletablewidget.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <cmath>

AngleTableWidget::AngleTableWidget(QWidget *parent)
    : QTableWidget(parent)
{
    connect(this, &QTableWidget::cellDoubleClicked, this, &AngleTableWidget::click_cell);
    connect(this, &QTableWidget::cellChanged, this, &AngleTableWidget::changed_cell);

    setColumnCount(ColumnCount);
    setHorizontalHeaderLabels({ tr("ID"), tr("Name"), tr("rx"), tr("ry"), tr("rz") });
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->hide();
    // Names are one line; a long one is elided rather than making its row tall.
    setWordWrap(false);
}

void AngleTableWidget::fill(const QList<FixedAngle> &records)
{
    // The controller's values are shown as they are, not re-checked.
    const QSignalBlocker blocker(this);
    clearContents();
    setRowCount(records.size());
    for (int row = 0; row < records.size(); ++row) {
        const FixedAngle &record = records.at(row);
        QList<QTableWidgetItem *> items;
        items << new QTableWidgetItem(QString::number(record.id))
              << new QTableWidgetItem(record.name);
        const bool held[] = { record.fixX, record.fixY, record.fixZ };
        const double angle[] = { record.angleX, record.angleY, record.angleZ };
        for (int axis = 0; axis < 3; ++axis) {
            if (record.usable) {
                auto *item = new QTableWidgetItem(angleText(angle[axis]));
                item->setCheckState(held[axis] ? Qt::Checked : Qt::Unchecked);
                items << item;
            } else {
                items << new QTableWidgetItem(QStringLiteral("0.0"));
            }
        }
        for (int column = 0; column < items.size(); ++column) {
            QTableWidgetItem *item = items.at(column);
            if (!record.usable) {
                item->setForeground(QColor(Qt::lightGray));
                item->setFlags(Qt::ItemIsSelectable);
            } else if (!isAngleColumn(column)) {
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            }
            setItem(row, column, item);
        }
    }
    resizeRowsToContents();
}

QString AngleTableWidget::angleText(double angle)
{
    return QString::asprintf("%1.2f", double(float(angle)));
}

bool AngleTableWidget::parseAngle(const QString &text, double *angle)
{
    bool ok = false;
    *angle = text.toDouble(&ok);
    return ok && std::isfinite(*angle);
}

void AngleTableWidget::click_cell(int row, int column)
{
    if (rowCount() == 0 || isAngleColumn(column))
        return;
    if (QTableWidgetItem *clicked = item(row, column))
        clicked->setFlags(clicked->flags() & ~Qt::ItemIsEditable);
}

void AngleTableWidget::changed_cell(int row, int column)
{
    QTableWidgetItem *changed = item(row, column);
    if (column <= NameColumn || !changed)
        return;
    double angle = 0.0;
    const bool valid
        = parseAngle(changed->text(), &angle) && angle >= -MaxAngle && angle <= MaxAngle;
    // Rewriting the text changes the cell again; the second pass finds it
    // already formatted and stops there.
    const QString text = valid ? angleText(angle) : QStringLiteral("0.00");
    if (changed->text() != text)
        changed->setText(text);
}
