#include "persist/project/project_parse.h"

#include <cstring>
#include <string>
#include <vector>

#include "core/program/program.h"
#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/record.h"
#include "core/store/user_variable.h"
#include "core/text/line_escape.h"
#include "core/text/line_reader.h"
#include "core/text/number_text.h"
#include "core/text/text_search.h"
#include "core/tree/store_tree.h"
#include "persist/project/freight_lines.h"
#include "persist/project/key_index.h"
#include "persist/project/node_keys.h"

namespace varlo {
namespace {

constexpr std::string_view kBranch = "#BRANCH";
constexpr std::string_view kEndOfBranch = "#EOB";

// Older files had lists as shelves with a list template.
constexpr std::int32_t kFirstVersionWithLists = 105001;

// Nodes of a level between two updates of the count on the screen.
constexpr int kNodesPerCount = 12;

class Parser {
 public:
  Parser(Program& program, LineReader& reader, bool merging)
      : program_(program), project_(program.project), reader_(reader), merging_(merging), freight_(program, true) {}

  StoreNode* run(StoreNode* parent, StoreNode* previous);

 private:
  // What is local to a nesting level.
  struct Level {
    StoreNode* parent;  // of the nodes of this level
    StoreNode* previous;
    StoreNode* head = nullptr;
    StoreNode* lastNode = nullptr;  // what key lines apply to
    FreightRegion* region = nullptr;
    std::size_t templateCount = 0;
    int sinceCount = 0;
  };
  using Handler = void (Parser::*)(std::string_view value);
  struct Row {
    std::string_view key;
    Handler read;
    bool whenMerging = true;
  };
  static constexpr std::size_t kRows = 24;
  static const std::array<Row, kRows> kRowTable;
  static KeyIndex makeIndex();

  Level& level() { return levels_.back(); }
  void openLevel(StoreNode* parent, StoreNode* previous);
  StoreNode* closeLevel();
  bool readMark(std::string_view line);
  void readKey(std::string_view line);
  void readNodeText(const NodeKey& key, std::string_view value);
  void addNode(NodeKind kind, std::string_view title);

  template <NodeKind kKind>
  void node(std::string_view value) {
    addNode(kKind, value);
  }
  template <Text StoreProject::*kMember>
  void projectText(std::string_view value) {
    (project_.*kMember).assignLine(value);
  }
  template <Text StoreProject::*kMember>
  void projectLines(std::string_view value) {
    (project_.*kMember).assignLine(UnescapeLines(value, scratch_));
  }
  template <std::int32_t StoreProject::*kMember>
  void projectNumber(std::string_view value) {
    project_.*kMember = LeadingInt(value);
  }
  void status(std::string_view value);
  void modified(std::string_view value);
  void variable(std::string_view value);
  void freightTax(std::string_view value) { project_.tax.freightTaxRate.assignLine(value); }
  void taxEnabled(std::string_view value) { project_.tax.taxEnabled = LeadingInt(value); }
  void taxOption(std::string_view value) { project_.tax.taxOption = LeadingInt(value); }
  void templateName(std::string_view value);
  void card(std::string_view value);
  void layout(std::string_view value);
  void methodName(std::string_view value) { ReadMethodName(program_, value); }
  void rule(std::string_view value) { ReadFreightRule(level().region, value); }

