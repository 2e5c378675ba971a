#include "filterdialog.h"

#include <modaldriver.h>
#include <simulatedcontroller.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

class TestFilterDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void queries();
    void opens_data();
    void opens();
    void changes_data();
    void changes();
    void help();

private:
    // What the user sees, and what the controller was told.
    struct Outcome {
        QString bodies, presets, values, error;
        QStringList constructing, opening, sent, reports;
    };
    Outcome run(int tab, int index, const std::function<void(QWidget *)> &action = {});

    sim::SimulatedController *controller = nullptr;
    ModalDriver *driver = nullptr;
};

namespace
{

template<typename T = QWidget> T *child(QWidget *dialog, const char *name)
{
    return dialog->findChild<T *>(name);
}

// Disabled values in brackets, hidden ones marked.
QString shown(QWidget *dialog, const char *name, const QString &text)
{
    const QWidget *widget = child(dialog, name);
    if (!widget->isVisible())
        return (text + " hidden").trimmed();
    return widget->isEnabled() ? text : '(' + text + ')';
}

// Items as "text=data" when withData.
QString itemsOf(QWidget *dialog, const char *name, bool withData)
{
    const auto combo = child<QComboBox>(dialog, name);
    QStringList items;
    for (int i = 0; i < combo->count(); ++i)
        items << combo->itemText(i) + (withData ? '=' + combo->itemData(i).toString() : QString());
    return shown(dialog, name, items.join(", "));
}

// "active | preset | strength | prediction | mode"
QString valuesOf(QWidget *d)
{
    const auto strength = child<QDoubleSpinBox>(d, "doubleSpinBox_strength");
    return QStringList(
        { shown(d, "checkBox_active",
              child<QCheckBox>(d, "checkBox_active")->isChecked() ? "[x]" : "[ ]"),
            shown(d, "comboBox_preset", child<QComboBox>(d, "comboBox_preset")->currentText()),
            shown(
                d, "doubleSpinBox_strength", strength->isVisible() ? strength->text() : QString()),
            shown(d, "spinBox_prediction", child<QSpinBox>(d, "spinBox_prediction")->text()),
            shown(d, "comboBox_mode", child<QComboBox>(d, "comboBox_mode")->currentText()) })
        .join(" | ");
}

const QString AllPresets("Default, Medium prediction, Strong smoothing, Custom, Custom hybrid");
const QString SensorPresets("Default, Medium prediction");
const QString PresetsOff('(' + AllPresets + ')');
const QString B02("(Room reference (standard body 02)=standard b02)");
const QString B03("(Handheld (standard body 03)=standard b03)");
const QString Custom("[x] | Custom | 0.50 | 12 | Static");
const QString Off("[ ] | (Custom) | (0.50) | (12) | (Static)");
const QString Predefined("[x] | Default | (0.50) | (0) | (Adaptive fast)");
const QString SensorBody("[x] hidden | Medium prediction | (0.50) | (20) | (Adaptive fast)");

} // namespace

void TestFilterDialog::init()
{
    controller = new sim::SimulatedController;
    driver = new ModalDriver;
}

void TestFilterDialog::cleanup()
{
    ModalDriver::closeAllModals();
    delete driver;
    delete controller;
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(),
        qPrintable(ModalDriver::topLevelWidgetNames().join(", ")));
}

