// Filling in beforehand what is the same on every page: a template then has fewer places left for each.
#pragma once

#include <memory>
#include <string_view>

#include "generator/template/prepared_text.h"

namespace varlo {

class FillPlan;
class ItemValues;

// Prepares a text for a plan that is quick, with the values of the store already in their places where
// that makes no difference to the outcome: values without a "$" or an angle bracket, in places that every
// page would fill with them. The block of a shelf goes through the steps of its items only.
[[nodiscard]] std::unique_ptr<PreparedText> PrepareForStore(const FillPlan& plan, ItemValues& values,
                                                            std::string_view text, bool isBlock = false);

}  // namespace varlo
