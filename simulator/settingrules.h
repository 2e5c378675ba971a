#ifndef TRACKING_SIM_SETTINGRULES_H
#define TRACKING_SIM_SETTINGRULES_H

#include <QString>

namespace sim
{

class BodyModel;
class ParameterTable;

// How the controller takes a setting "path value...": which paths it lets
// you write, which values it accepts, and what else changes with them.
class SettingRules
{
public:
    enum Outcome { Accepted, UnknownParameter, InvalidValue, Refused };

    SettingRules(ParameterTable &table, BodyModel &bodies);

    // While the active configuration is locked nothing may change.
    static bool isLocked(const ParameterTable &table);
    // Parameters that only the controller itself changes.
    static bool isReadOnly(const QString &path);

    // command is trimmed. On anything but Accepted, *error says why.
    Outcome apply(const QString &command, QString *error);

private:
    Outcome validate(const QString &path, const QString &value, QString *error) const;
    Outcome validateBodySetting(const QString &name, const QString &type, int number,
        const QString &value, QString *error) const;
    void applyEffects(const QString &path, const QString &value);
    // With multi-user heads on, there is one head per gripwand.
    void followGripwandCount();

    ParameterTable &m_table;
    BodyModel &m_bodies;
};

} // namespace sim

#endif // TRACKING_SIM_SETTINGRULES_H
