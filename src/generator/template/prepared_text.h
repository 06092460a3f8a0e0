// PreparedText: a template, or the shelf block of one, with the places that the steps of a plan can take.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varlo {

class FillPlan;

struct PreparedText {
  // A longer text is not prepared, nor is one with more places than that: templates are much smaller.
  static constexpr std::size_t kLongest = 1024 * 1024;
  static constexpr std::size_t kMostPlaces = 256 * 1024;

  // Finds the places of `text` for a plan that is quick.
  PreparedText(const FillPlan& plan, std::string_view text);

  // The places that one step can take, in the order of the text.
  struct Use {
    std::uint16_t step = 0;
    std::uint32_t first = 0;  // in `places`
    std::uint32_t count = 0;
  };

  std::string text;
  // The text falls into segments: the first begins with the text, each further one with a place. One
  // entry more than there are segments; the last is the end of the text.
  std::vector<std::uint32_t> begins;
  std::vector<Use> uses;              // in the order of the steps
  std::vector<std::uint32_t> places;  // numbers of segments
  // Whether this text can be filled the quick way: it is not too long, and no place runs into what follows
  // it, so that a value there could make a longer key of it.
  bool quick = true;
};

}  // namespace varlo
