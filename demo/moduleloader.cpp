#include "moduleloader.h"

#include <moduleinterface.h>

#include <QFileInfo>
#include <QJsonObject>
#include <QLibraryInfo>

const char *const ModuleLoader::ExpectedIid = "zem.Velora2.TrackingSettingsModule";
const char *const ModuleLoader::ExpectedClassName = "TrackingSettingBodyAdminModule";

namespace
{

// The metadata records major and minor only.
QString qtVersionText(int version)
{
    return QStringLiteral("%1.%2").arg(version >> 16).arg((version >> 8) & 0xff);
}

// The loader's own rule: same major version, minor no newer than ours.
bool qtVersionFits(int version)
{
    return (version >> 16) == QT_VERSION_MAJOR && ((version >> 8) & 0xff) <= QT_VERSION_MINOR;
}

} // namespace

ModuleLoader::~ModuleLoader()
{
    unload();
}

ModuleInterface *ModuleLoader::load(const QString &fileName)
{
    unload();
    m_error.clear();
    m_fileName = QFileInfo(fileName).absoluteFilePath();
    m_loader.setFileName(m_fileName);

    if (!m_loader.load()) {
        m_error = describeFailure(m_loader.errorString());
        return nullptr;
    }
    QObject *instance = m_loader.instance();
    if (!instance) {
        m_error = describeFailure(m_loader.errorString());
        m_loader.unload();
        return nullptr;
    }
    m_module = qobject_cast<ModuleInterface *>(instance);
    if (!m_module) {
        m_error = describeFailure(
            tr("The plug-in loaded, but its object (class %1) is not a ModuleInterface \"%2\"; "
               "it was probably built against another version of the host's interface header.")
                .arg(QString::fromLatin1(instance->metaObject()->className()),
                    QStringLiteral(ModuleInterface_iid)));
        m_loader.unload();
        return nullptr;
    }
    return m_module;
}

void ModuleLoader::unload()
{
    if (m_module) {
        m_module->shutdown();
        m_module->cleanup();
        m_module = nullptr;
    }
    if (m_loader.isLoaded())
        m_loader.unload();
}

QString ModuleLoader::describeFailure(const QString &reason) const
{
    QStringList lines;
    lines << tr("Could not load the module plug-in") << QStringLiteral("  ") + m_fileName
          << tr("Reason: %1").arg(reason) << QString();

    const QJsonObject metaData = m_loader.metaData();
    if (metaData.isEmpty()) {
        lines << tr("No plug-in metadata could be read from the file.");
    } else {
        const auto row = [&lines](const QString &what, const QString &found,
                             const QString &expected, bool fits) {
            lines << QStringLiteral("  %1 %2 (expected %3)%4")
                         .arg(what, -16)
                         .arg(found.isEmpty() ? tr("<none>") : found, expected,
                             fits ? QString() : tr("  <- differs"));
        };
        const QString iid = metaData.value(QStringLiteral("IID")).toString();
        const QString className = metaData.value(QStringLiteral("className")).toString();
        const int qtVersion = metaData.value(QStringLiteral("version")).toInt();
        const bool debug = metaData.value(QStringLiteral("debug")).toBool();
        const QString release = tr("release"), debugBuild = tr("debug");

        lines << tr("What the file's metadata says:");
        row(tr("interface id"), iid, QLatin1String(ExpectedIid), iid == QLatin1String(ExpectedIid));
        row(tr("class name"), className, QLatin1String(ExpectedClassName),
            className == QLatin1String(ExpectedClassName));
        row(tr("built with Qt"), qtVersionText(qtVersion),
            tr("%1.%2 or older").arg(QT_VERSION_MAJOR).arg(QT_VERSION_MINOR),
            qtVersionFits(qtVersion));
        row(tr("build"), debug ? debugBuild : release,
            QLibraryInfo::isDebugBuild() ? debugBuild : release,
            debug == QLibraryInfo::isDebugBuild());
    }

    lines << QString();
    if (qEnvironmentVariableIsSet("QT_DEBUG_PLUGINS"))
        lines << tr("QT_DEBUG_PLUGINS is set: the Qt plug-in loader's trace is on standard error.");
    else
        lines << tr("Rerun with QT_DEBUG_PLUGINS=1 to see the Qt plug-in loader's own trace.");
    return lines.join(QLatin1Char('\n'));
}
