#include "core/program/messages.h"

namespace varlo {

std::string FillMessage(std::string_view message, std::string_view value) { return FillMessage(message, {value}); }

std::string FillMessage(std::string_view message, std::initializer_list<std::string_view> values) {
  std::string text(message);
  std::size_t at = 0;
  for (const std::string_view value : values) {
    at = text.find("%s", at);
    if (at == std::string::npos) break;
    text.replace(at, 2, value);
    at += value.size();
  }
  return text;
}

}  // namespace varlo
