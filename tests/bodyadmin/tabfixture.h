#ifndef TABFIXTURE_H
#define TABFIXTURE_H

#include "targetlibrary.h"

#include <modaldriver.h>
#include <simulatedcontroller.h>

#include <QApplication>
#include <QTest>

// A tab of type T on the simulated controller's default scenario, built
// when a test has set up the controller, torn down after each test.
template<typename T> class TabFixture
{
public:
    void init()
    {
        controller = new sim::SimulatedController;
        controller->setManualClock(true);
    }

    T *build()
    {
        library = new Targetlibrary(controller, &controller->backendVersions(), nullptr);
        tab = new T(controller, nullptr, &controller->backendVersions(), QString(), library);
        tab->resize(1300, 600);
        tab->show();
        tab->update_tab();
        controller->clearLog();
        return tab;
    }

    // Closes what a failed test left open; true when no window remains.
    bool cleanup()
    {
        ModalDriver::closeAllModals();
        delete tab;
        tab = nullptr;
        delete library;
        library = nullptr;
        delete controller;
        controller = nullptr;
        return QApplication::topLevelWidgets().isEmpty();
    }

    template<typename W> W *widget(const char *name) const
    {
        return tab->template findChild<W *>(QString::fromLatin1(name));
    }

    // What changed the controller: settings and meta commands, in order,
    // without the custom-calibration check that only refreshes its view.
    QStringList changes() const
    {
        QStringList texts;
        for (const sim::SimulatedController::LogEntry &entry : controller->log()) {
            if ((entry.kind == sim::SimulatedController::LogEntry::Setting
                    || entry.kind == sim::SimulatedController::LogEntry::Command)
                && entry.text != QLatin1String("velora2 targetlib check_custom_calibration"))
                texts << entry.text;
        }
        return texts;
    }

    sim::SimulatedController *controller = nullptr;
    Targetlibrary *library = nullptr;
    T *tab = nullptr;
};

#define TAB_FIXTURE_CLEANUP(fixture)                                                               \
    QVERIFY2(fixture.cleanup(), qPrintable(ModalDriver::topLevelWidgetNames().join(", ")))

#endif // TABFIXTURE_H
