#include "generator/items/scheme_colours.h"

#include <array>
#include <span>

#include "core/program/program.h"
#include "core/program/scheme.h"
#include "generator/items/reported_replace.h"
#include "generator/state/generator.h"

namespace varlo {
namespace {

// A variable and the slot that it shows.
struct SlotVariable {
  std::string_view key;
  std::size_t slot;
};

constexpr std::array<SlotVariable, 6> kCartColours{{
    {"$BGCOLOR", 0},
    {"$BG_COLOR", 0},
    {"$TEXT_COLOR", 23},
    {"$VLINK_COLOR", 2},
    {"$ALINK_COLOR", 3},
    {"$LINK_COLOR", 1},
}};

constexpr std::array<SlotVariable, 9> kOrderFormColours{{
    {"$FORMCOLOR", 20},
    {"$HEADINGTEXTCOLOR", 22},
    {"$HEADINGCOLOR", 21},
    {"$BGCOLOR", 13},
    {"$BG_COLOR", 13},
    {"$TEXT_COLOR", 14},
    {"$VLINK_COLOR", 16},
    {"$ALINK_COLOR", 17},
    {"$LINK_COLOR", 15},
}};

constexpr std::array<SlotVariable, 6> kConfirmationColours{{
    {"$BGCOLOR", 4},
    {"$BG_COLOR", 4},
    {"$TEXT_COLOR", 5},
    {"$VLINK_COLOR", 7},
    {"$ALINK_COLOR", 8},
    {"$LINK_COLOR", 6},
}};

// Replaces every variable by its slot, in the order given; an unset slot leaves its key in the text.
void applySlots(Generator& generator, std::string& text, std::span<const SlotVariable> variables,
                std::string_view fileName) {
  for (const SlotVariable& variable : variables) {
    ReplaceEvery(generator, text, variable.key, SchemeSlot(generator.program.project, variable.slot), fileName);
  }
}

}  // namespace

Value SchemeSlot(const StoreProject& project, std::size_t slot) {
  return project.projectScheme == nullptr ? Value() : ValueOf(project.projectScheme->slot[slot]);
}

void ApplyCartColours(Generator& generator, std::string& text, std::string_view fileName) {
  applySlots(generator, text, kCartColours, fileName);
}

void ApplyOrderFormColours(Generator& generator, std::string& text, std::string_view fileName) {
  applySlots(generator, text, kOrderFormColours, fileName);
}

void ApplyConfirmationColours(Generator& generator, std::string& text, std::string_view fileName) {
  applySlots(generator, text, kConfirmationColours, fileName);
}

}  // namespace varlo
