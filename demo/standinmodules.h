#ifndef STANDINMODULES_H
#define STANDINMODULES_H

#include <messagereceiver.h>

#include <QObject>
#include <QPointer>
#include <QString>

class IOManager;
class QWidget;

// Plays the host modules that the tracking module talks to: body
// calibration, body adjustment, hybrid calibration and configuration. A
// hand-over request gets a message box in place of the real module's
// dialog, and "reopen" once the user closes it, as the real modules answer.
class StandInModules : public QObject, public MessageReceiver
{
    Q_OBJECT

public:
    StandInModules(IOManager *ioManager, QWidget *dialogParent, QObject *parent = nullptr);
    ~StandInModules() override;

    // What the calibration and adjustment modules send once they are up.
    void announce();
    // What the configuration module sends when the user switches configurations.
    void announceConfigurationChanged();

    int receiveMessage(const char *receiver, const char *sender, const char *text) override;

    // The stand-in's text for a request to the module named receiver; empty
    // when that module would not take it.
    static QString describeRequest(const QString &receiver, const QString &text);

private:
    void handOver(const QString &module, const QString &description);

    IOManager *m_ioManager;
    QPointer<QWidget> m_dialogParent;
};

#endif // STANDINMODULES_H
