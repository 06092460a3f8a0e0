#include "persist/project/file_name_set.h"

#include <deque>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace varlo {
namespace {

// The nodes of a level, each with those below it, as in "ab=0(c=1,d=2)".
template <typename Node>
std::string shape(const Node* node) {
  std::string text;
  for (; node != nullptr; node = node->sibling) {
    if (!text.empty()) text += ',';
    text += node->text + "=" + std::to_string(node->value);
    if (node->child != nullptr) text += "(" + shape(node->child) + ")";
  }
  return text;
}

class FileNameSetTest : public testing::Test {
 protected:
  FileNameSet set;

  FileNameSetNode* add(const char* key, std::uintptr_t value) { return FileNameSetAdd(set, key, value); }
  [[nodiscard]] std::uintptr_t find(const char* key) const { return FileNameSetFind(set, key); }
  [[nodiscard]] std::string shapeOfAll() const { return shape(set.root); }
};

// Adding.

TEST_F(FileNameSetTest, TheFirstKeyIsOneNode) {
  const FileNameSetNode* node = add("abc", 7);
  EXPECT_EQ(node, set.root);
  EXPECT_EQ(shapeOfAll(), "abc=7");
}

TEST_F(FileNameSetTest, ANullKeyAddsNothing) {
  EXPECT_EQ(add(nullptr, 7), nullptr);
  EXPECT_EQ(set.root, nullptr);
}

TEST_F(FileNameSetTest, AKeyWithAnotherFirstByteGoesToTheEndOfTheSiblings) {
  add("a", 1);
  add("b", 2);
  const FileNameSetNode* node = add("c", 3);
  EXPECT_EQ(shapeOfAll(), "a=1,b=2,c=3");
  EXPECT_EQ(node, set.root->sibling->sibling);
}

TEST_F(FileNameSetTest, AKeyThatIsThereKeepsItsValue) {
  const FileNameSetNode* first = add("abc", 1);
  EXPECT_EQ(add("abc", 2), first);
  EXPECT_EQ(shapeOfAll(), "abc=1");
}

TEST_F(FileNameSetTest, ALongerKeyGoesBelow) {
  add("ab", 1);
  const FileNameSetNode* node = add("abcd", 2);
  EXPECT_EQ(shapeOfAll(), "ab=1(cd=2)");
  EXPECT_EQ(node, set.root->child);
}

TEST_F(FileNameSetTest, ALongerKeyGoesOnAtTheChildren) {
  add("ab", 1);
  add("abc", 2);
  const FileNameSetNode* node = add("abd", 3);
  EXPECT_EQ(shapeOfAll(), "ab=1(c=2,d=3)");
  EXPECT_EQ(node, set.root->child->sibling);
}

TEST_F(FileNameSetTest, AbcThenAbdIsOneNodeAbWithCAndDBelow) {
  add("abc", 1);
  const FileNameSetNode* node = add("abd", 2);
  EXPECT_EQ(shapeOfAll(), "ab=0(c=1,d=2)");
  EXPECT_EQ(node, set.root->child->sibling);
  EXPECT_EQ(find("ab"), 0U);
}

TEST_F(FileNameSetTest, AbcThenAbIsTheNodeAbWithCAndAnEmptyNodeBelow) {
  add("abc", 1);
  const FileNameSetNode* node = add("ab", 2);
  EXPECT_EQ(shapeOfAll(), "ab=2(c=1,=2)");
  EXPECT_EQ(node, set.root->child->sibling);
  EXPECT_EQ(node->text, "");
  EXPECT_EQ(find("ab"), 2U);
  EXPECT_EQ(find("abc"), 1U);
}

TEST_F(FileNameSetTest, ASplitTakesTheOldChildrenAndValueAlong) {
  add("abcd", 1);
  add("abcde", 2);
  add("abcdf", 3);
  add("abx", 4);
  EXPECT_EQ(shapeOfAll(), "ab=0(cd=1(e=2,f=3),x=4)");
  for (const auto& [key, value] : {std::pair{"abcd", 1U}, {"abcde", 2U}, {"abcdf", 3U}, {"abx", 4U}}) {
    EXPECT_EQ(find(key), value) << key;
  }
}

TEST_F(FileNameSetTest, ASplitLeavesTheSiblingsOfTheOldNode) {
  add("abc", 1);
  add("x", 2);
  add("abd", 3);
  EXPECT_EQ(shapeOfAll(), "ab=0(c=1,d=3),x=2");
}

TEST_F(FileNameSetTest, AKeyThatEndsWhereOthersPartLeavesTheValueThere) {
  add("abc", 1);
  add("abd", 2);
  EXPECT_EQ(add("ab", 3), set.root);
  EXPECT_EQ(shapeOfAll(), "ab=0(c=1,d=2)");
  EXPECT_EQ(find("ab"), 0U);
}

TEST_F(FileNameSetTest, AddingMindsCase) {
  add("a.htm", 1);
  add("A.HTM", 2);
  add("a.HTM", 3);
  EXPECT_EQ(shapeOfAll(), "a.=0(htm=1,HTM=3),A.HTM=2");
}

TEST_F(FileNameSetTest, TheEmptyKeyIsAKey) {
  EXPECT_EQ(find(""), 0U);
  add("", 4);
  EXPECT_EQ(shapeOfAll(), "=4");
  EXPECT_EQ(find(""), 4U);
  add("a", 5);
  EXPECT_EQ(add("", 6), set.root);
  EXPECT_EQ(shapeOfAll(), "=4,a=5");
  EXPECT_EQ(find("a"), 5U);
}

// Finding.

TEST_F(FileNameSetTest, AnEmptySetHoldsNothing) {
  EXPECT_EQ(find("a"), 0U);
  EXPECT_EQ(find(nullptr), 0U);
}

TEST_F(FileNameSetTest, ANullKeyIsNotFound) {
  add("a", 1);
  EXPECT_EQ(find(nullptr), 0U);
}

TEST_F(FileNameSetTest, FindingIgnoresCase) {
  add("abc", 1);
  add("abD", 2);
  EXPECT_EQ(find("ABC"), 1U);
  EXPECT_EQ(find("aBc"), 1U);
  EXPECT_EQ(find("abd"), 2U);
}

TEST_F(FileNameSetTest, OnlyAsciiLettersHaveCase) {
  add("\xE4", 1);
  add("[", 2);
  add("@", 3);
  EXPECT_EQ(find("\xC4"), 0U);
  EXPECT_EQ(find("{"), 0U);
  EXPECT_EQ(find("`"), 0U);
  EXPECT_EQ(find("\xE4"), 1U);
}

TEST_F(FileNameSetTest, AbIsNotFoundAfterAbcOnly) {
  add("abc", 1);
  EXPECT_EQ(find("ab"), 0U);
  EXPECT_EQ(find("a"), 0U);
  EXPECT_EQ(find(""), 0U);
}

TEST_F(FileNameSetTest, ALongerKeyIsNotFound) {
  add("abc", 1);
  EXPECT_EQ(find("abcd"), 0U);
}

TEST_F(FileNameSetTest, AKeyThatDiffersIsNotFound) {
  add("abc", 1);
  EXPECT_EQ(find("abx"), 0U);
  EXPECT_EQ(find("axc"), 0U);
  EXPECT_EQ(find("xbc"), 0U);
}

TEST_F(FileNameSetTest, OfNamesThatDifferInCaseOnlyTheFirstIsFound) {
  add("a.htm", 1);
  add("A.HTM", 2);
  EXPECT_EQ(find("a.htm"), 1U);
  EXPECT_EQ(find("A.HTM"), 1U);
}

TEST_F(FileNameSetTest, OnlyTheFirstEdgeWithTheByteIsFollowed) {
  add("Ab", 1);
  add("ac", 2);
  EXPECT_EQ(find("ab"), 1U);
  EXPECT_EQ(find("ac"), 0U);
}

TEST_F(FileNameSetTest, FreeingEmptiesTheSet) {
  add("abc", 1);
  add("abd", 2);
  FileNameSetFree(set);
  EXPECT_EQ(set.root, nullptr);
  EXPECT_EQ(find("abc"), 0U);
  add("x", 3);
  EXPECT_EQ(shapeOfAll(), "x=3");
}

TEST_F(FileNameSetTest, FreeingAnEmptySetIsHarmless) {
  FileNameSetFree(set);
  EXPECT_EQ(set.root, nullptr);
}

// A plain trie that goes byte by byte, as an oracle for random keys.

struct PlainNode {
  std::string text;
  PlainNode* sibling = nullptr;
  PlainNode* child = nullptr;
  std::uintptr_t value = 0;
};

class PlainSet {
 public:
  PlainNode* add(const char* key, std::uintptr_t value) {
    if (root == nullptr) return root = make(key, value);
    PlainNode* first = root;
    for (;;) {
      PlainNode* node = first;
      while (node != nullptr && node->text.c_str()[0] != key[0]) node = node->sibling;
      if (node == nullptr) return append(first, make(key, value));
      const char* edge = node->text.c_str();
      while (*edge != '\0' && *key != '\0' && *edge == *key) {
        ++edge;
        ++key;
      }
      if (*edge == '\0' && *key == '\0') return node;
      if (*edge != '\0') return split(node, edge, key, value);
      if (node->child == nullptr) return node->child = make(key, value);
      first = node->child;
    }
  }

