// The plain text of a title that may hold HTML, for trees, lists and meta tags. Bytes are ISO 8859-1.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace varlo {

struct StoreNode;

// A character reference and the byte that it stands for.
struct HtmlReference {
  std::string_view name;
  char byte;
};

// Every named reference but the basic four, in the order in which they are tried.
[[nodiscard]] std::span<const HtmlReference> HtmlReferences();

// Removes the tags of a text: each from its "<" through the next ">" outside quotes. A "<" without one
// ends the work and stays, with the rest.
void StripTags(std::string& text);

// Removes the tags, then turns character references into single bytes. Deliberate: a number counts with
// three digits only, of the names only the basic four do their work, and any other name ends the decoding,
// unless an "&ETH;" stands further on, which is decoded in its place. The text ends at a number whose low
// byte is 0.
void HtmlToText(std::string& text);

// The plain text of the node's title; empty without a node or a title. A title that is not plain is
// decoded into displayTitle, which is renewed by each call. A title that is nothing but a tag shows that
// tag's ALT text, or itself when there is none.
const char* displayTitle(StoreNode* node);

}  // namespace varlo
