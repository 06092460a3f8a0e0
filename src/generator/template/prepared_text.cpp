#include "generator/template/prepared_text.h"

#include <algorithm>

#include "generator/template/fill_plan.h"

namespace varlo {
namespace {

// Where a key could begin: at each "$", and at the one key that has none.
std::vector<std::uint32_t> candidatesOf(std::string_view text) {
  std::vector<std::uint32_t> candidates;
  for (std::size_t at = text.find_first_of("$i"); at != std::string_view::npos;
       at = text.find_first_of("$i", at + 1)) {
    if (text[at] == '$' || text.substr(at).starts_with(kLetterPage)) {
      candidates.push_back(static_cast<std::uint32_t>(at));
    }
  }
  return candidates;
}

}  // namespace

PreparedText::PreparedText(const FillPlan& plan, std::string_view source) : text(source), begins{0} {
  if (text.size() > kLongest) {
    quick = false;
    return;
  }
  const std::vector<std::uint32_t> candidates = candidatesOf(text);
  const std::string_view whole = text;
  const auto isPlace = [&](std::uint32_t at) { return whole[at] != '$' || plan.isKeyAt(whole.substr(at)); };
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    if (!isPlace(candidates[i])) continue;
    begins.push_back(candidates[i]);
    const std::size_t next = i + 1 < candidates.size() ? candidates[i + 1] : text.size();
    if (plan.isFrontOfKey(whole.substr(candidates[i], next - candidates[i]))) quick = false;
  }
  begins.push_back(static_cast<std::uint32_t>(text.size()));
  for (std::size_t step = 0; step < plan.steps().size(); ++step) {
    Use use{static_cast<std::uint16_t>(step), static_cast<std::uint32_t>(places.size()), 0};
    for (std::uint32_t segment = 1; segment + 1 < begins.size(); ++segment) {
      const std::string& key = plan.steps()[step].key;
      if (!whole.substr(begins[segment]).starts_with(key)) continue;
      if (begins[segment] + key.size() > begins[segment + 1]) quick = false;  // one key inside another
      places.push_back(segment);
      ++use.count;
    }
    if (use.count > 0) uses.push_back(use);
    if (places.size() > kMostPlaces) {
      quick = false;
      return;
    }
  }
}

}  // namespace varlo
