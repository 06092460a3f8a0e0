// The marks of templates that are no variables: the shelf block, comments, and comments that become
// content.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace varlo {

inline constexpr std::string_view kShelfKey = "$SHELF";
inline constexpr std::string_view kCommentOpen = "<!--";
inline constexpr std::string_view kPlusOpen = "<!--+";
inline constexpr std::string_view kPlusClose = "+-->";

// Where the first shelf block of a template stands.
struct ShelfBlock {
  bool found = false;      // both marks, the closing one behind the other
  std::size_t begin = 0;   // of the opening mark
  std::size_t end = 0;     // behind the closing mark
  std::string_view block;  // between the marks; a part of the text that was searched
};

// Looks for "<SHELF>" and "</SHELF>", each from the start, in any case.
[[nodiscard]] ShelfBlock FindShelfBlock(std::string_view text);

// Removes the first "<!--+" and the first "+-->": what stands between them becomes content.
void OpenPlusComment(std::string& page);

// Removes every "<SHELF>", then every "</SHELF>", in any case. Gives whether there was one.
bool RemoveShelfMarks(std::string& page);

// Removes every comment, from its "<!--" through the next "-->"; the two may share their hyphens. False
// when one has no end: it stays, with the rest of the page.
[[nodiscard]] bool RemoveComments(std::string& page);

}  // namespace varlo
