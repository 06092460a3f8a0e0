#include "generator/items/reported_replace.h"

#include "generator/state/build_messages.h"
#include "generator/state/generator.h"

namespace varlo {

void ReportEndless(Generator& generator, Replaced result, std::string_view fileName, std::string_view key) {
  if (result == Replaced::Done) return;
  LogError(generator.log, FillMessage(message::kEndlessReplacement, {fileName, key}));
}

void ReplaceSome(Generator& generator, int times, std::string& text, std::string_view key, const Value& value,
                 std::string_view fileName) {
  ReportEndless(generator, ReplaceUpTo(times, text, key, value), fileName, key);
}

void ReplaceEvery(Generator& generator, std::string& text, std::string_view key, const Value& value,
                  std::string_view fileName) {
  ReportEndless(generator, ReplaceAll(text, key, value), fileName, key);
}

}  // namespace varlo
