#include "generator/template/store_values.h"

#include <algorithm>
#include <vector>

#include "core/program/program.h"
#include "core/store/user_variable.h"
#include "generator/items/item_values.h"
#include "generator/template/fill_plan.h"
#include "generator/template/item_steps.h"
#include "generator/template/text_assembly.h"

namespace varlo {
namespace {

// The value of a step when it is the same for every item, and neither absent nor one that could disturb a
// later step.
Value storeValue(const FillStep& step, ItemValues& values) {
  Value value;
  if (step.source == FillSource::Variable) {
    value = ValueOf(UserVariableAt(values.generator().program.project, step.number)->value);
  } else if (step.source == FillSource::Early || step.source == FillSource::Item) {
    const ItemStep& item = ItemSteps()[step.number];
    if (item.sameForAll) value = item.value(values);
    if (step.tagAware && value && value->empty()) return {};
  }
  return value && value->find_first_of("$<>") == std::string_view::npos ? value : Value();
}

// Whether the step is taken on a block.
bool isOfItems(const FillStep& step) {
  return step.source == FillSource::Variable || step.source == FillSource::Item;
}

// Puts the values of the store in their places. False when that cannot be done beforehand.
bool fillStoreValues(const FillPlan& plan, ItemValues& values, const PreparedText& prepared, bool isBlock,
                     TextAssembly& assembly) {
  // Places that an earlier step takes with a value of the page: a later one may only have what that leaves.
  std::vector<bool> isOfPage(prepared.begins.size());
  for (const PreparedText::Use& use : prepared.uses) {
    const FillStep& step = plan.steps()[use.step];
    if (isBlock && !isOfItems(step)) continue;
    const auto first = prepared.places.begin() + use.first;
    const Value value = storeValue(step, values);
    if (!value) {
      std::for_each(first, first + use.count, [&](std::uint32_t place) { isOfPage[place] = true; });
      continue;
    }
    if (std::any_of(first, first + use.count, [&](std::uint32_t place) { return isOfPage[place]; })) return false;
    assembly.fill(use, *value);
  }
  // A place that is left because its step counts must not be taken for a fresh one.
  return std::none_of(prepared.uses.begin(), prepared.uses.end(), [&](const PreparedText::Use& use) {
    return storeValue(plan.steps()[use.step], values) && assembly.isOpen(use);
  });
}

}  // namespace

std::unique_ptr<PreparedText> PrepareForStore(const FillPlan& plan, ItemValues& values, std::string_view text,
                                              bool isBlock) {
  auto prepared = std::make_unique<PreparedText>(plan, text);
  if (!prepared->quick) return prepared;
  TextAssembly assembly;
  assembly.start(plan, *prepared);
  if (!fillStoreValues(plan, values, *prepared, isBlock, assembly)) return prepared;
  std::string filled;
  if (!assembly.finish(filled, 0)) return prepared;
  auto result = std::make_unique<PreparedText>(plan, filled);
  return result->quick ? std::move(result) : std::move(prepared);
}

}  // namespace varlo
