#include "core/text/text_pool.h"

#include <algorithm>
#include <cstring>
#include <random>
#include <set>
#include <vector>

#include <gtest/gtest.h>

namespace varlo {
namespace {

struct Block {
  TextHandle text = kNoText;
  char* bytes = nullptr;
  std::size_t length = 0;
  char mark = 0;
};

Block allocate(std::size_t length, char mark) {
  const TextHandle text = TextPoolAllocate(length);
  Block block{text, TextPoolBytes(text), length, mark};
  std::memset(block.bytes, mark, length);
  block.bytes[length] = '\0';
  return block;
}

// Whether nobody has written into the block since.
bool isWhole(const Block& block) {
  const auto sameMark = [&](char byte) { return byte == block.mark; };
  if (TextPoolBytes(block.text) != block.bytes || TextPoolLength(block.text) != block.length) return false;
  return std::all_of(block.bytes, block.bytes + block.length, sameMark) && block.bytes[block.length] == '\0';
}

TEST(TextPool, HasRoomForTheTerminatorAtEveryLength) {
  std::vector<Block> blocks;
  for (std::size_t length = 0; length <= 1100; ++length) {
    blocks.push_back(allocate(length, static_cast<char>(length % 251 + 1)));
  }
  for (const Block& block : blocks) EXPECT_TRUE(isWhole(block)) << block.length;
  for (const Block& block : blocks) TextPoolRelease(block.text);
}

TEST(TextPool, BlocksThatLiveAtTheSameTimeAreApart) {
  std::set<const char*> seen;
  std::vector<Block> blocks;
  for (int i = 0; i < 40000; ++i) {
    blocks.push_back(allocate(static_cast<std::size_t>(i % 24), 'x'));
    EXPECT_TRUE(seen.insert(blocks.back().bytes).second);
  }
  for (const Block& block : blocks) TextPoolRelease(block.text);
}

TEST(TextPool, TakesAWholeProjectsLineAndMore) {
  constexpr std::size_t kLengths[] = {509,   510,   511,   4093,  4094,  4095,  19968, 20000,  20476,
                                      20477, 20478, 20479, 20480, 65534, 65535, 65536, 100000, 3000000};
  for (int round = 0; round < 3; ++round) {
    std::vector<Block> blocks;
    for (const std::size_t length : kLengths) blocks.push_back(allocate(length, 'L'));
    for (const Block& block : blocks) EXPECT_TRUE(isWhole(block)) << block.length;
    for (const Block& block : blocks) TextPoolRelease(block.text);
  }
}

// Blocks of all sizes come and go in random order, as texts of a project in use do.
TEST(TextPool, KeepsEveryLiveBlockWholeWhileOthersComeAndGo) {
  std::mt19937 random(20030201);
  std::vector<Block> blocks;
  for (int step = 0; step < 200000; ++step) {
    if (blocks.size() < 50 || random() % 2 == 0) {
      const std::size_t length = random() % 8 == 0 ? random() % 1500 : random() % 70;
      blocks.push_back(allocate(length, static_cast<char>(random() % 255 + 1)));
      continue;
    }
    Block& block = blocks[random() % blocks.size()];
    ASSERT_TRUE(isWhole(block)) << "step " << step;
    TextPoolRelease(block.text);
    block = blocks.back();
    blocks.pop_back();
  }
  for (const Block& block : blocks) {
    EXPECT_TRUE(isWhole(block));
    TextPoolRelease(block.text);
  }
}

}  // namespace
}  // namespace varlo
