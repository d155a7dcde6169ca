#include "settlements/ui/frmAddShop.h"

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

frmAddShop::frmAddShop(SettlementEditor &editor, QWidget *parent)
    : SecondaryWindow(parent, "frmAddShop", "Add Shop", Escape::Closes), editor_(editor)
{
    txtNumber = new QLineEdit(this);
    txtNumber->setObjectName("txtNumber");
    txtNumber->setMaximumWidth(70);
    txtName = new QLineEdit(this);
    txtName->setObjectName("txtName");
    txtName->setMinimumWidth(240);
    Label1 = buddyLabel("Label1", "Number:", txtNumber, this);
    Label2 = buddyLabel("Label2", "Name:", txtName, this);
    cmdOK = new QPushButton("OK", this);
    cmdOK->setObjectName("cmdOK");
    cmdCancel = new QPushButton("Cancel", this);
    cmdCancel->setObjectName("cmdCancel");

    const ShopFields fields = editor_.shopDialogFields();
    txtNumber->setText(toQString(fields.number));
    txtName->setText(toQString(fields.name));

    auto *boxes = new QGridLayout;
    boxes->addWidget(Label1, 0, 0);
    boxes->addWidget(Label2, 0, 1);
    boxes->addWidget(txtNumber, 1, 0);
    boxes->addWidget(txtName, 1, 1);
    boxes->setColumnStretch(1, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(boxes);
    layout->addLayout(buttons);

    connect(cmdOK, &QPushButton::clicked, this, [this] { store(true); });
    connect(cmdCancel, &QPushButton::clicked, this, &QWidget::close);
    connect(txtNumber, &QLineEdit::returnPressed, this, [this] { store(false); });
    connect(txtName, &QLineEdit::returnPressed, this, [this] { store(false); });
    txtNumber->setFocus();
}

// Enter stores as OK does, but leaves the map's changed flag alone.
void frmAddShop::store(bool markChanged)
{
    if (!editor_.storeShop(fromQString(txtNumber->text()), fromQString(txtName->text()), markChanged))
        return;
    emit stored();
    close();
}

} // namespace wayscribe
