#ifndef TRACKING_TESTKIT_H
#define TRACKING_TESTKIT_H

#include "modaldriver.h"

#include <simulatedcontroller.h>

#include <QtTest>
#include <QtWidgets>

#include <array>

// Small helpers the widget tests share; header-only so that a test links
// nothing beyond what it already uses.
namespace testkit
{

// The columns of a _data() table in one line: columns<int, QString>({ "a", "b" }).
template<typename... T> void columns(const std::array<const char *, sizeof...(T)> &names)
{
    int i = 0;
    (QTest::addColumn<T>(names[i++]), ...);
}

// The current data row's value in that column, where QFETCH would name a
// local used once.
template<typename T> T fetch(const char *name)
{
    return *static_cast<T *>(QTest::qData(name, qMetaTypeId<T>()));
}

template<typename T = QWidget> T *child(const QObject *parent, const char *name)
{
    T *found = parent->findChild<T *>(QLatin1String(name));
    if (!found)
        qFatal("no child %s", name);
    return found;
}

// A mouse click on the named button as the operator makes it, queued: the
// button may open a modal loop of its own, which must not run inside the
// caller.
inline void clickLater(const QObject *parent, const char *name)
{
    QWidget *widget = child(parent, name);
    QTimer::singleShot(0, widget, [widget] { QTest::mouseClick(widget, Qt::LeftButton); });
}

// A fresh start on the built-in default scenario, controller 1.24.
inline void useScenario(sim::SimulatedController &controller)
{
    if (!controller.loadScenario(QStringLiteral(":/scenarios/default.scn")))
        qFatal("the default scenario does not load");
    controller.backendVersions().backendVersion = { 1, 24, 0 };
    controller.clearInjections();
    controller.clearLog();
}

// Changes the controller as a row says: "PATH=VALUE" sets a parameter, any
// other part makes that command fail; parts are separated by '|'.
inline void apply(sim::SimulatedController &controller, const QString &changes)
{
    for (const QString &part : changes.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
        if (part.contains(QLatin1Char('=')))
            controller.setValue(
                part.section(QLatin1Char('='), 0, 0), part.section(QLatin1Char('='), 1));
        else
            controller.failCommand(part);
    }
}

// For cleanup(): no modal loop and no top-level widget may outlive a test.
inline void closeAllAndCheck()
{
    ModalDriver::closeAllModals();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(),
        qPrintable(ModalDriver::topLevelWidgetNames().join(", ")));
}

} // namespace testkit

// Fails the test unless the controller received exactly the transcript the
// test expects (SimulatedController::expectTranscript); names the first
// difference.
#define QCOMPARE_TRANSCRIPT(controller)                                                            \
    do {                                                                                           \
        const QString transcriptMismatch_ = (controller).transcriptMismatch();                     \
        QVERIFY2(transcriptMismatch_.isEmpty(), qPrintable(transcriptMismatch_));                  \
    } while (false)

#endif // TRACKING_TESTKIT_H
