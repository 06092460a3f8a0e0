#include "tests/fuzz/plain_project.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace varlo::fuzz {
namespace {

constexpr std::size_t kShownBytes = 200;

// Collects labelled values; texts stand behind their length, so that no two lists look alike.
class Line {
 public:
  Line& number(std::string_view label, long long value) {
    start(label).append(std::to_string(value));
    return *this;
  }
  Line& text(std::string_view label, const PlainText& value) {
    start(label);
    line_ += value ? std::to_string(value->size()) + ":" + *value : "null";
    return *this;
  }
  Line& place(std::string_view label, std::size_t value) {
    start(label).append(value == kNone ? "none" : std::to_string(value));
    return *this;
  }
  std::string take() { return std::move(line_); }

 private:
  std::string& start(std::string_view label) { return line_.append(" ").append(label).append("="); }

  std::string line_;
};

std::string settings(const PlainProject& project) {
  Line line;
  line.text("webDir", project.webDir).text("storeTitle", project.storeTitle).text("freightTax", project.freightTax);
  line.text("orderMessage", project.orderMessage).text("confirmMessage", project.confirmMessage);
  line.text("currency", project.currency).number("taxEnabled", project.taxEnabled);
  line.number("taxOption", project.taxOption).number("fileVersion", project.fileVersion);
  line.number("versionOrder", project.versionOrder).number("versionConfirm", project.versionConfirm);
  line.number("dirty", project.dirty);
  for (const PlainText& name : project.templateNames) line.text("template", name);
  for (const PlainText& name : project.methodName) line.text("method", name);
  for (const PlainText& text : project.form) line.text("form", text);
  line.place("projectStyle", project.projectScheme.style).place("projectScheme", project.projectScheme.scheme);
  line.place("schemeStyle", project.currentScheme.style).place("scheme", project.currentScheme.scheme);
  line.place("style", project.currentStyle);
  for (const int selected : project.cardSelected) line.number("selected", selected);
  return line.take();
}

std::string nodeLine(const PlainNode& node, const std::vector<std::size_t>& numbers) {
  const auto numberOf = [&](std::size_t other) { return other == kNone ? kNone : numbers[other]; };
  Line line;
  line.number("kind", node.kind).number("status", node.status).number("modified", node.modified);
  line.text("title", node.title);
  for (const auto& [key, text] : node.text) line.text(kTextKeys[key], text);
  line.place("parent", numberOf(node.parent)).place("prev", numberOf(node.prev));
  for (const std::size_t child : node.children) line.place("child", numberOf(child));
  return line.take();
}

std::string regionLine(const PlainRegion& region) {
  Line line;
  line.text("name", region.name).text("code", region.code).text("regionValue", region.regionValue);
  line.number("active", region.active);
  for (const PlainMethod& method : region.method) {
    line.number("methodActive", method.active).text("rule", method.rule);
    for (const PlainText& value : method.value) line.text("value", value);
  }
  return line.take();
}

// The place in the walk of each node.
std::vector<std::size_t> numbersOf(const PlainProject& project, const std::vector<std::size_t>& walk) {
  std::vector<std::size_t> numbers(project.nodes.size(), kNone);
  for (std::size_t i = 0; i < walk.size(); ++i) numbers[walk[i]] = i;
  return numbers;
}

// One line a record, for the words about a difference.
std::vector<std::string> describe(const PlainProject& project) {
  std::vector<std::string> lines{"settings" + settings(project)};
  const std::vector<std::size_t> walk = WalkTree(project);
  const std::vector<std::size_t> numbers = numbersOf(project, walk);
  Line top;
  for (const std::size_t node : project.top) top.place("node", numbers[node]);
  lines.push_back("top" + top.take());
  for (const std::size_t node : walk) lines.push_back("node" + nodeLine(project.nodes[node], numbers));
  for (const PlainRegion& region : project.regions) lines.push_back("region" + regionLine(region));
  for (const PlainVariable& variable : project.variables) {
    lines.push_back("variable" + Line().text("name", variable.name).text("value", variable.value).take());
  }
  for (const PlainCard& card : project.cards) {
    lines.push_back("card" + Line().text("name", card.name).number("custom", card.custom).take());
  }
  return lines;
}

// Whether the records beside the tree are equal.
bool sameRecords(const PlainProject& left, const PlainProject& right) {
  return settings(left) == settings(right) && left.regions == right.regions && left.variables == right.variables &&
         left.cards == right.cards;
}

bool sameTree(const PlainProject& left, const PlainProject& right) {
  const std::vector<std::size_t> leftWalk = WalkTree(left);
  const std::vector<std::size_t> rightWalk = WalkTree(right);
  if (leftWalk.size() != rightWalk.size() || left.top.size() != right.top.size()) return false;
  const std::vector<std::size_t> leftNumbers = numbersOf(left, leftWalk);
  const std::vector<std::size_t> rightNumbers = numbersOf(right, rightWalk);
  const auto sameLink = [&](std::size_t one, std::size_t other) {
    return one == kNone || other == kNone ? one == other : leftNumbers[one] == rightNumbers[other];
  };
  for (std::size_t i = 0; i < leftWalk.size(); ++i) {
    const PlainNode& one = left.nodes[leftWalk[i]];
    const PlainNode& other = right.nodes[rightWalk[i]];
    const bool same = one.kind == other.kind && one.status == other.status && one.modified == other.modified &&
                      one.title == other.title && one.text == other.text && sameLink(one.parent, other.parent) &&
                      sameLink(one.prev, other.prev) && one.children.size() == other.children.size();
    if (!same) return false;
  }
  return true;
}

// The bytes around `at`, with the odd ones as hexadecimal numbers.
std::string shown(std::string_view bytes, std::size_t at) {
  const std::size_t from = at < kShownBytes / 2 ? 0 : at - kShownBytes / 2;
  std::string text;
  for (const char c : bytes.substr(std::min(from, bytes.size()), kShownBytes)) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte < 0x7F) {
      text += c;
      continue;
    }
    std::array<char, 8> code;
    std::snprintf(code.data(), code.size(), "\\x%02X", byte);
    text += code.data();
  }
  return text;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  for (std::size_t found = text.find(from); found != std::string_view::npos; found = text.find(from)) {
    result.append(text.substr(0, found)).append(to);
    text.remove_prefix(found + from.size());
  }
  return result.append(text);
}

}  // namespace

