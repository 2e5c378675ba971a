#ifndef TRACKING_FILTERHELP_H
#define TRACKING_FILTERHELP_H

#include <QDialog>

namespace Ui
{
class FilterHelpClass;
}

// Explains what strength, prediction and the modes of the 6DOF filter do.
class FilterHelp : public QDialog
{
    Q_OBJECT

public:
    explicit FilterHelp(QWidget *parent = nullptr);
    ~FilterHelp() override;

private slots:
    void on_pushButton_exit_clicked();

private:
    Ui::FilterHelpClass *ui;
};

#endif // TRACKING_FILTERHELP_H
