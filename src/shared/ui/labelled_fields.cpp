#include "shared/ui/labelled_fields.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace wayscribe {

QLabel *buddyLabel(const char *objectName, const QString &caption, QWidget *buddy, QWidget *parent)
{
    auto *label = new QLabel(caption, parent);
    label->setObjectName(objectName);
    label->setBuddy(buddy);
    return label;
}

QLineEdit *readOnlyBox(const char *objectName, QWidget *parent)
{
    auto *box = new QLineEdit(parent);
    box->setObjectName(objectName);
    box->setReadOnly(true);
    return box;
}

QPushButton *pushButton(const char *objectName, const QString &caption, QWidget *parent)
{
    auto *button = new QPushButton(caption, parent);
    button->setObjectName(objectName);
    button->setAutoDefault(false);
    return button;
}

QCheckBox *checkBox(const char *objectName, const QString &caption, bool checked, QWidget *parent)
{
    auto *box = new QCheckBox(caption, parent);
    box->setObjectName(objectName);
    box->setChecked(checked);
    return box;
}

} // namespace wayscribe
