// Writing a project.
#pragma once

namespace varlo {

class LineWriter;
struct Program;

// Writes the project over its file, in the small dialog that tells so, and clears `dirty`. False without a
// project file, or, with a message, when the file can't be created. The old content is gone once the file is
// created: a backup is made before by those who call this. Where a write took less than it was given, as on a
// full disk, the save goes on to its end; then a message names the file and the newest backup, `dirty` is set,
// and the result is false.
[[nodiscard]] bool ProjectSave(Program& program);

// Writes the lines of the project file. Removes every "|" from the names of the variables, for good.
void ProjectWrite(Program& program, LineWriter& writer);

}  // namespace varlo
