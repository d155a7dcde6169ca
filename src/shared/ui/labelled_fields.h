#pragma once

#include <QString>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace wayscribe {

// The small pieces every window is built from. A label is always the buddy
// of its box, so that a screen reader names the box and the label's
// accelerator reaches it.

QLabel *buddyLabel(const char *objectName, const QString &caption, QWidget *buddy, QWidget *parent);

// A box that shows a value and takes no typing; it still takes the focus,
// so the value can be read and copied from the keyboard.
QLineEdit *readOnlyBox(const char *objectName, QWidget *parent);

// A button that Enter does not press unless it has the focus: Enter acts
// only where a window gives it a meaning.
QPushButton *pushButton(const char *objectName, const QString &caption, QWidget *parent);

QCheckBox *checkBox(const char *objectName, const QString &caption, bool checked, QWidget *parent);

} // namespace wayscribe
