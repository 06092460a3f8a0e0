// ImportDialect: how the fields of a delimited text file are written. Nothing in it is checked; any byte may stand
// anywhere.
#pragma once

#include <string>

namespace varlo {

struct ImportDialect {
  char fieldDelimiter = ',';  // NUL when there is none: a line is one field then
  // Of these two the first byte counts. Without a quote nothing is quoted or unescaped, without an escape nothing is
  // unescaped. The same byte in both means that a quote inside of quotes is doubled.
  std::string quote = "\"";
  std::string quoteEscape = "\"";
  std::string decimalPoint = ".";  // the whole text counts
};

}  // namespace varlo
