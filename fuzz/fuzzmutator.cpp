#include "fuzzmutator.h"

namespace
{

// Numbers that sit on the edges parsers get wrong.
const char *const InterestingNumbers[] = { "0", "-1", "-5", "1", "99", "100", "999", "1000",
    "32767", "65536", "2147483647", "2147483648", "-2147483648", "-2147483649", "4294967296",
    "9223372036854775807", "99999999999999999999", "1e308", "-1e308", "1e-320", "nan", "inf", "-0",
    "0x10", "+3", " 3", "3 " };

// Bytes that delimit or quote in the inputs we read.
const char InterestingBytes[] = { '\0', '\n', '\r', ' ', '\t', '"', '\'', '=', '*', '#', '@', '<',
    '>', '&', ';', '\\', char(0x7f), char(0x80), char(0xff) };

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

FuzzMutator::FuzzMutator(quint64 seed, const QList<QByteArray> &dictionary, int maxLength)
    : m_state(seed ? seed : 0x9e3779b97f4a7c15ULL)
    , m_dictionary(dictionary)
    , m_maxLength(qMax(1, maxLength))
{
}

quint64 FuzzMutator::next()
{
    // xorshift64*: small, fast and the same everywhere.
    m_state ^= m_state >> 12;
    m_state ^= m_state << 25;
    m_state ^= m_state >> 27;
    return m_state * 0x2545f4914f6cdd1dULL;
}

int FuzzMutator::below(int bound)
{
    return bound > 0 ? int(next() % quint64(bound)) : 0;
}

QByteArray FuzzMutator::randomBytes(int count)
{
    QByteArray bytes(count, Qt::Uninitialized);
    for (int i = 0; i < count; ++i)
        bytes[i] = char(next());
    return bytes;
}

QByteArray FuzzMutator::mutate(const QByteArray &input, const QByteArray &other)
{
    QByteArray data = input;
    const int steps = 1 + below(4);
    for (int i = 0; i < steps; ++i)
        mutateOnce(data, other);
    if (data.size() > m_maxLength)
        data.truncate(m_maxLength);
    return data;
}

void FuzzMutator::mutateOnce(QByteArray &data, const QByteArray &other)
{
    const int at = below(data.size() + 1);
    switch (below(11)) {
    case 0: // flip a bit
        if (!data.isEmpty())
            data[at % data.size()] = char(data.at(at % data.size()) ^ (1 << below(8)));
        break;
    case 1: // a delimiter or quote
        if (!data.isEmpty())
            data[at % data.size()] = InterestingBytes[below(sizeof InterestingBytes)];
        else
            data += InterestingBytes[below(sizeof InterestingBytes)];
        break;
    case 2: // a word the reader knows
    case 3:
        if (!m_dictionary.isEmpty())
            data.insert(at, m_dictionary.at(below(m_dictionary.size())));
        break;
    case 4: // overwrite with a known word
        if (!m_dictionary.isEmpty()) {
            const QByteArray &word = m_dictionary.at(below(m_dictionary.size()));
            data.replace(at, word.size(), word);
        }
        break;
    case 5: // cut a piece out
        data.remove(at, 1 + below(qMax(1, data.size() / 4)));
        break;
    case 6: // repeat a piece
        if (!data.isEmpty()) {
            const int from = below(data.size());
            const QByteArray piece = data.mid(from, 1 + below(64));
            const int times = 1 + below(below(8) == 0 ? 64 : 3);
            data.insert(at, piece.repeated(times));
        }
        break;
    case 7: // random bytes
        data.insert(at, randomBytes(1 + below(8)));
        break;
    case 8: // splice another input in
        if (!other.isEmpty()) {
            const int from = below(other.size());
            data = data.left(at) + other.mid(from, 1 + below(other.size() - from));
        }
        break;
    case 9:
        replaceNumber(data);
        break;
    default:
        changeLines(data);
        break;
    }
}

void FuzzMutator::replaceNumber(QByteArray &data)
{
    const QByteArray number = InterestingNumbers[below(sizeof InterestingNumbers / sizeof(char *))];
    // Replace a run of digits if there is one from a random point on,
    // otherwise put the number somewhere.
    int start = below(data.size() + 1);
    while (start < data.size() && !isDigit(data.at(start)))
        ++start;
    if (start >= data.size()) {
        data.insert(below(data.size() + 1), number);
        return;
    }
    int end = start;
    while (end < data.size() && (isDigit(data.at(end)) || data.at(end) == '.'))
        ++end;
    if (start > 0 && data.at(start - 1) == '-')
        --start;
    data.replace(start, end - start, number);
}

void FuzzMutator::changeLines(QByteArray &data)
{
    QList<QByteArray> lines = data.split('\n');
    const int line = below(lines.size());
    switch (below(4)) {
    case 0: // drop a line
        lines.removeAt(line);
        break;
    case 1: // repeat a line
        lines.insert(line, lines.at(line));
        break;
    case 2: // swap two lines
        lines.swapItemsAt(line, below(lines.size()));
        break;
    default: // a known word on a line of its own
        if (!m_dictionary.isEmpty())
            lines.insert(line, m_dictionary.at(below(m_dictionary.size())));
        break;
    }
    data = lines.join('\n');
}
