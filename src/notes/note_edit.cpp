#include "notes/note_edit.h"

#include "dungeons/dungeon_note.h"
#include "model/change_history.h"
#include "model/program_state.h"
#include "model/text.h"
#include "model/world.h"

namespace wayscribe {

NoteEdit::NoteEdit(World &world, ChangeHistory &history, int x, int y)
    : world_(world), history_(history), x_(x), y_(y), opened_(storedNote())
{
}

std::string NoteEdit::caption() const
{
    return "Notes for " + formatPlain(x_) + ", " + formatPlain(y_) + ":";
}

std::string NoteEdit::boxText() const
{
    return std::string(trimBlanks(opened_));
}

bool NoteEdit::isDungeon() const
{
    return isDungeonNote(opened_);
}

const std::string &NoteEdit::storedNote() const
{
    return std::as_const(world_).sector(x_, y_).note;
}

void NoteEdit::ok(const std::string &box, DocumentState &document)
{
    if (box != opened_)
        document.mapChanged = 1;
    store(box);
}

void NoteEdit::store(const std::string &box)
{
    history_.apply("Note", [&] { world_.sector(x_, y_).note = std::string(trimBlanks(box)); });
}

} // namespace wayscribe
