#ifndef FUZZTEXT_H
#define FUZZTEXT_H

#include <QByteArray>
#include <QString>

// Bytes as one line of printable text and back: failing inputs are shown
// in reports this way, and the reply fuzzer's inputs spell bytes with it.
// \n \r \t \0 \\ and \xHH; every other byte from 0x20 to 0x7e stands for
// itself.
class FuzzText
{
public:
    static QString escaped(const QByteArray &bytes, int maxLength = -1);
    // Never fails: a backslash that starts no known escape stands for itself.
    static QByteArray unescaped(const QByteArray &text);
};

#endif // FUZZTEXT_H
