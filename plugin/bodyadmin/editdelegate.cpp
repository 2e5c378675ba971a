#include "editdelegate.h"

#include <QLineEdit>
#include <QRegExpValidator>

const QString EditDelegate::NamePattern = QStringLiteral("[0-9a-zA-Z_\\-\\+=.,;:/ ]*");

EditDelegate::EditDelegate(QObject *parent)
    : QItemDelegate(parent)
{
}

QWidget *EditDelegate::createEditor(
    QWidget *parent, const QStyleOptionViewItem & /*option*/, const QModelIndex & /*index*/) const
{
    return new QLineEdit(parent);
}

void EditDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *lineEdit = static_cast<QLineEdit *>(editor);
    const QString text = index.model()->data(index, Qt::DisplayRole).toString();
    // A new validator each time: it belongs to this editor and dies with it.
    lineEdit->setValidator(new QRegExpValidator(QRegExp(NamePattern), lineEdit));
    lineEdit->setMaxLength(MaxNameLength);
    lineEdit->setText(text);
}

void EditDelegate::setModelData(
    QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    model->setData(index, static_cast<QLineEdit *>(editor)->text(), Qt::EditRole);
}
