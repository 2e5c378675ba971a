#ifndef BODYADMINISTRATIONDLG_H
#define BODYADMINISTRATIONDLG_H

#include "commandchannel.h"

#include <QDialog>

class BodyAdminMessageReceiver;
class IOManager;
struct BackendVersions;

// The body administration dialog. This first version already takes part in
// the message service so that the host can hand bodies over and back; the
// body-type tabs join it later.
class BodyAdministrationDlg : public QDialog
{
    Q_OBJECT

public:
    BodyAdministrationDlg(IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions);

    BodyAdminMessageReceiver *messageReceiver() const { return receiver; }
    // Leaves the message service (the module's shutdown).
    void unsubscribe();

public slots:
    int update_and_exec();
    void onReceiveReopen();

private:
    QWidget *parentWidget;
    IOManager *ioManager;
    BackendVersions *backendVersions;
    CommandChannel channel;
    BodyAdminMessageReceiver *receiver;
};

#endif // BODYADMINISTRATIONDLG_H
