#ifndef TRACKING_SIM_FAULTINJECTOR_H
#define TRACKING_SIM_FAULTINJECTOR_H

#include <QByteArray>
#include <QList>
#include <QString>

namespace sim
{

// Failures and doctored replies that the simulated controller gives instead
// of its own answer. A pattern is an exact command text, or a prefix when it
// ends with '*'. The newest matching injection wins; one with a count is
// used up after that many commands.
class FaultInjector
{
public:
    struct Injection {
        QString pattern;
        bool fails = false; // else the reply replaces the controller's
        int result = 0;
        QByteArray reply;
        bool unterminated = false;
        int times = -1; // < 0: forever
        bool fromScenario = false;
    };

    static bool matches(const QString &pattern, const QString &command);

    void add(const Injection &injection) { m_injections.append(injection); }
    const QList<Injection> &injections() const { return m_injections; }
    void clear() { m_injections.clear(); }
    void clearScenarioInjections();
    // Removes the injections whose pattern the given one covers ("*" covers
    // every one); returns how many went.
    int lift(const QString &pattern);
    // Takes the injection for this command, if any, counting it down.
    bool take(const QString &command, bool settingOnly, Injection *injection);

private:
    QList<Injection> m_injections;
};

} // namespace sim

#endif // TRACKING_SIM_FAULTINJECTOR_H
