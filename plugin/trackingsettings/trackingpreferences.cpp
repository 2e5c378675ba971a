#include "trackingpreferences.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QSaveFile>
#include <QTextStream>

namespace
{

const char *const FileBaseName = "trackingsettings-preferences.xml";
const char *const RootTag = "VELORA";
const char *const FixedAngleTag = "FIXED_ANGLE";
const char *const AutoRestartTag = "AUTO_RESTART_MEA_AFTER_SYNC_LOST";
constexpr int Indent = 4;

QString attributeText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

TrackingPreferences::TrackingPreferences(const QString &moduleVersion)
    : m_directory(QDir::homePath() + QLatin1String("/.ZEM/VELORA4/modules/trackingsettings/")
        + moduleVersion + QLatin1String("/config"))
{
}

QString TrackingPreferences::fileName() const
{
    return m_directory + QLatin1Char('/') + QLatin1String(FileBaseName);
}

QString TrackingPreferences::read()
{
    const QString name = fileName();
    // A first start has no file; that is no error.
    if (!QFile::exists(name))
        return QString();

    m_fixedAngleVisible = false;
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral(
            "Error: Loading tracking settings preferences. File %1 cannot be opened for "
            "reading. Using built-in values")
            .arg(name);

    QDomDocument document;
    QString message;
    int line = 0;
    int column = 0;
    if (!document.setContent(&file, &message, &line, &column))
        return QStringLiteral(
            "Error: Loading tracking settings preferences while parsing %1 (Line %2, Column "
            "%3) :\n%4. Using built-in values")
            .arg(name, QString::number(line), QString::number(column), message);

    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String(RootTag))
        return QStringLiteral(
            "Error: Loading tracking settings preferences while parsing %1 : The file "
            "doesn't look like a valid preferences file. Using built-in values")
            .arg(name);

    for (QDomNode node = root.firstChild(); !node.isNull(); node = node.nextSibling()) {
        const QDomElement element = node.toElement();
        if (element.isNull()) {
            // Anything but an element (a comment left by hand) makes the
            // fixed-angle entry untrustworthy.
            m_fixedAngleVisible = false;
        } else if (element.tagName() == QLatin1String(FixedAngleTag)) {
            m_fixedAngleVisible
                = element.attribute(QStringLiteral("VISIBLE"), QStringLiteral("false"))
                == QLatin1String("true");
        } else if (element.tagName() == QLatin1String(AutoRestartTag)) {
            m_autoRestartVisible = element.attribute(QStringLiteral("HIDE"), QStringLiteral("true"))
                != QLatin1String("true");
        }
    }
    return QString();
}

QString TrackingPreferences::write() const
{
    QDomDocument document;
    document.appendChild(document.createProcessingInstruction(
        QStringLiteral("xml"), QStringLiteral("version=\"1.0\" encoding=\"UTF-8\"")));
    QDomElement root = document.createElement(QLatin1String(RootTag));
    document.appendChild(root);
    QDomElement fixedAngle = document.createElement(QLatin1String(FixedAngleTag));
    if (m_advancedShown)
        fixedAngle.setAttribute(QStringLiteral("VISIBLE"), attributeText(true));
    root.appendChild(fixedAngle);
    QDomElement autoRestart = document.createElement(QLatin1String(AutoRestartTag));
    autoRestart.setAttribute(QStringLiteral("HIDE"), attributeText(!m_autoRestartVisible));
    root.appendChild(autoRestart);

    if (!QDir(m_directory).exists() && !QDir().mkpath(m_directory))
        return QStringLiteral(
            "Error: Writing tracking preferences. Directory %1 doesn't exist and cannot be "
            "created")
            .arg(m_directory);

    const QString cannotWrite = QStringLiteral(
        "Error: Writing tracking preferences. File %1 cannot be opened for writing")
                                    .arg(fileName());
    QSaveFile file(fileName());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return cannotWrite;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    document.save(stream, Indent);
    stream.flush();
    // A full disk shows up here at the latest; the previous file then stays.
    if (stream.status() != QTextStream::Ok || !file.commit())
        return cannotWrite;
    return QString();
}
