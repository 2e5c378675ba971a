#include "filterdialog.h"

#include <testkit.h>

using testkit::child;
using testkit::fetch;

namespace
{

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
QString valuesOf(QWidget *dialog)
{
    QStringList values;
    for (const char *name : { "checkBox_active", "comboBox_preset", "doubleSpinBox_strength",
             "spinBox_prediction", "comboBox_mode" }) {
        const QWidget *widget = child(dialog, name);
        const auto box = qobject_cast<const QCheckBox *>(widget);
        const char *property = qobject_cast<const QComboBox *>(widget) ? "currentText" : "text";
        values << shown(dialog, name,
            box ? (box->isChecked() ? "[x]" : "[ ]") : widget->property(property).toString());
    }
    return values.join(" | ");
}

const QString AllPresets("Default, Medium prediction, Strong smoothing, Custom, Custom hybrid");
const QString SensorPresets("Default, Medium prediction");
const QString PresetsOff('(' + AllPresets + ')');
const QString B02("(Room reference (standard body 02)=standard b02)");
const QString B03("(Handheld (standard body 03)=standard b03)");
const QString Bodies("Glasses (standard body 01)=standard b01, " + B02.mid(1).chopped(1)
    + ", Handheld (standard body 03)=standard b03");
const QString Room(B02 + " # " + AllPresets + " # "); // its body and presets
const QString Custom("[x] | Custom | 0.50 | 12 | Static");
const QString Off("[ ] | (Custom) | (0.50) | (12) | (Static)");
const QString Predefined("[x] | Default | (0.50) | (0) | (Adaptive fast)");
const QString SensorBody("[x] hidden | Medium prediction | (0.50) | (20) | (Adaptive fast)");

} // namespace