std::vector<std::size_t>& ListBelow(PlainProject& project, std::size_t node) {
  return node == kNone ? project.top : project.nodes[node].children;
}

std::vector<std::size_t> WalkTree(const PlainProject& project) {
  std::vector<std::size_t> open(project.top.rbegin(), project.top.rend());
  std::vector<std::size_t> walk;
  while (!open.empty()) {
    const std::size_t node = open.back();
    open.pop_back();
    walk.push_back(node);
    const std::vector<std::size_t>& below = project.nodes[node].children;
    open.insert(open.end(), below.rbegin(), below.rend());
  }
  return walk;
}

std::string WithoutEnd(std::string_view text) {
  return std::string(text.substr(0, text.find_last_not_of(" \r\n") + 1));  // npos + 1 is 0
}

std::string Escaped(std::string_view text) { return replaceAll(text, "\r\n", "@@@"); }
std::string Unescaped(std::string_view text) { return replaceAll(text, "@@@", "\r\n"); }

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
  return lower;
}

std::string PathOf(const PlainCatalogue& catalogue, const PlainScheme& scheme) {
  if (scheme.isNone()) return {};
  const PlainCatalogue::Style& style = catalogue.styles[scheme.style];
  return style.name.value_or("") + "/" + style.schemes[scheme.scheme].value_or("");
}

PlainScheme FindPath(const PlainCatalogue& catalogue, std::string_view path) {
  for (std::size_t i = 0; i < catalogue.styles.size(); ++i) {
    const PlainCatalogue::Style& style = catalogue.styles[i];
    if (!style.name || path.substr(0, style.name->size()) != *style.name) continue;
    const std::size_t behind = std::min(style.name->size() + 1, path.size());
    const auto found = std::find(style.schemes.begin(), style.schemes.end(), PlainText(path.substr(behind)));
    if (found != style.schemes.end()) return {i, static_cast<std::size_t>(found - style.schemes.begin())};
  }
  return {};
}

void Require(bool holds, std::string_view words) {
  if (holds) return;
  std::fprintf(stderr, "not as it must be: %.*s\n", static_cast<int>(words.size()), words.data());
  std::abort();
}

void RequireSame(std::string_view when, const PlainProject& expected, const PlainProject& actual) {
  if (sameRecords(expected, actual) && sameTree(expected, actual)) return;
  const std::vector<std::string> left = describe(expected);
  const std::vector<std::string> right = describe(actual);
  for (std::size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
    RequireSameBytes(when, i < left.size() ? left[i] : "no record", i < right.size() ? right[i] : "no record");
  }
  Require(false, "a difference has words");
}

void RequireSameBytes(std::string_view when, std::string_view expected, std::string_view actual) {
  if (expected == actual) return;
  const auto differ = std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
  const auto at = static_cast<std::size_t>(differ.first - expected.begin());
  std::fprintf(stderr, "%.*s: differs at byte %zu of %zu and %zu\n", static_cast<int>(when.size()), when.data(), at,
               expected.size(), actual.size());
  std::fprintf(stderr, "expected: %s\nactual:   %s\n", shown(expected, at).c_str(), shown(actual, at).c_str());
  std::abort();
}

}  // namespace varlo::fuzz
