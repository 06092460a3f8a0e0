#include "tests/fuzz/snapshot.h"

#include <unordered_map>

#include "core/program/program.h"
#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/record.h"
#include "core/store/user_variable.h"
#include "core/tree/store_tree.h"

namespace varlo::fuzz {
namespace {

constexpr std::string_view kSpecialBytes = "\n\r |,";
constexpr char kNullText = '\x06';

// The texts of a node in the order of kTextKeys.
template <typename Node>
auto textsOf(Node& node) {
  auto& f = node.field;
  auto& t = node.label;
  return std::array{&node.fileName,
                    &node.pageTitle,
                    &node.image,
                    &node.imageLink,
                    &node.metaKeywords,
                    &node.metaDescription,
                    &node.body,
                    &node.cost,
                    &node.productCode,
                    &node.templateName,
                    &node.freight,
                    &node.weight,
                    &node.tax,
                    &f[0],
                    &f[1],
                    &f[2],
                    &f[3],
                    &f[4],
                    &f[5],
                    &t[0],
                    &t[1],
                    &t[2],
                    &t[3],
                    &t[4],
                    &t[5]};
}

PlainText plain(const Text& text) { return text.isNull() ? PlainText() : PlainText(text.get()); }

class Reader {
 public:
  Reader(const Program& program, const PlainCatalogue& catalogue)
      : project_(program.project), config_(program.config), catalogue_(catalogue) {}

  PlainProject run() {
    readSettings();
    readTree();
    readRegions();
    readVariables();
    readCards();
    readSchemes();
    return std::move(plain_);
  }

 private:
  void readSettings() {
    plain_.webDir = plain(project_.webDir);
    plain_.storeTitle = plain(project_.storeTitle);
    plain_.freightTax = plain(project_.tax.freightTaxRate);
    plain_.orderMessage = plain(project_.orderMessage);
    plain_.confirmMessage = plain(project_.confirmMessage);
    plain_.currency = plain(project_.currency);
    plain_.taxEnabled = project_.tax.taxEnabled;
    plain_.taxOption = project_.tax.taxOption;
    plain_.fileVersion = project_.fileVersion;
    plain_.versionOrder = project_.templateVersionOrder;
    plain_.versionConfirm = project_.templateVersionConfirm;
    plain_.dirty = project_.dirty;
    plain_.form = {plain(project_.orderTemplate), plain(project_.confirmTemplate)};
    for (std::size_t i = 0; i < plain_.templateNames.size(); ++i) {
      plain_.templateNames[i] = plain(project_.templateNames[i]);
    }
    for (std::size_t i = 0; i < plain_.methodName.size(); ++i) plain_.methodName[i] = plain(project_.methodName[i]);
  }

  struct List {
    const StoreNode* head;
    std::size_t owner;
  };

  // By next and child alone; prev and parent are what they are.
  void readTree() {
    std::vector<List> lists{{project_.root, kNone}};
    while (!lists.empty()) {
      const List list = lists.back();
      lists.pop_back();
      for (const StoreNode* node = list.head; node != nullptr; node = node->next) readNode(*node, list.owner, lists);
    }
    std::size_t index = 0;
    for (const StoreNode* node : order_) {
      plain_.nodes[index].parent = numberOf(node->parent);
      plain_.nodes[index].prev = numberOf(node->prev);
      ++index;
    }
  }

  void readNode(const StoreNode& node, std::size_t owner, std::vector<List>& lists) {
    const std::size_t number = plain_.nodes.size();
    Require(numbers_.try_emplace(&node, number).second, "a node is reached once");
    order_.push_back(&node);
    PlainNode made;
    made.kind = static_cast<int>(node.kind);
    made.status = node.status;
    made.modified = node.modified;
    made.title = plain(node.title);
    std::size_t i = 0;
    for (const Text* text : textsOf(node)) {
      if (!text->isNull()) made.text.emplace_hint(made.text.end(), i, text->get());
      ++i;
    }
    Require(node.id == 0 && node.treeItem == 0 && node.displayTitle.isNull(), "what no file holds is zero");
    plain_.nodes.push_back(std::move(made));
    ListBelow(plain_, owner).push_back(number);
    if (node.child != nullptr) lists.push_back({node.child, number});
  }

