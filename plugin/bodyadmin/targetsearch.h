#ifndef TRACKING_TARGETSEARCH_H
#define TRACKING_TARGETSEARCH_H

#include <QCoreApplication>
#include <QObject>
#include <QString>
#include <QTimer>

class BodyTypeAdministrationTab;
class CommandChannel;
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableWidget;
class QWidget;
class TargetStatus;

// The search of the tracking volume for library targets, as every tab runs
// it: Start, a measurement step every 600 ms while the controller searches,
// Stop, and the refresh of the found targets every 603 ms while idle. A tab
// hands over its widgets and says where it differs.
class TargetSearch : public QObject
{
    Q_OBJECT

public:
    static constexpr int MeasurementInterval = 600;
    static constexpr int StatusInterval = 603;

    struct Widgets {
        QPushButton *start = nullptr;
        QPushButton *stop = nullptr;
        QPushButton *select = nullptr;
        QPushButton *deselect = nullptr;
        QProgressBar *progressBar = nullptr;
        QLabel *resultLabel = nullptr;
        QTableWidget *targetTable = nullptr;
        QTableWidget *bodyTable = nullptr; // the bodies that get targets assigned
        QComboBox *categoryCombo = nullptr; // null: the table lists every category
        QString bodyType; // the type whose bodies get targets assigned
        QString targetType; // the body type of the listed library targets
        // The body-table column whose text the Deselect rule tests when a
        // search starts; -1 for the name column. Some tabs test another one.
        int deselectColumnAtStart = -1;
        // Whether the tracked targets are counted again when a search ends,
        // or the count of the last refresh is announced.
        bool recountAtEnd = true;

        // The search widgets of a tab's form, found by their object names
        // (pushButton_start, ..., comboBox_filter where the tab has one).
        static Widgets ofForm(const QWidget *form);
    };

    TargetSearch(
        BodyTypeAdministrationTab *tab, const CommandChannel &channel, const TargetStatus &status);

    void setWidgets(const Widgets &widgets);
    const Widgets &widgets() const { return m_widgets; }
    bool isSearching() const { return m_measurementTimer.isActive(); }
    int foundTargets() const { return m_foundTargets; }

    void start();
    void measurementStep();
    void stop();
    void statusStep();
    void fillTargetTable(const QString &group) const;
    void announce(int count);

    void startStatusTimer();
    void stopStatusTimer();
    void startMeasurementTimer();
    void stopMeasurementTimer();
    // Stops whichever timer runs (the dialog closes).
    void stopTimers();

    QTimer *measurementTimer() { return &m_measurementTimer; }
    QTimer *statusTimer() { return &m_statusTimer; }

private:
    void finishSearch(bool enableControls);
    void announceResult();
    void restoreIdleControls(bool enableControls);
    void showCounts();

    BodyTypeAdministrationTab *m_tab;
    const CommandChannel &m_channel;
    const TargetStatus &m_status;
    Widgets m_widgets;
    int m_foundTargets = 0;
    QTimer m_measurementTimer;
    QTimer m_statusTimer;
    int m_measurementTimerId = -1;
    int m_statusTimerId = -1;
};

#endif // TRACKING_TARGETSEARCH_H
