#ifndef FUZZTARGET_H
#define FUZZTARGET_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// One parser under attack. The same target runs under the plain driver
// (seed corpus plus bounded pseudo-random mutations, as a CTest test) and
// under libFuzzer; each executable links exactly one target, whose source
// defines createFuzzTarget().
class FuzzTarget
{
public:
    virtual ~FuzzTarget() = default;

    virtual QString name() const = 0;
    // Widgets need a QApplication; the rest get a QCoreApplication.
    virtual bool needsWidgets() const { return false; }
    // Once, after the application object exists.
    virtual void setUp() { }
    virtual int maxLength() const { return 4096; }

    virtual QList<QByteArray> seeds() const = 0;
    // Words the input's reader treats specially; the mutator splices them in.
    virtual QList<QByteArray> dictionary() const = 0;
    // Runs one input and returns the checks that failed, empty when all held.
    // A crash or a hang is caught by the driver, not here.
    virtual QStringList run(const QByteArray &input) = 0;
    // The name of a fault the code under test is known to still have and
    // that this input runs into; empty otherwise. Such inputs can be left
    // out (--skip-known) so that CI stays usable until the fault is fixed.
    virtual QString knownFault(const QByteArray &input) const
    {
        Q_UNUSED(input)
        return QString();
    }
};

FuzzTarget *createFuzzTarget();

#endif // FUZZTARGET_H
