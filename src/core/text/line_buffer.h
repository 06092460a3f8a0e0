// LineBuffer: the room through which every line of a file and every text of an edit field goes. What went through it
// last stays there, for the one command that asks for it.
#pragma once

#include <string>
#include <string_view>

#include "core/text/limits.h"

namespace varlo {

class LineBuffer {
 public:
  // Takes a text, cut at the room that there is.
  void hold(std::string_view text) { text_ = text.substr(0, kLineBuffer); }
  // Empty as long as nothing was read.
  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace varlo
