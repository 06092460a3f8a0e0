#include "commerce/freight/freight_expression.h"

#include <algorithm>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/store/store_project.h"
#include "core/text/text_edit.h"
#include "core/text/working_text.h"

namespace varlo {
namespace {

constexpr std::size_t kLastBand = kFreightCells - 1;

// What a region charges by one method: the texts that must be equal for two regions to share a group.
class Charge {
 public:
  Charge(const FreightRegion& region, std::size_t slot) : region_(region), table_(*region.method[slot]) {}

  [[nodiscard]] const FreightMethod& table() const { return table_; }
  [[nodiscard]] std::string_view tax() const { return region_.regionValue.view(); }

  [[nodiscard]] std::size_t hash() const {
    std::size_t sum = 0;
    const auto mix = [&sum](const Text& text) {
      sum = (sum ^ std::hash<std::string_view>()(text.view())) * 0x9E3779B97F4A7C15U;
      sum ^= sum >> 29;
    };
    for (const Text& cell : table_.value) mix(cell);
    mix(table_.rule);
    mix(region_.regionValue);
    return sum;
  }
  [[nodiscard]] bool operator==(const Charge& other) const {
    return std::equal(table_.value.begin(), table_.value.end(), other.table_.value.begin(), sameText) &&
           sameText(table_.rule, other.table_.rule) && sameText(region_.regionValue, other.region_.regionValue);
  }

 private:
  // An absent text counts as empty.
  static bool sameText(const Text& left, const Text& right) { return left.view() == right.view(); }

  const FreightRegion& region_;
  const FreightMethod& table_;
};

struct ChargeHash {
  std::size_t operator()(const Charge& charge) const { return charge.hash(); }
};

// Regions with the same charge, in the order of the store's list.
struct Group {
  Charge charge;
  std::vector<const FreightRegion*> regions;
};

// The groups of a method, in the order of their first regions.
std::vector<Group> groupRegions(const StoreProject& project, std::size_t slot) {
  std::vector<Group> groups;
  std::unordered_map<Charge, std::size_t, ChargeHash> groupOf;
  for (const FreightRegion* region = project.regions; region != nullptr; region = region->next) {
    if (region->method[slot] == nullptr || region->method[slot]->active == 0) continue;
    const Charge charge(*region, slot);
    const auto [found, isNew] = groupOf.try_emplace(charge, groups.size());
    if (isNew) groups.push_back({.charge = charge, .regions = {}});
    groups[found->second].regions.push_back(region);
  }
  return groups;
}

// A percentage as the cart reads it: without its first "%", with a mark behind.
void addRate(std::string& text, std::string_view rate, std::string_view mark) {
  if (rate.empty()) return;
  const std::size_t percent = std::min(rate.find('%'), rate.size());
  text.append(rate.substr(0, percent));
  if (percent < rate.size()) text.append(rate.substr(percent + 1));
  text.append(mark);
}

void addBands(std::string& text, const FreightMethod& table) {
  text.append(table.value[0].isSet() ? table.value[0].view() : "0").append("<=0.5k");
  for (std::size_t i = 1; i < kLastBand; ++i) {
    if (!table.value[i].isSet()) continue;
    text.append(",").append(table.value[i].view()).append("<=").append(std::to_string(i)).append("k");
  }
  if (!table.value[kLastBand].isSet()) return;
  // The band for 10 stands here again, also when it is empty.
  text.append(",").append(table.value[kLastBand - 1].view());
  text.append("+").append(table.value[kLastBand].view()).append("k>10k");
}

void addTable(WorkingText& expression, const FreightMethod& table) {
  const std::string_view rule = table.rule.view().substr(0, kFreightRule);
  if (rule.empty()) {
    addBands(expression.text, table);
  } else if (expression.text.size() + rule.size() < expression.capacity) {
    expression.text.append(rule);
  }
}

void addGroup(WorkingText& expression, const Group& group, std::string_view freightTax) {
  std::string& text = expression.text;
  for (const FreightRegion* region : group.regions) {
    if (region != group.regions.front()) text.append(",");
    text.append(region->code.view());
  }
  text.append("(");
  addRate(text, group.charge.tax(), "%,");
  addRate(text, freightTax, "f,");
  addTable(expression, group.charge.table());
  text.append(");");
}

}  // namespace

void BuildFreightExpression(const StoreProject& project, WorkingText& expression) {
  std::string& text = expression.text;
  text.clear();
  for (std::size_t slot = 0; slot < kFreightMethods; ++slot) {
    bool named = false;
    for (const Group& group : groupRegions(project, slot)) {
      EnsureRoom(expression, kFreightGroupRoom);
      if (!named) {
        if (!text.empty()) text.append(");");
        std::string name(project.methodName[slot].view());
        TextUrlEncode(name);
        text.append(name).append("(");
        named = true;
      }
      addGroup(expression, group, project.tax.freightTaxRate.view());
    }
  }
  if (!text.empty()) text.append(");");
}

}  // namespace varlo
