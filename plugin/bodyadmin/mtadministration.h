#ifndef TRACKING_MTADMINISTRATION_H
#define TRACKING_MTADMINISTRATION_H

#include "bodytypeadministrationtab.h"

namespace Ui
{
class MtAdministrationClass;
}

// The tab of the measurement tools (M1, M2, ...) and their references
// (MR1, MR2, ...). A tool refers to at most one reference; the tab keeps
// those links consistent when a reference is deleted or deactivated, and
// assigns library targets to references.
class MtAdministration : public BodyTypeAdministrationTab
{
    Q_OBJECT

public:
    MtAdministration(IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions,
        const QString &text, Targetlibrary *targetLibrary);
    ~MtAdministration() override;

    QString tabTitle() const override;
    bool isTypeAvailable() const override;
    bool canAdjustSelected() const override;
    int currentRow() const override;
    void setBodyActive(const QString &btype, int index, bool active) override;
    bool deleteBody(const QString &btype, int index) override;
    int maxNumberOfBodies(const QString &btype) override;
    void setNumberOfBodies(const QString &btype, int count) override;
    void updateExtraColumn(
        const QString &btype, int index, int column, QTableWidgetItem *item) override;
    void storeSelection() override;

public slots:
    void updateView() override;
    void update_tab() override;

    void on_comboBox_filter_currentIndexChanged(const QString &group);
    void on_pushButton_select_clicked();
    void on_pushButton_deselect_clicked();
    void on_pushButton_start_clicked();
    void on_pushButton_stop_clicked();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void setSearchControlsEnabled(bool enabled) override;
    bool resolveTargetConflict(const QString &shortName) override;

private:
    enum Column { IdCol, ActiveCol, LinkCol, CalibrationCol, DeleteCol, ResetCol };

    void testAvailability();
    void applyHeaderModes();
    // Tool rows whose "Reference ID" names reference index.
    QList<int> toolsUsing(int referenceIndex) const;
    bool ask(const QString &text);

    Ui::MtAdministrationClass *ui;
    bool measurementToolAvailable = false;
    int storedToolRow = 0;
    int storedReferenceRow = 0;
    int storedTargetRow = 0;
    int storedFocus = 0; // 0: the tool table had the focus, 1: the reference table
    int targetRow = -1;
};

#endif // TRACKING_MTADMINISTRATION_H
