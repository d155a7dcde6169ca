#include "app/autosave.h"

#include "model/platform.h"
#include "model/program_state.h"

namespace wayscribe {

Autosave::Autosave(World &world, ProgramState &state, Platform &platform, std::string folder, QObject *parent)
    : QObject(parent), world_(world), state_(state), platform_(platform), store_(std::move(folder))
{
    connect(&timer_, &QTimer::timeout, this, &Autosave::saveNow);
}

void Autosave::start()
{
    const int minutes = state_.options.desktop.autosaveMinutes;
    if (store_.folder().empty() || minutes <= 0) {
        timer_.stop();
        return;
    }
    timer_.start(minutes * 60 * 1000);
}

void Autosave::saveNow()
{
    // A file job in progress has the world half-done; the next tick is soon.
    if (!state_.document.mapChanged || state_.document.fileBusy)
        return;
    std::string reason;
    if (store_.save(world_, state_, reason))
        copyExists_ = true;
    else
        platform_.setStatus("Autosave failed: " + reason);
}

bool Autosave::offer(const LeftBehindMap &copy)
{
    const std::string &original = copy.originalName;
    const std::string map = original.empty() ? std::string("a map that was never saved")
                                             : original.substr(original.find_last_of('/') + 1);
    const Answer answer = platform_.message(
        "Wayscribe did not close normally last time. Unsaved changes to " + map +
            " were kept.\n\nRestore them now?",
        "Restore Unsaved Map", MessageButtons::YesNo, MessageIcon::Question,
        (original.empty() ? std::string() : "The map: " + original + "\n") + "The changes: " + copy.mapPath +
            "\nIf you answer No, they are kept until Wayscribe is closed normally.");
    if (answer != Answer::Yes) {
        store_.setAside();
        return false;
    }
    const LoadResult result = restoreLeftBehindMap(world_, state_, platform_, copy);
    copyExists_ = true;
    return result == LoadResult::Complete || result == LoadResult::Partial;
}

void Autosave::followDocument()
{
    if (copyExists_ && !state_.document.mapChanged) {
        store_.discard();
        copyExists_ = false;
    }
}

void Autosave::cleanExit()
{
    timer_.stop();
    store_.discardAll();
    copyExists_ = false;
}

} // namespace wayscribe