  [[nodiscard]] std::uintptr_t find(const char* key) const { return findFrom(root, key); }

  PlainNode* root = nullptr;

 private:
  PlainNode* make(const std::string& text, std::uintptr_t value) {
    nodes_.push_back({text, nullptr, nullptr, value});
    return &nodes_.back();
  }

  static PlainNode* append(PlainNode* first, PlainNode* node) {
    while (first->sibling != nullptr) first = first->sibling;
    return first->sibling = node;
  }

  PlainNode* split(PlainNode* node, const char* edge, const char* key, std::uintptr_t value) {
    PlainNode* rest = make(edge, node->value);
    rest->child = node->child;
    node->text = node->text.substr(0, node->text.size() - rest->text.size());
    node->child = rest;
    node->value = *key == '\0' ? value : 0;
    return append(rest, make(key, value));
  }

  static char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

  static std::uintptr_t findFrom(const PlainNode* node, const char* key) {
    while (node != nullptr && lower(node->text.c_str()[0]) != lower(key[0])) node = node->sibling;
    if (node == nullptr) return 0;
    const char* edge = node->text.c_str();
    for (; *edge != '\0'; ++edge, ++key) {
      if (lower(*edge) != lower(*key)) return 0;
    }
    if (*key == '\0') return node->value;
    return node->child == nullptr ? 0 : findFrom(node->child, key);
  }

