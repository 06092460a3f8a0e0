#include "tests/import/plain_fields.h"

#include <algorithm>

namespace varlo::test {
namespace {

using String = std::string;

class Telling {
 public:
  Telling(const PlainDialect& dialect, const String& line) : d_(dialect), s_(line), end_(int(line.size())) {}

  int count() {
    int fields = 1;
    int at = 0;
    while (true) {
      if (is(at, d_.quote) && quoteAt(0, at) && !escapedQuote(at)) {
        const int close = closing(0, at);
        if (close < 0) return fields;
        at = close + 1;
      }
      if (at >= end_) return fields;
      if (is(at, d_.delimiter)) ++fields;
      ++at;
    }
  }

  String field(int column) {
    String result;
    int fieldStart = 0;
    int index = 0;
    int at = 0;
    while (true) {
      if (is(at, d_.quote) && quoteAt(fieldStart, at) && !escapedQuote(at)) {
        const int close = closing(fieldStart, at);
        if (index == column) {
          if (close < 0) {
            result = cut(fieldStart, end_);
          } else {
            int stop = close;
            if (close + 1 < end_) {
              stop = close + 1;
              while (stop < end_ && !is(stop, d_.delimiter) && !quoteAt(fieldStart, stop)) ++stop;
              if (is(stop, d_.delimiter)) --stop;
            }
            result = cut(is(fieldStart, d_.quote) ? fieldStart + 1 : fieldStart, stop);
          }
          break;
        }
        if (close < 0) break;
        at = fieldStart = close + 1;
      }
      if (at >= end_) break;
      if (is(at, d_.delimiter)) {
        ++index;
        if (index > column) {
          int from = overSpace(fieldStart);
          if (!is(from, d_.quote) || escapedQuote(from)) {
            result = cut(from, next(from, d_.delimiter));
          } else {
            result = cut(from + 1, next(from + 1, d_.quote));
          }
          break;
        }
        fieldStart = overSpace(at + 1);
      }
      ++at;
    }
    if (result.empty() && index == column && fieldStart < end_) result = cut(fieldStart, end_);
    return unescape(result);
  }

 private:
  [[nodiscard]] bool is(int at, char byte) const {
    return byte != '\0' && at >= 0 && at < end_ && s_[std::size_t(at)] == byte;
  }

  [[nodiscard]] bool quoteAt(int start, int at) const {
    if (at == start) return is(at, d_.quote);
    if (d_.quote == d_.escape) {
      int run = 0;
      for (int back = at; back >= start && is(back, d_.quote); --back) ++run;
      return run % 2 == 1;
    }
    return is(at, d_.quote) && !is(at - 1, d_.escape);
  }

  [[nodiscard]] bool escapedQuote(int at) const { return is(at, d_.escape) && is(at + 1, d_.quote); }

  [[nodiscard]] int closing(int start, int opening) const {
    for (int at = opening + 1; at < end_;) {
      if (!is(at, d_.quote)) {
        ++at;
      } else if (escapedQuote(at)) {
        at += 2;
      } else if (quoteAt(start, at)) {
        return at;
      } else {
        ++at;
      }
    }
    return -1;
  }

  [[nodiscard]] int next(int at, char byte) const {
    while (at < end_ && !is(at, byte)) ++at;
    return at;
  }

  [[nodiscard]] int overSpace(int at) const {
    while (at < end_ && String(" \t\n\v\f\r").find(s_[std::size_t(at)]) != String::npos) ++at;
    return at;
  }

  [[nodiscard]] String cut(int from, int to) const {
    String result;
    for (int at = from; at < to; ++at) result += s_[std::size_t(at)];
    return result;
  }

  [[nodiscard]] String unescape(const String& text) const {
    String result;
    for (std::size_t at = 0; at < text.size();) {
      const bool pair = d_.escape != '\0' && d_.quote != '\0' && at + 1 < text.size() && text[at] == d_.escape &&
                        text[at + 1] == d_.quote;
      result += pair ? d_.quote : text[at];
      at += pair ? 2 : 1;
    }
    return result;
  }

  PlainDialect d_;
  const String& s_;
  int end_;
};

int countCandidate(const String& line, char candidate) {
  int count = 0;
  char within = '\0';
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (within != '\0') {
      if (line[at] == within) within = '\0';
    } else if (line[at] == '"' || line[at] == '\'') {
      within = line[at];
    } else if (line[at] == candidate) {
      ++count;
    }
  }
  return count;
}

}  // namespace

int PlainCountFields(const PlainDialect& dialect, const String& line) { return Telling(dialect, line).count(); }

String PlainGetField(const PlainDialect& dialect, const String& line, int column) {
  return Telling(dialect, line).field(column);
}

PlainFile PlainReadFile(const String& content, char delimiter) {
  PlainFile file;
  const String candidates = ",;|:";
  std::vector<int> sums(candidates.size());
  String tail;
  for (std::size_t read = 0; read < content.size();) {
    const String block = content.substr(read, 19999);
    read += block.size();
    String text = (tail + block).substr(0, block.size());
    if (text.find('\0') != String::npos) text.resize(text.find('\0'));
    tail.clear();
    for (const char byte : text) {
      tail += byte;
      if (byte != '\n') continue;
      tail.pop_back();
      if (!tail.empty() && tail.back() == '\r') tail.pop_back();
      if (!tail.empty()) {
        for (std::size_t i = 0; i < sums.size() && file.rows.size() < 10; ++i) {
          sums[i] += countCandidate(tail, candidates[i]);
        }
        file.rows.push_back(tail);
      }
      tail.clear();
    }
  }
  file.delimiter = delimiter;
  for (std::size_t i = 0; i < sums.size(); ++i) {
    bool above = true;
    for (std::size_t other = 0; other < sums.size(); ++other) above = above && (other == i || sums[i] > sums[other]);
    if (above) file.delimiter = candidates[i];
  }
  return file;
}

}  // namespace varlo::test
