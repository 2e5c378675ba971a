#ifndef SCENARIOTARGET_H
#define SCENARIOTARGET_H

#include "fuzztarget.h"

namespace sim
{
class SimulatedController;
}

// sim::Scenario files into the simulated controller. Whatever the text, loading
// it must report each bad line with a line number that exists, answer the
// same as a controller that ran another scenario before (loading replaces
// everything), and leave a controller that keeps answering: queries,
// settings that resize body lists, the target search and the meta commands.
class ScenarioTarget : public FuzzTarget
{
public:
    QString name() const override { return QStringLiteral("fuzz_scenario"); }
    int maxLength() const override { return 65536; }
    QList<QByteArray> seeds() const override;
    QList<QByteArray> dictionary() const override;
    QStringList run(const QByteArray &input) override;
    QString knownFault(const QByteArray &input) const override;

private:
    // The same fixed series of commands on any controller, as text to compare.
    static QStringList probe(sim::SimulatedController &controller, QStringList *failures);
};

#endif // SCENARIOTARGET_H
