#ifndef BENCHTABLE_H
#define BENCHTABLE_H

#include <QString>
#include <QStringList>
#include <QVector>

// A plain-text table for the terminal: right-aligned columns under a title.
class BenchTable
{
public:
    BenchTable(const QString &title, const QStringList &headers);

    void addRow(const QStringList &cells);
    QString text() const;
    void print() const;

    static QString number(double value, int decimals = 1);

private:
    QString m_title;
    QStringList m_headers;
    QVector<QStringList> m_rows;
};

#endif // BENCHTABLE_H
