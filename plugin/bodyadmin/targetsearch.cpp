#include "targetsearch.h"

#include "bodytypeadministrationtab.h"
#include "commandchannel.h"
#include "target.h"
#include "targetstatus.h"

#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

#include <algorithm>

TargetSearch::TargetSearch(
    BodyTypeAdministrationTab *tab, const CommandChannel &channel, const TargetStatus &status)
    : QObject(tab)
    , m_tab(tab)
    , m_channel(channel)
    , m_status(status)
{
    m_measurementTimer.setInterval(MeasurementInterval);
    m_statusTimer.setInterval(StatusInterval);
}

TargetSearch::Widgets TargetSearch::Widgets::ofForm(const QWidget *form)
{
    Widgets widgets;
    widgets.start = form->findChild<QPushButton *>(QStringLiteral("pushButton_start"));
    widgets.stop = form->findChild<QPushButton *>(QStringLiteral("pushButton_stop"));
    widgets.select = form->findChild<QPushButton *>(QStringLiteral("pushButton_select"));
    widgets.deselect = form->findChild<QPushButton *>(QStringLiteral("pushButton_deselect"));
    widgets.progressBar = form->findChild<QProgressBar *>(QStringLiteral("progressBar"));
    widgets.resultLabel = form->findChild<QLabel *>(QStringLiteral("label_targetlibrary"));
    widgets.targetTable
        = form->findChild<QTableWidget *>(QStringLiteral("tableWidget_targetlibrary"));
    widgets.categoryCombo = form->findChild<QComboBox *>(QStringLiteral("comboBox_filter"));
    return widgets;
}

void TargetSearch::setWidgets(const Widgets &widgets)
{
    m_widgets = widgets;
    // Idle: Start on, Stop off.
    if (m_widgets.stop)
        m_widgets.stop->setEnabled(false);
    if (m_widgets.targetTable)
        TargetStatus::setUpTable(m_widgets.targetTable);
}

void TargetSearch::startStatusTimer()
{
    m_statusTimer.start(StatusInterval);
    m_statusTimerId = m_statusTimer.timerId();
}

void TargetSearch::stopStatusTimer()
{
    m_statusTimer.stop();
    m_statusTimerId = -1;
}

void TargetSearch::startMeasurementTimer()
{
    m_measurementTimer.start(MeasurementInterval);
    m_measurementTimerId = m_measurementTimer.timerId();
}

void TargetSearch::stopMeasurementTimer()
{
    m_measurementTimer.stop();
    m_measurementTimerId = -1;
}

void TargetSearch::stopTimers()
{
    if (m_measurementTimerId != -1)
        stopMeasurementTimer();
    if (m_statusTimerId != -1)
        stopStatusTimer();
}

void TargetSearch::fillTargetTable(const QString &group) const
{
    if (m_widgets.targetTable)
        m_status.fillTable(m_widgets.targetTable, m_widgets.targetType, group);
}

void TargetSearch::announce(int count)
{
    QString text;
    if (count < 1)
        text = tr("No targets could be identified in library");
    else if (count == 1)
        text = tr("One target could be identified in library");
    else
        text = tr("%1 targets could be identified in library").arg(count);
    QMessageBox::information(m_tab, tr("VELORA4"), text, QMessageBox::Ok);
}

void TargetSearch::start()
{
    // A search shows what it finds.
    QComboBox *combo = m_widgets.categoryCombo;
    if (combo && combo->currentText() != TargetStatus::FoundTargets)
        combo->setCurrentIndex(combo->findText(TargetStatus::FoundTargets));

    const QString refused = QStringLiteral("Error: Unable to start target library calibration");
    QString available;
    if (m_channel.getString(QStringLiteral("cal available targetlib"), &available) != 0) {
        m_channel.report(refused);
        return;
    }
    if (!CommandText::isYes(available)) {
        m_channel.report(refused + QStringLiteral(". Calibration type is not available"));
        return;
    }
    QString active;
    if (m_channel.getString(QStringLiteral("status active"), &active) != 0) {
        m_channel.report(refused);
        return;
    }
    if (!CommandText::isNone(active) && active != QLatin1String("err")) {
        m_channel.report(refused + QStringLiteral(". Calibration is already active."));
        return;
    }

    m_widgets.start->setEnabled(false);
    m_widgets.stop->setEnabled(true);
    m_tab->assignment.applyRules(m_widgets.deselectColumnAtStart);
    m_tab->setSearchControlsEnabled(false);
    stopMeasurementTimer();
    stopStatusTimer();
    if (m_channel.sendMetaCommand(QStringLiteral("velora2 cal targetlib start")) != 0) {
        // Stop and the locked controls stay as they are until the next refresh.
        m_channel.report(refused);
        m_widgets.start->setEnabled(true);
        startStatusTimer();
        return;
    }

    m_channel.report(QStringLiteral("target library calibration started"));
    const QList<Target *> found
        = m_status.targetsOf(m_widgets.targetType, TargetStatus::FoundTargets);
    for (const Target *target : found) {
        if (target->calibrated)
            m_channel.report(QStringLiteral("%1 already calibrated").arg(target->name));
    }
    if (m_widgets.progressBar)
        m_widgets.progressBar->setValue(0);
    startMeasurementTimer();
}

