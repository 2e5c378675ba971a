#include "filterhelp.h"

#include "ui_filterhelp.h"

FilterHelp::FilterHelp(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::FilterHelpClass)
{
    ui->setupUi(this);
}

FilterHelp::~FilterHelp()
{
    delete ui;
}

void FilterHelp::on_pushButton_exit_clicked()
{
    close();
}
