#pragma once

#include <string>

namespace wayscribe {

class World;
class ChangeHistory;
struct DocumentState;

// The note editor's rules for the note of one sector. Every store keeps the
// box's text with its blanks trimmed, as one undo step; a store that changes
// nothing leaves no step.
class NoteEdit {
public:
    // Remembers the note as it is now, untrimmed.
    NoteEdit(World &world, ChangeHistory &history, int x, int y);

    int x() const { return x_; }
    int y() const { return y_; }
    // "Notes for X, Y:"
    std::string caption() const;
    // What the box shows at first: the note, trimmed.
    std::string boxText() const;
    // Whether the editor offers "Go to Dungeon".
    bool isDungeon() const;
    // Cancel puts the stored note back into the box, untrimmed.
    const std::string &storedNote() const;

    // Okay: the map counts as changed when the box differs from the note
    // the editor opened with; then the box is stored.
    void ok(const std::string &box, DocumentState &document);
    // Every close stores the box, without touching MapChanged.
    void store(const std::string &box);

private:
    World &world_;
    ChangeHistory &history_;
    int x_, y_;
    std::string opened_;
};

} // namespace wayscribe
