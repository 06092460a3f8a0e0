// PlainProject: a project as plain values, without links between records. The fuzz targets keep one
// beside the engine's project and tell the project file a second time with it, in code that shares
// nothing with the engine's: what both make of the same file must be equal.
#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varlo::fuzz {

using PlainText = std::optional<std::string>;

// Stands for "no record" where a record is named by its place in a vector.
inline constexpr std::size_t kNone = static_cast<std::size_t>(-1);

// Keys of the texts of a node, in the order of the file.
inline constexpr std::array<std::string_view, 25> kTextKeys{
    "FILE", "PAGE", "IMAGE", "LINK", "KEY", "DESC", "BODY", "COST", "CODE", "TEMP", "F",  "W", "X",
    "F1",   "F2",   "F3",    "F4",   "F5",  "F6",   "T1",   "T2",   "T3",   "T4",   "T5", "T6"};
inline constexpr std::size_t kBodyText = 6;
inline constexpr std::size_t kTemplateText = 9;

inline constexpr int kProduct = 1;
inline constexpr int kShelf = 2;
inline constexpr int kList = 3;

struct PlainNode {
  int kind = 0;
  int status = 0;
  int modified = 0;
  PlainText title;
  std::map<std::size_t, std::string> text;  // by the place of the key; one that is absent has no entry
  std::size_t parent = kNone;
  std::size_t prev = kNone;
  std::vector<std::size_t> children;
};

struct PlainMethod {
  std::array<PlainText, 12> value;
  PlainText rule;
  int active = 0;
  bool operator==(const PlainMethod&) const = default;
};

struct PlainRegion {
  PlainText name;
  PlainText code;
  PlainText regionValue;
  int active = 0;
  std::array<PlainMethod, 3> method;
  bool operator==(const PlainRegion&) const = default;
};

struct PlainVariable {
  PlainText name;
  PlainText value;
  bool operator==(const PlainVariable&) const = default;
};

struct PlainCard {
  PlainText name;
  int custom = 0;
  bool operator==(const PlainCard&) const = default;
};

// A scheme by the place of its style and its own place in that style.
struct PlainScheme {
  std::size_t style = kNone;
  std::size_t scheme = kNone;
  [[nodiscard]] bool isNone() const { return scheme == kNone; }
};

// What the installation holds.
struct PlainCatalogue {
  struct Region {
    PlainText name;
    std::string code;
  };
  struct Style {
    PlainText name;
    std::vector<PlainText> schemes;
  };
  std::vector<Region> regions;
  std::vector<std::string> cards;
  std::vector<Style> styles;
};

struct PlainProject {
  PlainText webDir;
  PlainText storeTitle;
  PlainText freightTax;
  PlainText orderMessage;
  PlainText confirmMessage;
  PlainText currency;
  int taxEnabled = 0;
  int taxOption = 0;
  int fileVersion = 0;
  int versionOrder = 0;
  int versionConfirm = 0;
  int dirty = 0;
  std::array<PlainText, 20> templateNames;
  std::array<PlainText, 3> methodName;
  std::array<PlainText, 2> form;  // texts of order.htm and confirm.htm

  std::vector<PlainNode> nodes;  // those that hang nowhere any more stay in it
  std::vector<std::size_t> top;
  std::vector<PlainRegion> regions;
  std::vector<PlainVariable> variables;
  std::vector<PlainCard> cards;

  PlainScheme projectScheme;
  PlainScheme currentScheme;
  std::size_t currentStyle = kNone;
  std::vector<int> cardSelected;  // of the catalogue
};

// The list that holds the nodes below `node`, or the top-level list for kNone.
[[nodiscard]] std::vector<std::size_t>& ListBelow(PlainProject& project, std::size_t node);

// The nodes of the tree in its order, with what hangs below products.
[[nodiscard]] std::vector<std::size_t> WalkTree(const PlainProject& project);

// The text without every blank, CR and LF at its end.
[[nodiscard]] std::string WithoutEnd(std::string_view text);

// The line-end escape: "@@@" for each CR LF, and back.
[[nodiscard]] std::string Escaped(std::string_view text);
[[nodiscard]] std::string Unescaped(std::string_view text);

// The text in lower case, ASCII letters only.
[[nodiscard]] std::string Lower(std::string_view text);

// "style/scheme" by the names of both; empty for none.
[[nodiscard]] std::string PathOf(const PlainCatalogue& catalogue, const PlainScheme& scheme);
// The scheme that such a path names; none when it names nothing.
[[nodiscard]] PlainScheme FindPath(const PlainCatalogue& catalogue, std::string_view path);

// Ends the process with the words on the error stream unless `holds`.
void Require(bool holds, std::string_view words);

// Ends the process with the first difference unless both projects are equal. The numbers of the nodes do
// not count, their order in the tree does.
void RequireSame(std::string_view when, const PlainProject& expected, const PlainProject& actual);

// Ends the process with the first difference unless both files are equal.
void RequireSameBytes(std::string_view when, std::string_view expected, std::string_view actual);

}  // namespace varlo::fuzz
