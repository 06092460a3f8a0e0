#include "generator/items/replace.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace varlo {
namespace {

constexpr std::size_t kNone = std::string::npos;

bool isAngle(char c) { return c == '<' || c == '>'; }

// How much may be put in for keys that only came about at joints.
constexpr std::size_t kMostAtJoints = 4 * 1024 * 1024;

// A text in two parts: what is done, and what still lies ahead. Bytes go from one to the other at the seam,
// so that a change costs no more than its own bytes, however long the text is.
class Seam {
 public:
  explicit Seam(std::string text) : ahead_(std::move(text)) { done_.reserve(ahead_.size()); }

  [[nodiscard]] std::string_view ahead() const { return std::string_view(ahead_).substr(begin_); }
  [[nodiscard]] const std::string& done() const { return done_; }
  [[nodiscard]] std::size_t size() const { return done_.size() + ahead_.size() - begin_; }

  void pass(std::size_t bytes) {
    done_.append(ahead_, begin_, bytes);
    begin_ += bytes;
  }
  void drop(std::size_t bytes) { begin_ += bytes; }
  void cutDone(std::size_t size) { done_.resize(size); }
  // Puts bytes in front of what lies ahead.
  void push(std::string_view bytes) {
    if (begin_ < bytes.size()) makeRoom(bytes.size());
    begin_ -= bytes.size();
    bytes.copy(ahead_.data() + begin_, bytes.size());
  }
  // Takes the last bytes of what is done back.
  std::size_t takeBack(std::size_t bytes) {
    bytes = std::min(bytes, done_.size());
    push(std::string_view(done_).substr(done_.size() - bytes));
    done_.resize(done_.size() - bytes);
    return bytes;
  }
  // Puts the value in the place of the key that lies `at` bytes ahead. Gives how many bytes ahead can be searched
  // with other results than before; those in front of them cannot have become a key.
  std::size_t replace(std::size_t at, std::string_view key, std::string_view value) {
    pass(at);
    drop(key.size());
    push(value);
    return value.size() + takeBack(key.size() - 1);
  }
  [[nodiscard]] std::string whole() { return std::move(done_.append(ahead())); }

 private:
  void makeRoom(std::size_t bytes) {
    const std::size_t room = bytes + ahead_.size() / 4;
    ahead_.insert(0, room, '\0');
    begin_ += room;
  }

  std::string done_;
  std::string ahead_;
  std::size_t begin_ = 0;  // of what lies ahead
};

// Whether a text gets too long when so many keys become the value.
bool growsTooLong(std::size_t size, std::size_t count, std::string_view key, std::string_view value) {
  return value.size() > key.size() && size + count * (value.size() - key.size()) > kLongestText;
}

// The same with every key of the text.
bool growsTooLong(const std::string& text, std::string_view key, std::string_view value) {
  std::size_t count = 0;
  for (std::size_t at = text.find(key); at != kNone; at = text.find(key, at + key.size())) ++count;
  return growsTooLong(text.size(), count, key, value);
}

void replaceForward(std::string& text, std::string_view key, std::string_view value) {
  std::string result;
  std::size_t done = 0;
  for (std::size_t at = text.find(key); at != kNone; at = text.find(key, done)) {
    result.append(text, done, at - done).append(value);
    done = at + key.size();
  }
  text = std::move(result.append(text, done));
}

// The angle brackets in what is done of a text, each found once.
class Angles {
 public:
  // For a text of which nothing is done yet: no more room is needed than for its own.
  explicit Angles(std::string_view text) {
    places_.reserve(static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isAngle)));
  }
  // Looks through what was done since the last call.
  void follow(const std::string& done) {
    for (; seen_ < done.size(); ++seen_) {
      if (isAngle(done[seen_])) places_.push_back(static_cast<std::uint32_t>(seen_));
    }
  }
  // Forgets what is no longer done.
  void cut(std::size_t size) {
    while (!places_.empty() && places_.back() >= size) places_.pop_back();
    seen_ = std::min(seen_, size);
  }
  // The last one; the start of the text when there is none.
  [[nodiscard]] std::size_t last() const { return places_.empty() ? 0 : places_.back(); }
  [[nodiscard]] bool empty() const { return places_.empty(); }

 private:
  std::vector<std::uint32_t> places_;
  std::size_t seen_ = 0;
};

