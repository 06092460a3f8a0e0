// What the program asks of the system's clipboard.
#pragma once

#include <string>
#include <string_view>

namespace varlo {

struct Clipboard {
  virtual ~Clipboard() = default;
  // Replaces the clipboard's content by a plain text; false when the clipboard can't be had.
  virtual bool putText(std::string_view text) = 0;
  // The clipboard's plain text, empty when it has none.
  virtual std::string text() = 0;
  // Whether there is text to paste; on Windows, whether it offers OEM text.
  virtual bool offersText() = 0;
};

}  // namespace varlo
