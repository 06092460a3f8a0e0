#include "tests/generator/template/plain_steps.h"

#include <set>

#include "core/program/scheme.h"
#include "core/store/user_variable.h"
#include "core/text/number_text.h"

namespace varlo::test {
namespace {

using String = std::string;
constexpr std::size_t kNone = String::npos;

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }
String lowered(String text) {
  for (char& c : text) c = lower(c);
  return text;
}
String turned(String text) {
  for (char& c : text) c = c == '\\' ? '/' : c;
  return text;
}
String orElse(const Text& text, const char* otherwise) { return text.isSet() ? text.get() : otherwise; }

String baseName(const String& path) {
  const std::size_t slash = path.find('\\') != kNone ? path.rfind('\\') : path.rfind('/');
  return slash == kNone ? path : path.substr(slash + 1);
}

// Removes tags: the first "<", through the next ">" outside quotes, again and again from the start.
String withoutTags(String text) {
  for (std::size_t open = text.find('<'); open != kNone; open = text.find('<')) {
    std::size_t at = open;
    while (at < text.size() && text[at] != '>') {
      if (text[at] == '"' || text[at] == '\'') {
        const char quote = text[at++];
        while (at < text.size() && text[at] != quote && text[at] != '\r' && text[at] != '\n') ++at;
        if (at < text.size() && text[at] == quote) ++at;
      } else {
        ++at;
      }
    }
    if (at >= text.size()) break;
    text.erase(open, at + 1 - open);
  }
  return text;
}

class Steps {
 public:
  Steps(Program& program, StoreNode& page, const String& scratch) : program_(program), page_(page) {
    made_.scratch = scratch;
  }

  PlainPage make(String text) {
    const bool hasBlock = page_.kind == NodeKind::Shelf || page_.kind == NodeKind::List;
    String block;
    const bool takesBlock = hasBlock && takeBlock(text, block);
    take(text, "$STORETITLE", 4, project().storeTitle.orEmpty());
    take(text, "$PAGETITLE", 4, page_.pageTitle.orEmpty());
    take(text, "$BODY", 4, page_.body.orEmpty());
    take(text, "$DESCRIPTION", 4, description(page_));
    if (!page_.metaKeywords.isNull()) take(text, "$KEYWORDS", 4, page_.metaKeywords.get());
    take(text, "$UPDATED", 1, updated());
    if (takesBlock) {
      String shelf;
      for (StoreNode* child = page_.child; child != nullptr; child = child->next) {
        String item = block;
        substituteItem(item, *child);
        shelf += item;
      }
      take(text, "$SHELF", 1, shelf);
    }
    substituteItem(text, page_);
    listings(text);
    take(text, "$URL", 1, "");
    take(text, "<!--+", 1, "");
    take(text, "+-->", 1, "");
    removeEvery(text, "<shelf>");
    removeEvery(text, "</shelf>");
    removeComments(text);
    made_.text = text;
    return made_;
  }

 private:
  StoreProject& project() { return program_.project; }
  const Text& slot(std::size_t number) { return project().projectScheme->slot[number]; }
  String file() { return page_.fileName.orEmpty(); }

  void error(const String& line) {
    made_.lines.push_back(line);
    ++made_.errors;
  }

  // The key at most so many times, each time the first one.
  static void take(String& text, const String& key, int times, const String& value) {
    for (int i = 0; i < times && text.find(key) != kNone; ++i) text.replace(text.find(key), key.size(), value);
  }
  void takeAll(String& text, const String& key, const String& value) {
    if (text.find(key) != kNone && value.find(key) != kNone) {
      return error("error: " + file() + ": endless replacement of '" + key + "'");
    }
    for (int rounds = 0; text.find(key) != kNone; ++rounds) {
      if (rounds == 1000) throw PlainStepsTooLong();
      text.replace(text.find(key), key.size(), value);
    }
  }
  void takeTag(String& text, const String& key, const String& value) {
    std::size_t at = 0;
    while (!value.empty() && (at = text.find(key, at)) != kNone) {
      text.replace(at, key.size(), value);
      at += value.size();
    }
    while (value.empty() && (at = text.find(key)) != kNone) {
      const std::size_t end = text.find('>', at);
      if (end == kNone) return error("error: " + file() + ": endless replacement of '" + key + "'");
      std::size_t back = at;
      while (back > 0 && text[back] != '<' && text[back] != '>') --back;
      if (text[back] == '>') {
        text.erase(at, key.size());
        continue;
      }
      text.erase(back, end + 1 - back);
    }
  }

