#include "benchtable.h"

#include <cstdio>

BenchTable::BenchTable(const QString &title, const QStringList &headers)
    : m_title(title)
    , m_headers(headers)
{
}

void BenchTable::addRow(const QStringList &cells)
{
    m_rows.append(cells);
}

QString BenchTable::number(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

QString BenchTable::text() const
{
    QVector<int> widths;
    for (const QString &header : m_headers)
        widths.append(header.size());
    for (const QStringList &row : m_rows) {
        for (int i = 0; i < row.size() && i < widths.size(); ++i)
            widths[i] = qMax(widths.at(i), row.at(i).size());
    }
    const auto line = [&](const QStringList &cells) {
        QStringList padded;
        for (int i = 0; i < widths.size(); ++i)
            padded << cells.value(i).rightJustified(widths.at(i));
        return padded.join(QStringLiteral("  ")) + QLatin1Char('\n');
    };
    QString text = m_title + QLatin1Char('\n') + line(m_headers);
    for (const QStringList &row : m_rows)
        text += line(row);
    return text;
}

void BenchTable::print() const
{
    std::fputs(text().toLocal8Bit().constData(), stdout);
    std::fflush(stdout);
}
