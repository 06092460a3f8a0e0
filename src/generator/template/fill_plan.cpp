#include "generator/template/fill_plan.h"

#include <algorithm>

#include "core/store/user_variable.h"
#include "generator/template/item_steps.h"

namespace varlo {
namespace {

// Steps are numbered in 16 bits, and there are others beside those of the variables.
constexpr std::size_t kMostVariables = 60000;

std::uint16_t timesOf(Repeat repeat) {
  if (repeat == Repeat::Once) return 1;
  return repeat == Repeat::Four ? 4 : kEveryTime;
}

bool isQuickName(std::string_view name) {
  return name.size() > 1 && name.front() == '$' && name.find_first_of("$<>", 1) == std::string_view::npos;
}

}  // namespace

FillPlan::FillPlan(const UserVariable* variables) {
  for (const std::size_t number : EarlySteps()) {
    const ItemStep& step = ItemSteps()[number];
    add(step.key, FillSource::Early, number, timesOf(step.repeat));
  }
  add("$SHELF", FillSource::Shelf, 0, 1);
  addVariables(variables);
  addItemSteps();
  add("$BACK", FillSource::IndexBack, 0, kEveryTime);
  add("$INDEX", FillSource::Index, 0, kEveryTime);
  add("$BACK", FillSource::Back, 0, kEveryTime);
  add(kLetterPage, FillSource::Letter, 0, 1);
  add("$PRODUCTS2", FillSource::ProductTwo, 0, kEveryTime);
  add("$PRODUCT2", FillSource::ProductTwo, 0, kEveryTime);
  add("$PRODUCTS", FillSource::ProductOne, 0, kEveryTime);
  add("$PRODUCT", FillSource::ProductOne, 0, kEveryTime);
  add("$SUBINDEX", FillSource::Subindex, 0, kEveryTime);
  add("$URL", FillSource::Url, 0, 1);
}

void FillPlan::add(std::string_view key, FillSource source, std::size_t number, std::uint16_t times, bool tagAware) {
  if (key.front() == '$' && key.size() > 1) {
    stepsBySecond_[static_cast<unsigned char>(key[1])].push_back(static_cast<std::uint16_t>(steps_.size()));
  }
  steps_.push_back({std::string(key), source, static_cast<std::uint16_t>(number), times, tagAware});
}

void FillPlan::addVariables(const UserVariable* variables) {
  for (std::size_t number = 0; variables != nullptr; variables = variables->next, ++number) {
    const std::string_view name = variables->name.view();
    if (name.empty()) continue;
    if (!isQuickName(name) || number >= kMostVariables) quick_ = false;
    add(name, FillSource::Variable, number, kVariableRounds);
  }
}

void FillPlan::addItemSteps() {
  std::size_t number = 0;
  for (const ItemStep& step : ItemSteps()) {
    if (!step.key.empty()) {
      add(step.key, FillSource::Item, number, timesOf(step.repeat), step.repeat == Repeat::Tag);
    }
    ++number;
  }
}

bool FillPlan::isKeyAt(std::string_view text) const {
  if (text.size() < 2) return false;
  const auto& candidates = stepsBySecond_[static_cast<unsigned char>(text[1])];
  return std::any_of(candidates.begin(), candidates.end(),
                     [&](std::uint16_t step) { return text.starts_with(steps_[step].key); });
}

bool FillPlan::isFrontOfKey(std::string_view text) const {
  return std::any_of(steps_.begin(), steps_.end(), [text](const FillStep& step) {
    return step.key.size() > text.size() && step.key.starts_with(text);
  });
}

}  // namespace varlo
