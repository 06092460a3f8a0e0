#include "core/text/line_reader.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/text/open_file.h"
#include "core/text/text_edit.h"
#include "platform/files_wrapper.h"
#include "tests/support/fake_files.h"

namespace varlo {
namespace {

constexpr const char* kFile = "C:\\Varlo\\lines.txt";

using Lines = std::vector<std::string>;

std::string nuls(std::size_t count) { return std::string(count, '\0'); }
std::string run(std::size_t count, char byte = 'x') { return std::string(count, byte); }

// Every line of the file by LineRead, without the final 0.
Lines linesOf(Files& files, std::size_t maximum = kLineBuffer) {
  const OpenFile file(files, files.openRead(kFile));
  LineReader reader(files, file.handle(), maximum);
  Lines lines;
  std::string_view line;
  while (const std::size_t length = LineRead(reader, line)) {
    EXPECT_EQ(length, line.size());
    lines.emplace_back(line);
  }
  EXPECT_EQ(LineRead(reader, line), 0U) << "the end of the file stays its end";
  return lines;
}

Lines linesOf(std::string_view content, std::size_t maximum = kLineBuffer) {
  test::FakeFiles files;
  files.put(kFile, content);
  return linesOf(files, maximum);
}

struct TrimmedLine {
  std::size_t length;
  std::string text;
  bool operator==(const TrimmedLine&) const = default;
};

std::vector<TrimmedLine> trimmedLinesOf(Files& files) {
  const OpenFile file(files, files.openRead(kFile));
  LineReader reader(files, file.handle());
  std::vector<TrimmedLine> lines;
  std::string_view line;
  while (const std::size_t length = LineReadTrimmed(reader, line)) lines.push_back({length, std::string(line)});
  return lines;
}

std::vector<TrimmedLine> trimmedLinesOf(std::string_view content) {
  test::FakeFiles files;
  files.put(kFile, content);
  return trimmedLinesOf(files);
}

TEST(LineRead, GivesTheLinesWithTheirEnds) {
  EXPECT_EQ(linesOf("a\r\nb\n\n  c \r\n"), (Lines{"a\r\n", "b\n", "\n", "  c \r\n"}));
}

TEST(LineRead, GivesZeroForAnEmptyFile) { EXPECT_EQ(linesOf(""), Lines{}); }

TEST(LineRead, GivesZeroForABadHandle) {
  test::FakeFiles files;
  LineReader reader(files, kNoFile);
  std::string_view line;
  EXPECT_EQ(LineRead(reader, line), 0U);
  EXPECT_EQ(LineReadTrimmed(reader, line), 0U);
}

TEST(LineRead, DeliversALastLineWithoutLf) {
  EXPECT_EQ(linesOf("a\nlast"), (Lines{"a\n", "last"}));
  EXPECT_EQ(linesOf("only"), Lines{"only"});
}

TEST(LineRead, ACrAloneIsNoLineEnd) { EXPECT_EQ(linesOf("a\rb\r\r\nc\r"), (Lines{"a\rb\r\r\n", "c\r"})); }

TEST(LineRead, KeepsEveryByteButLfInALine) {
  std::string line;
  for (int value = 1; value < 256; ++value) {
    if (value != '\n') line += static_cast<char>(value);
  }
  line += '\n';
  EXPECT_EQ(linesOf(line + line), (Lines{line, line}));
}

TEST(LineRead, CutsALineAt19968Bytes) {
  EXPECT_EQ(linesOf(run(19968) + "rest\nnext\n"), (Lines{run(19968), "rest\n", "next\n"}));
}

TEST(LineRead, ALineOf19968BytesWithItsLfIsWhole) {
  EXPECT_EQ(linesOf(run(19967) + "\nnext"), (Lines{run(19967) + "\n", "next"}));
}

TEST(LineRead, TheLfBehind19968BytesIsALineOfItsOwn) {
  EXPECT_EQ(linesOf(run(19968) + "\nnext"), (Lines{run(19968), "\n", "next"}));
  EXPECT_EQ(linesOf(run(19967) + "\r\nnext"), (Lines{run(19967) + "\r", "\n", "next"}));
}

TEST(LineRead, CutsAVeryLongLineAgainAndAgain) {
  EXPECT_EQ(linesOf(run(200000) + "\n"),
            (Lines{run(19968), run(19968), run(19968), run(19968), run(19968), run(19968), run(19968), run(19968),
                   run(19968), run(19968), run(320) + "\n"}));
}

TEST(LineRead, AFileThatEndsAtTheCutHasNoFurtherLine) {
  EXPECT_EQ(linesOf(run(19968)), Lines{run(19968)});
  EXPECT_EQ(linesOf(run(2 * 19968)), (Lines{run(19968), run(19968)}));
}

TEST(LineRead, ASmallerMaximumCutsAtItsWholeBlocks) {
  EXPECT_EQ(linesOf(run(1000) + "\n", 1000), (Lines{run(768), run(232) + "\n"}));
  EXPECT_EQ(linesOf(run(300) + "\n", 256), (Lines{run(256), run(44) + "\n"}));
}

TEST(LineRead, AMaximumBelowABlockHasNoLines) { EXPECT_EQ(linesOf("a\n", 255), Lines{}); }

TEST(LineRead, AGreaterMaximumTakesLongerLines) {
  EXPECT_EQ(linesOf(run(100000) + "\n", 150000), Lines{run(100000) + "\n"});
  EXPECT_EQ(linesOf(run(100000) + "\n", 100000), (Lines{run(99840), run(160) + "\n"}));
}

TEST(LineRead, LinesMayLieAcrossAnyBlock) {
  for (const std::size_t length : {255U, 256U, 257U, 511U, 512U, 513U}) {
    Lines lines;
    std::string content;
    for (int i = 0; i < 400; ++i) {
      lines.push_back(std::to_string(i) + run(length) + "\n");
      content += lines.back();
    }
    EXPECT_EQ(linesOf(content), lines) << length;
  }
}

TEST(LineRead, StartsAtThePositionOfTheFile) {
  test::FakeFiles files;
  files.put(kFile, "first\nsecond\nthird\n");
  const OpenFile file(files, files.openRead(kFile));
  files.seek(file.handle(), 6, SeekFrom::Start);
  LineReader reader(files, file.handle());
  std::string_view line;
  EXPECT_EQ(LineRead(reader, line), 7U);
  EXPECT_EQ(line, "second\n");
}

TEST(LineRead, LeavesTheFileToItsOwner) {
  test::FakeFiles files;
  files.put(kFile, "a\n");
  const FileHandle file = files.openRead(kFile);
  {
    LineReader reader(files, file);
    std::string_view line;
    LineRead(reader, line);
  }
  EXPECT_EQ(files.openHandles(), 1U);
  files.close(file);
}

TEST(LineRead, DropsANulAtTheStartOfALine) {
  EXPECT_EQ(linesOf(nuls(1) + "a\n" + nuls(1) + "b\n" + nuls(1) + "\nc"), (Lines{"a\n", "b\n", "\n", "c"}));
}

TEST(LineRead, DropsOneNulOfAShortLineOnly) {
  EXPECT_EQ(linesOf(nuls(3) + "a\nb\n"), (Lines{nuls(2) + "a\n", "b\n"}));
}

TEST(LineRead, DropsOneNulForEachBlockOfALongerLine) {
  EXPECT_EQ(linesOf(nuls(300) + "a\nb\n"), (Lines{nuls(298) + "a\n", "b\n"}));
  EXPECT_EQ(linesOf(nuls(2) + run(600) + "\n"), Lines{run(600) + "\n"});
  EXPECT_EQ(linesOf(nuls(3) + run(600) + "\n"), Lines{run(600) + "\n"});
  EXPECT_EQ(linesOf(nuls(4) + run(600) + "\n"), Lines{nuls(1) + run(600) + "\n"});
}

TEST(LineRead, TheLossOfNulsDoesNotDependOnThePlaceInTheFile) {
  const std::string nulLine = nuls(3) + "a\n";
  for (std::size_t place = 65200; place < 65600; ++place) {
    std::string content = run(place - 1, ' ') + "\n";
    for (std::size_t lineEnd = 12999; lineEnd < 65200; lineEnd += 13000) content[lineEnd] = '\n';
    const Lines lines = linesOf(content + nulLine + nulLine);
    ASSERT_EQ(lines.size(), 8U);
    ASSERT_EQ(lines[6], nuls(2) + "a\n") << place;
    ASSERT_EQ(lines[7], nuls(2) + "a\n") << place;
  }
}

TEST(LineRead, KeepsANulThatIsNotAtTheStart) {
  const std::string line = "a" + nuls(2) + "b\n";
  EXPECT_EQ(linesOf(line + line), (Lines{line, line}));
}

TEST(LineRead, FindsTheLfBehindANul) { EXPECT_EQ(linesOf("a" + nuls(1) + "b\nc\n")[1], "c\n"); }

TEST(LineRead, ADroppedNulDoesNotCountTowardsTheCut) {
  EXPECT_EQ(linesOf(nuls(1) + run(19968) + "rest"), (Lines{run(19968), "rest"}));
  EXPECT_EQ(linesOf(nuls(1) + run(19967) + "\nrest"), (Lines{run(19967) + "\n", "rest"}));
  EXPECT_EQ(linesOf(nuls(70) + run(19968) + "rest"), (Lines{run(19968), "rest"}));
}

TEST(LineRead, TheRestOfACutLineMayBeginWithANulToo) {
  EXPECT_EQ(linesOf(run(19968) + nuls(1) + "rest\n"), (Lines{run(19968), "rest\n"}));
}

TEST(LineRead, AFileOfOneNulHasNoLine) { EXPECT_EQ(linesOf(nuls(1)), Lines{}); }

TEST(LineRead, AFileOfNulsIsALine) {
  EXPECT_EQ(linesOf(nuls(2)), Lines{nuls(1)});
  EXPECT_EQ(linesOf(nuls(256)), Lines{nuls(255)});
  EXPECT_EQ(linesOf(nuls(257)), Lines{nuls(255)});
}

TEST(LineReadTrimmed, GivesTheLineWithoutItsEndAndItsWholeLength) {
  const std::vector<TrimmedLine> expected{{12, "KEY=value"}, {2, ""}, {1, ""}, {4, "last"}};
  EXPECT_EQ(trimmedLinesOf("KEY=value \r\n\r\n\nlast"), expected);
}

TEST(LineReadTrimmed, SeesALineUpToItsFirstNul) {
  const std::vector<TrimmedLine> expected{{9, "ab"}, {4, "c"}, {3, "d"}};
  EXPECT_EQ(trimmedLinesOf("ab \r" + nuls(1) + "xyz\n" + nuls(1) + "c" + nuls(1) + " \n" + "d \n"), expected);
}

TEST(LineReadTrimmed, ALineThatStillBeginsWithANulIsEmptyButNotTheEnd) {
  const std::vector<TrimmedLine> expected{{4, ""}, {4, "next"}};
  EXPECT_EQ(trimmedLinesOf(nuls(2) + "ab\nnext"), expected);
}

// A disk that often gives fewer bytes than it is asked for.
class ShortReads : public FilesWrapper {
 public:
  ShortReads(Files& files, std::uint32_t seed) : FilesWrapper(files), random_(seed) {}
  std::size_t read(FileHandle file, void* data, std::size_t size) override {
    static constexpr std::size_t kMost[] = {1, 2, 100, 255, 256, 257, 5000, 70000};
    const std::size_t most = random_() % 50 == 0 ? kMost[random_() % 3] : kMost[3 + random_() % 5];
    return FilesWrapper::read(file, data, size == 0 ? 0 : std::min(size, 1 + random_() % most));
  }

