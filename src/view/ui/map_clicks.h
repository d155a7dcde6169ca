#pragma once

#include "view/hit_test.h"
#include "view/map_brush.h"

#include <QObject>

namespace wayscribe {

class World;
struct ProgramState;
class Platform;
class ChangeHistory;
class MapView;
struct CounterUpdate;

// What a click on the map does: with the movement counter on it builds the
// path; otherwise the right button paints with the palette's terrain (one
// undo step per click) and the left button opens the sector's editor.
class MapClicks : public QObject {
    Q_OBJECT
public:
    MapClicks(World &world, ProgramState &state, Platform &platform, ChangeHistory &history, MapView &view,
              QObject *parent);

    void Picture1_Click(const MapHit &hit, int button);

signals:
    void counterChanged(const wayscribe::CounterUpdate &update);
    // A click asks for an editor; the selections tell which sector and settlement.
    void editorRequested(wayscribe::SectorEditor editor);

private:
    World &world_;
    ProgramState &state_;
    Platform &platform_;
    ChangeHistory &history_;
    MapView &view_;
};

} // namespace wayscribe
