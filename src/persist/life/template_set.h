// Template sets: the six template files of a scheme, which are copied into a project that takes the
// scheme into use.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/program/scheme.h"
#include "core/store/store_node.h"

namespace varlo {

struct Program;
struct StoreProject;

inline constexpr std::array<std::string_view, 6> kTemplateSetFiles{"category.htm", "product.htm", "shelf.htm",
                                                                   "list.htm",     "order.htm",   "confirm.htm"};

// Copies the set of `scheme` over the project's templates. A file that can't be copied leaves the old one
// in place, and so does a set whose directory leads out of the installation's templates. 1; 0 and nothing is
// copied without a project directory or a scheme.
int CopyTemplateSet(Program& program, const Scheme* scheme);

// Gives every node from `head` on, and below, the template of its kind; special templates are dropped.
void AssignDefaultTemplates(StoreNode* head);

// Makes the first scheme of the first style the project's where it has none. 1 when there is a scheme
// then, 0 with a message.
int EnsureProjectScheme(Program& program);

// The path of a node's template inside the set of the project's scheme, for previews. Deliberate: without
// a template of its own a category or a shelf uses that of products; only a list has one of its kind. None
// where a name leads out of the set.
[[nodiscard]] std::optional<std::string> SetTemplatePath(const StoreProject& project, const StoreNode& node);

}  // namespace varlo
