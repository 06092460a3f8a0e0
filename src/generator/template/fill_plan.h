// FillPlan: every replacement that a page goes through, in order, with the project's own variables in
// their place. It serves the quick way of filling a text (text_assembly.h): there, each place of a
// template that some step could take is known beforehand.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace varlo {

struct UserVariable;

// Where the value of a step comes from.
enum class FillSource : std::uint8_t {
  Early,     // a step of the item that is taken once more in front of all others
  Shelf,     // the expanded shelf block
  Variable,  // a user variable
  Item,      // a step of the item
  IndexBack,
  Index,
  Back,
  Letter,
  ProductTwo,
  ProductOne,
  Subindex,
  Url,
};

struct FillStep {
  std::string key;
  FillSource source = FillSource::Item;
  std::uint16_t number = 0;  // of the step of the item, or of the variable
  std::uint16_t times = 0;   // how often the key is replaced at most
  bool tagAware = false;
};

inline constexpr std::uint16_t kEveryTime = std::numeric_limits<std::uint16_t>::max();

class FillPlan {
 public:
  // The plan for these variables of a project.
  explicit FillPlan(const UserVariable* variables);

  // Whether texts can be filled the quick way at all: each variable's name must begin with "$", as every
  // other key does, and hold neither a second "$" nor an angle bracket. Very many variables are too many.
  [[nodiscard]] bool isQuick() const { return quick_; }

  [[nodiscard]] const std::vector<FillStep>& steps() const { return steps_; }

  // Whether some key stands at the start of `text`.
  [[nodiscard]] bool isKeyAt(std::string_view text) const;
  // Whether `text` is the front of a longer key, so that what follows could complete it.
  [[nodiscard]] bool isFrontOfKey(std::string_view text) const;

 private:
  void add(std::string_view key, FillSource source, std::size_t number, std::uint16_t times, bool tagAware = false);
  void addVariables(const UserVariable* variables);
  void addItemSteps();

  std::vector<FillStep> steps_;
  std::array<std::vector<std::uint16_t>, 256> stepsBySecond_;  // steps by the byte behind the "$"
  bool quick_ = true;
};

// The name that the pages of the alphabet have in templates.
inline constexpr std::string_view kLetterPage = "indexa.htm";

}  // namespace varlo
