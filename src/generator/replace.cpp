#include "generator/replace.h"

#include <algorithm>

namespace varlo {
namespace {

constexpr std::size_t kNone = std::string::npos;

// Where to search on for `key` behind a replacement at `at`, with the results of a search from the front:
// what is left in front of that cannot have changed.
std::size_t searchBehind(std::size_t at, std::string_view key) { return at < key.size() ? 0 : at - key.size() + 1; }

// Replaces every key of a text in one pass. Only where neither the value nor its joints to the text can
// make a new key: the first byte of the key stands neither in the value nor, within reach, in front of it.
class OnePass {
 public:
  OnePass(std::string_view key, std::string_view value) : key_(key), value_(value) {}

  [[nodiscard]] bool holdsFor(const std::string& text, std::size_t at) const {
    const std::size_t from = searchBehind(at, key_);
    return value_.find(key_.front()) == kNone &&
           std::string_view(text).substr(from, at - from).find(key_.front()) == kNone;
  }
  // Replaces from the key at `at` on, as far as the pass holds; gives the next key that is left.
  std::size_t run(std::string& text, std::size_t at) {
    std::string result;
    std::size_t done = 0;
    while (at != kNone && holdsFor(text, at)) {
      result.append(text, done, at - done).append(value_);
      done = at + key_.size();
      at = text.find(key_, done);
    }
    const std::size_t rest = result.size();
    result.append(text, done);
    if (at != kNone) at = rest + (at - done);
    text = std::move(result);
    return at;
  }

 private:
  std::string_view key_;
  std::string_view value_;
};

// The first "<" or ">" in front of `at`, looked for backwards; the start of the text when there is none.
std::size_t angleBefore(const std::string& text, std::size_t at) {
  const std::size_t found = text.find_last_of("<>", at);
  return found == kNone ? 0 : found;
}

}  // namespace

std::size_t ReplaceFirst(std::string& text, std::string_view key, const Value& value, std::size_t start) {
  if (!value || key.empty()) return kNone;
  const std::size_t at = text.find(key, start);
  if (at == kNone) return kNone;
  text.replace(at, key.size(), *value);
  return at + value->size();
}

void ReplaceUpTo(int times, std::string& text, std::string_view key, const Value& value) {
  if (!value || key.empty()) return;
  std::size_t from = 0;
  for (int i = 0; i < times; ++i) {
    const std::size_t at = text.find(key, from);
    if (at == kNone) return;
    text.replace(at, key.size(), *value);
    from = searchBehind(at, key);
  }
}

Replaced ReplaceAll(std::string& text, std::string_view key, const Value& value) {
  if (!value || key.empty()) return Replaced::Done;
  std::size_t at = text.find(key);
  if (at == kNone) return Replaced::Done;
  if (value->find(key) != kNone) return Replaced::Endless;
  OnePass pass(key, *value);
  while (at != kNone) {
    if (pass.holdsFor(text, at)) {
      at = pass.run(text, at);
      continue;
    }
    text.replace(at, key.size(), *value);
    at = text.find(key, searchBehind(at, key));
  }
  return Replaced::Done;
}

Replaced SubstituteTagAware(std::string& text, std::string_view key, const Value& value) {
  const bool removes = !value || value->empty();
  std::size_t at = 0;
  while ((at = text.find(key, at)) != kNone) {
    if (!removes) {
      text.replace(at, key.size(), *value);
      at += value->size();
      continue;
    }
    const std::size_t angle = angleBefore(text, at);
    if (text[angle] == '>') {
      text.erase(at, key.size());
      at = searchBehind(at, key);
      continue;
    }
    const std::size_t end = text.find('>', at);
    if (end == kNone) return Replaced::Endless;
    text.erase(angle, end + 1 - angle);
    at = searchBehind(angle, key);
  }
  return Replaced::Done;
}

}  // namespace varlo
