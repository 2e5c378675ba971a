#ifndef TEMPORARYHOME_H
#define TEMPORARYHOME_H

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

// The dialogs keep their preferences under the home directory: these tests
// run with a home of their own, set before QApplication reads it.
#define TRACKING_TEST_MAIN_WITH_TEMPORARY_HOME(TestClass)                                          \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        QTemporaryDir home;                                                                        \
        if (!home.isValid())                                                                       \
            return 1;                                                                              \
        qputenv("HOME", QFile::encodeName(home.path()));                                           \
        QApplication app(argc, argv);                                                              \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

inline QString preferencesDirectory()
{
    return QDir::homePath() + "/.ZEM/VELORA4/modules/trackingsettings/v3.0.5/config";
}

inline QString preferencesFile()
{
    return preferencesDirectory() + "/trackingsettings-preferences.xml";
}

inline bool writePreferences(const QByteArray &content)
{
    QDir().mkpath(preferencesDirectory());
    QFile file(preferencesFile());
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

inline QByteArray readPreferences()
{
    QFile file(preferencesFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void removePreferences()
{
    QDir(QDir::homePath() + "/.ZEM").removeRecursively();
    QFile::remove(QDir::homePath() + "/.ZEM");
}

#endif // TEMPORARYHOME_H
