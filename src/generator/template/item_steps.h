// The steps that fill in the values of one item, in their order. The order is the language: a shorter
// name is done behind every longer one that begins with it, and a variable inside a value works when its
// step comes later.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "generator/items/item_values.h"

namespace varlo {

// How often a step replaces its key.
enum class Repeat {
  Variables,  // no key of its own: each user variable in turn, 101 times at most
  Check,      // no key: the pass ends here without a scheme
  Once,
  Four,
  All,
  Tag,  // tag-aware
};

// What else belongs to a step.
enum class StepRole {
  Plain,
  Link,    // of the group that is done only when one of its three keys occurs
  Server,  // reports an empty address
};

struct ItemStep {
  std::string_view key;
  Repeat repeat = Repeat::All;
  Value (*value)(ItemValues&) = nullptr;
  StepRole role = StepRole::Plain;
  bool sameForAll = false;  // the value is that of the store, the same for every item
};

inline constexpr std::size_t kItemSteps = 67;
inline constexpr int kVariableRounds = 101;

// The steps from first to last.
[[nodiscard]] std::span<const ItemStep, kItemSteps> ItemSteps();

// The numbers of those steps that a page takes once more in front of everything else, in their order there,
// so that a body can hold the user's variables.
[[nodiscard]] std::span<const std::size_t> EarlySteps();

}  // namespace varlo
