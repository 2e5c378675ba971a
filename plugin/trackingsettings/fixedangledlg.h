#ifndef TRACKING_FIXEDANGLEDLG_H
#define TRACKING_FIXEDANGLEDLG_H

#include "commandchannel.h"
#include "fixedangle.h"

#include <QDialog>
#include <QList>

class IOManager;
struct BackendVersions;

namespace Ui
{
class FixedAngleDialog;
}

// Holds the rotation of standard bodies about the room axes at fixed angles.
// Made afresh for each use: update_and_exec() reads every body and runs the
// dialog once.
class FixedAngleDlg : public QDialog
{
    Q_OBJECT

public:
    FixedAngleDlg(IOManager *ioManager, QWidget *parent, const BackendVersions *backendVersions);
    ~FixedAngleDlg() override;

    // Only bodies tracked with these targets can hold an angle.
    static bool allowsFixedAngle(const QString &targetType);

public slots:
    int update_and_exec();

private slots:
    void on_pushButton_ok_clicked();
    void on_pushButton_cancel_clicked();
    void on_pushButton_help_clicked();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void readRecords();
    FixedAngle readRecord(int number) const;

    Ui::FixedAngleDialog *ui;
    CommandChannel channel;
    QList<FixedAngle> records;
};

#endif // TRACKING_FIXEDANGLEDLG_H
