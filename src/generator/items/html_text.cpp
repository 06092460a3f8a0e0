#include "generator/items/html_text.h"

#include <array>
#include <cstdio>
#include <string_view>

#include "core/store/store_node.h"
#include "core/text/number_text.h"
#include "core/text/text_edit.h"
#include "core/text/text_search.h"

namespace varlo {
namespace {

constexpr std::size_t kNone = std::string::npos;
constexpr std::size_t kDisplayedTitle = 500;

constexpr std::array<HtmlReference, 4> kBasic{{{"&quot;", '"'}, {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}}};

constexpr char operator""_byte(unsigned long long code) { return static_cast<char>(code); }

// In the order in which they are tried; the first thirty are compared with case.
constexpr std::size_t kExactReferences = 30;
constexpr std::array<HtmlReference, 94> kReferences{{
    {"&ETH;", 208_byte},    {"&Auml;", 196_byte},   {"&Euml;", 203_byte},   {"&Iuml;", 207_byte},
    {"&Uuml;", 220_byte},   {"&Ouml;", 214_byte},   {"&Acirc;", 194_byte},  {"&Aring;", 197_byte},
    {"&AElig;", 198_byte},  {"&Ecirc;", 202_byte},  {"&Icirc;", 206_byte},  {"&Ucirc;", 219_byte},
    {"&THORN;", 222_byte},  {"&Ocirc;", 212_byte},  {"&Oacute;", 211_byte}, {"&Ograve;", 210_byte},
    {"&Oslash;", 216_byte}, {"&Otilde;", 213_byte}, {"&Aacute;", 193_byte}, {"&Agrave;", 192_byte},
    {"&Atilde;", 195_byte}, {"&Ntilde;", 209_byte}, {"&Ccedil;", 199_byte}, {"&Egrave;", 200_byte},
    {"&Eacute;", 201_byte}, {"&Igrave;", 204_byte}, {"&Iacute;", 205_byte}, {"&Ugrave;", 217_byte},
    {"&Uacute;", 218_byte}, {"&Yacute;", 221_byte}, {"&uml;", 168_byte},    {"&deg;", 176_byte},
    {"&not;", 172_byte},    {"&reg;", 174_byte},    {"&shy;", 173_byte},    {"&yen;", 165_byte},
    {"&eth;", 240_byte},    {"&sup1;", 185_byte},   {"&sup2;", 178_byte},   {"&sup3;", 179_byte},
    {"&cent;", 162_byte},   {"&copy;", 169_byte},   {"&macr;", 175_byte},   {"&ordf;", 170_byte},
    {"&para;", 182_byte},   {"&ordm;", 186_byte},   {"&auml;", 228_byte},   {"&euml;", 235_byte},
    {"&iuml;", 239_byte},   {"&ouml;", 246_byte},   {"&uuml;", 252_byte},   {"&yuml;", 255_byte},
    {"&raquo;", 187_byte},  {"&pound;", 163_byte},  {"&ucirc;", 251_byte},  {"&laquo;", 171_byte},
    {"&micro;", 181_byte},  {"&acute;", 180_byte},  {"&cedil;", 184_byte},  {"&times;", 215_byte},
    {"&szlig;", 223_byte},  {"&acirc;", 226_byte},  {"&aring;", 229_byte},  {"&aelig;", 230_byte},
    {"&ecirc;", 234_byte},  {"&icirc;", 238_byte},  {"&iexcl;", 161_byte},  {"&ocirc;", 244_byte},
    {"&thorn;", 254_byte},  {"&ugrave;", 249_byte}, {"&uacute;", 250_byte}, {"&brvbar;", 166_byte},
    {"&curren;", 164_byte}, {"&frac14;", 188_byte}, {"&frac12;", 189_byte}, {"&frac34;", 190_byte},
    {"&iquest;", 191_byte}, {"&middot;", 183_byte}, {"&plusmn;", 177_byte}, {"&agrave;", 224_byte},
    {"&aacute;", 225_byte}, {"&atilde;", 227_byte}, {"&ntilde;", 241_byte}, {"&ograve;", 242_byte},
    {"&oacute;", 243_byte}, {"&ccedil;", 231_byte}, {"&egrave;", 232_byte}, {"&eacute;", 233_byte},
    {"&igrave;", 236_byte}, {"&iacute;", 237_byte}, {"&otilde;", 245_byte}, {"&yacute;", 253_byte},
    {"&divide;", 247_byte}, {"&oslash;", 248_byte},
}};

bool startsNoCase(std::string_view text, std::string_view start) {
  return text.size() >= start.size() && EqualsNoCase(text.substr(0, start.size()), start);
}

// Decodes the references of a text, one at a time.
class Decoder {
 public:
  explicit Decoder(std::string& text) : text_(text) {}

