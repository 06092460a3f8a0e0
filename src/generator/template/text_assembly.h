// TextAssembly: fills the places of a prepared text in one pass, with the bytes that the steps would give
// when each of them searched and changed the text in turn.
//
// Why this is the same: every key begins with its only "$" (but for one, which has none). As long as no
// value brings a key along and no joint of two pieces makes one, each step finds exactly the places that
// were known beforehand, and those that earlier steps left. Whether that held shows in the result: it is
// searched for keys that stand at no known place. What a cut tag would hide from that search is looked at
// before it is cut. Wherever something is not as it should be, the assembly says no, and the steps have to
// be taken one by one instead.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "generator/template/fill_plan.h"
#include "generator/template/prepared_text.h"
#include "generator/template/text_signs.h"

namespace varlo {

class TextAssembly {
 public:
  // A value in up to three pieces.
  using Parts = std::array<std::string_view, 3>;

  // Starts on a text; both stay with the caller until the end.
  void start(const FillPlan& plan, const PreparedText& text);

  // Whether some place of the use is still open.
  [[nodiscard]] bool isOpen(const PreparedText::Use& use) const;
  // Puts the value in the open places of the use, as often as its step allows.
  void fill(const PreparedText::Use& use, std::string_view value);
  // The same with a value whose pieces are read at the end.
  void fill(const PreparedText::Use& use, const Parts& parts);
  // Removes the open places of a tag-aware step, each alone or with its tag. False when the steps have to
  // be taken one by one.
  [[nodiscard]] bool removeTagAware(const PreparedText::Use& use);

  // Puts the filled text into `result`, over what stands there from `from` on. False when the steps have to
  // be taken one by one, and that text is not what it should be.
  [[nodiscard]] bool finish(std::string& result, std::size_t from);
  // What the text put in last holds.
  [[nodiscard]] const TextSigns& signs() const { return signs_; }

 private:
  struct Segment {
    std::string_view value;        // in front of the rest
    const Parts* parts = nullptr;  // behind the value
    std::uint32_t begin = 0;       // of what is left of the segment's own text
    std::uint32_t end = 0;
    bool open = false;  // its place still stands there
  };
  // A place in the text: a segment, and a byte of the source behind its value.
  struct Position {
    std::size_t segment = 0;
    std::uint32_t at = 0;
    bool isGreater = false;  // of the two angle brackets
  };

  [[nodiscard]] std::string_view source(std::uint32_t from, std::uint32_t to) const {
    return {prepared_->text.data() + from, to - from};
  }
  template <typename Put>
  void fillEach(const PreparedText::Use& use, Put put);
  [[nodiscard]] bool findAngleBefore(std::size_t segment, Position& angle) const;
  [[nodiscard]] bool findTagEnd(std::size_t segment, std::uint32_t keySize, Position& end) const;
  [[nodiscard]] bool hasGreaterBehind(std::size_t segment, std::uint32_t keySize) const;
  [[nodiscard]] bool cut(const Position& from, const Position& to);
  [[nodiscard]] std::size_t filledSize() const;
  [[nodiscard]] bool mayGetTooLong() const;
  [[nodiscard]] bool holdsOnlyKnownKeys(std::string_view result) const;

  const FillPlan* plan_ = nullptr;
  const PreparedText* prepared_ = nullptr;
  std::vector<Segment> segments_;
  TextSigns signs_;
  std::vector<std::size_t> left_;  // where places that stay open stand in the result
  std::size_t put_ = 0;            // bytes of all values that were put in, those that were cut again as well
};

}  // namespace varlo
