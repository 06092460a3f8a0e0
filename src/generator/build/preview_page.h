// The preview of one page: only what this page needs is made.
#pragma once

#include <string>

namespace varlo {

struct Generator;
struct StoreNode;

// Makes the current node's page, the cart frames and the frameset "ftmp.htm" around them in webDir, with the
// scheme's files. Gives the path of the frameset, for the browser. Nothing is indexed and no picture folder
// is made. With `useSetTemplates` of the generator the page comes from the templates of the scheme's set.
std::string PreviewPage(Generator& generator);

// The node whose page shows `node`: itself, or the shelf or list that holds it.
[[nodiscard]] StoreNode* PageOf(StoreNode& node);

}  // namespace varlo
