#pragma once

#include <QGroupBox>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace wayscribe {

struct CounterBoxes;

// The movement point counter's boxes and commands: the points and squares of
// the path, the horse counter and the copy of the "M" orders.
class MovementPanel : public QGroupBox {
    Q_OBJECT
public:
    explicit MovementPanel(QWidget *parent);

    void showCounts(const CounterBoxes &boxes);
    void setHorseCounter(bool ticked);

signals:
    void horseCounterClicked(bool ticked);
    void copyOrdersClicked();

private:
    QLineEdit *mpcbox = nullptr;
    QLineEdit *txtTotalMPs = nullptr;
    QCheckBox *chkHorses = nullptr;
    QPushButton *cmdMPCommandClipboard = nullptr;
};

} // namespace wayscribe
