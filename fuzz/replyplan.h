#ifndef REPLYPLAN_H
#define REPLYPLAN_H

#include <backendversions.h>

#include <QByteArray>
#include <QList>
#include <QString>

namespace sim
{
class SimulatedController;
}

// How the reply fuzzer's input doctors the simulated controller. The input
// is text, one rule a line, so that mutations of words and numbers hit
// whole commands and a failing input reads as what it does:
//
//   version 1.11.0                  controller software
//   system ORBILUX C2               tracking-system model
//   bodies 12                       standard bodies the controller holds (0..60)
//   reply PATTERN = TEXT            every matching command answers TEXT
//   once PATTERN = TEXT             the next matching command does
//   open PATTERN = TEXT             TEXT fills the whole buffer, no zero byte
//   fail PATTERN                    every matching command fails
//   set PATH = TEXT                 the parameter itself holds TEXT
//
// A pattern is a command or a prefix ending in '*'. TEXT may spell any byte
// with \n \r \t \0 \\ \xHH. Lines that fit no rule are ignored: the reader
// never rejects an input.
class ReplyPlan
{
public:
    struct Rule {
        enum Kind { Reply, Once, Open, Fail, Set };
        Kind kind = Reply;
        QString pattern;
        QByteArray text;
    };

    static constexpr int MaxBodies = 60;

    static ReplyPlan parse(const QByteArray &input);
    void applyTo(sim::SimulatedController &controller) const;

    // Whether a rule may make the controller claim a number above limit for
    // a command that starts with prefix (a count the module loops over).
    bool claimsMoreThan(const QString &prefix, qint64 limit) const;

    const QList<Rule> &rules() const { return m_rules; }

private:
    static bool mayMatch(const Rule &rule, const QString &prefix);

    QList<Rule> m_rules;
    bool m_hasVersion = false;
    BackendVersions::Version m_version;
    QString m_systemType;
    int m_bodies = -1;
};

#endif // REPLYPLAN_H
