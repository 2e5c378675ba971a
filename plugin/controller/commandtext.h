#ifndef TRACKING_COMMANDTEXT_H
#define TRACKING_COMMANDTEXT_H

#include <QString>

// The controller's grammar for ids, yes/no values and free text. Commands are
// built from these pieces so that no caller formats an id by hand.
class CommandText
{
public:
    // Free text is cut to this many characters before it is sent.
    static constexpr int MaxTextLength = 100;

    // Ids are one-based numbers, zero-padded to at least two digits:
    // body 7 is "b07", body 100 "b100".
    static QString bodyId(int number) { return id('b', number); }
    static QString targetId(int number) { return id('t', number); }
    static QString groupId(int number) { return id('g', number); }
    static QString memberId(int number) { return id('m', number); }
    // The id of the body at a 0-based index.
    static QString bodyIdOfIndex(int index) { return bodyId(index + 1); }
    // Two digits at least, as error reports print body numbers ("01").
    static QString twoDigits(int number);

    static QString yesNo(bool value) { return value ? yes() : no(); }
    static QString yes() { return QStringLiteral("yes"); }
    static QString no() { return QStringLiteral("no"); }
    static QString none() { return QStringLiteral("none"); }
    // Replies are compared exactly: "Yes" or "yes " are not yes.
    static bool isYes(const QString &reply) { return reply == yes(); }
    static bool isNone(const QString &reply) { return reply == none(); }
    // "none" in a reply means no value.
    static QString noneToEmpty(const QString &reply) { return isNone(reply) ? QString() : reply; }

    // Free text for a command: cut to MaxTextLength and put in double quotes.
    // Quotes inside are sent as they stand.
    static QString quoted(const QString &text);
    static QString cut(const QString &text) { return text.left(MaxTextLength); }
    static QString withoutDoubleQuotes(QString text) { return text.remove(QLatin1Char('"')); }
    static QString withoutSingleQuotes(QString text) { return text.remove(QLatin1Char('\'')); }

    // Filter presets whose strength, prediction and mode the body itself
    // holds ("preset6d_std_custom"); a hybrid one has no strength of its own.
    static bool isCustomPreset(const QString &presetId)
    {
        return presetId.contains(QLatin1String("preset6d_"))
            && presetId.contains(QLatin1String("_custom"));
    }
    static bool isHybridPreset(const QString &presetId)
    {
        return presetId.contains(QLatin1String("hybrid"));
    }

    // A reply's number scaled for display (seconds to milliseconds, fraction
    // to percent), truncated toward zero. Values no int can hold, as a broken
    // reply may bring, end at the nearest limit; not-a-number gives 0.
    static int truncated(double value);

    // Meta commands succeed only with exactly this reply.
    static bool isMetaOk(const QString &reply) { return reply == QLatin1String("velora2 ok"); }

private:
    static QString id(char letter, int number);
};

#endif // TRACKING_COMMANDTEXT_H
