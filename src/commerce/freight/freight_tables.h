// The store's freight expression, read back into tables: which delivery methods there are, where they go
// and what they cost. The generated cart reads the same text with a script of its own, and finds the same
// tables and the same problems, in the same words. docs/freight-rules.md defines the language.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varlo {

// One price of a table. All numbers are in ten thousandths.
struct FreightPrice {
  enum class Kind {
    kAny,     // holds for every order
    kWeight,  // up to a weight
    kValue,   // for goods worth `limit` or more
    kUnits,   // for every order; `each` is added for each unit of weight that is begun above `limit`
  };
  Kind kind = Kind::kAny;
  std::optional<std::int64_t> base;  // set in every table that was read without a problem
  std::int64_t each = 0;
  std::int64_t limit = 0;
};

// The regions that share one table, and their taxes. Rates are in ten thousandths of a per cent.
struct FreightGroup {
  std::vector<std::string> regions;  // codes
  std::vector<FreightPrice> prices;  // the first that holds counts
  std::optional<std::int64_t> goodsRate;
  bool taxedByProduct = false;
  std::optional<std::int64_t> freightRate;
  std::string problem;  // what is wrong with its text; such a group delivers nothing
};

struct FreightDelivery {
  std::string name;  // decoded, in the Windows character set
  std::vector<FreightGroup> groups;

  // The group of a region; null when this delivery does not go there.
  [[nodiscard]] const FreightGroup* groupOf(std::string_view region) const;
};

struct FreightTables {
  std::vector<FreightDelivery> deliveries;
  std::vector<std::string> problems;  // sentences for the owner; those of the groups among them

  // The first delivery of that name; null when there is none.
  [[nodiscard]] const FreightDelivery* deliveryNamed(std::string_view name) const;
  // All regions of all deliveries, each once, in their order.
  [[nodiscard]] std::vector<std::string> regions() const;
};

// Reads a whole freight expression. Never fails: what is wrong stands in `problems`, and a bad group
// spoils only its own regions. An empty expression has no deliveries and no problems.
[[nodiscard]] FreightTables ParseFreightExpression(std::string_view expression);

}  // namespace varlo
