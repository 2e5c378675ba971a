#ifndef DEMOWINDOW_H
#define DEMOWINDOW_H

#include "moduleloader.h"

#include <QMainWindow>
#include <QPersistentModelIndex>
#include <QStringList>

class DemoOptions;
class LogWindow;
class QAction;
class QLabel;
class QToolButton;
class ModuleInterface;
namespace sim
{
class SimulatedController;
}
class SimulatorLogModel;
class StandInModules;

// The host: a simulated controller, the module loaded from its plug-in with
// the host's services handed over, the module's menus merged into the menu
// bar, and the controller log with its console in a window of their own.
class DemoWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit DemoWindow(const DemoOptions &options, QWidget *parent = nullptr);
    ~DemoWindow() override;

    sim::SimulatedController *controller() const { return m_controller; }
    SimulatorLogModel *logModel() const { return m_logModel; }
    StandInModules *standIns() const { return m_standIns; }
    LogWindow *logWindow() const { return m_logWindow; }
    // The actions of the module's menu entries, in menu order.
    QList<QAction *> moduleActions() const { return m_moduleActions; }
    // Null when the plug-in did not load; loadError() then says why.
    ModuleInterface *module() const { return m_loader.module(); }
    QString loadError() const { return m_loader.errorString(); }
    QStringList scenarioErrors() const { return m_scenarioErrors; }

    // A console line for the controller; a bad one is logged as failed.
    void takeLine(const QString &line);
    bool saveScenario(const QString &fileName, QString *error) const;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void loadScenario(const DemoOptions &options);
    void loadModule(const QString &pluginPath, bool observer);
    void buildMenus();
    QWidget *createCentralPage(bool observer);
    void reportProblem(const QString &operation, const QString &text);
    void showAbout();
    void showReport(const QString &text, const QModelIndex &index);
    // The lock and the scenario's note follow the controller.
    void updateStatus();
    void saveLogAs();
    void saveScenarioAs();

    sim::SimulatedController *m_controller;
    SimulatorLogModel *m_logModel;
    LogWindow *m_logWindow;
    QList<QAction *> m_moduleActions;
    StandInModules *m_standIns;
    ModuleLoader m_loader;
    QString m_scenarioFile;
    QStringList m_scenarioErrors;
    QLabel *m_note;
    QLabel *m_locked;
    QToolButton *m_report;
    QPersistentModelIndex m_reportIndex;
};

#endif // DEMOWINDOW_H
