#include "tests/fuzz/plain_reader.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>

namespace varlo::fuzz {
namespace {

constexpr int kVersionWithLists = 105001;
constexpr int kVersionWithForms = 103001;
constexpr int kVersionNow = 107001;

constexpr std::size_t kLineCut = 19968;

// The decimal number at the front: white space, a sign, digits; wraps at 32 bits.
int number(std::string_view text) {
  std::size_t at = text.find_first_not_of(" \t\n\v\f\r");
  if (at == std::string_view::npos) return 0;
  const char sign = text[at];
  if (sign == '-' || sign == '+') ++at;
  std::uint32_t value = 0;
  for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
    value = value * 10U + static_cast<std::uint32_t>(text[at]) - '0';
  }
  return static_cast<int>(sign == '-' ? 0U - value : value);
}

int signedByte(int value) { return static_cast<std::int8_t>(value); }

class Reader {
 public:
  Reader(PlainProject& project, const PlainCatalogue& catalogue, bool merging)
      : project_(project), catalogue_(catalogue), merging_(merging) {
    for (std::size_t i = 0; i < project.regions.size(); ++i) {
      regionByCode_.try_emplace(Lower(project.regions[i].code.value_or("")), i);
    }
  }

  // Takes the freight lines alone, and of these all but the value of the region.
  void runFreight(std::string_view file) {
    levels_.emplace_back();
    isImport_ = true;
    PlainLines lines(file);
    std::string line;
    while (lines.next(line)) {
      line = WithoutEnd(line.substr(0, line.find('\0')));
      const std::string key = line.substr(0, line.find('='));
      if (line.rfind('$', 0) == 0) readFreight(line);
      if (key == "FNAME" || key == "RULE") readKey(line);
    }
  }

  std::vector<int> run(std::string_view file, std::size_t parent, std::vector<std::size_t>& list) {
    levels_.push_back({.parent = holder(parent)});
    PlainLines lines(file);
    std::string line;
    while (lines.next(line)) {
      if (!readLine(WithoutEnd(line.substr(0, line.find('\0'))))) break;
    }
    while (levels_.size() > 1) endLevel();
    list.insert(list.end(), levels_[0].list.begin(), levels_[0].list.end());
    return std::move(counts_);
  }

 private:
  struct Level {
    std::size_t parent = kNone;
    std::size_t owner = kNone;  // the node above
    std::vector<std::size_t> list;
    std::size_t region = kNone;
    std::size_t templates = 0;
    int count = 0;
  };

  std::size_t holder(std::size_t node) const {
    return node != kNone && project_.nodes[node].kind == kProduct ? project_.nodes[node].parent : node;
  }

  PlainNode* lastNode() {
    const std::vector<std::size_t>& list = levels_.back().list;
    return list.empty() ? nullptr : &project_.nodes[list.back()];
  }

  void endLevel() {
    const Level ended = std::move(levels_.back());
    levels_.pop_back();
    project_.nodes[ended.owner].children = ended.list;
  }

  bool readLine(const std::string& line) {
    if (line.rfind('$', 0) == 0) {
      if (!merging_) readFreight(line);
      return true;
    }
    if (line.rfind("#EOB", 0) == 0) {
      if (levels_.size() == 1) return false;
      endLevel();
      return true;
    }
    if (line.rfind("#BRANCH", 0) == 0) {
      if (lastNode() == nullptr) return true;
      const std::size_t owner = levels_.back().list.back();
      levels_.push_back({.parent = holder(owner), .owner = owner});
      return true;
    }
    if (line[0] != '#') readKey(line);
    return true;
  }

  void readKey(const std::string& line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) return;
    const std::string key = line.substr(0, equals);
    const std::string value = line.substr(equals + 1);
    if (readNodeStart(key, value) || readNodeLine(key, value) || readNumber(key, value)) return;
    if (key == "VAR") readVariable(value);
    if (key == "STITLE" && !merging_) project_.storeTitle = value;
    if (key == "WEB" && !merging_) project_.webDir = value;
    if (key == "LAYOUT" && !merging_) readLayout(value);
    if (key == "TAXF") project_.freightTax = value;
    if (key == "OMESSAGE") project_.orderMessage = Unescaped(value);
    if (key == "CMESSAGE") project_.confirmMessage = Unescaped(value);
    if (key == "CURR") project_.currency = value;
    if (key == "CC") readCard(value);
    if (key == "TPL" && levels_.back().templates < 20) project_.templateNames[levels_.back().templates++] = value;
    if (key == "FNAME") {
      if (PlainText* name = indexed(value, project_.methodName)) *name = value.substr(value.find(',') + 1);
    }
    if (key == "RULE" && levels_.back().region != kNone) {
      std::array<PlainMethod, 3>& methods = project_.regions[levels_.back().region].method;
      if (PlainMethod* method = indexed(value, methods)) method->rule = value.substr(value.find(',') + 1);
    }
  }

