// Copying the pictures of a node into the site, beside the pages that show them.
#pragma once

namespace varlo {

struct Generator;
struct StoreNode;

// Copies the picture and the linked picture of `node` into the folder "img" below the web directory;
// `page` is the node whose page is being built, and names it in messages. A picture that is missing is a
// warning, one that can't be copied an error, as is one whose copy would lie outside of the web directory; neither
// stops anything. Always 1.
// Deliberate: the two halves tell an outside address in different ways ("http" in front, "//" anywhere),
// take the file's name behind different slashes, and only the first tells why a copy failed. The slashes
// in `image` are turned in the node itself, which does not count as a change of the project.
int CopyNodeImages(Generator& generator, StoreNode& node, const StoreNode& page);

}  // namespace varlo