  std::deque<PlainNode> nodes_;
};

std::string randomKey(std::mt19937& random, const std::string& alphabet, std::size_t longest) {
  std::string key;
  for (std::size_t left = random() % (longest + 1); left > 0; --left) key += alphabet[random() % alphabet.size()];
  return key;
}

// All keys of at most `longest` letters.
std::vector<std::string> allKeys(const std::string& alphabet, std::size_t longest) {
  std::vector<std::string> keys{""};
  std::size_t level = 0;
  for (std::size_t length = 1; length <= longest; ++length) {
    const std::size_t end = keys.size();
    for (; level < end; ++level) {
      for (const char letter : alphabet) keys.push_back(keys[level] + letter);
    }
  }
  return keys;
}

std::string lowered(std::string key) {
  for (char& c : key) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
  return key;
}

// Where at least two of the keys go on differently behind `key`.
bool keysPartBehind(const std::map<std::string, std::uintptr_t>& keys, const std::string& key) {
  std::set<char> next;
  for (const auto& [longer, value] : keys) {
    if (longer.size() > key.size() && longer.starts_with(key)) next.insert(longer[key.size()]);
  }
  return next.size() > 1;
}

TEST(FileNameSetProperty, MixedCaseKeysGoWhereThePlainTriePutsThem) {
  const std::string alphabet = "aAbB";
  const std::vector<std::string> asked = allKeys(alphabet, 5);
  for (unsigned seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    FileNameSet set;
    PlainSet plain;
    for (std::uintptr_t value = 1; value <= 60; ++value) {
      const std::string key = randomKey(random, alphabet, 5);
      const FileNameSetNode* node = FileNameSetAdd(set, key.c_str(), value);
      const PlainNode* expected = plain.add(key.c_str(), value);
      ASSERT_NE(node, nullptr);
      ASSERT_EQ(node->text, expected->text) << key;
      ASSERT_EQ(node->value, expected->value) << key;
      ASSERT_EQ(shape(set.root), shape(plain.root)) << key;
    }
    for (const std::string& key : asked) ASSERT_EQ(FileNameSetFind(set, key.c_str()), plain.find(key.c_str())) << key;
  }
}

TEST(FileNameSetProperty, WhatIsFoundIsTheValueOfAnAddedKeyThatEqualsIgnoringCase) {
  const std::string alphabet = "aAbB.";
  const std::vector<std::string> asked = allKeys(alphabet, 4);
  for (unsigned seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    FileNameSet set;
    std::map<std::string, std::set<std::uintptr_t>> valuesByLowerKey;
    for (std::uintptr_t value = 1; value <= 40; ++value) {
      const std::string key = randomKey(random, alphabet, 4);
      FileNameSetAdd(set, key.c_str(), value);
      valuesByLowerKey[lowered(key)].insert(value);
    }
    for (const std::string& key : asked) {
      const std::uintptr_t found = FileNameSetFind(set, key.c_str());
      ASSERT_TRUE(found == 0 || valuesByLowerKey[lowered(key)].contains(found)) << key << " gives " << found;
    }
  }
}

TEST(FileNameSetProperty, KeysOfOneCaseAreFoundAsInAMapInEitherCase) {
  const std::string alphabet = "abc";
  const std::vector<std::string> asked = allKeys("abcABC", 4);
  for (unsigned seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    FileNameSet set;
    std::map<std::string, std::uintptr_t> map;
    for (std::uintptr_t value = 1; value <= 40; ++value) {
      const std::string key = randomKey(random, alphabet, 4);
      // A key that ends where others part finds a node there, which keeps its 0; the top has no node.
      const bool hidden = !key.empty() && keysPartBehind(map, key);
      map.try_emplace(key, hidden ? 0 : value);
      ASSERT_EQ(FileNameSetAdd(set, key.c_str(), value)->value, map[key]) << key;
    }
    for (const std::string& key : asked) {
      const auto found = map.find(lowered(key));
      ASSERT_EQ(FileNameSetFind(set, key.c_str()), found == map.end() ? 0 : found->second) << key;
    }
  }
}

}  // namespace
}  // namespace varlo
