// Bringing data of another project into the open one.
#pragma once

#include <string_view>

namespace varlo {

struct Program;
struct StoreNode;

// Adds the tree of the project at `path` behind the last sibling of the current node, with its
// variables, cards, and the settings that a merge overwrites. Into an empty store the whole project is
// read. 1 done; 0 for a null path or nothing current in a store that is not empty, or with a message when
// the file can't be opened.
// Deliberate: the merged nodes below the first keep the current node as parent, and the first has no
// prev.
int ProjectMerge(Program& program, const char* path);

// Copies the templates that the nodes from `head` on, and below, name from the project at `sourcePath`
// into the open one; those that are there stay, and so does what a name leads to out of the template
// folder. Each is copied once. Gives 1.
int MergeCopyTemplates(Program& program, StoreNode* head, std::string_view sourcePath);

// Replaces the freight data by that of the project at `path`: all methods are emptied, then its freight
// lines, rules and method names are read. Names and values of the regions stay. Results as of the merge.
int FreightImport(Program& program, const char* path);

}  // namespace varlo
