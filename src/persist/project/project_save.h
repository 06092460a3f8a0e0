// Writing a project: its file and the two form templates beside it.
#pragma once

#include <string_view>

namespace varlo {

class LineWriter;
struct Program;
struct StoreNode;

// Writes the project over its file, in the small dialog that tells so, and clears `dirty`. 1 done, 0
// without a project file, or, with a message, when the file can't be created. The old content is gone
// once the file is created, and writes are not checked: a backup is made before by those who call this.
int ProjectSave(Program& program);

// Writes the lines of the project file. Removes every "|" from the names of the variables, for good.
void ProjectWrite(Program& program, LineWriter& writer);

// Writes `text` as the template file of `node`, in the project's template folder. 1, or 0 with a
// message.
int TemplateSave(Program& program, const StoreNode& node, std::string_view text);

// Writes a page file anew. 1, or 0 with a message.
int TemplateSaveFile(Program& program, std::string_view path, std::string_view text);

}  // namespace varlo
