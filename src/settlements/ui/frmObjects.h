#pragma once

#include "settlements/objects_database.h"
#include "shared/ui/secondary_window.h"

#include <array>
#include <cstddef>

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace wayscribe {

class World;
struct ViewState;
class Platform;
class ReportListView;

// "Object Database": the items of all shops, all of them or the cheapest or
// dearest of each object number, leading the map view to a row's settlement.
class frmObjects : public SecondaryWindow {
    Q_OBJECT
public:
    frmObjects(const World &world, ViewState &view, Platform &platform, QWidget *mainWindow);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void List_Update_All();
    void widenTextColumns();
    void Option1_Click(int index);
    void cmdRefresh_Click();
    void cmdGoto_Click();
    void goToRow(std::size_t row);
    ObjectsFilters filters() const;

    const World &world_;
    ViewState &view_;
    Platform &platform_;

    ReportListView *lstObjects = nullptr;
    QGroupBox *Frame1 = nullptr;
    std::array<QRadioButton *, 3> Option1{};
    QLabel *Label4 = nullptr;
    QLabel *Label5 = nullptr;
    QLabel *Label3 = nullptr;
    QCheckBox *chkZeroCost = nullptr;
    QLabel *Label1 = nullptr;
    QCheckBox *chkOneOfEach = nullptr;
    QLabel *Label8 = nullptr;
    QCheckBox *chkVillages = nullptr;
    QLabel *Label6 = nullptr;
    QCheckBox *chkTowns = nullptr;
    QLabel *Label7 = nullptr;
    QCheckBox *chkCities = nullptr;
    QLabel *Label2 = nullptr;
    QPushButton *cmdGoto = nullptr;
    QPushButton *cmdRefresh = nullptr;
    QPushButton *cmdExit = nullptr;
};

} // namespace wayscribe
