#ifndef TRACKING_GRIPWANDADMINISTRATION_H
#define TRACKING_GRIPWANDADMINISTRATION_H

#include "bodytypeadministrationtab.h"

namespace Ui
{
class GripwandAdministrationClass;
}

// The tab of the hand-held wireless Gripwands: their number, radio device
// model and serial, target assignment and search, filter and custom
// calibration, and in multi-user mode the head target of each Gripwand.
class GripwandAdministration : public BodyTypeAdministrationTab
{
    Q_OBJECT

public:
    GripwandAdministration(IOManager *ioManager, QWidget *parent, BackendVersions *backendVersions,
        const QString &text, Targetlibrary *targetLibrary);
    ~GripwandAdministration() override;

    QString tabTitle() const override;
    bool isTypeAvailable() const override;
    int currentRow() const override;
    int maxNumberOfBodies(const QString &btype) override;
    void setNumberOfBodies(const QString &btype, int count) override;
    void updateExtraColumn(
        const QString &btype, int index, int column, QTableWidgetItem *item) override;
    // Multi-user Gripwands are available and switched on.
    bool isMultiUserActive() override;
    void applySelectionRules() override;
    bool isHeadShown() const { return headShown; }

signals:
    void selection_changed();

public slots:
    void updateView() override;
    void update_tab() override;
    void ON_activeConfigurationChanged() override;

    void ON_spinBox_gripwands_valueChanged(int num);
    void on_pushButton_select_clicked();
    void on_pushButton_deselect_clicked();
    void on_pushButton_calibration_clicked();
    void on_pushButton_filter_clicked();
    void on_pushButton_start_clicked();
    void on_pushButton_stop_clicked();
    void on_tableWidget_gripwand_itemSelectionChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    enum Column {
        IdCol,
        ActiveCol,
        NameCol,
        ModelCol,
        SerialCol,
        CalibrationCol,
        FilterCol,
        DeleteCol,
        ResetCol
    };

    bool askMultiUser(const QString &parameter, const QString &error, bool *on);
    void setUpHeadTable();
    void applyHeaderModes();
    QString modelOf(const QStringList &words);

    Ui::GripwandAdministrationClass *ui;
    bool filterAvailable = false;
    bool headShown = false;
};

#endif // TRACKING_GRIPWANDADMINISTRATION_H
