#ifndef BODYADMINFIXTURE_H
#define BODYADMINFIXTURE_H

#include "bodyadministrationdlg.h"
#include "bodytypeadministrationtab.h"

#include <testkit.h>

#include <utility>

using testkit::columns;
using testkit::fetch;

// One data row, the values in the order of the columns.
template<typename... T> void row(const char *name, const T &...values)
{
    (QTest::newRow(name) << ... << values);
}
// A list written as "a | b | c".
inline QStringList L(const QString &items)
{
    return items.split(" | ", Qt::SkipEmptyParts);
}

// The body administration dialog on the simulated controller's default
// scenario, shown without its modal loop so that a test drives its widgets.
// Standard bodies: b01 glasses from the library (re-calibrated), b02 the
// reference (custom), b03 with an inertial sensor, b04 empty.
class BodyAdminFixture
{
public:
    using Log = sim::SimulatedController::LogEntry;

    void init()
    {
        controller = new sim::SimulatedController;
        controller->setManualClock(true);
        driver = new ModalDriver;
        QObject::connect(
            controller, &sim::SimulatedController::logged, controller, [this](const Log &entry) {
                if (entry.kind == Log::Message && entry.receiver == QLatin1String("standard"))
                    events << "! " + entry.text;
                else if ((entry.kind == Log::Setting || entry.kind == Log::Command)
                    && entry.text != QLatin1String("velora2 targetlib check_custom_calibration"))
                    events << entry.text;
            });
    }

    BodyAdministrationDlg *build()
    {
        dialog = new BodyAdministrationDlg(controller, nullptr, &controller->backendVersions());
        return dialog;
    }

    // The dialog on the tab with this key, refreshed as a tab switch does,
    // after these scenario changes: "path = value" is set before the dialog
    // opens, "@path = value" after it has read the controller, and
    // "!pattern" makes every matching command fail from then on.
    BodyTypeAdministrationTab *open(int key = 0, const QStringList &changes = {})
    {
        m_changes = changes;
        apply(QString());
        if (!dialog)
            build();
        dialog->show();
        auto *tabs = widget<QTabWidget>("tabWidget");
        tab = dialog->tab(key);
        if (tabs->currentWidget() == tab)
            tab->update_tab();
        else
            tabs->setCurrentWidget(tab);
        QApplication::processEvents();
        apply("@");
        apply("!");
        clear();
        return tab;
    }

    // One tick of the search timer as the event loop delivers it: the loop
    // runs first, so the channel forgets what it read before the tick.
    void searchTick()
    {
        QApplication::processEvents();
        QMetaObject::invokeMethod(tab, "doMeasurement_tl");
    }

    // Closes what a failed test left open; no window may remain.
    void cleanup()
    {
        ModalDriver::closeAllModals();
        if (tab)
            tab->about_to_exit();
        delete std::exchange(driver, nullptr);
        delete std::exchange(dialog, nullptr);
        delete std::exchange(controller, nullptr);
        tab = nullptr;
        testkit::closeAllAndCheck();
    }

    // The open tab's widget of that name, else the dialog's.
    template<typename W = QWidget> W *widget(const QString &name) const
    {
        W *found = tab ? tab->findChild<W *>(name) : nullptr;
        return found ? found : dialog->findChild<W *>(name);
    }
    bool enabled(const QString &name) const { return widget(name)->isEnabled(); }
    QTableWidget *table(const QString &name = "tableWidget_standard") const
    {
        return widget<QTableWidget>(name);
    }
    void clickButton(const QString &name) const { QTest::mouseClick(widget(name), Qt::LeftButton); }

    // A click on the cell's centre, or on its check box where it has one.
    static void click(QTableWidget *table, int row, int column, bool doubleClick = false)
    {
        const QTableWidgetItem *item = table->item(row, column);
        QRect rect = table->visualItemRect(item);
        if (item->data(Qt::CheckStateRole).isValid()) {
            QStyleOptionViewItem option;
            option.initFrom(table);
            option.rect = rect;
            option.features = QStyleOptionViewItem::HasCheckIndicator;
            rect = table->style()->subElementRect(
                QStyle::SE_ItemViewItemCheckIndicator, &option, table);
        }
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, rect.center());
        if (doubleClick)
            QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, rect.center());
    }
    // Moves to the cell as the keyboard would (the table has the focus),
    // and presses the key there if one is given.
    static void go(QTableWidget *table, int row, int column, Qt::Key key = Qt::Key_unknown)
    {
        table->setFocus();
        table->setCurrentCell(row, column);
        if (key != Qt::Key_unknown)
            QTest::keyClick(table, key);
    }

    void clear()
    {
        controller->clearLog();
        events.clear();
    }

    // The next boxes are answered with these buttons, any further one
    // positively (Yes, else Ok) so that no test hangs on a surprise. Each
    // box goes into the events as "? text|informative text". An operator
    // takes a while to answer: the found targets are refreshed three times
    // meanwhile, as the status timer would.
    void answer(const QList<int> &buttons = {})
    {
        for (int i = 0; i < buttons.size() + 4; ++i) {
            const int button = buttons.value(i, 0);
            driver->answer([this, button](QWidget *modal) {
                for (int tick = 0; tab && tick < 3; ++tick)
                    QMetaObject::invokeMethod(tab, "updateTrackedAndAcceptStatus_tl");
                auto *box = qobject_cast<QMessageBox *>(modal);
                if (!box)
                    return static_cast<QDialog *>(modal)->reject();
                events << "? " + box->text()
                        + (box->informativeText().isEmpty() ? "" : "|" + box->informativeText());
                for (int b : { button, int(QMessageBox::Yes), int(QMessageBox::Ok) })
                    if (QAbstractButton *chosen = box->button(QMessageBox::StandardButton(b)))
                        return chosen->click();
            });
        }
    }
    void apply(const QString &kind)
    {
        for (const QString &change : qAsConst(m_changes)) {
            if (kind == "!" && change.startsWith('!'))
                controller->failCommand(change.mid(1));
            else if (change.startsWith(kind)
                && (!kind.isEmpty() || !change.contains(QRegExp("^[@!]"))))
                controller->setValue(
                    change.mid(kind.size()).section(" = ", 0, 0), change.section(" = ", 1));
        }
    }

    // What the user saw and the controller got, in order: "? " a box,
    // "! " a report to the message log, else a setting or meta command.
    QStringList events;
    sim::SimulatedController *controller = nullptr;
    BodyAdministrationDlg *dialog = nullptr;
    BodyTypeAdministrationTab *tab = nullptr;
    ModalDriver *driver = nullptr;

private:
    QStringList m_changes;
};

#endif // BODYADMINFIXTURE_H
