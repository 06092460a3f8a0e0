// The rules of delimited text told a second time: byte by byte, as they are told to a person, without regard to time
// and apart from the engine. Tests and the fuzz target compare the two.
#pragma once

#include <string>
#include <vector>

namespace varlo::test {

// NUL in any of them stands for none.
struct PlainDialect {
  char delimiter = ',';
  char quote = '"';
  char escape = '"';
};

int PlainCountFields(const PlainDialect& dialect, const std::string& line);
std::string PlainGetField(const PlainDialect& dialect, const std::string& line, int column);

struct PlainFile {
  std::vector<std::string> rows;
  char delimiter = ',';
};

// The rows of a file with this content, when `delimiter` was the delimiter before.
PlainFile PlainReadFile(const std::string& content, char delimiter);

}  // namespace varlo::test