  std::size_t numberOf(const StoreNode* node) const {
    if (node == nullptr) return kNone;
    const auto found = numbers_.find(node);
    Require(found != numbers_.end(), "a node names nodes of the tree");
    return found->second;
  }

  void readRegions() {
    const FreightRegion* before = nullptr;
    for (const FreightRegion* region = project_.regions; region != nullptr; region = region->next) {
      Require(region->prev == before, "a region names the one before");
      Require(region->isCustom == 0 && region->rule.isNull(), "a region that was read is not the owner's");
      before = region;
      PlainRegion made;
      made.name = plain(region->name);
      made.code = plain(region->code);
      made.regionValue = plain(region->regionValue);
      made.active = region->active;
      for (std::size_t i = 0; i < made.method.size(); ++i) made.method[i] = methodOf(*region, i);
      plain_.regions.push_back(std::move(made));
    }
    Require(project_.regionsTail == before, "the tail of the regions is the last one");
  }

  static PlainMethod methodOf(const FreightRegion& region, std::size_t index) {
    const FreightMethod* method = region.method[index];
    Require(method != nullptr, "a region has all its methods");
    PlainMethod made;
    made.active = method->active;
    made.rule = plain(method->rule);
    for (std::size_t i = 0; i < made.value.size(); ++i) made.value[i] = plain(method->value[i]);
    return made;
  }

  void readVariables() {
    const UserVariable* before = nullptr;
    for (const UserVariable* variable = project_.variables; variable != nullptr; variable = variable->next) {
      plain_.variables.push_back({plain(variable->name), plain(variable->value)});
      before = variable;
    }
    Require(project_.variablesTail == before, "the tail of the variables is the last one");
  }

  void readCards() {
    const CardEntry* before = nullptr;
    for (const CardEntry* card = project_.acceptedCards; card != nullptr; card = card->next) {
      Require(card->prev == before, "a card names the one before");
      plain_.cards.push_back({plain(card->name), card->custom});
      before = card;
    }
    Require(project_.currentCard == before, "the last card is current");
    for (const CardEntry* card = config_.cardCatalogue; card != nullptr; card = card->next) {
      plain_.cardSelected.push_back(card->selected);
    }
  }

  void readSchemes() {
    std::unordered_map<const SchemeRecord*, PlainScheme> places;
    const SchemeRecord* style = config_.schemeStyles;
    for (std::size_t i = 0; i < catalogue_.styles.size(); ++i, style = style->next) {
      places[style] = {i, kNone};
      std::size_t scheme = 0;
      for (const SchemeRecord* at = style->schemes; at != nullptr; at = at->next) places[at] = {i, scheme++};
    }
    const auto placeOf = [&](const SchemeRecord* record) {
      if (record == nullptr) return PlainScheme();
      Require(places.count(record) == 1, "a scheme is of the catalogue");
      return places[record];
    };
    plain_.projectScheme = placeOf(project_.projectScheme);
    plain_.currentScheme = placeOf(config_.currentScheme);
    plain_.currentStyle = placeOf(config_.currentStyle).style;
  }

