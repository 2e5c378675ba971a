#include "transcriptcheck.h"

#include "faultinjector.h"

namespace sim
{

void TranscriptCheck::expect(const QStringList &commands)
{
    m_expected = commands;
    m_sent.clear();
    m_active = true;
}

void TranscriptCheck::end()
{
    m_expected.clear();
    m_sent.clear();
    m_active = false;
}

void TranscriptCheck::sent(const QString &command)
{
    if (m_active)
        m_sent << command;
}

QString TranscriptCheck::mismatch() const
{
    const int common = qMin(m_sent.size(), m_expected.size());
    for (int i = 0; i < common; ++i) {
        if (!FaultInjector::matches(m_expected.at(i), m_sent.at(i)))
            return QStringLiteral("command %1: expected \"%2\", sent \"%3\"")
                       .arg(QString::number(i + 1), m_expected.at(i), m_sent.at(i))
                + sentAround(i);
    }
    if (m_sent.size() > common)
        return QStringLiteral("unexpected after the end: \"%1\"").arg(m_sent.at(common))
            + sentAround(common);
    if (m_expected.size() > common) {
        const int more = m_expected.size() - common - 1;
        return QStringLiteral("missing after command %1: \"%2\"%3")
                   .arg(QString::number(common), m_expected.at(common),
                       more > 0 ? QStringLiteral(" and %1 more").arg(more) : QString())
            + sentAround(common);
    }
    return QString();
}

// A few commands before and after the one in question, numbered as above.
QString TranscriptCheck::sentAround(int index) const
{
    QString text;
    const int last = qMin(m_sent.size() - 1, index + 2);
    for (int i = qMax(0, index - 3); i <= last; ++i)
        text += QStringLiteral("\n %1%2  %3")
                    .arg(i == index ? QLatin1Char('>') : QLatin1Char(' '))
                    .arg(i + 1, 4)
                    .arg(m_sent.at(i));
    return text.isEmpty() ? QStringLiteral("\n (nothing sent)") : QStringLiteral("\nsent:") + text;
}

QString TranscriptCheck::asCode(const QStringList &commands)
{
    QString code;
    for (const QString &command : commands) {
        QString escaped = command;
        escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
            .replace(QLatin1Char('"'), QLatin1String("\\\""));
        code += QLatin1Char('"') + escaped + QLatin1String("\",\n");
    }
    return code;
}

} // namespace sim
