// Putting a scheme's colours into texts: which variable gets which slot differs by page.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "generator/replace.h"

namespace varlo {

struct Generator;
struct StoreProject;

// The slots of a scheme that the cart and the forms read.
namespace slot {
inline constexpr std::size_t kHeading2 = 11;
inline constexpr std::size_t kHeading3 = 12;
inline constexpr std::size_t kListColour = 18;
inline constexpr std::size_t kFrameColour = 19;
}  // namespace slot

// A variable and the slot that it shows.
struct SlotVariable {
  std::string_view key;
  std::size_t slot;
};

// The value of a slot of the store's scheme; absent when the scheme leaves it unset, and without a scheme.
[[nodiscard]] Value SchemeSlot(const StoreProject& project, std::size_t slot);

// Replaces every `key` of a text. A value that holds its own key leaves the text as it is: an error, logged
// with the file's name.
void ReplaceEvery(Generator& generator, std::string& text, std::string_view key, const Value& value,
                  std::string_view fileName);

// Replaces every variable by its slot, in the order given; an unset slot leaves its key in the text.
void ApplySlots(Generator& generator, std::string& text, std::span<const SlotVariable> variables,
                std::string_view fileName);

// The colours of the cart.
void ApplyCartColours(Generator& generator, std::string& text, std::string_view fileName);
// Those of the order form, and those of the confirmation page, which are the store's pages' own.
void ApplyOrderFormColours(Generator& generator, std::string& text, std::string_view fileName);
void ApplyConfirmationColours(Generator& generator, std::string& text, std::string_view fileName);

}  // namespace varlo
