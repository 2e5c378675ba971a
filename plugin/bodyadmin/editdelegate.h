#ifndef TRACKING_EDITDELEGATE_H
#define TRACKING_EDITDELEGATE_H

#include <QItemDelegate>

// Edits body names in place. Only characters that can travel inside the
// controller's double quotes without escaping can be typed.
class EditDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    static const QString NamePattern;
    static constexpr int MaxNameLength = 100;

    explicit EditDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(
        QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
};

#endif // TRACKING_EDITDELEGATE_H
