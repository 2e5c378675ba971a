#ifndef FUZZMUTATOR_H
#define FUZZMUTATOR_H

#include <QByteArray>
#include <QList>
#include <QtGlobal>

// Deterministic mutations for the plain driver: the same seed gives the same
// inputs on every machine, so a failure in CI replays anywhere. It knows
// nothing about coverage; what makes it useful is the target's dictionary
// and a few moves that suit line-based text (numbers, whole lines).
class FuzzMutator
{
public:
    FuzzMutator(quint64 seed, const QList<QByteArray> &dictionary, int maxLength);

    // One to four stacked changes to input; other is another corpus entry
    // for splicing.
    QByteArray mutate(const QByteArray &input, const QByteArray &other);

    quint64 next();
    // 0 .. bound - 1; 0 when bound is not positive.
    int below(int bound);

private:
    void mutateOnce(QByteArray &data, const QByteArray &other);
    void replaceNumber(QByteArray &data);
    void changeLines(QByteArray &data);
    QByteArray randomBytes(int count);

    quint64 m_state;
    QList<QByteArray> m_dictionary;
    int m_maxLength;
};

#endif // FUZZMUTATOR_H
