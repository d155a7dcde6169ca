#pragma once

#include <QWidget>

#include <array>

class QToolButton;

namespace wayscribe {

class TileSheet;

// The terrain palette `iconselect`: one picture button per terrain, showing
// the small tile of the current set with the terrain's name.
class TerrainPalette : public QWidget {
    Q_OBJECT
public:
    explicit TerrainPalette(QWidget *parent = nullptr);
    void showTiles(const TileSheet &sheet);
    QToolButton *button(int index) const { return buttons_.at(index); }

signals:
    // iconselect Click: the terrain code 1..18 the brush paints with.
    void terrainChosen(int terrain);

private:
    std::array<QToolButton *, 18> buttons_{};
};

} // namespace wayscribe