  static void removeEvery(String& text, const String& mark) {
    for (std::size_t at = lowered(text).find(mark); at != kNone; at = lowered(text).find(mark)) {
      text.erase(at, mark.size());
    }
  }
  void removeComments(String& text) {
    std::size_t from = 0;
    for (std::size_t open = text.find("<!--"); open != kNone; open = text.find("<!--", from)) {
      const std::size_t end = text.find("-->", open);
      if (end == kNone) return error("error: " + file() + ": comment without an end");
      text.erase(open, end + 3 - open);
      from = open;
    }
  }

  bool takeBlock(String& text, String& block) {
    const std::size_t open = lowered(text).find("<shelf>");
    const std::size_t close = lowered(text).find("</shelf>");
    if (open == kNone || close == kNone || close < open) {
      error("error: " + file() + ": Invalid or Missing <SHELF>..</SHELF> block.");
      return false;
    }
    block = text.substr(open + 7, close - open - 7);
    if (block.size() < 20000) {
      made_.scratch = block;
    } else {
      block = made_.scratch;
    }
    text.replace(open, close + 8 - open, "$SHELF");
    return true;
  }

  static String description(const StoreNode& node) {
    if (node.metaDescription.isSet()) return node.metaDescription.get();
    return node.pageTitle.isNull() ? node.title.orEmpty() : node.pageTitle.get();
  }
  String updated() { return DateToText(program_.clock, program_.clock.now(), true); }
  String address(const String& image) {
    if (image.empty() || image.find("//") != kNone) return image;
    String name = turned(image.substr(0, 512));
    if (name.find('/') != kNone) name = name.substr(name.rfind('/') + 1);
    name = "img/" + name;
    return program_.config.lowerCaseLinks != 0 ? lowered(name) : name;
  }
  String bullet(std::size_t number) {
    if (slot(number).isNull()) return {};
    const String name = baseName(slot(number).get());
    return name.find('<') != kNone ? name : "<img src=\"" + name + "\" align=top>";
  }
  String user() {
    const String account = program_.config.accountId.orEmpty();
    const std::size_t hyphen = account.find('-');
    return hyphen == kNone ? account : account.substr(0, hyphen + 3);
  }

  void slotAll(String& text, const char* key, std::size_t number) {
    if (!slot(number).isNull()) takeAll(text, key, slot(number).get());
  }
  void button(String& text, const char* key, std::size_t number) {
    if (!slot(number).isNull()) take(text, key, 4, baseName(slot(number).get()));
  }

  void substituteItem(String& text, const StoreNode& item) {
    for (const UserVariable* v = project().variables; v != nullptr; v = v->next) {
      if (v->name.isSet() && !v->value.isNull()) take(text, v->name.get(), 101, v->value.get());
    }
    take(text, "$USER", 4, user());
    take(text, "$META_TITLE", 4, withoutTags(orElse(item.pageTitle, item.title.orEmpty())));
    take(text, "$META_DESCRIPTION", 4, withoutTags(description(item)));
    if (!item.metaKeywords.isNull()) take(text, "$META_KEYWORDS", 4, item.metaKeywords.get());
    take(text, "$STORETITLE", 4, project().storeTitle.orEmpty());
    take(text, "$PAGETITLE", 4, item.pageTitle.orEmpty());
    take(text, "$BODY", 4, item.body.orEmpty());
    take(text, "$DESCRIPTION", 4, description(item));
    if (!item.metaKeywords.isNull()) take(text, "$KEYWORDS", 4, item.metaKeywords.get());
    takeTag(text, "$HOMELINK", turned(project().root->fileName.orEmpty()));
    take(text, "$HOMETITLE", 4, project().root->title.orEmpty());
    take(text, "$UPDATED", 1, updated());
    take(text, "$HEADING", 4, slot(10).orEmpty());
    take(text, "$FILENAME", 4, item.fileName.orEmpty());
    button(text, "$BUTTON_ADD", 28);
    button(text, "$BUTTON_REMOVE", 30);
    button(text, "$BUTTON_BACK", 29);
    slotAll(text, "$BGCOLOR", 4);
    slotAll(text, "$BG_COLOR", 4);
    slotAll(text, "$TEXT_COLOR", 5);
    slotAll(text, "$LINK_COLOR", 6);
    slotAll(text, "$VLINK_COLOR", 7);
    slotAll(text, "$ALINK_COLOR", 8);
    slotAll(text, "$MENUCOLOR", 9);
    takeAll(text, "$CURRENCY", project().currency.orEmpty());
    takeAll(text, "$BULLET_A", bullet(27));
    takeAll(text, "$BULLET_O", bullet(26));
    takeAll(text, "$BULLET_F", bullet(24));
    takeAll(text, "$BULLET_G", bullet(25));
    links(text, item);
    takeAll(text, "$COST", item.cost.orEmpty());
    takeAll(text, "$CODE", item.productCode.orEmpty());
    takeAll(text, "$FREIGHT", item.freight.orEmpty());
    takeAll(text, "$WEIGHT", item.weight.orEmpty());
    takeAll(text, "$TAX", item.tax.orEmpty());
    takeAll(text, "$PRICE", orElse(item.cost, "0"));
    if (text.find("$VARLO_SERVER") != kNone) {
      if (!program_.config.orderServer.isSet()) error("error: Varlo Server must be defined in preferences!");
      takeAll(text, "$VARLO_SERVER", program_.config.orderServer.orEmpty());
    }
    takeTag(text, "$IMAGE", address(item.image.orEmpty()));
    takeTag(text, "$LINK", address(item.imageLink.orEmpty()));
    numbered(text, "$F", item.field);
    numbered(text, "$FIELD", item.field);
    numbered(text, "$LABEL", item.label);
    take(text, "$TITLE", 4, orElse(item.pageTitle, item.title.orEmpty()));
    takeAll(text, "$VERSION", "1.07");
    takeAll(text, "$_VERSION", "1.07");
    takeAll(text, "$_PRODUCT", "Varlo PRO");
    takeAll(text, "$FRAMECOLOR", slot(19).orEmpty());
    takeAll(text, "$FRAME", frame());
  }

