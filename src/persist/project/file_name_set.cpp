#include "persist/project/file_name_set.h"

#include <algorithm>

#include "core/text/text_edit.h"

namespace varlo {
namespace {

// The first byte of a text, NUL at its end: an empty key meets an edge without a text.
char firstByte(std::string_view text) { return text.empty() ? '\0' : text.front(); }

FileNameSetNode* makeNode(FileNameSet& set, std::string_view text, std::uintptr_t value) {
  return &set.nodes.emplace_back(FileNameSetNode{.text = std::string(text), .value = value});
}

// How many bytes the two have in common at their starts.
std::size_t commonLength(std::string_view left, std::string_view right) {
  const std::size_t limit = std::min(left.size(), right.size());
  std::size_t length = 0;
  while (length < limit && left[length] == right[length]) ++length;
  return length;
}

// The place behind the last sibling.
FileNameSetNode*& endOf(FileNameSetNode*& first) {
  FileNameSetNode** at = &first;
  while (*at != nullptr) at = &(*at)->sibling;
  return *at;
}

// Parts the edge of `node` behind `front` bytes, and hangs what is left of the key beside the rest.
// Deliberate: a key that ends at the split marks the front and gets an empty edge of its own as well.
FileNameSetNode* split(FileNameSet& set, FileNameSetNode& node, std::size_t front, std::string_view rest,
                       std::uintptr_t value) {
  FileNameSetNode* lower = makeNode(set, std::string_view(node.text).substr(front), node.value);
  lower->child = node.child;
  node.text.resize(front);
  node.child = lower;
  node.value = rest.empty() ? value : 0;
  FileNameSetNode* beside = makeNode(set, rest, value);
  endOf(lower->sibling) = beside;
  return beside;
}

}  // namespace

FileNameSetNode* FileNameSetAdd(FileNameSet& set, const char* key, std::uintptr_t value) {
  if (key == nullptr) return nullptr;
  std::string_view rest(key);
  FileNameSetNode** level = &set.root;
  for (;;) {
    FileNameSetNode* node = *level;
    while (node != nullptr && firstByte(node->text) != firstByte(rest)) node = node->sibling;
    if (node == nullptr) return endOf(*level) = makeNode(set, rest, value);
    const std::size_t common = commonLength(node->text, rest);
    rest.remove_prefix(common);
    if (common < node->text.size()) return split(set, *node, common, rest, value);
    if (rest.empty()) return node;
    level = &node->child;
  }
}

std::uintptr_t FileNameSetFind(const FileNameSet& set, const char* key) {
  if (key == nullptr) return 0;
  std::string_view rest(key);
  const FileNameSetNode* node = set.root;
  while (node != nullptr) {
    while (node != nullptr && LowerChar(firstByte(node->text)) != LowerChar(firstByte(rest))) node = node->sibling;
    if (node == nullptr || rest.size() < node->text.size()) return 0;
    const auto same = [](char left, char right) { return LowerChar(left) == LowerChar(right); };
    if (!std::equal(node->text.begin(), node->text.end(), rest.begin(), same)) return 0;
    rest.remove_prefix(node->text.size());
    if (rest.empty()) return node->value;
    node = node->child;
  }
  return 0;
}

void FileNameSetFree(FileNameSet& set) {
  set.root = nullptr;
  set.nodes.clear();
}

}  // namespace varlo
