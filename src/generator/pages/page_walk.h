// From the store tree to pages: which nodes get a page, and in which order.
#pragma once

namespace varlo {

struct Generator;
struct StoreNode;

// Builds the pages of a sibling list and of everything below it, children before their parent. 1 when
// the walk was complete, 0 when the user stopped it.
int BuildSiblings(Generator& generator, StoreNode* first);

// Makes one page from its template. 1 when it was written, or when there is no template text to work
// from; 0 when no page was made: for null, for an item of a shelf or a list, and, with a message, when
// the file can't be created, as under a name that leads out of the web directory.
int BuildPage(Generator& generator, StoreNode* node);

}  // namespace varlo
