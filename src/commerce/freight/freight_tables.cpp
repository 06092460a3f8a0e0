#include "commerce/freight/freight_tables.h"

#include <algorithm>
#include <cstddef>

#include "commerce/freight/freight_price_reader.h"

namespace varlo {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::size_t kExcerpt = 40;
constexpr std::size_t kRegionsTold = 3;

std::string_view trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanks);
  return begin == text.npos ? std::string_view() : text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

int hexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

// A name as it was before its URL encoding. A "%" without two hexadecimal digits stands for itself.
std::string decodedName(std::string_view text) {
  std::string name;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '%' && i + 2 < text.size() && hexValue(text[i + 1]) >= 0 && hexValue(text[i + 2]) >= 0) {
      name += static_cast<char>(hexValue(text[i + 1]) * 16 + hexValue(text[i + 2]));
      i += 2;
    } else {
      name += text[i] == '+' ? ' ' : text[i];
    }
  }
  return name;
}

// At most three of the names, and how many more there are.
std::string listText(const std::vector<std::string>& names) {
  std::string text;
  for (std::size_t i = 0; i < names.size() && i < kRegionsTold; ++i) text += (i > 0 ? ", " : "") + names[i];
  if (names.size() > kRegionsTold) text += " and " + std::to_string(names.size() - kRegionsTold) + " more";
  return text;
}

std::vector<std::string> codesOf(std::string_view text) {
  std::vector<std::string> codes;
  for (std::size_t at = 0;;) {
    const std::size_t comma = text.find(',', at);
    codes.emplace_back(trimmed(text.substr(at, comma == text.npos ? comma : comma - at)));
    if (comma == text.npos) return codes;
    at = comma + 1;
  }
}

// One group, "AU,NZ(5<=0.5k,7<=1k", without its ");". A name of a region may hold parentheses, the values
// never do, so they start behind the last "(".
FreightGroup readGroup(std::string_view text, const std::string& delivery) {
  FreightGroup group;
  const std::size_t open = text.rfind('(');
  if (open == text.npos) {
    group.problem =
        "Delivery \"" + delivery + "\": \"(\" is missing in \"" + std::string(text.substr(0, kExcerpt)) + "\".";
    return group;
  }
  group.regions = codesOf(text.substr(0, open));
  const std::string problem = ReadFreightPrices(text.substr(open + 1), group);
  if (!problem.empty()) {
    group.problem = "Delivery \"" + delivery + "\" to " + listText(group.regions) + ": " + problem + ".";
  }
  return group;
}

// The groups of a delivery, from `at` through its closing ");", and `at` behind that. False when the text
// ends before.
bool readGroups(std::string_view text, std::size_t& at, FreightDelivery& delivery) {
  while (text.substr(at, 2) != ");") {
    const std::size_t end = text.find(");", at);
    if (end == text.npos) return false;
    delivery.groups.push_back(readGroup(text.substr(at, end - at), delivery.name));
    at = end + 2;
  }
  at += 2;
  return true;
}

}  // namespace

const FreightGroup* FreightDelivery::groupOf(std::string_view region) const {
  for (const FreightGroup& group : groups) {
    if (std::find(group.regions.begin(), group.regions.end(), region) != group.regions.end()) return &group;
  }
  return nullptr;
}

const FreightDelivery* FreightTables::deliveryNamed(std::string_view name) const {
  for (const FreightDelivery& delivery : deliveries) {
    if (delivery.name == name) return &delivery;
  }
  return nullptr;
}

std::vector<std::string> FreightTables::regions() const {
  std::vector<std::string> all;
  for (const FreightDelivery& delivery : deliveries) {
    for (const FreightGroup& group : delivery.groups) {
      for (const std::string& code : group.regions) {
        if (std::find(all.begin(), all.end(), code) == all.end()) all.push_back(code);
      }
    }
  }
  return all;
}

FreightTables ParseFreightExpression(std::string_view expression) {
  FreightTables tables;
  const std::string_view text = trimmed(expression);
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t open = text.find('(', at);
    if (open == text.npos) {
      tables.problems.push_back("The freight expression is not understood from \"" +
                                std::string(text.substr(at, kExcerpt)) + "\" on.");
      break;
    }
    FreightDelivery& delivery = tables.deliveries.emplace_back();
    delivery.name = decodedName(text.substr(at, open - at));
    at = open + 1;
    const bool complete = readGroups(text, at, delivery);
    for (const FreightGroup& group : delivery.groups) {
      if (!group.problem.empty()) tables.problems.push_back(group.problem);
    }
    if (!complete) {
      tables.problems.push_back("The freight expression breaks off in delivery \"" + delivery.name + "\".");
      break;
    }
  }
  return tables;
}

}  // namespace varlo
