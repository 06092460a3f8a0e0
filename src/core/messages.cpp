#include "core/messages.h"

namespace varlo {

std::string FillMessage(std::string_view message, std::string_view value) {
  std::string text(message);
  const std::size_t at = text.find("%s");
  return at == std::string::npos ? text : text.replace(at, 2, value);
}

}  // namespace varlo