 private:
  std::mt19937 random_;
};

// Reads a line in the plain way: a block of 256 bytes at a time, each followed by the loss of one leading
// NUL, and the file is set back over what was read beyond the line.
std::string plainLine(Files& files, FileHandle file, std::size_t maximum) {
  const std::size_t cut = maximum / 256 * 256;
  std::string line;
  char block[256];
  std::size_t raw = 0;
  while (line.size() < cut) {
    const std::size_t got = files.read(file, block, sizeof block);
    if (got == 0) break;
    line.append(block, got);
    if (raw < cut && line[0] == '\0') line.erase(0, 1);
    raw += got;
    const std::size_t lineEnd = line.find('\n');
    const std::size_t length = std::min({lineEnd == std::string::npos ? line.size() : lineEnd + 1, line.size(), cut});
    files.seek(file, -static_cast<std::int64_t>(line.size() - length), SeekFrom::Current);
    line.resize(length);
    if (lineEnd < length) break;
  }
  return line;
}

Lines plainLinesOf(Files& files, std::size_t maximum) {
  const OpenFile file(files, files.openRead(kFile));
  Lines lines;
  for (;;) {
    lines.push_back(plainLine(files, file.handle(), maximum));
    if (lines.back().empty()) break;
  }
  lines.pop_back();
  return lines;
}

// Files made of runs whose lengths lie around the sizes that matter. Rows of NULs stay shorter than the
// line has blocks, unless the line ends right behind them.
class RandomFile {
 public:
  explicit RandomFile(std::uint32_t seed) : random_(seed), maximum_(chooseMaximum()) {}

