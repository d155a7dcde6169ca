#pragma once

#include <QGroupBox>

class QLineEdit;

namespace wayscribe {

// The movement point counter's boxes and commands. The counter itself is not
// part of this version yet: the panel shows its starting values, disabled.
class MovementPanel : public QGroupBox {
    Q_OBJECT
public:
    explicit MovementPanel(QWidget *parent);

    // The values start-up shows: no sector, no squares, no points.
    void reset();

private:
    QLineEdit *mpbox = nullptr;
    QLineEdit *mpcbox = nullptr;
    QLineEdit *txtTotalMPs = nullptr;
};

} // namespace wayscribe
