#include "filterdialog.h"

#include "filterhelp.h"
#include "ui_filterdialog.h"

#include <QIcon>
#include <QScopedValueRollback>

namespace
{

// Presets and modes are listed and offered per body with the same commands,
// only their words differ.
struct ListCommands {
    const char *count;
    const char *id;
    const char *description;
    const char *available;
    const char *countError;
    const char *idError;
    const char *descriptionError;
    const char *availableError;
};

const ListCommands PresetCommands = {
    "filter6d number_of_presets",
    "filter6d preset_id ",
    "filter6d preset_desc ",
    "body filter6d_preset_available ",
    "Error: Unable to get number of filter 6d presets",
    "Error: Unable to get filter 6d preset id",
    "Error: Unable to get filter 6d preset description",
    "Error: Unable to get filter 6d preset id available",
};

const ListCommands ModeCommands = {
    "filter6d number_of_modes",
    "filter6d mode_id ",
    "filter6d mode_desc ",
    "body filter6d_mode_available ",
    "Error: Unable to get number of filter 6d modes",
    "Error: Unable to get filter 6d mode id",
    "Error: Unable to get filter 6d mode description",
    "Error: Unable to get filter 6d mode id available",
};

QString typeOfTab(int tabIndex)
{
    switch (tabIndex) {
    case 0:
        return QStringLiteral("standard");
    case 1:
        return QStringLiteral("gripwand");
    default:
        return QString();
    }
}

// The only presets whose filter suits a body with an inertial sensor, for
// controllers that cannot tell per body.
bool fitsInertialSensor(const QString &presetId)
{
    return presetId == QLatin1String("preset6d_default")
        || presetId == QLatin1String("preset6d_med_pred");
}

// Predictions are exchanged in seconds and shown in whole milliseconds,
// truncated toward zero.
int milliseconds(double seconds)
{
    return CommandText::truncated(seconds * 1000);
}

} // namespace

FilterDialog::FilterDialog(IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions)
    : QDialog(parent)
    , ui(new Ui::FilterDialog)
    , channel(ioManager, backendVersions)
{
    ui->setupUi(this);
    if (parent)
        setWindowIcon(parent->windowIcon());

    presets = readList(ListKind::Presets);
    for (Preset &preset : presets)
        preset.usableWithInertialSensor = fitsInertialSensor(preset.id);
    readLimits();
    const QList<Preset> modes = readList(ListKind::Modes);
    for (const Preset &mode : modes)
        ui->comboBox_mode->addItem(mode.description, mode.id);
    // No mode is shown until a body's is read.
    ui->comboBox_mode->setCurrentIndex(-1);
}

FilterDialog::~FilterDialog()
{
    delete ui;
}

QList<FilterDialog::Preset> FilterDialog::readList(ListKind kind) const
{
    const ListCommands &commands = kind == ListKind::Presets ? PresetCommands : ModeCommands;
    QList<Preset> list;
    int count = 0;
    channel.getInt(QLatin1String(commands.count), &count);
    for (int number = 1; number <= count; ++number) {
        Preset entry;
        QString description;
        if (channel.getString(QLatin1String(commands.id) + CommandText::targetId(number), &entry.id)
                != 0
            || channel.getString(QLatin1String(commands.description) + entry.id, &description) != 0)
            continue;
        entry.description = CommandText::withoutDoubleQuotes(description);
        list << entry;
    }
    return list;
}

void FilterDialog::readLimits()
{
    double minimum = 0.0;
    double maximum = 0.0;
    channel.getDouble(QStringLiteral("filter6d limit strength_min"), &minimum);
    channel.getDouble(QStringLiteral("filter6d limit strength_max"), &maximum);
    ui->doubleSpinBox_strength->setRange(minimum, maximum);
    channel.getDouble(QStringLiteral("filter6d limit prediction_min"), &minimum);
    channel.getDouble(QStringLiteral("filter6d limit prediction_max"), &maximum);
    ui->spinBox_prediction->setRange(milliseconds(minimum), milliseconds(maximum));
}

