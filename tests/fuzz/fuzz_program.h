// FuzzProgram: a whole program on fakes, set up from the first bytes of a fuzz input, with the plain
// project beside it.
#pragma once

#include <cstdint>
#include <string_view>

#include "tests/fuzz/plain_project.h"
#include "tests/fuzz/plain_reader.h"
#include "tests/support/test_program.h"

namespace varlo::fuzz {

inline constexpr std::string_view kProjectFile = "C:\\shop\\fuzz.stp";

// The first two bytes of an input choose the setting, the rest is the project file. In the seeds they
// are letters: the bits 0 to 5 of "@" are 0, of "A" 1, ... of "a" 33.
class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size);

  [[nodiscard]] bool hasRegions() const { return bit(0, 0); }
  [[nodiscard]] bool hasCards() const { return bit(0, 1); }
  [[nodiscard]] bool hasSchemes() const { return bit(0, 2); }
  [[nodiscard]] bool hasTemplateFolder() const { return bit(0, 3); }
  [[nodiscard]] bool hasInstallation() const { return bit(0, 4); }
  [[nodiscard]] bool firstStyleIsEmpty() const { return bit(0, 5); }

  // What these two mean is up to the target.
  [[nodiscard]] bool variant(int number) const { return bit(1, number); }  // 0 or 1
  [[nodiscard]] std::size_t pick() const { return settings_[1] >> 2 & 15; }

  [[nodiscard]] std::string_view file() const { return file_; }

 private:
  [[nodiscard]] bool bit(std::size_t byte, int number) const { return (settings_[byte] >> number & 1) != 0; }

  std::array<std::uint8_t, 2> settings_{};
  std::string_view file_;
};

class FuzzProgram {
 public:
  explicit FuzzProgram(const FuzzInput& input);

  // Puts `bytes` where the project file is and loads it, in both ways; both must agree.
  void load(std::string_view when, std::string_view bytes);
  // Merges `file` behind the node that `pick` counts out in the tree; a project without nodes takes it
  // as its own instead. Both ways must agree.
  void merge(std::string_view file, std::size_t pick);
  // Replaces the freight data by that of `file`. Both ways must agree.
  void importFreight(std::string_view file);
  // Saves, in both ways, which must agree in the bytes too. Gives these.
  std::string save(std::string_view when);
  // Turns the bytes that stand for what no file can bring into memory into these, in both projects.
  void translateTexts();
  // Takes over the disk of another program, as the next run of the program would.
  void takeDisk(const FuzzProgram& other);
  // Closes the project; nothing of it may be left.
  void close();

  [[nodiscard]] const PlainCatalogue& catalogue() const { return catalogue_; }
  [[nodiscard]] const PlainProject& plain() const { return plain_; }

 private:
  // Both projects must be equal. Gives the number of strange links in the tree.
  std::size_t compare(std::string_view when);
  // What must hold at any time: no handle open, no wait cursor, no message but those expected, a sound
  // tree.
  std::size_t check(std::string_view when);

  PlainCatalogue catalogue_;
  PlainMachine machine_;
  PlainProject plain_;
  test::TestProgram engine_;
};

}  // namespace varlo::fuzz
