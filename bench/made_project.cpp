#include "bench/made_project.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>

namespace varlo::bench {
namespace {

constexpr std::size_t kCategoriesInDepartment = 20;
constexpr std::size_t kRegions = 48;
constexpr std::size_t kVariables = 36;
constexpr std::size_t kMethods = 3;
constexpr std::size_t kFlushSize = 64 * 1024;
constexpr std::string_view kShopName = "The House and Garden Shop";

constexpr std::array<std::string_view, 16> kMakes{
    "Brass",   "Cast Iron", "Cedar", "Enamel",      "Folding",   "Galvanised", "Hand-made", "Linen",
    "Painted", "Slate",     "Oak",   "Solid Beech", "Stoneware", "Terracotta", "Woven",     "Wrought Iron"};
constexpr std::array<std::string_view, 20> kThings{
    "Bird Table", "Boot Rack",  "Bread Crock", "Candle Holder", "Coat Hook",  "Egg Basket",  "Fire Guard",
    "Flower Pot", "Lantern",    "Hose Reel",   "Jam Pan",       "Letter Box", "Log Basket",  "Mixing Bowl",
    "Seed Tray",  "Shoe Brush", "Storage Jar", "Tool Box",      "Tea Caddy",  "Watering Can"};
constexpr std::array<std::string_view, 12> kSentences{
    "Made by a family workshop that has turned out nothing else for three generations.",
    "It will stand outdoors all year and only looks the better for it.",
    "The fittings are screwed, not glued, and spare ones can be ordered from us at any time.",
    "Each one differs a little from the next in colour and grain.",
    "Wipe it with a damp cloth; no polish is needed.",
    "Large enough for a family of five, small enough for a kitchen shelf.",
    "Our customers in the caf\xE9 trade have used it daily for years.",
    "Comes flat in a box, with everything that is needed to put it together in ten minutes.",
    "The lid closes tightly & keeps its contents dry.",
    "Please allow <b>five days</b> for delivery, as it is finished to order.",
    "Also to be had in a set of three at a better price.",
    "A present that will not be given away again."};
constexpr std::array<std::string_view, 6> kColours{"Red", "Dark Green", "Natural", "Cream", "Slate Blue", "Black"};
constexpr std::array<std::string_view, 8> kCards{"Bankcard",       "Store Account", "Gift Card",  "Corporate Card",
                                                 "Traveller Card", "Garden Club",   "Trade Card", "Credit Note"};

// A small generator of our own: the same numbers with every library.
class Draw {
 public:
  // A number from 0 to `limit` - 1.
  std::size_t below(std::size_t limit) {
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t mixed = (state_ ^ state_ >> 30) * 0xBF58476D1CE4E5B9ULL;
    mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EBULL;
    return static_cast<std::size_t>((mixed ^ mixed >> 31) % limit);
  }
  template <std::size_t kSize>
  std::string_view of(const std::array<std::string_view, kSize>& texts) {
    return texts[below(kSize)];
  }

 private:
  std::uint64_t state_ = 2003;
};

// The prefix with the number behind it, in at least so many digits.
std::string numbered(std::string_view prefix, std::size_t number, int digits) {
  std::array<char, 24> text;
  const int length = std::snprintf(text.data(), text.size(), "%0*zu", digits, number);
  return std::string(prefix).append(text.data(), static_cast<std::size_t>(length));
}

class Writer {
 public:
  Writer(const MadeProject& project, const std::string& path) : project_(project), out_(path, std::ios::binary) {}

  void run() {
    line("TIME=", std::to_string(kMadeProjectTime));
    line("VERSION=107001");
    line("OWNER=Varlo PRO");
    tree();
    for (const std::string_view name : {"product.htm", "category.htm"}) line("TPL=", name);
    variables();
    for (std::size_t i = 0; i < kRegions; ++i) region(i);
    settings();
    out_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
    out_.close();
    if (!out_) throw std::runtime_error("The project could not be written.");
  }

 private:
  template <typename... Parts>
  void line(const Parts&... parts) {
    (text_.append(parts), ...);
    text_ += '\n';
    if (text_.size() < kFlushSize) return;
    out_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
    text_.clear();
  }

  // Sentences up to at least `least` bytes, with `between` between them.
  std::string prose(std::size_t least, std::string_view between) {
    std::string text(draw_.of(kSentences));
    while (text.size() < least) text.append(between).append(draw_.of(kSentences));
    return text;
  }
  std::string price(std::size_t limit) {
    return numbered(numbered({}, 1 + draw_.below(limit), 1).append("."), 5 * draw_.below(20), 2);
  }

  void holder(std::string_view title, const std::string& stem) {
    line("NODE0=", title);
    line("STATUS=0");
    line("MOD=0");
    line("FILE=", stem, ".htm");
    if (project_.flavour == Flavour::Sparse) return;
    line("PAGE=", title, " - ", kShopName);
    line("DESC=", prose(80, " "));
    line("BODY=", prose(120, "@@@"));
    line("TEMP=category.htm");
  }

