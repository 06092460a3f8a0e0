#include "shell/text/colour_text.h"

#include <array>

#include "core/text/text_edit.h"

namespace varlo {
namespace {

constexpr std::string_view kCommentBegin = "<!--";
constexpr std::string_view kCommentEnd = "-->";

constexpr std::array<Colour, 4> kColours{kPlainTextColour, kTagColour, kCommentColour, kVariableColour};

constexpr bool isInName(char c) { return IsLetter(c) || IsDigit(c) || c == '_'; }
constexpr bool isMark(char c) { return c == '<' || c == '>' || c == '$'; }

// The line without what is blank at its end.
std::string_view withoutBlanks(std::string_view line) { return line.substr(0, line.find_last_not_of(" \t\r\n") + 1); }

// Walks over lines, one behind the other, and gives each stretch of them its colour.
class LineColourer {
 public:
  LineColourer(RichText& text, TextState state) : text_(text), state_(state) {}

  [[nodiscard]] TextState state() const { return state_; }

  void walk(std::string_view line, int start) {
    line_ = line;
    start_ = start;
    segment_ = 0;
    std::size_t at = 0;
    while (at < line.size()) at = state_ == TextState::InComment ? throughComment(at) : step(at);
    flush(line.size());
  }

 private:
  // Colours what stands between the last flush and `at`.
  void flush(std::size_t at) {
    if (at == segment_) return;
    text_.setColour({start_ + static_cast<int>(segment_), start_ + static_cast<int>(at)}, colourOf(state_));
    segment_ = at;
  }

  std::size_t throughComment(std::size_t at) {
    const std::size_t end = line_.find(kCommentEnd, at);
    if (end == std::string_view::npos) return line_.size();
    flush(end + kCommentEnd.size());
    state_ = TextState::PlainText;
    return segment_;
  }

  // Outside of a comment: over everything that means nothing here, then over what does. Gives the next position.
  std::size_t step(std::size_t at) {
    if (state_ == TextState::InVariable) {
      while (at < line_.size() && isInName(line_[at])) ++at;
    } else {
      while (at < line_.size() && !isMark(line_[at])) ++at;
    }
    return at == line_.size() ? at : overMark(at);
  }

  std::size_t overMark(std::size_t at) {
    switch (line_[at]) {
      case '<':
        return line_.substr(at).starts_with(kCommentBegin) ? enter(TextState::InComment, at, kCommentBegin.size())
                                                           : enter(TextState::InTag, at, 1);
      case '>':
        if (state_ != TextState::PlainText) return closeTag(at);
        break;
      case '$':
        if (at + 1 == line_.size() || !IsDigit(line_[at + 1])) return enterVariable(at);
        break;
      default:
        break;
    }
    if (state_ == TextState::InVariable) enter(behindVariable_, at, 0);
    return at + 1;
  }

  std::size_t enter(TextState state, std::size_t at, std::size_t over) {
    flush(at);
    state_ = state;
    return at + over;
  }

  // Deliberate: a ">" behind a variable looks like that of a tag, in plain text as well.
  std::size_t closeTag(std::size_t at) {
    if (state_ == TextState::InVariable) enter(TextState::InTag, at, 0);
    flush(at + 1);
    state_ = TextState::PlainText;
    return at + 1;
  }

  std::size_t enterVariable(std::size_t at) {
    if (state_ != TextState::InVariable) behindVariable_ = state_;
    return enter(TextState::InVariable, at, 1);
  }

  RichText& text_;
  TextState state_;
  TextState behindVariable_ = TextState::PlainText;
  std::string_view line_;
  int start_ = 0;  // of the line in the text
  std::size_t segment_ = 0;
};

// What a line begins in, as the end of the line before tells. The first one begins in plain text, whatever its
// colour.
TextState stateAtStart(RichText& text, int line) {
  if (line == 0) return TextState::PlainText;
  const TextState state = stateOf(text.colourAt(text.lineStart(line) - 1));
  const std::string_view before = withoutBlanks(text.line(line - 1));
  switch (state) {
    case TextState::InTag:
      return before.ends_with('>') ? TextState::PlainText : state;
    case TextState::InComment:
      return before.ends_with("->") ? TextState::PlainText : state;
    default:
      return TextState::PlainText;
  }
}

void colourFromSelection(RichText& text, bool wholeText) {
  int number = text.lineOf(text.selection().from);
  LineColourer colourer(text, stateAtStart(text, number));
  std::string_view line = text.line(number);
  int start = text.lineStart(number);
  while (!line.empty()) {
    colourer.walk(line, start);
    start += static_cast<int>(line.size());
    line = text.line(++number);
    if (!wholeText && !line.empty() && text.colourAt(start) == colourOf(colourer.state())) return;
  }
}

}  // namespace

Colour colourOf(TextState state) { return kColours[static_cast<std::size_t>(state)]; }

TextState stateOf(Colour colour) {
  for (std::size_t i = 0; i < kColours.size(); ++i) {
    if (kColours[i] == colour) return static_cast<TextState>(i);
  }
  return TextState::PlainText;
}

void colourText(RichText& text, bool wholeText, bool& colouring) {
  if (colouring) return;
  colouring = true;
  text.beginColouring();
  const int caret = text.selection().to;
  colourFromSelection(text, wholeText);
  text.select({caret, caret});
  text.endColouring();
  colouring = false;
}

}  // namespace varlo
