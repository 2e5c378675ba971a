#ifndef TESTTAB_H
#define TESTTAB_H

#include "bodytypeadministrationtab.h"

#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

// The smallest tab the framework allows: standard bodies with every column
// role, one tab-specific column and the target search.
class TestTab : public BodyTypeAdministrationTab
{
public:
    enum Column { Id, Active, Reference, Name, Extra, Calibration, Filter, Delete, Reset };

    TestTab(IOManager *io, BackendVersions *versions, Targetlibrary *library)
        : BodyTypeAdministrationTab(io, nullptr, versions, library)
        , table(new QTableWidget(this))
        , spinBox(new QSpinBox(this))
        , start(new QPushButton(this))
        , stop(new QPushButton(this))
        , select(new QPushButton(this))
        , deselect(new QPushButton(this))
        , progressBar(new QProgressBar(this))
        , result(new QLabel(this))
        , targets(new QTableWidget(this))
    {
        addBodyType("standard", table, spinBox,
            { IdColumn, ActiveColumn, ReferenceColumn, NameColumn, ExtraColumn, CalibrationColumn,
                FilterColumn, DeleteColumn, ResetColumn },
            "%1");
        TargetSearch::Widgets widgets;
        widgets.start = start;
        widgets.stop = stop;
        widgets.select = select;
        widgets.deselect = deselect;
        widgets.progressBar = progressBar;
        widgets.resultLabel = result;
        widgets.targetTable = targets;
        widgets.bodyType = "standard";
        widgets.targetType = "standard";
        setSearchWidgets(widgets);
        stop->setEnabled(false);
    }

    bool isTypeAvailable() const override { return true; }
    int currentRow() const override { return table->currentRow(); }
    void updateView() override { ++views; }
    int maxNumberOfBodies(const QString &) override
    {
        int maximum = 4;
        if (channel.getInt("standard max_number_of_bodies", &maximum) != 0)
            maximum = 4;
        return maximum;
    }
    void setNumberOfBodies(const QString &type, int count) override
    {
        channel.setParameter(QString("%1 number_of_bodies %2").arg(type).arg(count));
    }
    void updateExtraColumn(const QString &, int index, int column, QTableWidgetItem *item) override
    {
        item->setText(QString("extra %1/%2").arg(index).arg(column));
    }

    void setReference(int index, bool set) { setReferenceBody("standard", index, set); }
    void startSearch() { targetSearch->start(); }
    void stopSearch() { targetSearch->stop(); }
    void measurementStep() { doMeasurement_tl(); }
    void statusStep() { updateTrackedAndAcceptStatus_tl(); }
    void fillTargets(const QString &group) { fillTargetTable(group); }
    bool assign(int body, int target, const QString &name)
    {
        return confirmOverwrite(name) && assignTarget(body, target);
    }
    void selectBody(const QString &type, int index)
    {
        selectedType = type;
        selectedIndex = index;
    }
    const BodyRecord &body(int index) const { return entry("standard")->bodies.at(index); }

    QTableWidget *table;
    QSpinBox *spinBox;
    QPushButton *start;
    QPushButton *stop;
    QPushButton *select;
    QPushButton *deselect;
    QProgressBar *progressBar;
    QLabel *result;
    QTableWidget *targets;
    int views = 0;
};

#endif // TESTTAB_H