  void tree() {
    holder("Home", "index");
    line("#BRANCH");
    for (std::size_t first = 0; first < project_.products;) {
      const std::size_t number = first / (project_.inCategory * kCategoriesInDepartment);
      holder(numbered("Department ", number + 1, 1), numbered("d", number, 3));
      line("#BRANCH");
      for (std::size_t i = 0; i < kCategoriesInDepartment && first < project_.products; ++i) category(first);
      line("#EOB");
    }
    line("#EOB");
  }

  // A category with the products from `first` on, which it moves on.
  void category(std::size_t& first) {
    const std::size_t number = first / project_.inCategory;
    const std::string title = std::string(draw_.of(kMakes)).append(" ").append(draw_.of(kThings)).append("s");
    holder(title, numbered("c", number, 5));
    line("#BRANCH");
    for (std::size_t i = 0; i < project_.inCategory && first < project_.products; ++i) product(first++);
    line("#EOB");
  }

  void product(std::size_t number) {
    const std::string_view make = draw_.of(kMakes);
    const std::string_view thing = draw_.of(kThings);
    const std::string title = numbered(std::string(make).append(" ").append(thing).append(" "), number, 4);
    const std::string stem = numbered("p", number, 6);
    line("NODE1=", title);
    line("STATUS=0");
    line("MOD=0");
    line("FILE=", stem, ".htm");
    if (project_.flavour == Flavour::Full) describe(title, make, thing, stem);
    line("COST=", price(400));
    line("CODE=", make.substr(0, 1), thing.substr(0, 1), numbered("-", number, 5));
    if (project_.flavour == Flavour::Full) terms();
  }

  void describe(std::string_view title, std::string_view make, std::string_view thing, std::string_view stem) {
    line("PAGE=", title, " - ", kShopName);
    line("IMAGE=", project_.pictures, stem, ".jpg");
    line("LINK=", project_.pictures, stem, "-large.jpg");
    line("KEY=", make, ", ", thing, ", ", draw_.of(kThings), ", ", draw_.of(kColours), ", house, garden, gifts");
    line("DESC=", prose(80, " "));
    line("BODY=", prose(200 + draw_.below(140), draw_.below(2) == 0 ? " " : "@@@"));
  }

  void terms() {
    line("TEMP=product.htm");
    line("F=", price(20));
    line("W=", price(9));
    line("X=", std::to_string(5 + draw_.below(15)));
    line("F1=", draw_.of(kColours), ",", draw_.of(kColours), ",", draw_.of(kColours));
    line("F2=Small,Medium,Large");
    line("T1=Colour");
    line("T2=Size");
  }

  void variables() {
    for (std::size_t i = 0; i < kVariables; ++i) line(numbered("VAR=$NOTE", i, 2), "|", prose(60, "@@@"));
  }

  void region(std::size_t number) {
    const std::string tax = std::to_string(draw_.below(20));
    for (std::size_t method = 0; method < kMethods; ++method) {
      std::string values;
      for (std::size_t i = 0; i < 12; ++i) values.append(",").append(i % 4 == 3 ? "" : price(60));
      line(numbered("$R", number, 2), std::to_string(method), values, ",", tax, ",|1");
      if (method == 2) line("RULE=2,if(weight>10,25,weight*2.5)");
    }
  }

  void settings() {
    line("STITLE=", kShopName);
    line("TAXF=10");
    line("OMESSAGE=", prose(150, "@@@"));
    line("CMESSAGE=", prose(150, "@@@"));
    line("VO=3");
    line("VC=0");
    line("TAXD=1");
    line("TAXO=0");
    line("CURR=$");
    line("FNAME=0,Economy Air");
    line("FNAME=1,Express Courier");
    line("FNAME=2,Surface Mail");
    for (std::size_t i = 0; i < 3 * kCards.size(); ++i) {
      line("CC=", i < kCards.size() ? "0:" : "1:", kCards[i % kCards.size()], " ", std::to_string(i));
    }
  }

  const MadeProject& project_;
  std::ofstream out_;
  std::string text_;
  Draw draw_;
};

void writeFormTemplate(const std::filesystem::path& path) {
  std::ofstream out(path, std::ios::binary);
  out << "<HTML>\n<HEAD><TITLE>$STITLE</TITLE></HEAD>\n<BODY>\n$MESSAGE\n$FREIGHT\n</BODY>\n</HTML>\n";
}

std::size_t countOf(std::size_t items, std::size_t inEach) { return (items + inEach - 1) / inEach; }

}  // namespace

std::size_t MadeProject::nodes() const {
  const std::size_t categories = countOf(products, inCategory);
  return 1 + countOf(categories, kCategoriesInDepartment) + categories + products;
}

void WriteMadeProject(const MadeProject& project, const std::string& folder, const std::string& fileName) {
  const std::filesystem::path host(folder);
  std::filesystem::create_directories(host / "template");
  writeFormTemplate(host / "template" / "order.htm");
  writeFormTemplate(host / "template" / "confirm.htm");
  Writer(project, (host / fileName).string()).run();
}

}  // namespace varlo::bench
