#ifndef TRACKING_SIM_TRANSCRIPTCHECK_H
#define TRACKING_SIM_TRANSCRIPTCHECK_H

#include <QString>
#include <QStringList>

namespace sim
{

// Strict mode for tests: the commands a flow must send, in order, held
// against the commands it does send. Only the first difference is reported;
// whatever follows it is usually its consequence.
class TranscriptCheck
{
public:
    // Starts over with these lines. A line ending in '*' matches any
    // command that begins with the rest; every other line must be exact.
    void expect(const QStringList &commands);
    void end();
    bool isActive() const { return m_active; }
    // Takes one command as the controller received it.
    void sent(const QString &command);
    // Empty while what was sent matches and nothing expected is missing.
    QString mismatch() const;

    // The commands as C++ string literals, one a line, ready to paste into
    // an expected transcript.
    static QString asCode(const QStringList &commands);

private:
    QString sentAround(int index) const;

    QStringList m_expected;
    QStringList m_sent;
    bool m_active = false;
};

} // namespace sim

#endif // TRACKING_SIM_TRANSCRIPTCHECK_H