class TestFilterDialog : public QObject
{
    Q_OBJECT

private slots:
    void init() { testkit::useScenario(controller); }
    void cleanup() { testkit::closeAllAndCheck(); }
    void session_data()
    {
        // minor: of version 1; setting: "path=value", or a command that fails; input: "widget=text"
        // the operator enters; look: bodies # presets # values; commands: all that follow the
        // input, as body 2's steps; message: message line, or else the reports
        testkit::columns<int, QString, int, int, QString, QString, QString, QString>(
            { "minor", "setting", "tab", "index", "input", "look", "commands", "message" });

        const QString none, S(" # "), closed("([ ]) | () | (0.01) | (0) | ()");
        const QString missing("<b><font color=red>6DOF filter %1not available</font></b>");
        const QString b02("body filter6d_%1 standard b02 %2"),
            get("Error: Unable to get filter 6d %1");
        // Strength, prediction and mode, as read after the preset. Reading the
        // preset and the switch is not shielded from their slots: the custom
        // preset of body 2 read into its refilled combo goes back, its reads follow.
        const QString custom(" strength prediction modes mode"),
            back(" preset=preset6d_std_custom" + custom + custom);
        // clang-format off
        QTest::newRow("custom preset") << 24 << none << 0 << 1 << none << Room + Custom << none << none;
        QTest::newRow("hybrid preset hides strength") << 24 << "body filter6d_preset standard b02=preset6d_hybrid_custom" << 0 << 1 << none << Room + "[x] | Custom hybrid | 0.50 hidden | 12 | Static" << none << none;
        QTest::newRow("filter off") << 24 << "body filter6d_enabled standard b02=no" << 0 << 1 << none << B02 + S + PresetsOff + S + Off << none << none;
        QTest::newRow("inertial sensor: no switch, the body's presets") << 21 << none << 0 << 2 << none << B03 + S + SensorPresets + S + SensorBody << none << none;
        QTest::newRow("before 1.21: presets fit for a sensor") << 20 << "body filter6d_preset_available standard b03 preset6d_strong=yes" << 0 << 2 << none << B03 + S + SensorPresets + S + SensorBody << none << none;
        QTest::newRow("before 1.21: all presets without sensor") << 20 << "body filter6d_preset_available standard b02 preset6d_strong=no" << 0 << 1 << none << Room + Custom << none << none;
        QTest::newRow("before 1.12: switch with a sensor") << 11 << none << 0 << 2 << none << B03 + S + SensorPresets + S + "[x] | Medium prediction | (0.50) | (20) | (Adaptive fast)" << none << none;
        QTest::newRow("1.12: no switch with a sensor") << 12 << none << 0 << 2 << none << B03 + S + SensorPresets + S + SensorBody << none << none;
        QTest::newRow("body by index: unchecked, unnamed") << 24 << none << 0 << 3 << none << "(standard body 04=standard b04)" + S + AllPresets + S + Predefined << none << none;
        QTest::newRow("calibrated standard bodies") << 24 << none << 0 << -1 << none << Bodies + S + AllPresets + S + Predefined << none << none;
        QTest::newRow("no body") << 24 << "body number_of_bodies standard=0" << 0 << -1 << none << none + S + "()" + S + "[ ] | () | (0.01) | (0) | ()" << none << none;
        QTest::newRow("calibrated Gripwands") << 24 << none << 1 << -1 << none << "Gripwand body 01=gripwand b01" + S + AllPresets + S + Predefined << none << none;
        QTest::newRow("Gripwand by index") << 24 << none << 1 << 1 << none << "(Gripwand body 02=gripwand b02)" + S + AllPresets + S + Predefined << none << none;
        QTest::newRow("switch unread: cleared") << 24 << "body filter6d_enabled standard b02" << 0 << 1 << none << B02 + S + PresetsOff + S + Off << none << none;
        QTest::newRow("preset unread") << 24 << "body filter6d_preset standard b02" << 0 << 1 << none << B02 + S + PresetsOff + S + "[x] | (Default) | (0.50) | (12) | (Static)" << none << "Error: Unable to get filter 6d preset for body standard b02";
        QTest::newRow("preset count unread") << 24 << "filter6d number_of_presets" << 0 << 1 << none << B02 + S + none + S + "[x] |  | (0.50) | (12) | (Static)" << none << "Error: Unable to get number of filter 6d presets";
        // A list entry whose id, availability or description is unread is left out.
        QTest::newRow("preset entries unread") << 24 << "filter6d preset_id t03|body filter6d_preset_available standard b02 preset6d_med_pred|filter6d preset_desc preset6d_hybrid_custom" << 0 << 1 << none << B02 + S + "Default, Custom" + S + Custom << none << get.arg("preset id available") + '|' + get.arg("preset id") + '|' + get.arg("preset description");
        QTest::newRow("mode entries unread") << 24 << "filter6d mode_id t03|body filter6d_mode_available standard b02 mode6d_slow|filter6d mode_desc mode6d_reference" << 0 << 1 << none << Room + Custom << none << get.arg("mode id") + '|' + get.arg("mode id available") + '|' + get.arg("mode description");
        QTest::newRow("standard bodies without filter") << 24 << "filter6d available standard=no" << 0 << 1 << none << "()" + S + "()" + S + closed << none << missing.arg("for standard bodies ");
        QTest::newRow("Gripwands without filter") << 24 << "filter6d available gripwand=no" << 1 << 1 << none << "()" + S + "()" + S + closed << none << missing.arg("for gripwands ");
        QTest::newRow("other body type") << 24 << none << 2 << 1 << none << "()" + S + "()" + S + closed << none << missing.arg("");
        QTest::newRow("locked: no message") << 9 << "config is_changeable=no" << 0 << 1 << none << "()" + S + "()" + S + closed << none << none;
        QTest::newRow("before 1.9 never locked") << 8 << "config is_changeable=no" << 0 << 1 << none << Room + Custom << none << none;
        // A refused setting still shows what the operator entered; success
        // and refusal share one path, so one refusal per setting is enough.
        QTest::newRow("refused strength") << 24 << b02.arg("strength", "*") << 0 << 1 << "doubleSpinBox_strength=0.75" << Room + "[x] | Custom | 0.75 | 12 | Static" << "strength=0.750000" << "Error: Unable to set filter 6d strength for body standard b02";
        QTest::newRow("refused mode") << 24 << b02.arg("mode", "*") << 0 << 1 << "comboBox_mode=Fast" << Room + "[x] | Custom | 0.50 | 12 | Fast" << "mode=mode6d_fast" << "Error: Unable to set filter 6d mode for body standard b02";
        QTest::newRow("refused prediction, 20 ms sent in seconds") << 24 << b02.arg("prediction", "*") << 0 << 1 << "spinBox_prediction=20" << Room + "[x] | Custom | 0.50 | 20 | Static" << "prediction=0.020000" << "Error: Unable to set filter 6d prediction for body standard b02";
        QTest::newRow("refused predefined preset") << 24 << b02.arg("preset", "*") << 0 << 1 << "comboBox_preset=Default" << Room + "[x] | Default | (0.50) | (12) | (Static)" << "preset=preset6d_default" + custom << "Error: Unable to set filter 6d preset for body standard b02";
        QTest::newRow("refused switch, its reads follow") << 24 << b02.arg("enabled", "*") << 0 << 1 << "checkBox_active" << B02 + S + PresetsOff + S + Off << "enabled=no presets preset" + back << "Error: Unable to activate/deactivate filter 6d for body standard b02";
        QTest::newRow("body chosen") << 24 << none << 0 << -1 << "comboBox_body=Room" << Bodies + S + AllPresets + S + Custom << "enabled inertial_sensor presets preset" + back << none;
        QTest::newRow("body chosen, its switch sent back") << 24 << "body filter6d_enabled standard b02=no" << 0 << -1 << "comboBox_body=Room" << Bodies + S + PresetsOff + S + Off << "enabled enabled=no presets preset" + back + " inertial_sensor presets preset" + back << none;
        QTest::newRow("unread " "strength") << 24 << "body filter6d_strength standard b02" << 0 << 1 << none << Room + "[x] | Custom | 0.01 | 12 | Static" << none << get.arg("strength for body standard b02");
        QTest::newRow("unread " "prediction") << 24 << "body filter6d_prediction standard b02" << 0 << 1 << none << Room + "[x] | Custom | 0.50 | 0 | Static" << none << get.arg("prediction for body standard b02");
        QTest::newRow("unread " "mode") << 24 << "body filter6d_mode standard b02" << 0 << 1 << none << Room + "[x] | Custom | 0.50 | 12 | " << none << get.arg("mode for body standard b02");
        QTest::newRow("unread " "mode count") << 24 << "filter6d number_of_modes" << 0 << 1 << none << Room + "[x] | Custom | 0.50 | 12 | " << none << "Error: Unable to get number of filter 6d modes";
        // clang-format on
    }
    void session()
    {
        controller.backendVersions().backendVersion = { 1, fetch<int>("minor"), 0 };
        testkit::apply(controller, fetch<QString>("setting"));
        QStringList shown;
        QString message;
        const int mark = run(
            fetch<int>("tab"), fetch<int>("index"), fetch<QString>("input"), [&](QWidget *modal) {
                shown << itemsOf(modal, "comboBox_body", true)
                      << itemsOf(modal, "comboBox_preset", false) << valuesOf(modal);
                message = child<QLabel>(modal, "label_error")->text();
            });
        QTEST(shown.join(" # "), "look");
        QCOMPARE(controller.commands().mid(mark), body2(fetch<QString>("commands")));
        QTEST(message.isEmpty() ? controller.reports().join('|') : message, "message");
    }
    // An opening from construction on, before and from 1.21, with the
    // strength unread, and a look at the help. Reports stay in the
    // controller's words whatever the operator reads.
    void opening()
    {
        const QStringList limits { "filter6d limit strength_min", "filter6d limit strength_max",
            "filter6d limit prediction_min", "filter6d limit prediction_max" },
            opened { "filter6d available standard", "config is_changeable" };
        const QString read("inertial_sensor desc enabled inertial_sensor ");
        controller.failCommand("body filter6d_strength standard b02");
        QTranslator german; // leaves the application with the test
        QVERIFY(german.load(TRACKING_QM_FILE));
        QCoreApplication::installTranslator(&german);
        for (const int minor : { 20, 21 }) {
            controller.backendVersions().backendVersion = { 1, minor, 0 };
            controller.clearLog();
            ModalDriver driver;
            driver.answer([](QWidget *dialog) { testkit::clickLater(dialog, "pushButton_help"); });
            driver.answer([](QWidget *help) { testkit::clickLater(help, "pushButton_exit"); });
            driver.reject();
            FilterDialog(&controller, nullptr, &controller.backendVersions()).update_and_exec(0, 1);
            QCOMPARE(driver.seen().at(0).title + '|' + driver.seen().at(1).title,
                QString("Filtereinstellungen|Hilfe Filter")); // the operator reads German
            QCOMPARE(controller.commands(),
                listed("preset") + limits + listed("mode") + opened
                    + body2(read
                        + (minor < 21 ? "preset strength prediction mode"
                                      : "presets preset strength prediction modes mode")));
            QCOMPARE(controller.reports(),
                QStringList { "Error: Unable to get filter 6d strength for body standard b02" });
        }
    }

private:
    // The preset or mode list as read at construction, or as offered to body 2.
    QStringList listed(const QString &kind, bool forBody = false) const
    {
        QStringList reads { "filter6d number_of_" + kind + 's' };
        for (int t = 1; t <= controller.value(reads.first()).toInt(); ++t) {
            reads << QString("filter6d %1_id t0%2").arg(kind).arg(t);
            const QString id = controller.value(reads.last());
            if (forBody)
                reads << "body filter6d_" + kind + "_available standard b02 " + id;
            reads << "filter6d " + kind + "_desc " + id;
        }
        return reads;
    }
    // Body 2's part of a flow in its steps: "presets" and "modes" are the
    // lists offered to it, "desc" and "inertial_sensor" its reads, any other
    // step reads its filter setting, or sends it with "=value".
    QStringList body2(const QString &steps) const
    {
        QStringList commands;
        for (const QString &step : steps.split(' ', Qt::SkipEmptyParts)) {
            const QString name = step.section('=', 0, 0), value = step.section('=', 1);
            if (step.endsWith('s'))
                commands += listed(step.chopped(1), true);
            else
                commands << "body "
                        + QString(name == "desc" || name == "inertial_sensor" ? "" : "filter6d_")
                        + name + " standard b02" + (value.isEmpty() ? "" : ' ' + value);
        }
        return commands;
    }
    // Opens the dialog, enters input as the operator does ("widget=text", or a
    // widget to click), hands it to look and leaves with Exit. Returns how
    // many commands the controller had heard before the input.
    int run(
        int tab, int index, const QString &input, const std::function<void(QWidget *)> &look = {})
    {
        FilterDialog dialog(&controller, nullptr, &controller.backendVersions());
        int mark = 0;
        ModalDriver driver;
        driver.answer([&](QWidget *modal) {
            mark = controller.commands().size();
            QWidget *target
                = input.isEmpty() ? nullptr : child(modal, qPrintable(input.section('=', 0, 0)));
            if (auto *combo = qobject_cast<QComboBox *>(target)) {
                QTest::keyClicks(combo, input.section('=', 1)); // the combo's keyboard search
            } else if (auto *box = qobject_cast<QAbstractSpinBox *>(target)) {
                QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
                QTest::keyClicks(box, input.section('=', 1));
                QTest::keyClick(box, Qt::Key_Return);
            } else if (target) {
                QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(5, target->height() / 2));
            }
            if (look)
                look(modal);
            // Return in a spin box must not have closed the dialog.
            testkit::clickLater(modal, "pushButton_exit");
        });
        dialog.update_and_exec(tab, index);
        return mark;
    }

    sim::SimulatedController controller;
};

QTEST_MAIN(TestFilterDialog)
#include "tst_filterdialog.moc"