  void run() {
    while (next()) {
      if (text_.compare(at_ + 1, 1, "#") == 0) {
        decodeNumber();
      } else if (!decodeBasic() && !decodeNamed()) {
        return;
      }
    }
  }

 private:
  // Goes to the next "&" that has a ";" behind it.
  bool next() {
    at_ = text_.find('&', at_);
    return at_ != kNone && text_.find(';', at_) != kNone;
  }

  // Deliberate: it is the first reference of that number in three digits which becomes a blank, here or
  // further on, while the byte goes to the place in hand, and is looked at again there.
  void decodeNumber() {
    const std::int32_t number = LeadingInt(std::string_view(text_).substr(at_ + 2));
    std::array<char, 32> written{};
    std::snprintf(written.data(), written.size(), "&#%03i;", static_cast<int>(number));
    if (number <= 0 || TextReplace(text_, written.data(), " ", at_) == kNone) {
      ++at_;
      return;
    }
    text_[at_] = static_cast<char>(number & 0xFF);
    if (text_[at_] == '\0') text_.resize(at_);
  }

  bool decodeBasic() {
    for (const HtmlReference& reference : kBasic) {
      if (!startsNoCase(std::string_view(text_).substr(at_), reference.name)) continue;
      text_.replace(at_, reference.name.size(), 1, reference.byte);
      ++at_;
      return true;
    }
    return false;
  }

  // Deliberate: an entry that does not stand here is looked for further on and decoded there.
  bool decodeNamed() {
    for (std::size_t i = 0; i < kReferences.size(); ++i) {
      const HtmlReference& entry = kReferences[i];
      const std::string_view rest = std::string_view(text_).substr(at_);
      if (i < kExactReferences ? rest.starts_with(entry.name) : startsNoCase(rest, entry.name)) continue;
      const std::size_t found = FindNoCase(text_, entry.name, at_);
      if (found == kNone) return false;
      text_.replace(found, entry.name.size(), 1, entry.byte);
      at_ = found + 1;
      return true;
    }
    text_.erase(at_, text_.find(';', at_) + 1 - at_);
    return true;
  }

  std::string& text_;
  std::size_t at_ = 0;
};

// What the ALT attribute in `title` says, empty when there is none.
std::string_view altText(std::string_view title) {
  constexpr std::string_view kAlt = " ALT=";
  std::size_t at = FindNoCase(title, kAlt);
  if (at == kNone) return {};
  at += kAlt.size();
  while (at < title.size() && IsSpace(title[at])) ++at;
  const std::string_view rest = title.substr(at);
  const char quote = rest.empty() ? '\0' : rest.front();
  if (quote == '"' || quote == '\'') return rest.substr(1, rest.find(quote, 1) - 1);
  const std::string_view word = rest.substr(0, rest.find(' '));
  return word.substr(0, word.find('>'));
}

}  // namespace

std::span<const HtmlReference> HtmlReferences() { return kReferences; }

// Deliberate: the search for the end starts at the "<", so a quote that stands in front of it does not
// count. What was kept holds no "<", so one pass does what a search from the start again would do.
void StripTags(std::string& text) {
  std::size_t open = text.find('<');
  if (open == kNone) return;
  std::string kept(text, 0, open);
  while (open != kNone) {
    const std::size_t length = TextFindOutsideQuotes(std::string_view(text).substr(open), '>');
    if (length == kNone) break;
    const std::size_t behind = open + length + 1;
    open = text.find('<', behind);
    kept.append(text, behind, open == kNone ? kNone : open - behind);
    if (open == kNone) {
      text = std::move(kept);
      return;
    }
  }
  kept.append(text, open);
  text = std::move(kept);
}

void HtmlToText(std::string& text) {
  StripTags(text);
  Decoder(text).run();
}

const char* displayTitle(StoreNode* node) {
  if (node == nullptr || node->title.isNull()) return "";
  std::string copy(node->title.view().substr(0, kDisplayedTitle));
  HtmlToText(copy);
  if (copy == node->title.view()) return node->title.get();
  node->displayTitle.release();
  if (copy.empty()) copy = altText(node->title.view());
  if (copy.empty()) {
    node->displayTitle = node->title;
  } else {
    node->displayTitle.assign(std::string_view(copy));
  }
  return node->displayTitle.get();
}

}  // namespace varlo