  // Whether the key is that of a number of the project; there is none for VC.
  bool readNumber(const std::string& key, const std::string& value) {
    int* target = key == "TAXD"      ? &project_.taxEnabled
                  : key == "TAXO"    ? &project_.taxOption
                  : key == "VERSION" ? &project_.fileVersion
                  : key == "VO"      ? &project_.versionOrder
                                     : nullptr;
    if (target != nullptr) *target = number(value);
    return target != nullptr;
  }

  // The element that "index,text" names; null without a comma or such an index.
  template <typename Element>
  static Element* indexed(const std::string& value, std::array<Element, 3>& elements) {
    const int index = number(value);
    if (value.find(',') == std::string::npos || index < 0 || index > 2) return nullptr;
    return &elements[static_cast<std::size_t>(index)];
  }

  bool readNodeStart(const std::string& key, const std::string& value) {
    static const std::unordered_map<std::string, int> kKinds{{"NODE", 0},  {"NODE0", 0}, {"NODE1", 1},
                                                             {"NODE2", 2}, {"NODE3", 3}, {"UNODE", 1}};
    const auto found = kKinds.find(key);
    if (found == kKinds.end()) return false;
    Level& level = levels_.back();
    PlainNode node;
    node.kind = found->second;
    node.title = value;
    node.parent = level.parent;
    node.prev = level.list.empty() ? level.owner : level.list.back();
    level.list.push_back(project_.nodes.size());
    project_.nodes.push_back(std::move(node));
    ++total_;
    if (++level.count % 12 == 0) counts_.push_back(total_);
    return true;
  }

  // Whether the key is one of a node's lines, be there a node or not.
  bool readNodeLine(const std::string& key, const std::string& value) {
    const auto found = std::find(kTextKeys.begin(), kTextKeys.end(), key);
    const bool isText = found != kTextKeys.end();
    if (!isText && key != "STATUS" && key != "MOD") return false;
    PlainNode* node = lastNode();
    if (node == nullptr) return true;
    if (key == "STATUS") node->status = number(value);
    if (key == "MOD") node->modified = signedByte(number(value));
    if (!isText) return true;
    const auto index = static_cast<std::size_t>(found - kTextKeys.begin());
    node->text[index] = index == kBodyText ? Unescaped(value) : value;
    const bool listTemplate = index == kTemplateText && Lower(value).find("list") != std::string::npos;
    if (listTemplate && node->kind == kShelf && project_.fileVersion < kVersionWithLists) node->kind = kList;
    return true;
  }

  void readVariable(const std::string& value) {
    const std::size_t bar = value.find('|');
    PlainVariable variable;
    variable.name = value.substr(0, bar);
    if (bar != std::string::npos) variable.value = Unescaped(value.substr(bar + 1, 4048));
    project_.variables.push_back(variable);
  }

  void readCard(const std::string& value) {
    const std::size_t colon = value.find(':');
    if (colon == std::string::npos) return;
    const std::string name = value.substr(colon + 1);
    project_.cards.push_back({name, number(value)});
    const auto known = std::find(catalogue_.cards.begin(), catalogue_.cards.end(), name);
    if (known == catalogue_.cards.end()) return;
    project_.cardSelected[static_cast<std::size_t>(known - catalogue_.cards.begin())] = 1;
  }

  void readLayout(const std::string& value) {
    const PlainScheme found = FindPath(catalogue_, value);
    if (!found.isNone()) {
      project_.currentScheme = found;
      project_.currentStyle = found.style;
    }
    project_.projectScheme = project_.currentScheme;
    if (catalogue_.styles.empty()) return;
    if (project_.currentStyle == kNone) project_.currentStyle = 0;
    if (project_.currentScheme.isNone() && !catalogue_.styles[0].schemes.empty()) project_.currentScheme = {0, 0};
  }

  void readFreight(const std::string& line) {
    const std::size_t comma = line.find(',');
    if (comma == std::string::npos || comma < 2) return;
    const int method = number(line.substr(comma - 1, 1));
    if (method > 2) return;
    const std::size_t index = regionOf(line.substr(1, comma - 2));
    levels_.back().region = index;
    PlainRegion& region = project_.regions[index];
    readFreightValues(line, region, region.method[static_cast<std::size_t>(method)]);
  }

  std::size_t regionOf(const std::string& code) {
    const auto [place, isNew] = regionByCode_.try_emplace(Lower(code), project_.regions.size());
    if (isNew) project_.regions.emplace_back();
    PlainRegion& region = project_.regions[place->second];
    for (const PlainCatalogue::Region& known : catalogue_.regions) {
      if (Lower(known.code) != Lower(code)) continue;
      region.name = known.name;
      region.code = known.code;
      region.active = 0;
      break;
    }
    if (region.name.value_or("").empty()) region.name = region.code = code;
    return place->second;
  }

