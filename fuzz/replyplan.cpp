#include "replyplan.h"

#include "fuzztext.h"

#include <simulatedcontroller.h>

namespace
{

const QByteArray Separator = " = ";

} // namespace

ReplyPlan ReplyPlan::parse(const QByteArray &input)
{
    ReplyPlan plan;
    for (const QByteArray &line : input.split('\n')) {
        const int blank = line.indexOf(' ');
        const QByteArray word = line.left(blank);
        const QByteArray rest = blank < 0 ? QByteArray() : line.mid(blank + 1);
        if (word == "version") {
            const QList<QByteArray> parts = rest.trimmed().split('.');
            bool ok[3] = {};
            if (parts.size() == 3) {
                plan.m_version = { parts.at(0).toInt(&ok[0]), parts.at(1).toInt(&ok[1]),
                    parts.at(2).toInt(&ok[2]) };
                plan.m_hasVersion = ok[0] && ok[1] && ok[2];
            }
        } else if (word == "system") {
            plan.m_systemType = QString::fromLatin1(FuzzText::unescaped(rest));
        } else if (word == "bodies") {
            bool ok = false;
            const int bodies = rest.trimmed().toInt(&ok);
            if (ok)
                plan.m_bodies = qBound(0, bodies, MaxBodies);
        } else if (word == "fail") {
            if (!rest.isEmpty())
                plan.m_rules.append({ Rule::Fail, QString::fromLatin1(rest), QByteArray() });
        } else {
            static const QList<QByteArray> words { "reply", "once", "open", "set" };
            static const Rule::Kind kinds[] = { Rule::Reply, Rule::Once, Rule::Open, Rule::Set };
            const int kind = words.indexOf(word);
            const int at = rest.indexOf(Separator);
            if (kind < 0 || at <= 0)
                continue;
            plan.m_rules.append({ kinds[kind], QString::fromLatin1(rest.left(at)),
                FuzzText::unescaped(rest.mid(at + Separator.size())) });
        }
    }
    return plan;
}

void ReplyPlan::applyTo(sim::SimulatedController &controller) const
{
    BackendVersions &versions = controller.backendVersions();
    if (m_hasVersion)
        versions.backendVersion = m_version;
    if (!m_systemType.isNull())
        versions.systemType = m_systemType;
    if (m_bodies >= 0) {
        controller.setValue(QStringLiteral("standard max_number_of_bodies"), QStringLiteral("60"));
        controller.setParameter("standard number_of_bodies %d", m_bodies);
    }
    for (const Rule &rule : m_rules) {
        switch (rule.kind) {
        case Rule::Reply:
            controller.replaceReply(rule.pattern, rule.text);
            break;
        case Rule::Once:
            controller.replaceReply(rule.pattern, rule.text, 1);
            break;
        case Rule::Open:
            controller.replaceReply(rule.pattern, rule.text, -1, true);
            break;
        case Rule::Fail:
            controller.failCommand(rule.pattern);
            break;
        case Rule::Set:
            controller.setValue(rule.pattern, QString::fromLatin1(rule.text));
            break;
        }
    }
}

bool ReplyPlan::mayMatch(const Rule &rule, const QString &prefix)
{
    if (rule.kind == Rule::Set || !rule.pattern.endsWith(QLatin1Char('*')))
        return rule.pattern.startsWith(prefix);
    const QStringRef stem = rule.pattern.leftRef(rule.pattern.size() - 1);
    return prefix.startsWith(stem) || stem.startsWith(prefix);
}

bool ReplyPlan::claimsMoreThan(const QString &prefix, qint64 limit) const
{
    for (const Rule &rule : m_rules) {
        if (rule.kind == Rule::Fail || !mayMatch(rule, prefix))
            continue;
        // Read as the controller's channel reads a number: up to the first
        // zero byte, within the buffer, blanks around it ignored.
        QByteArray text = rule.text.left(IOManager::ReplyBufferSize);
        const int zero = text.indexOf('\0');
        if (zero >= 0)
            text.truncate(zero);
        bool ok = false;
        const qint64 number = QString::fromLatin1(text).trimmed().toLongLong(&ok);
        if (ok && number > limit)
            return true;
    }
    return false;
}
