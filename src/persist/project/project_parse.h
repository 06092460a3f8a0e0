// Reading a project file. The reader is tolerant: unknown lines are skipped, and no message is shown.
#pragma once

namespace varlo {

class LineReader;
struct Program;
struct StoreNode;

// Reads lines up to the end of the file, or an #EOB of this level, into the open project. `parent` is
// the node that the tree read here belongs to, or null; the first node gets `previous` as its prev.
// With `merging` only what a merge brings in is taken: the tree, variables, cards, and the settings
// that it overwrites. Gives the head of the list read at this level, null for none. Nesting is
// followed to any depth.
StoreNode* ProjectParse(Program& program, LineReader& reader, StoreNode* parent, StoreNode* previous, bool merging);

}  // namespace varlo
