// What the project file loses of a project, told record by record and not by way of a file.
#pragma once

#include "tests/fuzz/plain_project.h"
#include "tests/fuzz/plain_writer.h"

namespace varlo::fuzz {

// Whether every record of the project keeps to its own lines in `file`, which was written of it: no
// piece and no line was cut, no text brings a line end into the file, no code or value of the freight
// lines holds what parts them, and no two regions share a code. What such a project loses is told by
// AfterRound; of another, lines run into each other.
[[nodiscard]] bool IsTame(const PlainProject& project, const PlainFile& file);

// Whether a tame project makes the same file again after it was read from its file: no text of it loses
// blanks at its end, and its layout is found.
[[nodiscard]] bool WritesAlike(const PlainProject& project, const PlainCatalogue& catalogue);

// What a program that had `before` open holds after loading the file of the tame `project`.
[[nodiscard]] PlainProject AfterRound(const PlainProject& project, const PlainCatalogue& catalogue,
                                      const PlainProject& before);

}  // namespace varlo::fuzz