  Program& program_;
  StoreProject& project_;
  LineReader& reader_;
  bool merging_;
  FreightLineReader freight_;
  std::vector<Level> levels_;
  CardEntry* lastCard_ = nullptr;
  std::string scratch_;
};

// Deliberate: there is no row for VC=, which is written and never read.
const std::array<Parser::Row, Parser::kRows> Parser::kRowTable{{
    {"NODE", &Parser::node<NodeKind::Category>},
    {"NODE0", &Parser::node<NodeKind::Category>},
    {"NODE1", &Parser::node<NodeKind::Product>},
    {"NODE2", &Parser::node<NodeKind::Shelf>},
    {"NODE3", &Parser::node<NodeKind::List>},
    {"UNODE", &Parser::node<NodeKind::Product>},
    {"STATUS", &Parser::status},
    {"MOD", &Parser::modified},
    {"VAR", &Parser::variable},
    {"STITLE", &Parser::projectText<&StoreProject::storeTitle>, false},
    {"TAXF", &Parser::freightTax},
    {"TAXD", &Parser::taxEnabled},
    {"TAXO", &Parser::taxOption},
    {"OMESSAGE", &Parser::projectLines<&StoreProject::orderMessage>},
    {"CMESSAGE", &Parser::projectLines<&StoreProject::confirmMessage>},
    {"TPL", &Parser::templateName},
    {"WEB", &Parser::projectText<&StoreProject::webDir>, false},
    {"CURR", &Parser::projectText<&StoreProject::currency>},
    {"CC", &Parser::card},
    {"LAYOUT", &Parser::layout, false},
    {"FNAME", &Parser::methodName},
    {"VERSION", &Parser::projectNumber<&StoreProject::fileVersion>},
    {"VO", &Parser::projectNumber<&StoreProject::templateVersionOrder>},
    {"RULE", &Parser::rule},
}};

StoreNode* Parser::run(StoreNode* parent, StoreNode* previous) {
  lastCard_ = RecordLast(project_.acceptedCards);
  openLevel(parent, previous);
  std::string_view line;
  while (LineReadTrimmed(reader_, line) != 0) {
    if (line.empty()) continue;
    if (line[0] == '$') {
      if (merging_) continue;
      FreightRegion* region = freight_.read(line);
      if (region != nullptr) level().region = region;
    } else if (line[0] == '#') {
      if (!readMark(line)) break;
    } else {
      readKey(line);
    }
  }
  StoreNode* head = nullptr;
  while (!levels_.empty()) head = closeLevel();
  return head;
}

void Parser::openLevel(StoreNode* parent, StoreNode* previous) {
  const bool onProduct = parent != nullptr && IsProduct(*parent);
  levels_.push_back({.parent = onProduct ? LiveParent(*parent) : parent, .previous = previous});
}

// Ends a level; its list becomes the child list of the node that opened it.
StoreNode* Parser::closeLevel() {
  StoreNode* head = level().head;
  levels_.pop_back();
  if (!levels_.empty()) level().lastNode->child = head;
  return head;
}

// A line that begins with "#"; false when it ends the reading.
bool Parser::readMark(std::string_view line) {
  if (line.starts_with(kEndOfBranch)) {
    if (levels_.size() == 1) return false;
    closeLevel();
  } else if (line.starts_with(kBranch) && level().lastNode != nullptr) {
    openLevel(level().lastNode, level().previous);
  }
  return true;
}

// One index for both tables: first the node texts, then the rows of this reader.
KeyIndex Parser::makeIndex() {
  KeyIndex index;
  for (std::size_t i = 0; i < kNodeKeys.size(); ++i) index.add(kNodeKeys[i].key, i);
  for (std::size_t i = 0; i < kRowTable.size(); ++i) index.add(kRowTable[i].key, kNodeKeys.size() + i);
  return index;
}

void Parser::readKey(std::string_view line) {
  static const KeyIndex kIndex = makeIndex();
  std::string_view value;
  const std::size_t found = kIndex.find(line, value);
  if (found == KeyIndex::kNone) return;
  if (found < kNodeKeys.size()) {
    if (level().lastNode != nullptr) readNodeText(kNodeKeys[found], value);
    return;
  }
  const Row& row = kRowTable[found - kNodeKeys.size()];
  if (row.whenMerging || !merging_) (this->*row.read)(value);
}

void Parser::readNodeText(const NodeKey& key, std::string_view value) {
  StoreNode& node = *level().lastNode;
  if (key.rule == NodeKeyRule::Escaped) value = UnescapeLines(value, scratch_);
  TextOf(node, key.text).assignLine(value);
  if (key.rule == NodeKeyRule::Template && node.kind == NodeKind::Shelf &&
      project_.fileVersion < kFirstVersionWithLists && FindNoCase(value, "list") != std::string_view::npos) {
    node.kind = NodeKind::List;
  }
}

void Parser::addNode(NodeKind kind, std::string_view title) {
  Level& at = level();
  StoreNode* node = project_.nodes.allocate();
  node->kind = kind;
  node->title.assignLine(title);
  node->parent = at.parent;
  node->prev = at.previous;
  (at.head == nullptr ? at.head : at.lastNode->next) = node;
  at.previous = at.lastNode = node;
  ++project_.nodesRead;
  if (++at.sinceCount < kNodesPerCount) return;
  at.sinceCount = 0;
  program_.screen.showTaskCount(project_.nodesRead);
}

void Parser::status(std::string_view value) {
  if (level().lastNode != nullptr) level().lastNode->status = LeadingInt(value);
}

void Parser::modified(std::string_view value) {
  if (level().lastNode != nullptr) level().lastNode->modified = static_cast<std::int8_t>(LeadingInt(value));
}

void Parser::variable(std::string_view value) {
  UserVariable* made = UserVariableInit(nullptr);
  const std::size_t bar = value.find('|');
  made->name.assignLine(value.substr(0, bar));
  if (bar != std::string_view::npos) {
    made->value.assignLine(UnescapeLines(value.substr(bar + 1, kVariableValue), scratch_));
  }
  UserVariableAppend(project_, made);
}

void Parser::templateName(std::string_view value) {
  std::size_t& count = level().templateCount;
  if (count < kTemplateNames) project_.templateNames[count++].assignLine(value);
}

void Parser::card(std::string_view value) {
  const std::size_t colon = value.find(':');
  if (colon == std::string_view::npos) return;
  CardEntry* made = CardEntryInit(nullptr);
  made->name.assignLine(value.substr(colon + 1));
  made->custom = LeadingInt(value);
  CardCatalogueMark(program_.config, made->name.get(), 1);
  RecordAppend(project_.acceptedCards, lastCard_, made);
  project_.currentCard = made;
}

// Deliberate: a path that names nothing known leaves the scheme that was current, which may be none.
void Parser::layout(std::string_view value) {
  AppConfig& config = program_.config;
  SchemeFindByPath(config, config.schemeStyles, value);
  project_.projectScheme = config.currentScheme;
  if (config.currentStyle == nullptr) config.currentStyle = config.schemeStyles;
  if (config.currentScheme == nullptr && config.schemeStyles != nullptr) {
    config.currentScheme = config.schemeStyles->schemes;
  }
  program_.view.loadSchemeLists();
}

}  // namespace

StoreNode* ProjectParse(Program& program, LineReader& reader, StoreNode* parent, StoreNode* previous, bool merging) {
  return Parser(program, reader, merging).run(parent, previous);
}

}  // namespace varlo
