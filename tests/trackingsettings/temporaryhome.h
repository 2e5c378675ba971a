#ifndef TEMPORARYHOME_H
#define TEMPORARYHOME_H

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

// The dialogs keep their preferences under the home directory: these tests
// run with a home of their own and never see the user's.
#define TRACKING_TEST_MAIN_WITH_TEMPORARY_HOME(TestClass)                                          \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        QTemporaryDir home;                                                                        \
        if (!home.isValid())                                                                       \
            return 1;                                                                              \
        qputenv("HOME", QFile::encodeName(home.path()));                                           \
        QApplication app(argc, argv);                                                              \
        TestClass test;                                                                            \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

// Where the preferences of module version v3.0.5 live.
inline QString preferencesDirectory()
{
    return QDir::homePath()
        + QStringLiteral("/.ZEM/VELORA4/modules/trackingsettings/v3.0.5/config");
}

inline QString preferencesFile()
{
    return preferencesDirectory() + QStringLiteral("/trackingsettings-preferences.xml");
}

inline bool writePreferences(const QByteArray &content)
{
    QDir().mkpath(preferencesDirectory());
    QFile file(preferencesFile());
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        && file.write(content) == content.size();
}

inline QByteArray readPreferences()
{
    QFile file(preferencesFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void removePreferences()
{
    QDir(QDir::homePath() + QStringLiteral("/.ZEM")).removeRecursively();
    QFile::remove(QDir::homePath() + QStringLiteral("/.ZEM"));
}

#endif // TEMPORARYHOME_H
