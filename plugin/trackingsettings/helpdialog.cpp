#include "helpdialog.h"

#include "ui_fixedanglehelp.h"

HelpDialog::HelpDialog(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::FixedAngleHelp)
{
    ui->setupUi(this);
    connect(ui->pushButton_exit, &QPushButton::clicked, this, &QDialog::close);
}

HelpDialog::~HelpDialog()
{
    delete ui;
}
