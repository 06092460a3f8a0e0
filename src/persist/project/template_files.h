// The template files of a project: the two forms, which the project holds as texts, and the pages of its nodes.
#pragma once

#include <string_view>

namespace varlo {

struct Program;
struct StoreNode;

// Fills the texts of the two form templates from the project's template folder; a missing file gives
// what its slot held before.
void ProjectReadTemplates(Program& program);

// Writes the two form templates, where their texts differ from what is on the disk. False when one was cut, which
// was told; one that can't be created is told, and counts as written.
[[nodiscard]] bool FormTemplatesSave(Program& program);

// Writes `text` as the template file of `node`, in the project's template folder; false with a message, which a name
// that leads out of the folder gets as well.
[[nodiscard]] bool TemplateSave(Program& program, const StoreNode& node, std::string_view text);

// How the writing of a page file ended: what is not done was told.
enum class PageSave { Done, NotCreated, Incomplete };

// Writes a page file anew.
PageSave TemplateSaveFile(Program& program, std::string_view path, std::string_view text);

}  // namespace varlo
