// Fields of random lines, compared with the second telling of the rules.
#include <algorithm>
#include <array>
#include <random>

#include <gtest/gtest.h>

#include "import/import_dialect.h"
#include "import/import_fields.h"
#include "tests/import/plain_fields.h"

namespace varlo {
namespace {

using test::PlainDialect;

constexpr std::array<PlainDialect, 10> kDialects{{
    {',', '"', '"'},
    {';', '"', '\\'},
    {'|', '^', '^'},
    {'\t', '\'', '\''},
    {',', '\0', '"'},
    {';', '"', '\0'},
    {'\0', '"', '"'},
    {' ', '"', ' '},
    {'"', '"', '"'},
    {',', ' ', '\\'},
}};

ImportDialect dialectOf(const PlainDialect& plain) {
  const auto text = [](char byte) { return byte == '\0' ? std::string() : std::string(1, byte); };
  return {.fieldDelimiter = plain.delimiter, .quote = text(plain.quote), .quoteEscape = text(plain.escape)};
}

// Lines of which about half is made of the bytes that mean something.
class RandomLines {
 public:
  explicit RandomLines(const PlainDialect& dialect) {
    for (const char byte : {dialect.delimiter, dialect.quote, dialect.escape}) {
      if (byte != '\0') bytes_ += byte;
    }
    bytes_ += " \tab1";
  }

  std::string next() {
    std::string line(random_() % 50 == 0 ? random_() % 300 : random_() % 24, 'x');
    for (char& byte : line) byte = bytes_[random_() % bytes_.size()];
    return line;
  }

 private:
  std::mt19937 random_{6};
  std::string bytes_;
};

int mismatches(const PlainDialect& plain, const std::string& line) {
  const ImportDialect dialect = dialectOf(plain);
  const int count = CountFields(dialect, line);
  int found = count == test::PlainCountFields(plain, line) ? 0 : 1;
  for (int column = 0; column <= std::min(count + 1, 12); ++column) {
    const std::string field = GetField(dialect, line, static_cast<std::size_t>(column));
    found += field == test::PlainGetField(plain, line, column) ? 0 : 1;
  }
  return found;
}

TEST(ImportFields, AgreeWithASecondTellingOnRandomLinesInTenDialects) {
  for (const PlainDialect& plain : kDialects) {
    RandomLines lines(plain);
    for (int i = 0; i < 20000; ++i) {
      const std::string line = lines.next();
      ASSERT_EQ(mismatches(plain, line), 0) << "dialect " << &plain - kDialects.data() << ": <" << line << ">";
    }
  }
}

}  // namespace
}  // namespace varlo