TestFilterDialog::Outcome TestFilterDialog::run(
    int tab, int index, const std::function<void(QWidget *)> &action)
{
    Outcome outcome;
    controller->clearLog();
    FilterDialog dialog(controller, nullptr, &controller->backendVersions());
    outcome.constructing = controller->commands();
    driver->answer([&](QWidget *modal) {
        outcome.opening = controller->commands().mid(outcome.constructing.size());
        const int mark = controller->log().size();
        if (action)
            action(modal);
        outcome.bodies = itemsOf(modal, "comboBox_body", true);
        outcome.presets = itemsOf(modal, "comboBox_preset", false);
        outcome.values = valuesOf(modal);
        outcome.error = child<QLabel>(modal, "label_error")->text();
        for (const auto &entry : controller->log().mid(mark))
            if (entry.kind == sim::SimulatedController::LogEntry::Setting)
                outcome.sent << entry.text;
        outcome.reports = controller->reports();
        // Return in a spin box must not have closed the dialog.
        if (modal->isVisible())
            child<QPushButton>(modal, "pushButton_exit")->click();
    });
    dialog.update_and_exec(tab, index);
    return outcome;
}

void TestFilterDialog::queries()
{
    controller->backendVersions().backendVersion = { 1, 20, 0 };
    const Outcome outcome = run(0, 1);
    QCOMPARE(outcome.constructing.size(), 1 + 5 * 2 + 4 + 1 + 6 * 2);
    QCOMPARE(outcome.constructing.mid(9, 8),
        QStringList({ "filter6d preset_id t05", "filter6d preset_desc preset6d_hybrid_custom",
            "filter6d limit strength_min", "filter6d limit strength_max",
            "filter6d limit prediction_min", "filter6d limit prediction_max",
            "filter6d number_of_modes", "filter6d mode_id t01" }));
    QCOMPARE(outcome.opening.join(", "),
        "filter6d available standard, config is_changeable, body inertial_sensor standard b02, "
        "body desc standard b02, body filter6d_enabled standard b02, "
        "body filter6d_preset standard b02, "
        "body filter6d_strength standard b02, body filter6d_prediction standard b02, "
        "body filter6d_mode standard b02");

    FilterDialog dialog(controller, nullptr, &controller->backendVersions());
    QCOMPARE(child<QSpinBox>(&dialog, "spinBox_prediction")->minimum(), -50);
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "doubleSpinBox_strength")->maximum(), 0.99);
}

