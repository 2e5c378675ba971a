#ifndef NOTAMODULE_H
#define NOTAMODULE_H

#include <QObject>
#include <QtPlugin>

// A plug-in whose object lacks the module interface, as one built against
// an older interface header would.
class NotAModule : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zem.Velora2.TrackingSettingsModule")

public:
    NotAModule();
};

#endif // NOTAMODULE_H
