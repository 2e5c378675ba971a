#ifndef TRACKING_TARGETASSIGNMENT_H
#define TRACKING_TARGETASSIGNMENT_H

#include <QCoreApplication>
#include <QString>

class BodyTypeAdministrationTab;

// Select and Deselect: a library target assigned to a body, or taken from
// it, and what the target table and its buttons show around that. Every
// question asked on the way may outlive the tables' items (the status timer
// refills the target table meanwhile), so only texts and row numbers are
// kept across one.
class TargetAssignment
{
    Q_DECLARE_TR_FUNCTIONS(TargetAssignment)

public:
    explicit TargetAssignment(BodyTypeAdministrationTab *tab);

    // Select on the current rows; without a current target row some tabs
    // take the first, the others none.
    void selectCurrent(bool firstTargetWhenNone);
    void deselectCurrent();
    // The category combo: the targets of a group, their used state read anew.
    void showCategory(const QString &group);
    // Reads the used state of the listed targets again and refills the table.
    void refreshListedTargets();
    // Around a tab's refresh: keep the current body and target rows, then
    // reset the search widgets.
    void beginRefresh();
    void endRefresh();
    // Select and Deselect follow the current rows; deselectColumn -1 is the
    // name column.
    void applyRules(int deselectColumn);
    void fillTargetTable(const QString &group);

private:
    bool confirmOverwrite(const QString &bodyName) const;
    bool assign(int bodyRow, const QString &targetId);

    BodyTypeAdministrationTab *m_tab;
};

#endif // TRACKING_TARGETASSIGNMENT_H