  [[nodiscard]] std::size_t maximum() const { return maximum_; }

  std::string make() {
    std::string content;
    for (std::size_t parts = random_() % 16; parts > 0 && content.size() < 150000; --parts) {
      if (random_() % 4 == 0) {
        content += rowOfNuls();
      } else {
        static constexpr char kBytes[] = {'\r', 'x', 'x', 'x', ' ', ';', '\xE9', '\x1A'};
        content.append(length(), kBytes[random_() % sizeof kBytes]);
      }
      if (random_() % 2 == 0) content += lineEnds();
    }
    return content;
  }

 private:
  std::size_t chooseMaximum() {
    static constexpr std::size_t kOthers[] = {255, 256, 300, 512, 1000, 19968, 65536, 70000};
    return random_() % 4 == 0 ? kOthers[random_() % 8] : kLineBuffer;
  }
  std::size_t around(std::size_t middle) { return middle - 1 + random_() % 3; }
  std::size_t length() {
    static constexpr std::size_t kMiddle[] = {256, 512, 19968};
    const std::size_t choice = random_() % 20;
    if (choice < 10) return random_() % 5;
    if (choice < 13) return random_() % 400;
    return around(choice < 19 ? kMiddle[random_() % 3] : 65536);
  }
  std::string rowOfNuls() {
    if (maximum_ >= kLineCut && random_() % 3 == 0) return nuls(around(random_() % 2 == 0 ? 256 : 512)) + "\n";
    const std::size_t most = maximum_ < kLineCut ? 2 : maximum_ / kReadBlock;
    return nuls(1 + random_() % (random_() % 2 == 0 ? most : 2)) + "x";
  }
  std::string lineEnds() {
    const std::size_t count = random_() % 30 == 0 ? around(256) : 1 + random_() % 2;
    std::string ends;
    while (ends.size() < count) ends += random_() % 2 == 0 ? "\r\n" : "\n";
    return ends;
  }

