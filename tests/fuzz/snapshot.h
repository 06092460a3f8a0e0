// The engine's project as a plain one, and the way back for a catalogue.
#pragma once

#include "tests/fuzz/plain_project.h"

namespace varlo {
struct Program;
}

namespace varlo::fuzz {

// The project that is open. Ends the process when the links between its records are not sound.
[[nodiscard]] PlainProject Snapshot(const Program& program, const PlainCatalogue& catalogue);

// Puts the records of the catalogue into the program.
void Install(Program& program, const PlainCatalogue& catalogue);

// In every text of the project the bytes 1 to 5 become LF, CR, a blank, "|" and ",", and a text that is
// the byte 6 alone becomes null: what can be typed into a form, but not read from a file.
void TranslateTexts(Program& program);
void TranslateTexts(PlainProject& project);

}  // namespace varlo::fuzz