  void numbered(String& text, const String& stem, const std::array<Text, 6>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) takeTag(text, stem + std::to_string(i + 1), values[i].orEmpty());
  }

  static String frame() {
    return "<SCRIPT>if (name != \"shopmain\")document.writeln('<FRAMESET COLS=\"*,208\" BORDER=0 FRAMEBORDER=NO ' +"
           "'FRAMESPACING=0>' +'<FRAME SRC=\"' + location + '?x\" NAME=\"shopmain\" MARGINWIDTH=2>' +"
           "'<FRAMESET ROWS=\"*,110\">' +'<FRAME SRC=\"trolley.html\" NAME=\"shoptrolley\" MARGINWIDTH=13' +"
           "' MARGINHEIGHT=5>' +'<FRAME SRC=\"register.html' + location.search +'\" NAME=\"shopregister\">' +"
           "'</FRAMESET>' +'</FRAMESET>' +'<NOFRAMES>');</SCRIPT>";
  }

  void links(String& text, const StoreNode& item) {
    const auto has = [&](const char* key) { return text.find(key) != kNone; };
    if (!has("$BUY") && !has("$ADD") && !has("$REMOVE")) return;
    const String code = item.productCode.orEmpty();
    const StoreNode& named = item.parent != nullptr && item.parent->kind == NodeKind::Shelf ? *item.parent : item;
    String tax = orElse(item.tax, "0");
    if (tax.find('%') != kNone) tax.erase(tax.find('%'), 1);
    String add = "javascript:parent.shopregister.addItem('";
    for (const String& part : {String(named.fileName.orEmpty()), code, String(item.title.orEmpty()),
                               orElse(item.cost, "0.00"), address(item.image.orEmpty())}) {
      add += part + "','";
    }
    add.resize(add.size() - 2);
    add += ",1," + orElse(item.weight, "0") + "," + orElse(item.freight, "0") + "," + tax + ")";
    made_.scratch = add;
    takeAll(text, "$REMOVE", "javascript:parent.shopregister.removeItem('" + code + "')");
    takeAll(text, "$BUY", add);
    takeAll(text, "$ADD", add);
    if (code.empty() && item.kind == NodeKind::Product) error("error: " + file() + ": no product code");
  }

  String row(const Text& imageSlot, const String& link, const String& name, bool subindex, bool bold,
             const char* target = "") {
    const String image = imageSlot.isNull() ? "" : baseName(imageSlot.get());
    const bool isFile = !image.empty() && image.find('>') == kNone;
    String text = "<tr><td valign=top width=5%>";
    text += isFile ? "<img src=\"$IMAGE\">" : "$IMAGE";
    text += String("</td><td><font size=-1><a href=\"$LINK\"") + target + ">$+B$NAME$-B</a>";
    take(text, "$IMAGE", 1, image);
    take(text, "$LINK", 1, link);
    take(text, "$NAME", 1, name);
    take(text, "$+B", 1, bold ? "<b>" : "");
    take(text, "$-B", 1, bold ? "</b>" : "");
    return text + (subindex ? "<br>$SUBINDEX" : "") + "</td></tr>\n";
  }
  const Text& bulletSlot(const StoreNode& node) { return slot(node.kind == NodeKind::Category ? 24 : 25); }
  String linkOf(const StoreNode& node) { return turned(node.fileName.orEmpty()); }