  void readFreightValues(const std::string& line, PlainRegion& region, PlainMethod& method) const {
    const std::size_t bar = line.find('|');
    method.active = bar == std::string::npos ? 1 : signedByte(number(line.substr(bar + 1)));
    const std::string values = line.substr(0, bar);
    std::size_t comma = values.find(',');
    for (std::size_t i = 0; i <= method.value.size() && comma != std::string::npos; ++i) {
      const std::size_t next = values.find(',', comma + 1);
      const std::string value = values.substr(comma + 1, next == std::string::npos ? next : next - comma - 1);
      if (i < method.value.size()) method.value[i] = value;
      if (i == method.value.size() && !isImport_) region.regionValue = value;
      comma = next;
    }
  }

  PlainProject& project_;
  const PlainCatalogue& catalogue_;
  bool merging_;
  bool isImport_ = false;
  std::vector<Level> levels_;
  std::unordered_map<std::string, std::size_t> regionByCode_;
  int total_ = 0;
  std::vector<int> counts_;
};

// Renews the order form of a project of an older version.
void migrate(PlainProject& project, PlainMachine& machine) {
  if (project.fileVersion < kVersionWithForms) {
    ++machine.boxes;
    project.dirty = 1;
    if (machine.hasTemplateFolder && machine.shippedOrder) machine.form[0] = machine.shippedOrder;
  }
  project.fileVersion = kVersionNow;
}

}  // namespace

bool PlainLines::next(std::string& line) {
  line.clear();
  std::size_t raw = 0;
  while (line.size() < kLineCut) {
    const std::string_view block = file_.substr(at_, std::min<std::size_t>(256, kLineCut - line.size()));
    if (block.empty()) break;
    at_ += block.size();
    std::size_t searched = line.size();
    line += block;
    raw += block.size();
    if (raw <= kLineCut && line[0] == '\0') {
      line.erase(0, 1);
      if (searched > 0) --searched;
    }
    const std::size_t lineEnd = line.find('\n', searched);
    if (lineEnd == std::string::npos) continue;
    at_ -= line.size() - (lineEnd + 1);
    line.resize(lineEnd + 1);
    break;
  }
  return !line.empty();
}

std::vector<int> PlainParse(PlainProject& project, const PlainCatalogue& catalogue, std::string_view file,
                            std::size_t parent, bool merging, std::vector<std::size_t>& list) {
  return Reader(project, catalogue, merging).run(file, parent, list);
}

void PlainClose(PlainProject& project) {
  project.webDir.reset();
  project.storeTitle.reset();
  project.freightTax.reset();
  project.templateNames = {};
  project.nodes.clear();
  project.top.clear();
  project.regions.clear();
  project.variables.clear();
  project.cards.clear();
  project.projectScheme = project.currentScheme = {};
  project.currentStyle = kNone;
  std::fill(project.cardSelected.begin(), project.cardSelected.end(), 0);
}

std::vector<int> PlainLoad(PlainProject& project, PlainMachine& machine, const PlainCatalogue& catalogue,
                           std::string_view file) {
  PlainClose(project);
  std::vector<std::size_t> list;
  std::vector<int> counts = PlainParse(project, catalogue, file, kNone, false, list);
  project.top = list;
  migrate(project, machine);
  for (std::size_t i = 0; i < project.form.size(); ++i) {
    // A file without a byte leaves the slot as it was, as a missing one does.
    if (!machine.form[i].value_or("").empty()) machine.slot[i] = *machine.form[i];
    project.form[i] = machine.slot[i];
  }
  if (!project.currency) project.currency = "$";
  return counts;
}

void PlainMerge(PlainProject& project, const PlainCatalogue& catalogue, std::string_view file, std::size_t current) {
  project.dirty = 1;
  std::vector<std::size_t> merged;
  PlainParse(project, catalogue, file, current, true, merged);
  if (merged.empty()) return;
  project.nodes[merged[0]].parent = project.nodes[current].parent;
  std::vector<std::size_t>* home = &project.top;
  for (PlainNode& node : project.nodes) {
    if (std::find(node.children.begin(), node.children.end(), current) != node.children.end()) home = &node.children;
  }
  home->insert(home->end(), merged.begin(), merged.end());
}

void PlainImportFreight(PlainProject& project, const PlainCatalogue& catalogue, std::string_view file) {
  project.dirty = 1;
  for (PlainRegion& region : project.regions) region.method = {};
  Reader(project, catalogue, false).runFreight(file);
}

}  // namespace varlo::fuzz
