#ifndef TRACKING_BODYOPERATIONS_H
#define TRACKING_BODYOPERATIONS_H

#include "bodytypeentry.h"

#include <QCoreApplication>
#include <QString>

class CommandChannel;
class QWidget;

// The edit operations on one cached body: they ask the user where the
// action destroys something, send the commands in the controller's order and
// keep the cache in step. Nothing is rolled back after a partial failure;
// reloading the body afterwards is the caller's job.
class BodyOperations
{
    Q_DECLARE_TR_FUNCTIONS(BodyOperations)

public:
    // parent: the widget the questions and warnings belong to.
    BodyOperations(const CommandChannel &channel, QWidget *parent);

    void setActive(BodyTypeEntry &entry, const QString &type, int index, bool active) const;
    void setDescription(
        BodyTypeEntry &entry, const QString &type, int index, const QString &text) const;
    // Standard bodies only; returns false when nothing could be changed.
    bool setReference(BodyTypeEntry &entry, const QString &type, int index, bool set) const;
    bool reset(const BodyTypeEntry &entry, const QString &type, int index) const;
    bool remove(const BodyTypeEntry &entry, const QString &type, int index) const;
    bool switchBodies(
        const BodyTypeEntry &entry, const QString &type, int indexA, int indexB) const;

    // Calibrates the body from a library target. Other bodies of the type
    // that used the target are freed first; affected gets every body that
    // changed.
    bool calibrateFromTarget(const BodyTypeEntry &entry, const QString &type, int index,
        const QString &targetName, QList<int> *affected) const;

    // command holds %1 for the count; error %1 the type and %2 the count.
    void setNumberOfBodies(
        const QString &command, const QString &type, int count, const QString &error) const;
    // Switches a type's global 6DOF filter back on where it was off.
    void switchGlobalFilterOn(
        const QString &parameter, const QString &readError, const QString &writeError) const;

    // A Yes/No warning whose default is No.
    bool ask(const QString &question) const;
    void warn(const QString &text) const;

private:
    bool resetToTargetLibrary(const BodyTypeEntry &entry, const QString &type, int index) const;
    bool resetSensor(const BodyTypeEntry &entry, int index) const;
    QString bodyCommand(const char *parameter, const QString &type, int index) const;

    const CommandChannel &m_channel;
    QWidget *m_parent;
};

#endif // TRACKING_BODYOPERATIONS_H