void TestFilterDialog::opens_data()
{
    QTest::addColumn<int>("minor"); // of version 1
    QTest::addColumn<QString>("setting"); // "path=value", or a query that fails
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("bodies");
    QTest::addColumn<QString>("presets");
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("message"); // message line, or else the reports

    const QString none, locked("config is_changeable=no"), sb("standard b02 preset6d_strong");
    const QString closed("([ ]) | () | (0.01) | (0) | ()");
    const QString missing("<b><font color=red>6DOF filter %1not available</font></b>");
    // clang-format off
    QTest::newRow("custom preset") << 24 << none << 0 << 1 << B02 << AllPresets << Custom << none;
    QTest::newRow("hybrid preset hides strength") << 24 << "body filter6d_preset standard b02=preset6d_hybrid_custom" << 0 << 1 << B02 << AllPresets << "[x] | Custom hybrid | hidden | 12 | Static" << none;
    QTest::newRow("filter off") << 24 << "body filter6d_enabled standard b02=no" << 0 << 1 << B02 << PresetsOff << Off << none;
    QTest::newRow("inertial sensor: no switch, the body's presets") << 24 << none << 0 << 2 << B03 << SensorPresets << SensorBody << none;
    QTest::newRow("before 1.21: presets fit for a sensor") << 20 << "body filter6d_preset_available standard b03 preset6d_strong=yes" << 0 << 2 << B03 << SensorPresets << SensorBody << none;
    QTest::newRow("before 1.21: all presets without sensor") << 20 << "body filter6d_preset_available " + sb + "=no" << 0 << 1 << B02 << AllPresets << Custom << none;
    QTest::newRow("before 1.12: switch with a sensor") << 11 << none << 0 << 2 << B03 << SensorPresets << "[x] | Medium prediction | (0.50) | (20) | (Adaptive fast)" << none;
    QTest::newRow("body by index: unchecked, unnamed") << 24 << none << 0 << 3 << "(standard body 04=standard b04)" << AllPresets << Predefined << none;
    QTest::newRow("calibrated standard bodies") << 24 << none << 0 << -1 << "Glasses (standard body 01)=standard b01, Room reference (standard body 02)=standard b02, Handheld (standard body 03)=standard b03" << AllPresets << Predefined << none;
    QTest::newRow("no body") << 24 << "body number_of_bodies standard=0" << 0 << -1 << none << "()" << "[ ] | () | (0.01) | (0) | ()" << none;
    QTest::newRow("calibrated Gripwands") << 24 << none << 1 << -1 << "Gripwand body 01=gripwand b01" << AllPresets << Predefined << none;
    QTest::newRow("Gripwand by index") << 24 << none << 1 << 1 << "(Gripwand body 02=gripwand b02)" << AllPresets << Predefined << none;
    QTest::newRow("switch unread: cleared") << 24 << "body filter6d_enabled standard b02" << 0 << 1 << B02 << PresetsOff << Off << none;
    QTest::newRow("preset unread") << 24 << "body filter6d_preset standard b02" << 0 << 1 << B02 << PresetsOff << "[x] | (Default) | (0.50) | (12) | (Static)" << "Error: Unable to get filter 6d preset for body standard b02";
    QTest::newRow("preset count unread") << 24 << "filter6d number_of_presets" << 0 << 1 << B02 << none << "[x] |  | (0.50) | (12) | (Static)" << "Error: Unable to get number of filter 6d presets";
    QTest::newRow("preset availability unread") << 24 << "body filter6d_preset_available " + sb << 0 << 1 << B02 << "Default, Medium prediction, Custom, Custom hybrid" << Custom << "Error: Unable to get filter 6d preset id available";
    QTest::newRow("standard bodies without filter") << 24 << "filter6d available standard=no" << 0 << 1 << "()" << "()" << closed << missing.arg("for standard bodies ");
    QTest::newRow("Gripwands without filter") << 24 << "filter6d available gripwand=no" << 1 << 1 << "()" << "()" << closed << missing.arg("for gripwands ");
    QTest::newRow("other body type") << 24 << none << 2 << 1 << "()" << "()" << closed << missing.arg("");
    QTest::newRow("locked: no message") << 24 << locked << 0 << 1 << "()" << "()" << closed << none;
    QTest::newRow("before 1.9 never locked") << 8 << locked << 0 << 1 << B02 << AllPresets << Custom << none;
    // clang-format on
}

void TestFilterDialog::opens()
{
    QFETCH(int, minor);
    QFETCH(QString, setting);
    QFETCH(int, tab);
    QFETCH(int, index);
    controller->backendVersions().backendVersion = { 1, minor, 0 };
    if (setting.contains('='))
        controller->setValue(setting.section('=', 0, 0), setting.section('=', 1));
    else if (!setting.isEmpty())
        controller->failCommand(setting);

    const Outcome outcome = run(tab, index);
    QTEST(outcome.bodies, "bodies");
    QTEST(outcome.presets, "presets");
    QTEST(outcome.values, "values");
    QFETCH(QString, message);
    QCOMPARE(outcome.error.isEmpty() ? outcome.reports.join("") : outcome.error, message);
    QCOMPARE(outcome.sent, QStringList());
}

