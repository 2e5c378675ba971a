#include "bodyadministrationdlg.h"

#include "bodyadminmessagereceiver.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

BodyAdministrationDlg::BodyAdministrationDlg(
    IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions)
    : QDialog(parent)
    , parentWidget(parent)
    , ioManager(ioManager)
    , backendVersions(backendVersions)
    , channel(ioManager, backendVersions)
    , receiver(new BodyAdminMessageReceiver(this))
{
    setObjectName(QStringLiteral("BodyAdminDialog"));
    setWindowTitle(tr("Body Administration"));

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("The body tables are not part of this version yet.")));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);

    receiver->subscribe(channel);
    connect(receiver, &BodyAdminMessageReceiver::dialogReopen, this,
        &BodyAdministrationDlg::onReceiveReopen, Qt::QueuedConnection);
}

void BodyAdministrationDlg::unsubscribe()
{
    receiver->unsubscribe(channel);
}

int BodyAdministrationDlg::update_and_exec()
{
    return exec();
}

void BodyAdministrationDlg::onReceiveReopen()
{
    exec();
}
