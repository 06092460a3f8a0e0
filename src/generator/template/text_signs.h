// TextSigns: what a filled text holds that somebody has to look at. Most texts hold next to nothing of it.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace varlo {

struct TextSigns {
  struct Found {
    bool comment = false;      // a "<!--"
    bool plusComment = false;  // a "<!--+" or a "+-->"
  };
  // What is to be assumed of a text that was not searched.
  static constexpr Found kAll{true, true};

  std::vector<std::size_t> keys;  // where a key may begin: each "$" and each letter page
  Found found;

  // Looks for the signs of `text` from `from` on, instead of what was found before.
  void find(std::string_view text, std::size_t from);
};

}  // namespace varlo
