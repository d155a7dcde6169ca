#include "view/ui/terrain_palette.h"

#include "model/terrain.h"
#include "shared/ui/qt_text.h"
#include "view/draw/tile_sheet.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QPixmap>
#include <QToolButton>

namespace wayscribe {

TerrainPalette::TerrainPalette(QWidget *parent) : QWidget(parent)
{
    setObjectName("iconselect");
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    auto *group = new QButtonGroup(this);
    for (int i = 0; i < 18; ++i) {
        auto *b = new QToolButton(this);
        const QString name = toQString(terrainName(i + 1));
        b->setObjectName(QString("iconselect_%1").arg(i));
        b->setCheckable(true);
        b->setIconSize(QSize(20, 20));
        b->setToolTip(name);
        b->setAccessibleName(name);
        b->setAutoRaise(true);
        group->addButton(b, i);
        grid->addWidget(b, i / 6, i % 6);
        buttons_[i] = b;
    }
    // The chosen terrain stands out with a frame in the selection colour.
    setStyleSheet("QToolButton:checked { border: 2px solid palette(highlight); border-radius: 3px; }");
    buttons_[0]->setChecked(true); // the brush starts as Unknown
    connect(group, &QButtonGroup::idClicked, this, [this](int i) { emit terrainChosen(i + 1); });
}

void TerrainPalette::showTiles(const TileSheet &sheet)
{
    for (int i = 0; i < 18; ++i) {
        const QImage &tile = sheet.paletteTile(i + 1);
        if (tile.isNull())
            continue;
        // The tiles keep their colours also while painting is not available.
        const QPixmap pixmap =
            QPixmap::fromImage(tile.scaled(20, 20, Qt::IgnoreAspectRatio, Qt::FastTransformation));
        QIcon icon(pixmap);
        icon.addPixmap(pixmap, QIcon::Disabled);
        buttons_[i]->setIcon(icon);
    }
}

} // namespace wayscribe