// The next ">" of what lies ahead. It is looked for once, and is the next one until it is passed; what lies behind
// it stays as long as it is.
class NextGreater {
 public:
  [[nodiscard]] std::size_t find(std::string_view ahead, std::size_t from) {
    if (left_ == 0 || left_ + from > ahead.size()) {
      const std::size_t at = ahead.find('>', from);
      left_ = at == kNone ? 0 : ahead.size() - at;
    }
    return left_ == 0 ? kNone : ahead.size() - left_;
  }

 private:
  std::size_t left_ = 0;  // from it to the end of the text; 0 while it is not known
};

Replaced removeTagAware(std::string& text, std::string_view key) {
  Angles angles(text);
  Seam seam(std::move(text));
  NextGreater greater;
  Replaced result = Replaced::Done;
  for (std::size_t at = 0; (at = seam.ahead().find(key)) != kNone;) {
    seam.pass(at);
    angles.follow(seam.done());
    const std::size_t end = greater.find(seam.ahead(), key.size());
    if (end == kNone) {
      result = Replaced::Endless;
      break;
    }
    if (!angles.empty() && seam.done()[angles.last()] == '>') {
      seam.drop(key.size());
    } else {
      seam.drop(end + 1);
      seam.cutDone(angles.last());
    }
    seam.takeBack(key.size() - 1);
    angles.cut(seam.done().size());
  }
  text = seam.whole();
  return result;
}

}  // namespace

std::size_t ReplaceFirst(std::string& text, std::string_view key, const Value& value, std::size_t start) {
  if (!value || key.empty()) return kNone;
  const std::size_t at = text.find(key, start);
  if (at == kNone) return kNone;
  text.replace(at, key.size(), *value);
  return at + value->size();
}

Replaced ReplaceUpTo(int times, std::string& text, std::string_view key, const Value& value) {
  if (!value || key.empty() || text.find(key) == kNone) return Replaced::Done;
  Seam seam(std::move(text));
  Replaced result = Replaced::Done;
  for (std::size_t at = 0; times > 0 && (at = seam.ahead().find(key)) != kNone; --times) {
    if (growsTooLong(seam.size(), 1, key, *value)) {
      result = Replaced::Endless;
      break;
    }
    seam.replace(at, key, *value);
  }
  text = seam.whole();
  return result;
}

// A value that does not hold the key can still make it at its joints to the text, and a long one can do so
// for longer than anyone can wait.
Replaced ReplaceAll(std::string& text, std::string_view key, const Value& value) {
  if (!value || key.empty() || text.find(key) == kNone) return Replaced::Done;
  if (value->find(key) != kNone || growsTooLong(text, key, *value)) return Replaced::Endless;
  Seam seam(text);
  std::size_t fresh = 0;  // how much of what lies ahead can hold keys that were not in the text
  std::size_t made = 0;   // bytes put in for such keys, by a value that is no shorter than they are
  for (std::size_t at = 0; (at = seam.ahead().find(key)) != kNone;) {
    if (at < fresh && value->size() >= key.size()) made += value->size();
    if (made > kMostAtJoints || growsTooLong(seam.size(), 1, key, *value)) return Replaced::Endless;
    fresh = seam.replace(at, key, *value);
  }
  text = seam.whole();
  return Replaced::Done;
}

Replaced SubstituteTagAware(std::string& text, std::string_view key, const Value& value) {
  if (key.empty() || text.find(key) == kNone) return Replaced::Done;
  if (!value || value->empty()) return removeTagAware(text, key);
  if (growsTooLong(text, key, *value)) return Replaced::Endless;
  replaceForward(text, key, *value);
  return Replaced::Done;
}

}  // namespace varlo
