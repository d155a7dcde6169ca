#pragma once

#include "storage/recovery_store.h"

#include <QObject>
#include <QTimer>

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

// Every few minutes (the options file's AutosaveMinutes, 0 for never) a map
// with unsaved changes is copied to the recovery folder, leaving the
// document, its title and its flags alone. The copy goes as soon as the map
// has no unsaved changes, and at a clean exit.
class Autosave : public QObject {
    Q_OBJECT
public:
    Autosave(World &world, ProgramState &state, Platform &platform, std::string folder,
             QObject *parent = nullptr);

    // Starts the timer with the interval of the options; call again after
    // the options change.
    void start();
    // The copy left behind by a run that crashed, if there is one.
    std::optional<LeftBehindMap> leftBehind() const { return store_.leftBehind(); }
    // Offers that copy. True when it was restored (the map then needs a
    // redraw).
    bool offer(const LeftBehindMap &copy);
    // After every change of the document: a map without unsaved changes
    // needs no copy.
    void followDocument();
    // The program ends normally.
    void cleanExit();
    // Writes the copy now when the map has unsaved changes.
    void saveNow();

private:
    World &world_;
    ProgramState &state_;
    Platform &platform_;
    RecoveryStore store_;
    QTimer timer_;
    bool copyExists_ = false;
};

} // namespace wayscribe
