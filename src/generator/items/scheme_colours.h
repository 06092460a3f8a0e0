// Putting a scheme's colours into texts: which variable gets which slot differs by page.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "generator/items/replace.h"

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

// The value of a slot of the store's scheme; absent when the scheme leaves it unset, and without a scheme.
[[nodiscard]] Value SchemeSlot(const StoreProject& project, std::size_t slot);

// The colours of the cart.
void ApplyCartColours(Generator& generator, std::string& text, std::string_view fileName);
// Those of the order form, and those of the confirmation page, which are the store's pages' own.
void ApplyOrderFormColours(Generator& generator, std::string& text, std::string_view fileName);
void ApplyConfirmationColours(Generator& generator, std::string& text, std::string_view fileName);

}  // namespace varlo
