#include "settlements/ui/frmAddItem.h"

#include "settlements/settlement_editor.h"
#include "shared/ui/labelled_fields.h"
#include "shared/ui/qt_text.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace wayscribe {

namespace {

QLineEdit *itemBox(const char *name, const std::string &text, int width, QWidget *parent)
{
    auto *box = new QLineEdit(toQString(text), parent);
    box->setObjectName(name);
    box->setMinimumWidth(width);
    return box;
}

} // namespace

frmAddItem::frmAddItem(SettlementEditor &editor, QWidget *parent)
    : SecondaryWindow(parent, "frmAddItem", "Add Item", Escape::Closes), editor_(editor)
{
    const ItemFields fields = editor_.itemDialogFields();
    txtItemName = itemBox("txtItemName", fields.name, 220, this);
    txtItemNumber = itemBox("txtItemNumber", fields.number, 80, this);
    txtItemCost = itemBox("txtItemCost", fields.price, 80, this);
    Label1 = buddyLabel("Label1", "Item name:", txtItemName, this);
    Label2 = buddyLabel("Label2", "Item number:", txtItemNumber, this);
    Label3 = buddyLabel("Label3", "Item cost:", txtItemCost, this);
    cmdOKButt = new QPushButton("OK", this);
    cmdOKButt->setObjectName("cmdOKButt");
    cmdCancelButt = new QPushButton("Cancel", this);
    cmdCancelButt->setObjectName("cmdCancelButt");

    auto *boxes = new QGridLayout;
    boxes->addWidget(Label1, 0, 0);
    boxes->addWidget(Label2, 0, 1);
    boxes->addWidget(Label3, 0, 2);
    boxes->addWidget(txtItemName, 1, 0);
    boxes->addWidget(txtItemNumber, 1, 1);
    boxes->addWidget(txtItemCost, 1, 2);
    boxes->setColumnStretch(0, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOKButt);
    buttons->addWidget(cmdCancelButt);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(boxes);
    layout->addLayout(buttons);

    connect(cmdOKButt, &QPushButton::clicked, this, [this] { store(true); });
    connect(cmdCancelButt, &QPushButton::clicked, this, &QWidget::close);
    for (QLineEdit *box : {txtItemName, txtItemNumber, txtItemCost})
        connect(box, &QLineEdit::returnPressed, this, [this] { store(false); });
    txtItemName->setFocus();
}

// Enter stores as OK does, but leaves the map's changed flag alone.
void frmAddItem::store(bool markChanged)
{
    editor_.storeItem({fromQString(txtItemName->text()), fromQString(txtItemNumber->text()),
                       fromQString(txtItemCost->text())},
                      markChanged);
    emit stored();
    close();
}

} // namespace wayscribe
