#pragma once

#include <QGroupBox>

class QLineEdit;
class QPlainTextEdit;

namespace wayscribe {

class World;

// The status boxes: what is known of the sector under the pointer.
class SectorPanel : public QGroupBox {
    Q_OBJECT
public:
    explicit SectorPanel(QWidget *parent);

    // The panel as start-up leaves it: terrain "Unknown", movement points
    // "0", everything else empty.
    void reset();
    // `moveMode` is the movement counter's column, for the "M.P:" box.
    void showSector(const World &world, int x, int y, int moveMode);
    // Only the coordinates, for the pointer over the minimap; a value that
    // is not above 0 leaves its box alone.
    void showCoordinates(int x, int y);

private:
    QLineEdit *Xbox = nullptr;
    QLineEdit *Ybox = nullptr;
    QLineEdit *terbox = nullptr;
    QLineEdit *mpbox = nullptr;
    QLineEdit *citybox = nullptr;
    QLineEdit *citynumbox = nullptr;
    QLineEdit *txtCityState = nullptr;
    QPlainTextEdit *txtNoteBox = nullptr;
};

} // namespace wayscribe
