#pragma once

#include "shared/ui/secondary_window.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace wayscribe {

class SettlementEditor;

// "Add Shop": the number and name of the shop SelShop, stored on OK or Enter.
class frmAddShop : public SecondaryWindow {
    Q_OBJECT
public:
    frmAddShop(SettlementEditor &editor, QWidget *parent);

signals:
    // A shop was stored: the settlement editor refills its lists.
    void stored();

private:
    void store(bool markChanged);

    SettlementEditor &editor_;
    QLabel *Label1 = nullptr;
    QLineEdit *txtNumber = nullptr;
    QLabel *Label2 = nullptr;
    QLineEdit *txtName = nullptr;
    QPushButton *cmdOK = nullptr;
    QPushButton *cmdCancel = nullptr;
};

} // namespace wayscribe
