#include "commerce/freight/freight_evaluation.h"

#include <optional>
#include <utility>
#include <vector>

#include "commerce/freight/exact_amount.h"

namespace varlo {
namespace {

constexpr int kMostQuantity = 9999;

// One order being worked out. Each step gives false once a problem is noted; the order of the steps
// decides which of several problems is told, and is the cart's.
class Evaluation {
 public:
  Evaluation(const FreightDelivery* delivery, std::string_view region, std::span<const OrderLine> lines)
      : delivery_(delivery), region_(region), lines_(lines) {}

  OrderCost run() {
    const bool done = addLines() && findGroup() && findFreight() && findTaxes() && findTotal();
    if (done) cost_.problem.clear();
    return cost_;
  }

 private:
  bool fail(std::string problem) {
    cost_.problem = std::move(problem);
    return false;
  }
  bool within(std::int64_t number, std::int64_t most) {
    return number <= most || fail("The amounts of this order are too large.");
  }

  bool number(const OrderLine& line, const std::string& text, const char* what, std::int64_t& value) {
    const std::optional<std::int64_t> read = NumberFromText(text);
    value = read.value_or(0);
    return read || fail("The " + std::string(what) + " \"" + text + "\" of item " + line.code +
                        " is not a number with at most 9 digits and 4 decimals.");
  }

  bool quantity(const OrderLine& line, std::int64_t& count) {
    const bool whole = line.quantity.find('.') == std::string::npos && line.quantity.size() <= 4;
    const std::optional<std::int64_t> read = whole ? NumberFromText(line.quantity) : std::nullopt;
    count = read.value_or(0) / kNumberUnit;
    return count > 0 || fail("The quantity \"" + line.quantity + "\" of item " + line.code +
                             " is not a whole number from 1 to " + std::to_string(kMostQuantity) + ".");
  }

  // Adds `each` for every piece to a sum of numbers.
  bool addNumber(std::int64_t each, std::int64_t count, std::int64_t& sum) {
    if (!within(each * count, kMostNumber)) return false;
    sum += each * count;
    return within(sum, kMostNumber);
  }

  bool addLine(const OrderLine& line) {
    std::int64_t price = 0, count = 0, weight = 0, surcharge = 0;
    if (!number(line, line.price, "price", price) || !quantity(line, count)) return false;
    const std::int64_t amount = CentsOf(price) * count;
    amounts_.push_back(amount);
    if (!within(amount, kMostCents)) return false;
    cost_.goods += amount;
    return within(cost_.goods, kMostCents) && number(line, line.weight, "weight", weight) &&
           addNumber(weight, count, cost_.weight) && number(line, line.surcharge, "freight surcharge", surcharge) &&
           addNumber(surcharge, count, surcharges_);
  }

  bool addLines() {
    for (const OrderLine& line : lines_) {
      if (!addLine(line)) return false;
    }
    return true;
  }

  bool findGroup() {
    if (delivery_ == nullptr) return true;
    group_ = delivery_->groupOf(region_);
    if (group_ == nullptr) return fail("There is no delivery \"" + delivery_->name + "\" to " + region_ + ".");
    return group_->problem.empty() || fail(group_->problem);
  }

  // Each unit that is begun above the limit counts as a whole one.
  bool unitsPrice(const FreightPrice& price, std::int64_t& result) {
    const std::int64_t above = cost_.weight > price.limit ? cost_.weight - price.limit : 0;
    const std::int64_t units = (above + kNumberUnit - 1) / kNumberUnit;
    std::int64_t more = 0;
    const bool overflow = __builtin_mul_overflow(price.each, units, &more);
    if (!within(overflow ? kMostNumber + 1 : more, kMostNumber)) return false;
    result = *price.base + more;
    return within(result, kMostNumber);
  }

  // Whether the price is for this order, apart from its amount.
  [[nodiscard]] bool holds(const FreightPrice& price) const {
    switch (price.kind) {
      case FreightPrice::Kind::kWeight:
        return cost_.weight <= price.limit;
      case FreightPrice::Kind::kValue:
        return cost_.goods * (kNumberUnit / 100) >= price.limit;
      case FreightPrice::Kind::kAny:
      case FreightPrice::Kind::kUnits:
        break;
    }
    return true;
  }

  bool tablePrice(std::int64_t& result) {
    for (const FreightPrice& price : group_->prices) {
      if (!holds(price)) continue;
      if (price.kind == FreightPrice::Kind::kUnits) return unitsPrice(price, result);
      result = *price.base;
      return true;
    }
    return fail("The order weighs " + NumberToText(cost_.weight) + ", too heavy for delivery \"" + delivery_->name +
                "\" to " + region_ + ".");
  }

  bool findFreight() {
    std::int64_t price = 0;
    if (group_ != nullptr && !tablePrice(price)) return false;
    cost_.freight = CentsOf(price + surcharges_);
    return within(cost_.freight, kMostCents);
  }

  // The exact sum over the lines, rounded once.
  bool productTax() {
    std::int64_t scaled = 0;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const std::optional<std::int64_t> rate = NumberFromText(lines_[i].tax);
      if (!rate || *rate > kMostRate) {
        return fail("The tax rate \"" + lines_[i].tax + "\" of item " + lines_[i].code +
                    " is not a number from 0 to 1000.");
      }
      scaled += amounts_[i] * *rate;
    }
    cost_.goodsTax = TaxCents(scaled);
    return true;
  }

  bool findTaxes() {
    if (group_ == nullptr) return true;
    if (group_->goodsRate) {
      cost_.goodsTax = TaxCents(cost_.goods * *group_->goodsRate);
    } else if (group_->taxedByProduct && !productTax()) {
      return false;
    }
    if (!within(cost_.goodsTax, kMostCents)) return false;
    if (group_->freightRate) cost_.freightTax = TaxCents(cost_.freight * *group_->freightRate);
    return within(cost_.freightTax, kMostCents);
  }

  bool findTotal() {
    cost_.total = cost_.goods + cost_.freight + cost_.goodsTax + cost_.freightTax;
    return within(cost_.total, kMostCents);
  }

  const FreightDelivery* delivery_;
  std::string region_;
  std::span<const OrderLine> lines_;
  OrderCost cost_;
  const FreightGroup* group_ = nullptr;
  std::int64_t surcharges_ = 0;
  std::vector<std::int64_t> amounts_;
};

}  // namespace

OrderCost EvaluateOrder(const FreightDelivery* delivery, std::string_view region, std::span<const OrderLine> lines) {
  return Evaluation(delivery, region, lines).run();
}

}  // namespace varlo
