#include "fuzztext.h"

namespace
{

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

} // namespace

QString FuzzText::escaped(const QByteArray &bytes, int maxLength)
{
    QString text;
    for (int i = 0; i < bytes.size(); ++i) {
        if (maxLength >= 0 && text.size() >= maxLength) {
            text += QStringLiteral("...(%1 bytes)").arg(bytes.size());
            break;
        }
        const unsigned char c = static_cast<unsigned char>(bytes.at(i));
        switch (c) {
        case '\n':
            text += QLatin1String("\\n");
            break;
        case '\r':
            text += QLatin1String("\\r");
            break;
        case '\t':
            text += QLatin1String("\\t");
            break;
        case '\0':
            text += QLatin1String("\\0");
            break;
        case '\\':
            text += QLatin1String("\\\\");
            break;
        default:
            if (c >= 0x20 && c < 0x7f)
                text += QLatin1Char(char(c));
            else
                text += QStringLiteral("\\x%1").arg(uint(c), 2, 16, QLatin1Char('0'));
        }
    }
    return text;
}

QByteArray FuzzText::unescaped(const QByteArray &text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const char c = text.at(i);
        if (c != '\\' || i + 1 >= text.size()) {
            bytes += c;
            continue;
        }
        const char next = text.at(i + 1);
        if (next == 'n' || next == 'r' || next == 't' || next == '0' || next == '\\') {
            bytes += next == 'n' ? '\n'
                : next == 'r'    ? '\r'
                : next == 't'    ? '\t'
                : next == '0'    ? '\0'
                                 : '\\';
            ++i;
        } else if (next == 'x' && i + 3 < text.size() && hexValue(text.at(i + 2)) >= 0
            && hexValue(text.at(i + 3)) >= 0) {
            bytes += char(hexValue(text.at(i + 2)) * 16 + hexValue(text.at(i + 3)));
            i += 3;
        } else {
            bytes += c;
        }
    }
    return bytes;
}