void TargetSearch::measurementStep()
{
    QString step;
    if (m_channel.getString(QStringLiteral("status step_active"), &step) != 0) {
        stopMeasurementTimer();
        m_channel.report(
            QStringLiteral("Error during target library calibration. Calibration aborted"));
        m_widgets.start->setEnabled(true);
        m_widgets.stop->setEnabled(false);
        startStatusTimer();
        return;
    }
    if (step.startsWith(QLatin1String("cal"))) {
        double progress = 0.0;
        if (m_channel.getDouble(QStringLiteral("status progress"), &progress) == 0
            && m_widgets.progressBar)
            m_widgets.progressBar->setValue(CommandText::truncated(progress * 100));
        statusStep();
        return;
    }

    stopMeasurementTimer();
    m_channel.report(QStringLiteral("target library calibration stopped"));
    if (m_widgets.progressBar)
        m_widgets.progressBar->setValue(m_widgets.progressBar->maximum());
    if (m_widgets.recountAtEnd) {
        stopStatusTimer();
        m_status.refreshTracked(m_widgets.targetType);
        m_foundTargets
            = m_status.targetsOf(m_widgets.targetType, TargetStatus::FoundTargets).size();
    }
    finishSearch(m_widgets.recountAtEnd);
}

void TargetSearch::stop()
{
    stopMeasurementTimer();
    if (m_widgets.progressBar)
        m_widgets.progressBar->setValue(0);
    m_channel.sendCommand(QStringLiteral("velora2 cal targetlib stop"));
    m_channel.report(QStringLiteral("target library calibration cancelled"));
    // Stopped by the user: the tab is usable again before the result shows.
    restoreIdleControls(true);
    announceResult();
    startStatusTimer();
}

void TargetSearch::finishSearch(bool enableControls)
{
    announceResult();
    restoreIdleControls(enableControls);
    startStatusTimer();
}

void TargetSearch::announceResult()
{
    if (m_widgets.resultLabel)
        m_widgets.resultLabel->clear();
    announce(m_foundTargets);
}

void TargetSearch::restoreIdleControls(bool enableControls)
{
    m_widgets.start->setEnabled(true);
    m_widgets.stop->setEnabled(false);
    m_tab->applySelectionRules();
    if (enableControls)
        m_tab->setSearchControlsEnabled(true);
}

void TargetSearch::statusStep()
{
    QTableWidget *table = m_widgets.targetTable;
    if (!table)
        return;
    const int targetRow = table->currentRow();
    // A table showing the found targets follows the search; a category's
    // table only changes colour.
    if (m_widgets.categoryCombo
        && m_widgets.categoryCombo->currentText().startsWith(TargetStatus::FoundTargets)) {
        m_status.refreshTracked(m_widgets.targetType);
        fillTargetTable(TargetStatus::FoundTargets);
    }
    m_status.showTracked(table);
    showCounts();
    table->setCurrentCell(targetRow, 0);
}

void TargetSearch::showCounts()
{
    const QList<Target *> found
        = m_status.targetsOf(m_widgets.targetType, TargetStatus::FoundTargets);
    m_foundTargets = found.size();
    const int calibrated = int(
        std::count_if(found.cbegin(), found.cend(), [](const Target *t) { return t->calibrated; }));
    if (!m_widgets.resultLabel)
        return;
    const int progress = m_widgets.progressBar ? m_widgets.progressBar->value() : 0;
    // Clearing an empty label still has the page laid out and the whole
    // dialog painted again, at every idle tick.
    if (progress < 1 || progress >= 100) {
        if (!m_widgets.resultLabel->text().isEmpty())
            m_widgets.resultLabel->clear();
    } else
        m_widgets.resultLabel->setText(
            tr("found targets: %1, already calibrated: %2").arg(m_foundTargets).arg(calibrated));
}
