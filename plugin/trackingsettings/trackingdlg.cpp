#include "trackingdlg.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

TrackingDlg::TrackingDlg(IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions,
    const QString &moduleVersion)
    : QDialog(parent)
    , channel(ioManager, backendVersions)
    , moduleVersion(moduleVersion)
{
    setObjectName(QStringLiteral("TrackingDialog"));
    setWindowTitle(tr("Tracking Settings"));

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(
        new QLabel(tr("The single marker settings are not part of this version yet.")));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

int TrackingDlg::update_and_exec()
{
    return exec();
}
