#ifndef TRACKING_HELPDIALOG_H
#define TRACKING_HELPDIALOG_H

#include <QDialog>

namespace Ui
{
class FixedAngleHelp;
}

// Explains the fixed-angle table with a picture of a filled table and of the
// data display it results in.
class HelpDialog : public QDialog
{
    Q_OBJECT

public:
    explicit HelpDialog(QWidget *parent = nullptr);
    ~HelpDialog() override;

private:
    Ui::FixedAngleHelp *ui;
};

#endif // TRACKING_HELPDIALOG_H