int FilterDialog::update_and_exec(int iTabIndex, int iBodyindex)
{
    const bool available = isAvailable(iTabIndex);
    QString changeable;
    locked = channel.atLeast(1, 9)
        && channel.getString(QStringLiteral("config is_changeable"), &changeable) == 0
        && changeable == CommandText::no();
    if (locked)
        setWindowIcon(QIcon(QStringLiteral(":/lock.png")));

    if (available && !locked) {
        setControlsEnabled(true);
        ui->label_error->clear();
        initialised = false;
        fillBodies(iTabIndex, iBodyindex);
        readActive();
        readPreset();
        readCustomSettings();
        initialised = true;
    } else {
        setControlsEnabled(false);
        if (!locked) {
            const QString type = typeOfTab(iTabIndex);
            const QString text = type == QLatin1String("standard")
                ? tr("6DOF filter for standard bodies not available")
                : type == QLatin1String("gripwand") ? tr("6DOF filter for gripwands not available")
                                                    : tr("6DOF filter not available");
            ui->label_error->setText(QStringLiteral("<b><font color=red>%1</font></b>").arg(text));
        }
    }
    return exec();
}

bool FilterDialog::isAvailable(int tabIndex) const
{
    const QString type = typeOfTab(tabIndex);
    QString reply;
    return !type.isEmpty()
        && channel.getString(QStringLiteral("filter6d available ") + type, &reply) == 0
        && CommandText::isYes(reply);
}

void FilterDialog::setControlsEnabled(bool enabled)
{
    const QList<QWidget *> controls { ui->label_body, ui->comboBox_body, ui->checkBox_active,
        ui->label_preset, ui->comboBox_preset, ui->label_strength, ui->doubleSpinBox_strength,
        ui->label_prediction, ui->spinBox_prediction, ui->label_mode, ui->comboBox_mode };
    for (QWidget *control : controls)
        control->setEnabled(enabled);
}

void FilterDialog::fillBodies(int tabIndex, int bodyIndex)
{
    ui->comboBox_body->clear();
    bodies.clear();
    const QString type = typeOfTab(tabIndex);
    // A caller that names the body has chosen it; its calibration is the
    // caller's business.
    if (bodyIndex >= 0) {
        addBody(type, bodyIndex + 1);
        ui->comboBox_body->setEnabled(false);
        return;
    }
    int count = 0;
    channel.getInt(type == QLatin1String("standard")
            ? QStringLiteral("body number_of_bodies standard")
            : QStringLiteral("gripwand number_of_devices"),
        &count);
    for (int number = 1; number <= count; ++number) {
        const QString calibrated = channel.stringOf(
            QStringLiteral("body calibrated %1 %2").arg(type, CommandText::bodyId(number)));
        if (CommandText::isYes(calibrated))
            addBody(type, number);
    }
    ui->comboBox_body->setEnabled(true);
}

void FilterDialog::addBody(const QString &type, int number)
{
    const QString id = type + QLatin1Char(' ') + CommandText::bodyId(number);
    bool hasInertialSensor = false;
    QString text;
    if (type == QLatin1String("standard")) {
        QString sensor;
        hasInertialSensor
            = channel.getString(QStringLiteral("body inertial_sensor ") + id, &sensor) == 0
            && !CommandText::isNone(sensor);
        const QString name
            = CommandText::withoutDoubleQuotes(channel.stringOf(QStringLiteral("body desc ") + id));
        text = tr("standard body %1").arg(CommandText::twoDigits(number));
        if (!name.isEmpty())
            text = QStringLiteral("%1 (%2)").arg(name, text);
    } else {
        text = tr("Gripwand body %1").arg(CommandText::twoDigits(number));
    }
    ui->comboBox_body->addItem(text, id);
    bodies.insert(id, hasInertialSensor);
}

QString FilterDialog::currentBody() const
{
    return ui->comboBox_body->currentData().toString();
}