void TestFilterDialog::changes_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("report");

    const QString none, b02("body filter6d_%1 standard b02 %2");
    // Reading the preset and the switch is not shielded from their slots: a
    // value that differs from what the widget showed is sent back.
    const QString customBack = b02.arg("preset", "preset6d_std_custom");
    const QStringList offAndBack { b02.arg("enabled", "no"), customBack };
    // clang-format off
    QTest::newRow("20 ms prediction sent in seconds") << 1 << "spinBox_prediction" << "20" << none << QStringList(b02.arg("prediction", "0.020000")) << "[x] | Custom | 0.50 | 20 | Static" << none;
    QTest::newRow("refused strength") << 1 << "doubleSpinBox_strength" << "0.75" << b02.arg("strength", "*") << QStringList(b02.arg("strength", "0.750000")) << "[x] | Custom | 0.75 | 12 | Static" << "Error: Unable to set filter 6d strength for body standard b02";
    QTest::newRow("mode") << 1 << "comboBox_mode" << "Fast" << none << QStringList(b02.arg("mode", "mode6d_fast")) << "[x] | Custom | 0.50 | 12 | Fast" << none;
    QTest::newRow("predefined preset") << 1 << "comboBox_preset" << "Default" << none << QStringList(b02.arg("preset", "preset6d_default")) << "[x] | Default | (0.50) | (12) | (Static)" << none;
    QTest::newRow("switched off") << 1 << "checkBox_active" << none << none << offAndBack << Off << none;
    QTest::newRow("refused switch, values still read") << 1 << "checkBox_active" << none << b02.arg("enabled", "*") << offAndBack << Off << "Error: Unable to activate/deactivate filter 6d for body standard b02";
    QTest::newRow("body change sends the preset back") << -1 << "comboBox_body" << "Room reference (standard body 02)" << none << QStringList(customBack) << Custom << none;
    // clang-format on
}

void TestFilterDialog::changes()
{
    QFETCH(int, index);
    QFETCH(QString, widget);
    QFETCH(QString, input);
    QFETCH(QString, failing);
    if (!failing.isEmpty())
        controller->failCommand(failing);

    const Outcome outcome = run(0, index, [&](QWidget *dialog) {
        QWidget *target = child(dialog, qPrintable(widget));
        if (auto *combo = qobject_cast<QComboBox *>(target)) {
            combo->setCurrentIndex(combo->findText(input));
        } else if (auto *box = qobject_cast<QAbstractSpinBox *>(target)) {
            box->setFocus();
            box->selectAll();
            QTest::keyClicks(box, input);
            QTest::keyClick(box, Qt::Key_Return);
        } else {
            qobject_cast<QAbstractButton *>(target)->click();
        }
    });
    QTEST(outcome.sent, "sent");
    QTEST(outcome.values, "values");
    QTEST(outcome.reports.join(""), "report");
}

// With SCREENSHOT_DIR set, also pictures for the documentation:
// SCREENSHOT_DIR=$PWD/docs ctest -R tst_filterdialog
void TestFilterDialog::help()
{
    const QString pictures = qEnvironmentVariable("SCREENSHOT_DIR");
    QString page;
    const auto answer = [&](const char *picture, const std::function<void(QWidget *)> &then) {
        driver->answer([=](QWidget *dialog) {
            if (!pictures.isEmpty())
                dialog->grab().save(QDir(pictures).filePath(picture));
            then(dialog);
        });
    };
    answer("filterdialog.png", [](QWidget *dialog) {
        // Queued: the button opens a modal loop of its own.
        QMetaObject::invokeMethod(child(dialog, "pushButton_help"), "click", Qt::QueuedConnection);
    });
    answer("filterhelp.png", [&](QWidget *help) {
        page = child<QLabel>(help, "label_heading")->text()
            + child<QLabel>(help, "label_help")->text();
        child<QPushButton>(help, "pushButton_exit")->click();
    });
    driver->reject();
    FilterDialog dialog(controller, nullptr, &controller->backendVersions());
    dialog.update_and_exec(0, 1);

    QCOMPARE(driver->pending(), 0);
    QCOMPARE(driver->seen().at(1).className + ": " + driver->seen().at(1).title,
        "FilterHelp: Help Filter");
    for (const char *part : { "Help for filter settings", "Strength", "Prediction", "Mode",
             "Adaptive fast", "Adaptive slow", ">Fast<", ">Slow<", ">Static<", "Reference target" })
        QVERIFY2(page.contains(part), part);
}

QTEST_MAIN(TestFilterDialog)
#include "tst_filterdialog.moc"
