#include "commerce/freight/freight_price_reader.h"

#include <cstddef>
#include <utility>

#include "commerce/freight/exact_amount.h"

namespace varlo {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kNumberCharacters = "0123456789.";
constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";

bool isOneOf(char c, std::string_view set) { return set.find(c) != set.npos; }

// Numbers, words of letters, "<=", ">=", and single characters; blanks only part them.
std::vector<std::string_view> tokensOf(std::string_view text) {
  std::vector<std::string_view> tokens;
  std::size_t at = 0;
  while ((at = text.find_first_not_of(kBlanks, at)) != text.npos) {
    std::size_t end = at + 1;
    if (isOneOf(text[at], kNumberCharacters)) {
      end = text.find_first_not_of(kNumberCharacters, at);
    } else if (isOneOf(text[at], kLetters)) {
      end = text.find_first_not_of(kLetters, at);
    } else if (isOneOf(text[at], "<>") && text.substr(end, 1) == "=") {
      ++end;
    }
    if (end > text.size()) end = text.size();
    tokens.push_back(text.substr(at, end - at));
    at = end;
  }
  return tokens;
}

std::string quoted(std::string_view token) { return "\"" + std::string(token) + "\""; }

// Each read function gives false once a problem is noted; the first one stays.
class Reader {
 public:
  explicit Reader(std::string_view text) : tokens_(tokensOf(text)) {}

  [[nodiscard]] const std::string& problem() const { return problem_; }
  [[nodiscard]] bool atEnd() const { return at_ >= tokens_.size(); }
  [[nodiscard]] std::string_view peek(std::size_t ahead = 0) const {
    return at_ + ahead < tokens_.size() ? tokens_[at_ + ahead] : std::string_view();
  }
  // Letters count in both cases.
  [[nodiscard]] bool is(char token, std::size_t ahead = 0) const {
    const std::string_view next = peek(ahead);
    return next.size() == 1 && (next[0] == token || (isOneOf(token, kLetters) && next[0] == token - 'a' + 'A'));
  }
  [[nodiscard]] bool is(std::string_view token) const { return peek() == token; }
  [[nodiscard]] bool isNumber() const { return !atEnd() && isOneOf(peek()[0], kNumberCharacters); }
  void skip() { ++at_; }

  bool fail(std::string problem) {
    if (problem_.empty()) problem_ = std::move(problem);
    return false;
  }
  bool missing(const std::string& what) {
    return fail(what + " is missing " + (atEnd() ? "at the end" : "before " + quoted(peek())));
  }
  bool take(char token) {
    if (!is(token)) return missing(quoted(std::string_view(&token, 1)));
    skip();
    return true;
  }
  bool number(std::int64_t& value) {
    if (!isNumber()) return missing("a number");
    const std::optional<std::int64_t> read = NumberFromText(peek());
    if (!read) return fail(quoted(peek()) + " is not a number with at most 9 digits and 4 decimals");
    skip();
    value = *read;
    return true;
  }
  bool rate(std::optional<std::int64_t>& value) {
    const std::string_view text = peek();
    std::int64_t read = 0;
    if (!number(read)) return false;
    if (read > kMostRate) return fail(quoted(text) + " is not a tax rate from 0 to 1000");
    value = read;
    return true;
  }

 private:
  std::vector<std::string_view> tokens_;
  std::size_t at_ = 0;
  std::string problem_;
};

// "10%,", "*%," and "2f," in front of the prices.
bool readTaxes(Reader& reader, FreightGroup& group) {
  if (reader.is('*')) {
    reader.skip();
    if (!reader.take('%') || !reader.take(',')) return false;
    group.taxedByProduct = true;
  } else if (reader.isNumber() && reader.is('%', 1)) {
    if (!reader.rate(group.goodsRate) || !reader.take('%') || !reader.take(',')) return false;
  }
  if (reader.isNumber() && reader.is('f', 1)) {
    return reader.rate(group.freightRate) && reader.take('f') && reader.take(',');
  }
  return true;
}

// "+5k>10k", behind a base that may be absent.
bool readUnits(Reader& reader, FreightPrice& price) {
  price.kind = FreightPrice::Kind::kUnits;
  return reader.take('+') && reader.number(price.each) && reader.take('k') && reader.take('>') &&
         reader.number(price.limit) && reader.take('k');
}

// "<=2k" and ">=100v".
bool readLimit(Reader& reader, FreightPrice& price, FreightPrice::Kind kind, char measure) {
  reader.skip();
  price.kind = kind;
  return reader.number(price.limit) && reader.take(measure);
}

// One price: "5", "0>=100v", "5<=2k", "30+5k>10k" or "+5k>10k".
bool readPrice(Reader& reader, FreightPrice& price) {
  if (!reader.is('+')) {
    std::int64_t base = 0;
    if (!reader.number(base)) return false;
    price.base = base;
  }
  if (reader.is('+')) return readUnits(reader, price);
  if (reader.is("<=")) return readLimit(reader, price, FreightPrice::Kind::kWeight, 'k');
  if (reader.is(">=")) return readLimit(reader, price, FreightPrice::Kind::kValue, 'v');
  if (reader.is('%') || reader.is('f')) {
    return reader.fail("a tax rate can only stand once, in front of the prices");
  }
  return true;
}

bool holdsAlways(const FreightPrice& price) {
  return price.kind == FreightPrice::Kind::kAny || price.kind == FreightPrice::Kind::kUnits;
}

// A price that no order can reach is a slip of the owner, so it is told.
bool checkReach(Reader& reader, const std::vector<FreightPrice>& prices, const FreightPrice& price) {
  if (!prices.empty() && holdsAlways(prices.back())) {
    return reader.fail("nothing can stand behind a price that holds for every weight");
  }
  const FreightPrice* before = nullptr;
  for (const FreightPrice& other : prices) {
    if (other.kind == price.kind) before = &other;
  }
  if (before == nullptr) return true;
  const std::string never = NumberToText(price.limit) + " can never apply, since one before it ";
  if (price.kind == FreightPrice::Kind::kWeight && price.limit <= before->limit) {
    return reader.fail("the price up to " + never + "goes up to " + NumberToText(before->limit));
  }
  if (price.kind == FreightPrice::Kind::kValue && price.limit >= before->limit) {
    return reader.fail("the price from " + never + "starts at " + NumberToText(before->limit));
  }
  return true;
}

// Fills in what a price leaves open: the base of "+5k>10k" is the price of the band before it, and one
// band alone, with nothing behind it, is a price for every weight.
void settle(std::vector<FreightPrice>& prices) {
  std::size_t bands = 0;
  std::int64_t lastBand = 0;
  for (const FreightPrice& price : prices) {
    if (price.kind != FreightPrice::Kind::kWeight) continue;
    ++bands;
    lastBand = *price.base;
  }
  FreightPrice& last = prices.back();
  if (last.kind == FreightPrice::Kind::kUnits && !last.base) last.base = lastBand;
  if (last.kind == FreightPrice::Kind::kWeight && bands == 1) last.kind = FreightPrice::Kind::kAny;
}

}  // namespace

std::string ReadFreightPrices(std::string_view text, FreightGroup& group) {
  Reader reader(text);
  bool good = readTaxes(reader, group);
  while (good) {
    FreightPrice price;
    good = readPrice(reader, price) && checkReach(reader, group.prices, price);
    if (!good) break;
    group.prices.push_back(price);
    if (reader.atEnd()) break;
    good = reader.take(',');
  }
  if (good) settle(group.prices);
  return reader.problem();
}

}  // namespace varlo