QString FilterDialog::currentPreset() const
{
    return ui->comboBox_preset->currentData().toString();
}

void FilterDialog::readActive()
{
    const QString body = currentBody();
    if (body.isEmpty()) {
        ui->checkBox_active->setChecked(false);
        return;
    }
    QString enabled;
    channel.getString(QStringLiteral("body filter6d_enabled ") + body, &enabled);
    // Not shielded: after a body change the slot sends the state back.
    ui->checkBox_active->setChecked(CommandText::isYes(enabled));

    bool switchable = true;
    if (channel.atLeast(1, 12)) {
        QString sensor;
        switchable = channel.getString(QStringLiteral("body inertial_sensor ") + body, &sensor) != 0
            || CommandText::isNone(sensor);
    }
    ui->checkBox_active->setVisible(switchable);
}

void FilterDialog::readPreset()
{
    const QString body = currentBody();
    if (body.isEmpty()) {
        ui->comboBox_preset->setCurrentIndex(-1);
        ui->comboBox_preset->setEnabled(false);
        return;
    }
    refillPresets(body);
    QString preset;
    if (channel.getString(QStringLiteral("body filter6d_preset ") + body, &preset) != 0) {
        channel.report(
            QStringLiteral("Error: Unable to get filter 6d preset for body %1").arg(body));
        ui->comboBox_preset->setEnabled(false);
        return;
    }
    // Not shielded: after a body change the slot sends the preset back.
    ui->comboBox_preset->setCurrentIndex(ui->comboBox_preset->findData(preset));
    ui->comboBox_preset->setEnabled(ui->checkBox_active->isChecked());
}

void FilterDialog::readCustomSettings()
{
    const QString body = currentBody();
    double strength = 0.0;
    if (!body.isEmpty()
        && channel.getDouble(QStringLiteral("body filter6d_strength ") + body, &strength) != 0)
        channel.report(
            QStringLiteral("Error: Unable to get filter 6d strength for body %1").arg(body));
    ui->doubleSpinBox_strength->setValue(strength);

    double prediction = 0.0;
    if (!body.isEmpty()
        && channel.getDouble(QStringLiteral("body filter6d_prediction ") + body, &prediction) != 0)
        channel.report(
            QStringLiteral("Error: Unable to get filter 6d prediction for body %1").arg(body));
    ui->spinBox_prediction->setValue(milliseconds(prediction));

    readMode(body);

    const QString preset = currentPreset();
    const bool custom = ui->checkBox_active->isChecked() && CommandText::isCustomPreset(preset);
    const bool hybrid = CommandText::isHybridPreset(preset);
    ui->label_strength->setVisible(!hybrid);
    ui->doubleSpinBox_strength->setVisible(!hybrid);
    ui->doubleSpinBox_strength->setEnabled(custom && !hybrid);
    ui->spinBox_prediction->setEnabled(custom);
    ui->comboBox_mode->setEnabled(custom);
}

void FilterDialog::readMode(const QString &body)
{
    const QScopedValueRollback<bool> shield(initialised, false);
    int index = -1;
    if (!body.isEmpty()) {
        if (channel.atLeast(1, 21))
            refillForBody(ListKind::Modes, body, ui->comboBox_mode);
        QString mode;
        if (channel.getString(QStringLiteral("body filter6d_mode ") + body, &mode) != 0)
            channel.report(
                QStringLiteral("Error: Unable to get filter 6d mode for body %1").arg(body));
        else
            index = ui->comboBox_mode->findData(mode);
    }
    ui->comboBox_mode->setCurrentIndex(index);
}

void FilterDialog::refillPresets(const QString &body)
{
    if (channel.atLeast(1, 21)) {
        refillForBody(ListKind::Presets, body, ui->comboBox_preset);
        return;
    }
    const QScopedValueRollback<bool> shield(initialised, false);
    ui->comboBox_preset->clear();
    const bool hasInertialSensor = bodies.value(body);
    for (const Preset &preset : qAsConst(presets)) {
        if (!hasInertialSensor || preset.usableWithInertialSensor)
            ui->comboBox_preset->addItem(preset.description, preset.id);
    }
}

