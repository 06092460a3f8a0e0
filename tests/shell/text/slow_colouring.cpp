#include "tests/shell/text/slow_colouring.h"

namespace varlo::test {
namespace {

constexpr Colour kBlack = 0x000000;
constexpr Colour kBlue = 0xBE0000;   // red 0, green 0, blue 190
constexpr Colour kGreen = 0x007800;  // red 0, green 120, blue 0
constexpr Colour kRed = 0x0000FA;    // red 250, green 0, blue 0

const std::string kBlanks = " \t\r\n";
const std::string kDigits = "0123456789";
const std::string kNames = kDigits + "_ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

bool isOneOf(char c, const std::string& set) { return set.find(c) != std::string::npos; }

// A line that is read from its front, and the colours of what was read.
struct Reading {
  std::string left;
  Colour state = kBlack;
  Colour backTo = kBlack;
  std::vector<Colour> read{};

  [[nodiscard]] bool startsWith(const std::string& part) const { return left.compare(0, part.size(), part) == 0; }

  void take(std::size_t count, Colour colour) {
    read.insert(read.end(), count, colour);
    left.erase(0, count);
  }

  void takeNext() {
    const bool isPrice = left.size() > 1 && isOneOf(left[1], kDigits);
    if (state == kGreen) {
      const bool closes = startsWith("-->");
      take(closes ? 3 : 1, kGreen);
      if (closes) state = kBlack;
    } else if (startsWith("<!--")) {
      state = kGreen;
      take(4, kGreen);
    } else if (startsWith(">") && state != kBlack) {
      state = kBlack;
      take(1, kBlue);
    } else if (startsWith("$") && !isPrice) {
      if (state != kRed) backTo = state;
      state = kRed;
      take(1, kRed);
    } else if (startsWith("<")) {
      state = kBlue;
      take(1, kBlue);
    } else {
      if (state == kRed && !isOneOf(left[0], kNames)) state = backTo;
      take(1, state);
    }
  }
};

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines(1);
  for (const char c : text) {
    lines.back() += c;
    if (c == '\n') lines.emplace_back();
  }
  return lines;
}

bool endsIn(std::string line, const std::string& part) {
  while (!line.empty() && isOneOf(line.back(), kBlanks)) line.pop_back();
  return line.size() >= part.size() && line.substr(line.size() - part.size()) == part;
}

Colour beginningOf(const std::vector<std::string>& lines, std::size_t number, Colour lastOfTheLineBefore) {
  if (number == 0) return kBlack;
  const std::string& before = lines[number - 1];
  if (lastOfTheLineBefore == kBlue && !endsIn(before, ">")) return kBlue;
  if (lastOfTheLineBefore == kGreen && !endsIn(before, "->")) return kGreen;
  return kBlack;
}

}  // namespace

std::vector<Colour> ColouredSlowly(const std::string& text, std::vector<Colour> colours, int position,
                                   bool wholeText) {
  const std::vector<std::string> lines = linesOf(text);
  std::size_t number = linesOf(text.substr(0, static_cast<std::size_t>(position))).size() - 1;
  std::size_t start = 0;
  for (std::size_t i = 0; i < number; ++i) start += lines[i].size();
  Reading reading{.left = {}, .state = beginningOf(lines, number, start == 0 ? kBlack : colours[start - 1])};
  for (; number < lines.size() && !lines[number].empty(); ++number) {
    reading.left = lines[number];
    reading.read.clear();
    while (!reading.left.empty()) reading.takeNext();
    for (const Colour colour : reading.read) colours[start++] = colour;
    if (!wholeText && start < text.size() && colours[start] == reading.state) break;
  }
  return colours;
}

}  // namespace varlo::test
