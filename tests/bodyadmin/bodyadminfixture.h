#ifndef BODYADMINFIXTURE_H
#define BODYADMINFIXTURE_H

#include "bodyadministrationdlg.h"
#include "bodytypeadministrationtab.h"

#include <modaldriver.h>
#include <simulatedcontroller.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QStyle>
#include <QTabWidget>
#include <QTableWidget>
#include <QtTest>

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
    }

    BodyAdministrationDlg *build()
    {
        dialog = new BodyAdministrationDlg(controller, nullptr, &controller->backendVersions());
        return dialog;
    }

    // A scenario change: "path = value" is set before the dialog opens,
    // "@path = value" after it has read the controller, and "!pattern"
    // makes every matching command fail from then on.
    void setUp(const QStringList &changes) { m_changes = changes; }

    // The dialog on the tab with this key, refreshed as a tab switch does.
    BodyTypeAdministrationTab *open(int key = 0)
    {
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
        controller->clearLog();
        return tab;
    }

    // Closes what a failed test left open; true when no window remains.
    bool cleanup()
    {
        ModalDriver::closeAllModals();
        if (tab)
            tab->about_to_exit();
        delete driver;
        delete dialog;
        delete controller;
        driver = nullptr;
        dialog = nullptr;
        tab = nullptr;
        controller = nullptr;
        return QApplication::topLevelWidgets().isEmpty();
    }

    // The open tab's widget of that name, else the dialog's.
    template<typename W = QWidget> W *widget(const QString &name) const
    {
        W *found = tab ? tab->findChild<W *>(name) : nullptr;
        return found ? found : dialog->findChild<W *>(name);
    }
    QTableWidget *table(const QString &name = "tableWidget_standard") const
    {
        return widget<QTableWidget>(name);
    }
    void clickButton(const QString &name) const
    {
        QTest::mouseClick(widget<QPushButton>(name), Qt::LeftButton);
    }

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
    // Moves to the cell as the keyboard would (the table has the focus).
    static void go(QTableWidget *table, int row, int column)
    {
        table->setFocus();
        table->setCurrentCell(row, column);
    }

    // What changed the controller: settings and meta commands, in order,
    // without the check that only refreshes the target table's view.
    QStringList changes() const
    {
        QStringList texts;
        for (const Log &entry : controller->log()) {
            if ((entry.kind == Log::Setting || entry.kind == Log::Command)
                && entry.text != QLatin1String("velora2 targetlib check_custom_calibration"))
                texts << entry.text;
        }
        return texts;
    }

    // The next boxes are answered with these buttons, any further one
    // positively (Yes, else Ok) so that no test hangs on a surprise.
    void answer(const QList<int> &buttons = {})
    {
        for (int button : buttons)
            driver->pressButton(button);
        for (int i = 0; i < 4; ++i)
            driver->answer([](QWidget *modal) {
                auto *box = qobject_cast<QMessageBox *>(modal);
                QAbstractButton *yes = box ? box->button(QMessageBox::Yes) : nullptr;
                QAbstractButton *ok = box ? box->button(QMessageBox::Ok) : nullptr;
                if (yes || ok)
                    (yes ? yes : ok)->click();
                else
                    static_cast<QDialog *>(modal)->reject();
            });
    }
    // The texts the boxes showed, informative text after a '|'.
    QStringList seen() const
    {
        QStringList texts;
        for (const ModalDriver::Seen &box : driver->seen())
            texts << box.text + (box.informativeText.isEmpty() ? "" : "|" + box.informativeText);
        return texts;
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

    sim::SimulatedController *controller = nullptr;
    BodyAdministrationDlg *dialog = nullptr;
    BodyTypeAdministrationTab *tab = nullptr;
    ModalDriver *driver = nullptr;

private:
    QStringList m_changes;
};

#define FIXTURE_CLEANUP(fixture)                                                                   \
    QVERIFY2(fixture.cleanup(), qPrintable(ModalDriver::topLevelWidgetNames().join(", ")))

#endif // BODYADMINFIXTURE_H
