#include "view/ui/map_clicks.h"

#include "model/change_history.h"
#include "model/program_state.h"
#include "view/movement_counter.h"
#include "view/ui/map_view.h"

namespace wayscribe {

MapClicks::MapClicks(World &world, ProgramState &state, Platform &platform, ChangeHistory &history,
                     MapView &view, QObject *parent)
    : QObject(parent), world_(world), state_(state), platform_(platform), history_(history), view_(view)
{
}

void MapClicks::Picture1_Click(const MapHit &hit, int button)
{
    if (state_.document.fileBusy)
        return;
    SectorRepaint repaint;
    if (state_.movement.moveCounterOn == 1) {
        if (button == 1 || button == 2) {
            const CounterUpdate update = button == 1 ? addPathSquare(world_, state_, hit.x, hit.y)
                                                     : takeBackPathSquare(world_, state_);
            emit counterChanged(update);
        }
    } else if (button == 2) {
        BrushResult result;
        // Every brush click is a step of its own, settlements it founds or
        // frees included, so that a mis-click costs nothing.
        history_.apply("Paint", [&] { result = brushClick(world_, state_, platform_, hit.x, hit.y); });
        repaint = result.repaint;
        if (result.editor != SectorEditor::None)
            emit editorRequested(result.editor);
    } else if (button == 1) {
        const SectorEditor editor = sectorEditorClick(world_, state_, hit.x, hit.y);
        if (editor != SectorEditor::None)
            emit editorRequested(editor);
    }
    view_.showClick(hit, repaint);
}

} // namespace wayscribe
