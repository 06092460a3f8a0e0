// The freight expression: all freight tables of the store as one text, which the cart of the generated
// store evaluates.
#pragma once

#include <cstddef>

namespace varlo {

struct StoreProject;
struct WorkingText;

// A longer rule is cut here.
inline constexpr std::size_t kFreightRule = 4048;

// The room that is made in front of each group of regions.
inline constexpr std::size_t kFreightGroupRoom = 2000;

// Puts the expression in place of the text: "NAME(CODE,CODE(BANDS);CODE(BANDS););" for each method that
// serves a region. Regions whose tables and tax are equal share a group, at the place of the first. Empty
// when no region is served. Deliberate: a rule that would reach the capacity of the text is left out, and
// its group then has no bands at all; the capacity grows only in front of a group.
void BuildFreightExpression(const StoreProject& project, WorkingText& expression);

}  // namespace varlo
