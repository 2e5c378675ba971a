#include <moduleinterface.h>

#include <QCborMap>
#include <QCborValue>
#include <QFile>
#include <QPluginLoader>
#include <QtTest>

// A Debug build marks the plug-in as debug; every other build we make is a
// release one.
#ifdef QT_NO_DEBUG
constexpr char DebugFlag = 0;
#else
constexpr char DebugFlag = 1;
#endif

// What the host sees of the built plug-in before and after loading it.
class TestPluginMetadata : public QObject
{
    Q_OBJECT

private slots:
    void rawMetadata()
    {
        QFile file(QStringLiteral(TRACKING_PLUGIN_FILE));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray data = file.readAll();
        const QByteArray marker("QTMETADATA !");
        const int at = data.indexOf(marker);
        QVERIFY(at >= 0);
        QCOMPARE(data.indexOf(marker, at + 1), -1);

        // Format version, Qt major and minor, no architecture requirements.
        const QByteArray header = data.mid(at + marker.size(), 4);
        QCOMPARE(header, QByteArray("\x00\x05\x0f", 3) + DebugFlag);

        const QByteArray cbor = data.mid(at + marker.size() + 4);
        QCOMPARE(quint8(cbor.at(0)), quint8(0xbf)); // a map of indefinite length
        QCborParserError error;
        const QCborValue value = QCborValue::fromCbor(cbor, &error);
        QCOMPARE(error.error, QCborError::NoError);
        const QCborMap map = value.toMap();
        QCOMPARE(map.size(), 2);
        QCOMPARE(map.value(2).toString(), QString("zem.Velora2.TrackingSettingsModule"));
        QCOMPARE(map.value(3).toString(), QString("TrackingSettingBodyAdminModule"));
    }
    void instance()
    {
        QPluginLoader loader(QStringLiteral(TRACKING_PLUGIN_FILE));
        // Qt keeps plug-ins mapped by default; this host really unloads.
        loader.setLoadHints(QLibrary::LoadHints());
        QObject *object = loader.instance();
        QVERIFY2(object, qPrintable(loader.errorString()));
        QCOMPARE(object->metaObject()->className(), "TrackingSettingBodyAdminModule");

        auto *module = qobject_cast<ModuleInterface *>(object);
        QVERIFY(module);
        QCOMPARE(static_cast<void *>(object->qt_metacast("zem.velora2.gui.Module/0.2.0")),
            static_cast<void *>(module));

        // The plug-in's pictures are there while it is loaded.
        QVERIFY(QFile::exists(":/lock.png"));
        QVERIFY(loader.unload());
        QVERIFY(!QFile::exists(":/lock.png"));
    }
};

QTEST_GUILESS_MAIN(TestPluginMetadata)
#include "tst_pluginmetadata.moc"
