#pragma once

#include "model/file_error.h"

#include <optional>
#include <string>

namespace wayscribe {

struct ProgramState;
class Platform;

inline constexpr const char *kOptionsFileName = "wayscribe.ini";

// Sets the defaults, then applies the options file at `path` when there is
// one. Unknown keys, comments and malformed lines are skipped silently. A
// file that is there but cannot be read (no ordinary file, too large) is
// left alone, and why is returned for the person.
std::optional<FileError> readOptionsFile(const std::string &path, ProgramState &state);

// The options file's text, from the current options and scroll origin.
std::string optionsFileText(const ProgramState &state);

// Writes the options file to state.optionsFilePath; on failure the reason
// goes to the status line (the program goes on with its options in memory).
bool writeOptions(const ProgramState &state, Platform &platform);

} // namespace wayscribe
