#pragma once

#include "shared/ui/secondary_window.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace wayscribe {

class SettlementEditor;

// "Add Item": name, number and cost of item SelItem of shop SelShop, stored
// on OK or Enter.
class frmAddItem : public SecondaryWindow {
    Q_OBJECT
public:
    frmAddItem(SettlementEditor &editor, QWidget *parent);

signals:
    // An item was stored: the settlement editor refills its object list.
    void stored();

private:
    void store(bool markChanged);

    SettlementEditor &editor_;
    QLabel *Label1 = nullptr;
    QLineEdit *txtItemName = nullptr;
    QLabel *Label2 = nullptr;
    QLineEdit *txtItemNumber = nullptr;
    QLabel *Label3 = nullptr;
    QLineEdit *txtItemCost = nullptr;
    QPushButton *cmdOKButt = nullptr;
    QPushButton *cmdCancelButt = nullptr;
};

} // namespace wayscribe