  // The rows of a list, as far as the page does not show them yet.
  String rows(StoreNode* first, const StoreNode* branch, bool inSubindex) {
    String text;
    for (StoreNode* node = first; node != nullptr; node = node->next) {
      if (node->status == -2 || !shown_.insert(node).second) continue;
      if (node != &page_) {
        text += row(bulletSlot(*node), linkOf(*node), node->title.orEmpty(), node == branch && !inSubindex, false);
        continue;
      }
      text += row(slot(26), linkOf(*node), node->title.orEmpty(), !inSubindex, true);
      if (!inSubindex && node->title.isSet()) letter_ = lower(node->title.get()[0]);
    }
    return text;
  }

  void listings(String& text) {
    StoreNode* branch = nullptr;
    if (text.find("$INDEX") != kNone) branch = expandIndex(text);
    if (page_.prev == nullptr) {
      takeAll(text, "$BACK", "");
    } else if (!page_.prev->fileName.isNull()) {
      takeAll(text, "$BACK", linkOf(*page_.prev));
    }
    if (letter_ != 0) {
      if (letter_ < 'a' || letter_ > 'z') letter_ = 'a';
      take(text, "indexa.htm", 1, String("index") + letter_ + ".htm");
    }
    productTables(text);
    subindex(text, branch);
  }

  StoreNode* expandIndex(String& text) {
    const bool opens = page_.child != nullptr && page_.kind != NodeKind::Shelf;
    StoreNode* branch = opens ? nullptr : page_.parent;
    StoreNode* first = branch == nullptr ? &page_ : branch;
    while (first->prev != nullptr && first->prev->next == first) first = first->prev;
    const StoreNode* back = page_.prev != nullptr ? page_.prev : page_.parent;
    const Text& backName = back == nullptr ? page_.fileName : back->fileName;
    if (!backName.isNull()) takeAll(text, "$BACK", back == nullptr ? backName.get() : turned(backName.get()));
    String index = "<table width=100%>";
    if (first->parent != nullptr) {
      index += row(slot(27), first->parent->fileName.orEmpty(), first->parent->title.orEmpty(), false, false);
    }
    if (first != &page_ || page_.kind == NodeKind::Category) index += rows(first, branch, false);
    if (page_.parent != nullptr && branch == nullptr) index += rows(page_.parent->child, nullptr, false);
    if (program_.config.directoryLink != 0) {
      index += "<tr><td><br></td><td><br></td></tr><tr>";
      index +=
          row(slot(27), "https://www.varlo.example/directory.htm", "Other Stores", false, false, " target=_blank");
    }
    index += "</table>\n";
    made_.scratch = index;
    takeAll(text, "$INDEX", index);
    return branch;
  }

  void productTables(String& text) {
    if (text.find("$PRODUCT") == kNone) return;
    int total = 0;
    for (const StoreNode* child = page_.child; child != nullptr; child = child->next) ++total;
    const int half = total % 2 == 0 ? total / 2 : (total + 1) / 2;
    String two = "<table width=100% border=0 cellspacing=1><tr><td valign=top><font size=-1>";
    String one = "<table>";
    int shown = 0;
    for (const StoreNode* child = page_.child; child != nullptr; child = child->next) {
      if (child->status < -1) continue;
      if (shown == half) two += "</td><td valign=top><font size=-1>";
      two += bullet(child->kind == NodeKind::Category ? 24 : 25) + " <a href=\"" + linkOf(*child) + "\">" +
             child->title.orEmpty() + "</a><br>\n";
      ++shown;
      one += row(bulletSlot(*child), linkOf(*child), child->title.orEmpty(), false, false);
    }
    two += "</td></tr></table>\n";
    one += "</table>\n";
    made_.scratch = one;
    takeAll(text, "$PRODUCTS2", two);
    takeAll(text, "$PRODUCT2", two);
    takeAll(text, "$PRODUCTS", one);
    takeAll(text, "$PRODUCT", one);
  }

  void subindex(String& text, const StoreNode* branch) {
    const StoreNode* level = nullptr;
    if (page_.kind == NodeKind::Category && page_.child != nullptr) level = &page_;
    if (branch != nullptr && branch->kind == NodeKind::Category && branch->child != nullptr) level = branch;
    String list = level == nullptr ? "" : rows(level->child, nullptr, true);
    if (!list.empty()) list = "<table cellspacing=0>" + list + "</table>";
    takeAll(text, "$SUBINDEX", list);
  }

  Program& program_;
  StoreNode& page_;
  PlainPage made_;
  std::set<const StoreNode*> shown_;
  char letter_ = 0;
};

}  // namespace

PlainPage MakePlainPage(Program& program, const std::string& source, StoreNode& node, const std::string& scratch) {
  return Steps(program, node, scratch).make(source);
}

}  // namespace varlo::test