  const StoreProject& project_;
  const AppConfig& config_;
  const PlainCatalogue& catalogue_;
  PlainProject plain_;
  std::unordered_map<const StoreNode*, std::size_t> numbers_;
  std::vector<const StoreNode*> order_;
};

bool isNullText(std::string_view text) { return text == std::string_view(&kNullText, 1); }

void translateBytes(char* bytes, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    if (byte >= 1 && byte <= kSpecialBytes.size()) bytes[i] = kSpecialBytes[byte - 1U];
  }
}

void translate(Text& text) {
  if (isNullText(text.view())) text.release();
  translateBytes(text.data(), text.view().size());
}

void translate(PlainText& text) {
  if (text && isNullText(*text)) text.reset();
  if (text) translateBytes(text->data(), text->size());
}

template <typename Record>
void translateFreight(Record& region) {
  translate(region.code);
  translate(region.regionValue);
}

template <typename Method>
void translateMethod(Method& method) {
  translate(method.rule);
  for (auto& value : method.value) translate(value);
}

}  // namespace

PlainProject Snapshot(const Program& program, const PlainCatalogue& catalogue) {
  return Reader(program, catalogue).run();
}

void Install(Program& program, const PlainCatalogue& catalogue) {
  AppConfig& config = program.config;
  for (const PlainCatalogue::Region& region : catalogue.regions) {
    FreightRegion* made = FreightRecordInit(nullptr);
    if (region.name) made->name.assign(*region.name);
    made->code.assign(region.code);
    RecordAppend(config.regionCatalogue, config.regionCatalogueTail, made);
  }
  for (const std::string& card : catalogue.cards) {
    CardEntry* made = CardEntryInit(nullptr);
    made->name.assign(card);
    RecordAppend(config.cardCatalogue, config.cardCatalogueTail, made);
  }
  SchemeStyle* lastStyle = nullptr;
  for (const PlainCatalogue::Style& style : catalogue.styles) {
    SchemeStyle* made = SchemeInit(nullptr);
    if (style.name) made->name.assign(*style.name);
    RecordAppend(config.schemeStyles, lastStyle, made);
    SchemeRecord* before = made;
    for (const PlainText& name : style.schemes) {
      Scheme* scheme = SchemeInit(nullptr);
      if (name) scheme->name.assign(*name);
      scheme->prev = before;
      (before == made ? made->schemes : before->next) = scheme;
      before = scheme;
    }
  }
}

void TranslateTexts(Program& program) {
  StoreProject& project = program.project;
  TreeWalk walk(project.root, true);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step != TreeWalk::Step::Node) continue;
    translate(walk.node()->title);
    for (Text* text : textsOf(*walk.node())) translate(*text);
  }
  for (Text& name : project.templateNames) translate(name);
  for (UserVariable* variable = project.variables; variable != nullptr; variable = variable->next) {
    translate(variable->name);
    translate(variable->value);
  }
  for (FreightRegion* region = project.regions; region != nullptr; region = region->next) {
    translateFreight(*region);
    for (FreightMethod* method : region->method) translateMethod(*method);
  }
  for (Text* text : {&project.webDir, &project.storeTitle, &project.tax.freightTaxRate, &project.orderMessage,
                     &project.confirmMessage, &project.currency}) {
    translate(*text);
  }
  for (Text& name : project.methodName) translate(name);
  for (CardEntry* card = project.acceptedCards; card != nullptr; card = card->next) translate(card->name);
}

void TranslateTexts(PlainProject& project) {
  for (PlainNode& node : project.nodes) {
    translate(node.title);
    std::erase_if(node.text, [](const auto& entry) { return isNullText(entry.second); });
    for (auto& [key, text] : node.text) translateBytes(text.data(), text.size());
  }
  for (PlainText& name : project.templateNames) translate(name);
  for (PlainVariable& variable : project.variables) {
    translate(variable.name);
    translate(variable.value);
  }
  for (PlainRegion& region : project.regions) {
    translateFreight(region);
    for (PlainMethod& method : region.method) translateMethod(method);
  }
  for (PlainText* text : {&project.webDir, &project.storeTitle, &project.freightTax, &project.orderMessage,
                          &project.confirmMessage, &project.currency}) {
    translate(*text);
  }
  for (PlainText& name : project.methodName) translate(name);
  for (PlainCard& card : project.cards) translate(card.name);
}

}  // namespace varlo::fuzz
