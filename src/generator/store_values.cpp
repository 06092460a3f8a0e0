#include "generator/store_values.h"

#include <algorithm>
#include <span>
#include <vector>

#include "core/program.h"
#include "core/user_variable.h"
#include "generator/fill_plan.h"
#include "generator/item_steps.h"
#include "generator/item_values.h"
#include "generator/text_assembly.h"

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

}  // namespace

std::unique_ptr<PreparedText> PrepareForStore(const FillPlan& plan, ItemValues& values, std::string_view text) {
  auto prepared = std::make_unique<PreparedText>(plan, text);
  if (!prepared->quick) return prepared;
  TextAssembly assembly;
  assembly.start(plan, *prepared);
  std::vector<bool> kept(prepared->begins.size());  // places that an earlier step may take on some pages
  for (const PreparedText::Use& use : prepared->uses) {
    const auto places = std::span(prepared->places).subspan(use.first, use.count);
    const Value value = storeValue(plan.steps()[use.step], values);
    if (!value || std::any_of(places.begin(), places.end(), [&](std::uint32_t place) { return kept[place]; })) {
      for (const std::uint32_t place : places) kept[place] = true;
      continue;
    }
    assembly.fill(use, *value);
    // A place that is left because its step counts must not be taken for a fresh one.
    if (assembly.isOpen(use)) return prepared;
  }
  std::string filled;
  if (!assembly.finish(filled, 0)) return prepared;
  auto result = std::make_unique<PreparedText>(plan, filled);
  return result->quick ? std::move(result) : std::move(prepared);
}

}  // namespace varlo
