#ifndef REPLYTARGET_H
#define REPLYTARGET_H

#include "fuzztarget.h"

#include <QTemporaryDir>

#include <memory>

class BodyTypeAdministrationTab;
namespace sim
{
class SimulatedController;
}
struct BodyRecord;

// Controller replies into the module: the input doctors the simulated
// controller (see ReplyPlan), then the target library is loaded, bodies are
// read, the body administration dialog is built, reloaded and opened, each
// tab runs a target search, and the filter and tracking settings dialogs are
// opened. Whatever the replies, every text
// the module keeps must be cleaned of its quotes, body lists stay within
// the ids the controller can name, tables match their lists, commands stay
// one line each, failures are reported as errors, and the number of
// commands stays bounded.
class ReplyTarget : public FuzzTarget
{
public:
    QString name() const override { return QStringLiteral("fuzz_replies"); }
    bool needsWidgets() const override { return true; }
    void setUp() override;
    QList<QByteArray> seeds() const override;
    QList<QByteArray> dictionary() const override;
    QStringList run(const QByteArray &input) override;
    QString knownFault(const QByteArray &input) const override;

private:
    static void checkLibrary(sim::SimulatedController &controller, QStringList *failures);
    static void checkLoader(sim::SimulatedController &controller, QStringList *failures);
    static void checkRecord(const QString &where, const BodyRecord &body, QStringList *failures);
    static void checkTab(int key, const BodyTypeAdministrationTab *tab, QStringList *failures);
    static void checkDialogs(sim::SimulatedController &controller, QStringList *failures);
    static void search(BodyTypeAdministrationTab *tab);
    static void checkReports(
        const sim::SimulatedController &controller, const QString &where, QStringList *failures);
    static void checkCommands(const sim::SimulatedController &controller, QStringList *failures);

    // The tracking dialog keeps its preferences under the home directory.
    std::unique_ptr<QTemporaryDir> m_home;
};

#endif // REPLYTARGET_H
