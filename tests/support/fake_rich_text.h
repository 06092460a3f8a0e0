// A rich edit without a window: a text with a colour for each byte. As in a real one, what is typed looks like the
// character in front of it, and colouring a range selects it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/text/text_search.h"
#include "platform/rich_text.h"

namespace varlo::test {

class FakeRichText : public RichText {
 public:
  explicit FakeRichText(std::string_view text = {}) { set(text); }

  int linesAsked = 0;  // that were read
  int coloured = 0;    // ranges that were given a colour
  int shownCarets = 0;
  bool selectionKept = false;
  int passes = 0;

  [[nodiscard]] const std::string& text() const { return text_; }
  [[nodiscard]] const std::vector<Colour>& colours() const { return colours_; }
  [[nodiscard]] bool isColouring() const { return colouring_; }
  [[nodiscard]] std::string selectedText() const {
    return text_.substr(static_cast<std::size_t>(selection_.from),
                        static_cast<std::size_t>(selection_.to - selection_.from));
  }

  // Another text, in one colour, with the caret in front of it.
  void set(std::string_view text, Colour colour = 0) {
    text_ = text;
    colours_.assign(text_.size(), colour);
    selection_ = {};
    findLines();
  }
  void setColours(const std::vector<Colour>& colours) { colours_ = colours; }
  // Puts a text in the place of the selection; the caret is behind it then.
  void replaceSelection(std::string_view text) {
    const auto from = static_cast<std::size_t>(selection_.from);
    const auto to = static_cast<std::size_t>(selection_.to);
    const Colour colour = from > 0 ? colours_[from - 1] : colours_.empty() ? 0 : colours_.front();
    text_.replace(from, to - from, text);
    const auto first = colours_.begin() + selection_.from;
    colours_.insert(colours_.erase(first, first + (selection_.to - selection_.from)), text.size(), colour);
    selection_.from += static_cast<int>(text.size());
    selection_.to = selection_.from;
    findLines();
  }

  int lineCount() override { return static_cast<int>(starts_.size()); }
  int lineOf(int position) override {
    return static_cast<int>(std::upper_bound(starts_.begin(), starts_.end(), position) - starts_.begin()) - 1;
  }
  int lineStart(int line) override { return starts_.at(static_cast<std::size_t>(line)); }
  std::string_view line(int number) override {
    ++linesAsked;
    if (number >= lineCount()) return {};
    const auto start = static_cast<std::size_t>(lineStart(number));
    const auto end = number + 1 < lineCount() ? static_cast<std::size_t>(lineStart(number + 1)) : text_.size();
    return std::string_view(text_).substr(start, end - start);
  }

  void beginColouring() override { colouring_ = true; }
  void endColouring() override {
    colouring_ = false;
    ++passes;
  }
  Colour colourAt(int position) override { return colours_.at(static_cast<std::size_t>(position)); }
  void setColour(TextRange range, Colour colour) override {
    std::fill(colours_.begin() + range.from, colours_.begin() + range.to, colour);
    selection_ = range;
    ++coloured;
  }

  TextRange selection() override { return selection_; }
  void select(TextRange range) override { selection_ = range; }
  void showCaret() override { ++shownCarets; }
  void keepSelectionShown(bool on) override { selectionKept = on; }
  int find(std::string_view what, int from) override {
    const std::size_t found = FindNoCase(text_, what, static_cast<std::size_t>(from));
    return found == std::string_view::npos ? kNotFound : static_cast<int>(found);
  }

 private:
  void findLines() {
    starts_ = {0};
    for (std::size_t i = 0; i < text_.size(); ++i) {
      if (text_[i] == '\n') starts_.push_back(static_cast<int>(i) + 1);
    }
  }

  std::string text_;
  std::vector<Colour> colours_;
  std::vector<int> starts_;
  TextRange selection_;
  bool colouring_ = false;
};

}  // namespace varlo::test
