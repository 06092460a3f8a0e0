#include "import/import_fields.h"

#include "core/text/limits.h"
#include "core/text/text_edit.h"
#include "import/import_dialect.h"

namespace varlo {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

// A line under a dialect, and the place from which its bytes count: that of the line or of its current field.
class FieldLine {
 public:
  FieldLine(const ImportDialect& dialect, std::string_view line, std::size_t start = 0)
      : line_(line),
        start_(start),
        delimiter_(dialect.fieldDelimiter),
        quote_(dialect.quote.c_str()[0]),
        escape_(dialect.quoteEscape.c_str()[0]) {}

  [[nodiscard]] std::size_t start() const { return start_; }
  [[nodiscard]] std::size_t size() const { return line_.size(); }
  void startAt(std::size_t start) {
    start_ = start;
    runEnd_ = kNone;
  }

  // NUL stands for "none", and no line holds it.
  [[nodiscard]] bool isDelimiter(std::size_t at) const { return line_[at] == delimiter_ && delimiter_ != '\0'; }
  // Nothing is at the end of the line.
  [[nodiscard]] bool isQuote(std::size_t at) const {
    return at < line_.size() && line_[at] == quote_ && quote_ != '\0';
  }

  [[nodiscard]] bool isEscapedQuote(std::size_t at) const {
    return line_[at] == escape_ && escape_ != '\0' && isQuote(at + 1);
  }

  [[nodiscard]] bool isQuoteAt(std::size_t at) {
    if (at == start_) return isQuote(at);
    if (quote_ == escape_) return runOfQuotes(at) % 2 == 1;
    return isQuote(at) && (at == 0 || line_[at - 1] != escape_);
  }

  [[nodiscard]] bool opensAt(std::size_t at) { return isQuote(at) && isQuoteAt(at) && !isEscapedQuote(at); }

  // The quote that closes the one at `opening`; kNone when there is none.
  [[nodiscard]] std::size_t closingQuote(std::size_t opening) {
    std::size_t at = line_.find(quote_, opening + 1);
    while (at != kNone) {
      const bool escaped = isEscapedQuote(at);
      if (isQuoteAt(at) && !escaped) return at;
      at = line_.find(quote_, at + (escaped ? 2 : 1));
    }
    return kNone;
  }

  // Where a quoted field ends whose closing quote is at `closing`. Deliberate: what stands between that quote and the
  // delimiter belongs to the field, quote included, but for its last byte.
  [[nodiscard]] std::size_t endOfQuoted(std::size_t closing) {
    std::size_t at = closing + 1;
    if (at == line_.size()) return closing;
    while (at < line_.size() && !isDelimiter(at) && !isQuoteAt(at)) ++at;
    return at < line_.size() && isDelimiter(at) ? at - 1 : at;
  }

  [[nodiscard]] std::size_t behindSpace(std::size_t at) const {
    while (at < line_.size() && IsSpace(line_[at])) ++at;
    return at;
  }

  // Empty where the end comes first: a field may start behind a quote that counts, when the quote is a blank.
  [[nodiscard]] std::string_view between(std::size_t from, std::size_t to) const {
    return to < from ? std::string_view() : line_.substr(from, to - from);
  }
  // From a place up to the next such byte, or to the end of the line.
  [[nodiscard]] std::string_view untilQuote(std::size_t from) const {
    return between(from, line_.find(quote_, from));
  }
  [[nodiscard]] std::string_view untilDelimiter(std::size_t from) const {
    return between(from, line_.find(delimiter_, from));
  }

 private:
  // How many quotes stand in a row up to the one at `at`, from the start on. The last run is remembered: a line of
  // quotes alone would take the square of its length otherwise.
  std::size_t runOfQuotes(std::size_t at) {
    std::size_t length = 0;
    for (std::size_t i = at + 1; i > start_ && isQuote(i - 1); --i) {
      if (i - 1 == runEnd_) {
        length += runLength_;
        break;
      }
      ++length;
    }
    runEnd_ = length == 0 ? kNone : at;
    runLength_ = length;
    return length;
  }

  std::string_view line_;
  std::size_t start_;
  char delimiter_;
  char quote_;
  char escape_;
  std::size_t runEnd_ = kNone;
  std::size_t runLength_ = 0;
};

// Looks for one field of a line.
class FieldSearch {
 public:
  FieldSearch(const ImportDialect& dialect, std::string_view line, std::size_t column)
      : line_(dialect, line), column_(column) {}

  // The field as it stands in the line.
  std::string_view run() {
    const std::string_view found = walk();
    // Deliberate: a quoted field with nothing between its quotes counts as not found, and so takes the rest of the
    // line, quotes included.
    const bool isLast = found.empty() && index_ == column_ && line_.start() < line_.size();
    return isLast ? line_.between(line_.start(), line_.size()) : found;
  }

 private:
  std::string_view walk() {
    for (std::size_t at = 0; at < line_.size(); ++at) {
      if (line_.opensAt(at)) {
        const std::size_t closing = line_.closingQuote(at);
        if (index_ == column_) return quotedField(closing);
        if (closing == kNone) break;
        at = closing + 1;
        line_.startAt(at);
        if (at == line_.size()) break;
      }
      if (!line_.isDelimiter(at)) continue;
      if (++index_ > column_) return plainField();
      line_.startAt(line_.behindSpace(at + 1));
    }
    return {};
  }

  std::string_view quotedField(std::size_t closing) {
    const std::size_t start = line_.start();
    if (closing == kNone) return line_.between(start, line_.size());
    const std::size_t end = line_.endOfQuoted(closing);
    return line_.between(line_.isQuote(start) ? start + 1 : start, end);
  }

  // The field that ended in front of a delimiter.
  [[nodiscard]] std::string_view plainField() const {
    const std::size_t start = line_.behindSpace(line_.start());
    const bool quoted = line_.isQuote(start) && !line_.isEscapedQuote(start);
    return quoted ? line_.untilQuote(start + 1) : line_.untilDelimiter(start);
  }

  FieldLine line_;
  std::size_t column_;
  std::size_t index_ = 0;
};

// Each pair of escape and quote becomes a quote, from left to right; what was made is not looked at again.
std::string unescaped(const ImportDialect& dialect, std::string_view field) {
  const FieldLine line(dialect, field);
  std::string text;
  text.reserve(field.size());
  for (std::size_t at = 0; at < field.size(); ++at) {
    if (line.isEscapedQuote(at)) ++at;
    text += field[at];
  }
  return text;
}

}  // namespace

bool IsQuoteAt(const ImportDialect& dialect, std::string_view text, std::size_t start, std::size_t position) {
  return FieldLine(dialect, text, start).isQuoteAt(position);
}

bool IsEscapedQuote(const ImportDialect& dialect, std::string_view text, std::size_t position) {
  return FieldLine(dialect, text).isEscapedQuote(position);
}

int CountFields(const ImportDialect& dialect, std::string_view line) {
  FieldLine fields(dialect, line);
  int count = 1;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (fields.opensAt(at)) {
      const std::size_t closing = fields.closingQuote(at);
      if (closing == kNone) break;
      at = closing + 1;
      if (at == line.size()) break;
    }
    if (fields.isDelimiter(at)) ++count;
  }
  return count;
}

std::string GetField(const ImportDialect& dialect, std::string_view line, std::size_t column) {
  return unescaped(dialect, FieldSearch(dialect, line, column).run().substr(0, kLineBuffer));
}

}  // namespace varlo
