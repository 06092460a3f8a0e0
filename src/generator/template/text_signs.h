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

  // So many keys are looked at one by one; a text that could hold more is none to be filled in one pass.
  static constexpr std::size_t kMostKeys = 1024 * 1024;

  // Looks for the signs of `text` from `from` on, instead of what was found before. False when there are too many.
  [[nodiscard]] bool find(std::string_view text, std::size_t from);
};

}  // namespace varlo