  std::mt19937 random_;
  std::size_t maximum_;
};

TrimmedLine trimmed(const std::string& line) {
  return {line.size(), std::string(TrimEnd(std::string_view(line).substr(0, line.find('\0'))))};
}

TEST(LineRead, ALineOfNulsAloneEndsAtTheCutToo) {
  // 78 blocks lose a NUL each; one more block brings the line to its full length.
  EXPECT_EQ(linesOf(nuls(70000) + "x\n"),
            (Lines{nuls(19968), nuls(19968), nuls(19968), nuls(70000 - 3 * 20046 - 39) + "x\n"}));
}

TEST(LineRead, ReadsAnyFileAsThePlainReaderDoes) {
  for (std::uint32_t seed = 1; seed <= 4000; ++seed) {
    RandomFile source(seed);
    test::FakeFiles files;
    files.put(kFile, source.make());
    const std::size_t maximum = source.maximum();
    const Lines expected = plainLinesOf(files, maximum);
    ASSERT_TRUE(linesOf(files, maximum) == expected) << "seed " << seed;
    ShortReads shortReads(files, seed);
    ASSERT_TRUE(linesOf(shortReads, maximum) == expected) << "with short reads, seed " << seed;
    if (maximum != kLineBuffer) continue;
    std::vector<TrimmedLine> expectedTrimmed;
    std::transform(expected.begin(), expected.end(), std::back_inserter(expectedTrimmed), trimmed);
    ASSERT_TRUE(trimmedLinesOf(shortReads) == expectedTrimmed) << "trimmed, seed " << seed;
  }
}

// What stays in the line buffer of a program when a file was read.
std::string leftBy(std::string_view content, int lines, std::string_view before = "before") {
  test::FakeFiles files;
  files.put(kFile, content);
  const OpenFile file(files, files.openRead(kFile));
  LineBuffer buffer;
  buffer.hold(before);
  {
    LineReader reader(files, file.handle(), buffer);
    std::string_view line;
    while (lines-- > 0) LineRead(reader, line);
  }
  return buffer.text();
}

TEST(LineReaderBuffer, KeepsTheLineThatWasReadLast) {
  EXPECT_EQ(leftBy("a\nb\nc\n", 2), "b\n");
  EXPECT_EQ(leftBy("a\nb\nc", 3), "c");
  EXPECT_EQ(leftBy("a\nb\nc", 10), "c") << "The end of the file is no line.";
}

TEST(LineReaderBuffer, KeepsWhatWasThereBeforeWhenNoLineWasRead) {
  EXPECT_EQ(leftBy("", 3), "before");
  EXPECT_EQ(leftBy("a\n", 0), "before");
}

TEST(LineReaderBuffer, KeepsTheLastLineOfAFileOfManyBlocks) {
  std::string content;
  for (int i = 0; i < 30000; ++i) content += std::to_string(i) + "\r\n";
  EXPECT_EQ(leftBy(content, 30001), "29999\r\n");
  EXPECT_EQ(leftBy(content, 12346), "12345\r\n");
}

TEST(LineReaderBuffer, KeepsTheRestOfALineThatWasCut) {
  EXPECT_EQ(leftBy(run(19968) + run(40, 'y'), 1), run(19968));
  EXPECT_EQ(leftBy(run(19968) + run(40, 'y'), 3), run(40, 'y'));
}

TEST(LineReaderBuffer, KeepsALineWithoutTheNulInFrontOfIt) { EXPECT_EQ(leftBy(nuls(1) + "ab\n", 1), "ab\n"); }

// A file that is read whole while another is still open comes later than what was read of that one.
TEST(LineReaderBuffer, AFileReadLaterCountsThoughTheFirstIsClosedBehindIt) {
  test::FakeFiles files;
  files.put(kFile, "outer\n");
  files.put("inner.txt", "inner\n");
  LineBuffer buffer;
  {
    const OpenFile outer(files, files.openRead(kFile));
    LineReader outerReader(files, outer.handle(), buffer);
    std::string_view line;
    while (LineRead(outerReader, line) != 0) {
    }
    const OpenFile inner(files, files.openRead("inner.txt"));
    LineReader innerReader(files, inner.handle(), buffer);
    while (LineRead(innerReader, line) != 0) {
    }
  }
  EXPECT_EQ(buffer.text(), "inner\n");
}

TEST(LineBuffer, IsCutAt20000Bytes) {
  LineBuffer buffer;
  EXPECT_EQ(buffer.text(), "");
  buffer.hold(run(20000));
  EXPECT_EQ(buffer.text(), run(20000));
  buffer.hold(run(20001));
  EXPECT_EQ(buffer.text(), run(20000));
}

}  // namespace
}  // namespace varlo