void FilterDialog::refillForBody(ListKind kind, const QString &body, QComboBox *combo)
{
    const ListCommands &commands = kind == ListKind::Presets ? PresetCommands : ModeCommands;
    const QScopedValueRollback<bool> shield(initialised, false);
    combo->clear();
    int count = 0;
    if (channel.getInt(QLatin1String(commands.count), &count) != 0) {
        channel.report(QString::fromLatin1(commands.countError));
        return;
    }
    for (int number = 1; number <= count; ++number) {
        QString id;
        if (channel.getString(QLatin1String(commands.id) + CommandText::targetId(number), &id)
            != 0) {
            channel.report(QString::fromLatin1(commands.idError));
            continue;
        }
        QString available;
        if (channel.getString(
                QLatin1String(commands.available) + body + QLatin1Char(' ') + id, &available)
            != 0) {
            channel.report(QString::fromLatin1(commands.availableError));
            continue;
        }
        if (!CommandText::isYes(available))
            continue;
        QString description;
        if (channel.getString(QLatin1String(commands.description) + id, &description) != 0) {
            channel.report(QString::fromLatin1(commands.descriptionError));
            continue;
        }
        combo->addItem(CommandText::withoutDoubleQuotes(description), id);
    }
}

void FilterDialog::setFilterEnabled(const QString &bodyId, bool enabled)
{
    send(bodyId, "filter6d_enabled", CommandText::yesNo(enabled),
        "Error: Unable to activate/deactivate filter 6d for body %1");
}

void FilterDialog::send(
    const QString &body, const char *setting, const QString &value, const char *error)
{
    const QString command
        = QStringLiteral("body %1 %2 %3").arg(QLatin1String(setting), body, value);
    if (channel.setParameter(command) != 0)
        channel.report(QString::fromLatin1(error).arg(body));
}

void FilterDialog::on_comboBox_body_currentIndexChanged(int /*index*/)
{
    if (!initialised)
        return;
    readActive();
    readPreset();
    readCustomSettings();
}

void FilterDialog::on_checkBox_active_stateChanged(int state)
{
    const QString body = currentBody();
    if (!initialised || body.isEmpty())
        return;
    setFilterEnabled(body, state == Qt::Checked);
    readPreset();
    readCustomSettings();
}

void FilterDialog::on_comboBox_preset_currentIndexChanged(int index)
{
    const QString body = currentBody();
    if (!initialised || body.isEmpty() || index < 0)
        return;
    send(body, "filter6d_preset", ui->comboBox_preset->itemData(index).toString(),
        "Error: Unable to set filter 6d preset for body %1");
    readCustomSettings();
}

void FilterDialog::on_doubleSpinBox_strength_editingFinished()
{
    const QString body = currentBody();
    if (!initialised || body.isEmpty())
        return;
    send(body, "filter6d_strength", QString::asprintf("%f", ui->doubleSpinBox_strength->value()),
        "Error: Unable to set filter 6d strength for body %1");
}

void FilterDialog::on_spinBox_prediction_editingFinished()
{
    const QString body = currentBody();
    if (!initialised || body.isEmpty())
        return;
    send(body, "filter6d_prediction",
        QString::asprintf("%f", ui->spinBox_prediction->value() / 1000.0),
        "Error: Unable to set filter 6d prediction for body %1");
}

void FilterDialog::on_comboBox_mode_currentIndexChanged(int index)
{
    const QString body = currentBody();
    if (!initialised || body.isEmpty() || index < 0)
        return;
    send(body, "filter6d_mode", ui->comboBox_mode->itemData(index).toString(),
        "Error: Unable to set filter 6d mode for body %1");
}

void FilterDialog::on_pushButton_help_clicked()
{
    FilterHelp help(this);
    help.exec();
}

void FilterDialog::on_pushButton_exit_clicked()
{
    close();
}
