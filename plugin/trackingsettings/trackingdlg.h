#ifndef TRACKINGDLG_H
#define TRACKINGDLG_H

#include "commandchannel.h"

#include <QDialog>

class IOManager;
struct BackendVersions;

// The single-marker tracking settings dialog. This first version only shows
// where the settings will be made.
class TrackingDlg : public QDialog
{
    Q_OBJECT

public:
    TrackingDlg(IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions,
        const QString &moduleVersion);

public slots:
    int update_and_exec();

private:
    CommandChannel channel;
    QString moduleVersion;
};

#endif // TRACKINGDLG_H
