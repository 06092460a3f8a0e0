#include "core/text/line_writer.h"

#include <cstdint>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "core/text/text.h"
#include "platform/files_wrapper.h"
#include "tests/support/fake_files.h"

namespace varlo {
namespace {

constexpr const char* kFile = "C:\\Varlo\\out.stp";

class WriteCounter : public FilesWrapper {
 public:
  using FilesWrapper::FilesWrapper;
  std::size_t write(FileHandle file, const void* data, std::size_t size) override {
    ++writes;
    return FilesWrapper::write(file, data, size);
  }
  int writes = 0;
};

// Runs `task` with a writer to a new file and gives what the file holds in the end.
template <typename Task>
std::string written(Task task) {
  test::FakeFiles files;
  const FileHandle file = files.create(kFile);
  {
    LineWriter writer(files, file);
    task(writer);
  }
  files.close(file);
  return files.content(kFile).value_or("(no file)");
}

TEST(LineWrite, WritesTheValuesOneBehindTheOther) {
  const std::string content = written([](LineWriter& writer) {
    const std::string value = "b";
    LineWrite(writer, "KEY=", value, std::string_view("|c"), "\n");
    LineWrite(writer, "END", "\n");
  });
  EXPECT_EQ(content, "KEY=b|c\nEND\n");
}

TEST(LineWrite, WritesNumbersInDecimal) {
  const std::string content = written([](LineWriter& writer) {
    LineWrite(writer, 0, ",", -5, ",", std::int32_t{107001}, ",", std::size_t{3});
    LineWrite(writer, ",", std::numeric_limits<std::int32_t>::min());
    LineWrite(writer, ",", std::numeric_limits<std::int64_t>::min());
    LineWrite(writer, ",", std::numeric_limits<std::uint64_t>::max());
  });
  EXPECT_EQ(content, "0,-5,107001,3,-2147483648,-9223372036854775808,18446744073709551615");
}

TEST(LineWrite, AnAbsentTextIsEmpty) {
  const std::string content =
      written([](LineWriter& writer) { LineWrite(writer, "A=", Text(), ";B=", Text(""), ";C=", Text("c"), "\n"); });
  EXPECT_EQ(content, "A=;B=;C=c\n");
}

TEST(LineWrite, EndsLinesWithLfOnlyAndKeepsTheCrLfOfAText) {
  const std::string content = written([](LineWriter& writer) { LineWrite(writer, "BODY=", "a\r\nb", "\n"); });
  EXPECT_EQ(content, "BODY=a\r\nb\n");
}

TEST(LineWrite, A4000ByteValueLeaves3095BytesAndNoLineEnd) {
  const std::string value(4000, 'v');
  const std::string content = written([&](LineWriter& writer) { LineWrite(writer, "BODY=", value, "\n"); });
  EXPECT_EQ(content, "BODY=" + std::string(3090, 'v'));
}

TEST(LineWrite, TheLineBehindACutOneFollowsOnTheSameLine) {
  const std::string value(4000, 'v');
  const std::string content = written([&](LineWriter& writer) {
    LineWrite(writer, "BODY=", value, "\n");
    LineWrite(writer, "NEXT=", 1, "\n");
  });
  EXPECT_EQ(content, "BODY=" + std::string(3090, 'v') + "NEXT=1\n");
}

TEST(LineWrite, APieceOf3095BytesIsWhole) {
  const std::string value(3092, 'v');
  const std::string content = written([&](LineWriter& writer) { LineWrite(writer, "K=", value, "\n"); });
  EXPECT_EQ(content, "K=" + value + "\n");
}

TEST(LineWrite, APieceOf3096BytesLosesItsLineEndAlone) {
  const std::string value(3093, 'v');
  const std::string content = written([&](LineWriter& writer) { LineWrite(writer, "K=", value, "\n"); });
  EXPECT_EQ(content, "K=" + value);
}

TEST(LineWrite, CutsANumberToo) {
  const std::string value(3093, 'v');
  EXPECT_EQ(written([&](LineWriter& writer) { LineWrite(writer, value, 12345, "\n"); }), value + "12");
}

TEST(LineWrite, TheLimitHoldsForEachPiece) {
  const std::string value(3000, 'v');
  const std::string content = written([&](LineWriter& writer) {
    LineWrite(writer, value);
    LineWrite(writer, value);
    LineWrite(writer, "\n");
  });
  EXPECT_EQ(content, value + value + "\n");
}

TEST(LineWrite, ANullHandleWritesNothing) {
  test::FakeFiles disk;
  WriteCounter files(disk);
  {
    LineWriter writer(files, kNoFile);
    for (int i = 0; i < 100; ++i) LineWrite(writer, std::string(3000, 'v'), "\n");
    writer.flush();
  }
  EXPECT_EQ(files.writes, 0);
}

TEST(LineWrite, WithoutAPieceNothingIsWritten) {
  test::FakeFiles disk;
  WriteCounter files(disk);
  const FileHandle file = disk.create(kFile);
  {
    LineWriter writer(files, file);
    writer.flush();
    LineWrite(writer, "", Text());
  }
  disk.close(file);
  EXPECT_EQ(files.writes, 0);
  EXPECT_EQ(disk.content(kFile), "");
}

TEST(LineWrite, AFlushPutsTheFileUpToDateAndNothingTwice) {
  test::FakeFiles files;
  const FileHandle file = files.create(kFile);
  LineWriter writer(files, file);
  LineWrite(writer, "a\n");
  writer.flush();
  writer.flush();
  EXPECT_EQ(files.content(kFile), "a\n");
  LineWrite(writer, "b\n");
  writer.flush();
  EXPECT_EQ(files.content(kFile), "a\nb\n");
}

TEST(LineWrite, NobodyLooksAtAFailedWrite) {
  test::FakeFiles files;
  const FileHandle file = files.create(kFile);
  bool fails = true;
  files.shallFail = [&](const std::string&) { return fails; };
  {
    LineWriter writer(files, file);
    LineWrite(writer, "lost\n");
    writer.flush();
    fails = false;
    LineWrite(writer, "kept\n");
  }
  EXPECT_EQ(files.content(kFile), "kept\n");
}

TEST(LineWrite, KeepsTheOrderOfManyPiecesOfAllLengths) {
  std::mt19937 random(11);
  std::string expected;
  const std::string content = written([&](LineWriter& writer) {
    for (int i = 0; i < 3000; ++i) {
      const std::size_t length = random() % 10 == 0 ? random() % 8000 : random() % 100;
      const std::string value(length, static_cast<char>('a' + random() % 26));
      LineWrite(writer, i, "=", value, "\n");
      expected += (std::to_string(i) + "=" + value + "\n").substr(0, 3095);
    }
  });
  EXPECT_TRUE(content == expected);
}

}  // namespace
}  // namespace varlo
