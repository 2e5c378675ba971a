#include "preferencestarget.h"

#include "fuzztext.h"

#include <trackingpreferences.h>

#include <QDir>
#include <QFile>

FuzzTarget *createFuzzTarget()
{
    return new PreferencesTarget;
}

namespace
{

const QString ModuleVersion = QStringLiteral("v3.0.5");

QByteArray contents(const QString &fileName, bool *exists)
{
    QFile file(fileName);
    *exists = file.open(QIODevice::ReadOnly);
    return *exists ? file.readAll() : QByteArray();
}

QString flags(const TrackingPreferences &preferences)
{
    return QStringLiteral("fixed angle %1, auto restart %2, advanced %3")
        .arg(preferences.fixedAngleVisible())
        .arg(preferences.autoRestartVisible())
        .arg(preferences.advancedShown());
}

QByteArray nested(int depth)
{
    return "<VELORA>" + QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth)
        + "</VELORA>";
}

} // namespace

void PreferencesTarget::setUp()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("HOME", QFile::encodeName(m_home->path()));
}

QList<QByteArray> PreferencesTarget::seeds() const
{
    const QByteArray header = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    return {
        header
            + "<VELORA>\n    <FIXED_ANGLE VISIBLE=\"true\"/>\n"
              "    <AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>\n</VELORA>\n",
        header
            + "<VELORA>\n    <FIXED_ANGLE/>\n"
              "    <AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"true\"/>\n</VELORA>\n",
        QByteArray(),
        "<VELORA/>",
        "<velora><FIXED_ANGLE VISIBLE=\"true\"/></velora>",
        "<VELORA><!-- by hand --><FIXED_ANGLE VISIBLE=\"true\"/></VELORA>",
        "<VELORA><FIXED_ANGLE VISIBLE=\"true\" VISIBLE=\"false\"/></VELORA>",
        "<VELORA><FIXED_ANGLE VISIBLE='tr&#117;e'/><![CDATA[x]]><?pi x?></VELORA>",
        "\xef\xbb\xbf<VELORA><FIXED_ANGLE VISIBLE=\"true\"/></VELORA>",
        QByteArray("\xff\xfe<\0V\0E\0L\0O\0R\0A\0/\0>\0", 20),
        "<?xml version=\"1.0\" encoding=\"UTF-16\"?><VELORA/>",
        "<?xml version=\"1.0\" encoding=\"no-such-codec\"?><VELORA/>",
        "<!DOCTYPE VELORA [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">"
        "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;\">"
        "<!ENTITY e \"&d;&d;&d;&d;&d;&d;&d;&d;\"><!ENTITY f \"&e;&e;&e;&e;&e;&e;&e;&e;\">]>"
        "<VELORA><FIXED_ANGLE VISIBLE=\"&f;\"/></VELORA>",
        "<!DOCTYPE VELORA [<!ENTITY x SYSTEM \"file:///etc/passwd\">]><VELORA>&x;</VELORA>",
        "<!DOCTYPE VELORA [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]><VELORA>&a;</VELORA>",
        nested(3000),
        "<VELORA><FIXED_ANGLE VISIBLE=\"true\"",
        "<VELORA>\0<FIXED_ANGLE VISIBLE=\"true\"/></VELORA>",
        "<VELORA><AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"" + QByteArray(4000, 'x')
            + "\"/></VELORA>",
        "<OTHER/><VELORA/>",
    };
}

QList<QByteArray> PreferencesTarget::dictionary() const
{
    return { "<?xml version=\"1.0\" encoding=\"UTF-8\"?>", "<VELORA>", "</VELORA>", "<VELORA/>",
        "<FIXED_ANGLE VISIBLE=\"true\"/>", "<AUTO_RESTART_MEA_AFTER_SYNC_LOST HIDE=\"false\"/>",
        "FIXED_ANGLE", "AUTO_RESTART_MEA_AFTER_SYNC_LOST", "VISIBLE", "HIDE", "=\"true\"",
        "=\"false\"", "<!--", "-->", "<![CDATA[", "]]>", "<!DOCTYPE VELORA [", "<!ENTITY a \"",
        "&a;", "&amp;", "&#0;", "&#x110000;", "<?", "?>", "/>", "</", "\xef\xbb\xbf",
        "encoding=\"UTF-16\"", "xmlns=\"x\"", "<a>", "</a>" };
}

QStringList PreferencesTarget::run(const QByteArray &input)
{
    QStringList failures;
    TrackingPreferences preferences(ModuleVersion);
    const QString fileName = preferences.fileName();
    QDir().mkpath(preferences.directory());
    {
        QFile file(fileName);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)
            || file.write(input) != input.size()) {
            failures << QStringLiteral("cannot set up %1").arg(fileName);
            return failures;
        }
    }

    const QString error = preferences.read();
    if (!error.isEmpty() && !error.startsWith(QLatin1String("Error: ")))
        failures << QStringLiteral("report without \"Error: \": ") + error.left(200);
    if (!error.isEmpty() && !error.contains(fileName))
        failures << QStringLiteral("report does not name the file: ") + error.left(200);
    bool exists = false;
    if (contents(fileName, &exists) != input || !exists)
        failures << QStringLiteral("reading changed or removed the file");

    TrackingPreferences again(ModuleVersion);
    const QString secondError = again.read();
    if (secondError != error || flags(again) != flags(preferences))
        failures << QStringLiteral("a second reading disagrees: %1 against %2")
                        .arg(flags(preferences), flags(again));

    // The dialog writes what it showed on its way out; that must come back.
    const QString writeError = preferences.write();
    if (!writeError.isEmpty()) {
        failures << QStringLiteral("writing failed: ") + writeError;
        return failures;
    }
    TrackingPreferences written(ModuleVersion);
    const QString readBack = written.read();
    if (!readBack.isEmpty())
        failures << QStringLiteral("the written file does not read back: ") + readBack.left(200);
    if (written.fixedAngleVisible() != preferences.advancedShown()
        || written.autoRestartVisible() != preferences.autoRestartVisible())
        failures
            << QStringLiteral("written %1, read back %2").arg(flags(preferences), flags(written));
    return failures;
}
