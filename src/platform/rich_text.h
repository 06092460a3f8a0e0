// RichText: what can be asked of a rich edit about its text: lines, colours, selection, search. A position counts the
// bytes in front of it. Lines are those of the text, wherever the window breaks them: each ends with its LF or CR LF,
// and behind the last line end stands one more line, which may be empty.
#pragma once

#include <string>
#include <string_view>

#include "platform/colour.h"

namespace varlo {

// From a position up to another, not including what stands there; empty when the two are equal.
struct TextRange {
  int from = 0;
  int to = 0;
  bool operator==(const TextRange&) const = default;
};

inline constexpr int kNotFound = -1;

struct RichText {
  virtual ~RichText() = default;

  [[nodiscard]] virtual int lineCount() = 0;
  // The line, counted from 0, in which a position lies.
  [[nodiscard]] virtual int lineOf(int position) = 0;
  [[nodiscard]] virtual int lineStart(int line) = 0;
  // A line with its line end, empty behind the last one. Valid until the text changes.
  [[nodiscard]] virtual std::string_view line(int number) = 0;

  // Between the two calls the text is coloured: nothing is painted, and the selection may be anywhere.
  virtual void beginColouring() = 0;
  virtual void endColouring() = 0;
  // The colour of the character at a position, and of all those in a range.
  [[nodiscard]] virtual Colour colourAt(int position) = 0;
  virtual void setColour(TextRange range, Colour colour) = 0;

  // What is selected, an empty range for a caret.
  [[nodiscard]] virtual TextRange selection() = 0;
  virtual void select(TextRange range) = 0;
  // Scrolls to where the selection ends.
  virtual void showCaret() = 0;
  // Whether the selection is shown without the focus as well.
  virtual void keepSelectionShown(bool on) = 0;
  // Where `what`, in whatever case, begins first at or behind a position, kNotFound if it does not.
  [[nodiscard]] virtual int find(std::string_view what, int from) = 0;
};

}  // namespace varlo
