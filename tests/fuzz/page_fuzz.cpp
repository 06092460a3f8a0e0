// Makes the pages of a small store that any bytes describe, twice: as a build does, in one pass wherever
// that is possible, and by the steps one after the other. Both must write the same files and leave the same
// messages, counters, composed text and nodes behind.
//
// An input is a line of records with a "~" between them; the first byte of each tells what it is:
//   !K text     template of kind K, a digit
//   +KSP        a node of kind K, status -S, placed P: "c" below the last node, "u" beside its parent, else
//               beside it
//   a letter of kFields, then a text of the last node; 1 to 6 and A to F are its fields and labels
//   v name=text a variable;  @N text  slot N of the scheme, counted from "a"
//   S C U V     title and currency of the store, account and server
//   G flags     letters: l keeps the case of links, d leaves the directory out, n is without a scheme, b
//               without a build window, s stops the walk, p is a preview of the scheme
//   * N         texts from here on are longer by N bytes, a character's number
//   P N, Q N    node N becomes the parent, or the previous node, of the last one
#include <array>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/program/scheme.h"
#include "core/store/user_variable.h"
#include "core/text/text_search.h"
#include "core/tree/store_tree.h"
#include "generator/build/user_variables.h"
#include "generator/pages/page_walk.h"
#include "generator/state/generator.h"
#include "tests/fuzz/plain_project.h"
#include "tests/support/test_program.h"

namespace varlo::fuzz {
namespace {

constexpr std::size_t kMostNodes = 24;
constexpr std::string_view kSite = "C:\\web\\";

struct Field {
  char letter;
  Text StoreNode::*text;
};
constexpr std::array<Field, 14> kFields{{{'t', &StoreNode::title},
                                         {'p', &StoreNode::pageTitle},
                                         {'c', &StoreNode::cost},
                                         {'i', &StoreNode::image},
                                         {'l', &StoreNode::imageLink},
                                         {'b', &StoreNode::body},
                                         {'d', &StoreNode::metaDescription},
                                         {'f', &StoreNode::fileName},
                                         {'m', &StoreNode::templateName},
                                         {'o', &StoreNode::productCode},
                                         {'r', &StoreNode::freight},
                                         {'w', &StoreNode::weight},
                                         {'x', &StoreNode::tax},
                                         {'k', &StoreNode::metaKeywords}}};

struct Window : BuildWindow {
  std::vector<std::string> calls;
  void clearLog() override { calls.emplace_back("clear"); }
  void addLogLine(std::string_view line) override { calls.push_back("line " + std::string(line)); }
  void stepProgress() override { calls.emplace_back("step"); }
  void resetProgress() override { calls.emplace_back("reset"); }
  void showLabel(std::string_view label) override { calls.push_back("label " + std::string(label)); }
};

class Shop {
 public:
  // `stepByStep` adds a variable that occurs nowhere and has no value, but whose name is none that can be
  // found in one pass.
  Shop(std::string_view input, bool stepByStep) {
    t_.project().projectDir.assign("C:\\shop");
    t_.project().webDir.assign("C:\\web");
    t_.project().projectScheme = t_.config().schemeStyles = SchemeInit(nullptr);
    t_.files.putFolder("C:\\web\\img");
    t_.files.put("C:\\p\\a.gif", "picture");
    t_.files.put("C:\\a.gif", "picture");
    generator_.log.buildWindow = &window_;
    for (std::size_t at = 0; at < input.size();) {
      const std::size_t end = std::min(input.find('~', at), input.size());
      if (end > at) take(input[at], input.substr(at + 1, end - at - 1));
      at = end + 1;
    }
    if (stepByStep) addVariable("<>").value.release();
    for (const std::string& name : t_.files.names()) given_.insert(name);
  }

  void build() {
    checkVariablesQuietly();
    BuildSiblings(generator_, t_.project().root);
    generator_.log.stopRequested = false;
    if (!nodes_.empty()) BuildPage(generator_, nodes_.back());  // as a preview does, whatever its status
  }

  // All that pages leave behind.
  [[nodiscard]] std::string result() {
    std::string all;
    for (const std::string& name : t_.files.names()) {
      all.append("file ").append(name).append("\n").append(*t_.files.content(name)).append("\n");
    }
    for (const std::string& call : window_.calls) all.append(call).append("\n");
    for (const auto& box : t_.screen.boxes) all.append("box ").append(box.text).append("\n");
    for (const Text& name : t_.project().templateNames) all.append("template ").append(name.view()).append("\n");
    for (const StoreNode* node : nodes_) {
      all.append("image ").append(node->image.view()).append(node->modified != 0 ? " modified\n" : "\n");
    }
    all.append(std::to_string(generator_.log.errorCount)).append(" ");
    all.append(std::to_string(generator_.log.warningCount)).append(" ");
    all.append(std::to_string(generator_.pageCounter)).append("\n").append(generator_.scratch);
    Require(t_.files.openHandles() == 0, "no file is left open");
    for (const std::string& name : t_.files.names()) {
      Require(EqualsNoCase(name.substr(0, kSite.size()), kSite) || given_.contains(name),
              "nothing is written outside of the site");
    }
    return all;
  }

 private:
  void take(char what, std::string_view rest) {
    if (what == '!') return putTemplate(rest);
    if (what == '+') return addNode(rest);
    if (what == 'v') return addNamed(rest);
    if (what == '@') return setSlot(rest);
    if (what == 'G') return setFlags(rest);
    if (what == '*') return setLength(rest);
    takeText(what, std::string(rest).append(length_, '.'));
    if ((what == 'P' || what == 'Q') && !nodes_.empty()) setLink(*nodes_.back(), what, rest);
  }

  void takeText(char what, std::string_view rest) {
    StoreProject& project = t_.project();
    if (what == 'S') project.storeTitle.assign(rest);
    if (what == 'C') project.currency.assign(rest);
    if (what == 'U') t_.config().accountId.assign(rest);
    if (what == 'V') t_.config().orderServer.assign(rest);
    if (nodes_.empty()) return;
    StoreNode& node = *nodes_.back();
    if (what >= '1' && what <= '6') node.field[static_cast<std::size_t>(what - '1')].assign(rest);
    if (what >= 'A' && what <= 'F' && what != 'C') node.label[static_cast<std::size_t>(what - 'A')].assign(rest);
    for (const Field& field : kFields) {
      if (field.letter == what) (node.*field.text).assign(rest);
    }
  }

  void putTemplate(std::string_view rest) {
    if (rest.empty()) return;
    const auto kind = static_cast<NodeKind>(rest.front() & 3);
    const std::string name(TraitsOf(kind).defaultTemplate);
    t_.files.put("C:\\shop\\template\\" + name, rest.substr(1));
    t_.files.put("C:\\Varlo\\template\\" + name, rest.substr(1));
  }

  void addNode(std::string_view how) {
    if (how.size() < 3 || nodes_.size() == kMostNodes) return;
    StoreNode* node = t_.project().nodes.allocate();
    node->kind = static_cast<NodeKind>(how[0] & 3);
    node->status = -(how[1] & 3);
    node->modified = 1;
    node->fileName.assign(std::to_string(nodes_.size()) + ".htm");
    StoreNode* last = nodes_.empty() ? nullptr : nodes_.back();
    nodes_.push_back(node);
    StoreNode* parent = last == nullptr ? nullptr : places_.back();
    if (how[2] == 'c' && last != nullptr && !IsProduct(*last)) {
      parent = last;
    } else if (how[2] == 'u' && parent != nullptr) {
      parent = parentOf(parent);
    }
    places_.push_back(parent);
    node->parent = parent;
    StoreNode*& head = parent == nullptr ? t_.project().root : parent->child;
    StoreNode* end = LastSibling(head);
    node->prev = end == nullptr ? parent : end;
    (end == nullptr ? head : end->next) = node;
  }

  // The true parent, whatever a link says.
  [[nodiscard]] StoreNode* parentOf(const StoreNode* node) const {
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
      if (nodes_[i] == node) return places_[i];
    }
    return nullptr;
  }

  void setLink(StoreNode& node, char what, std::string_view rest) {
    StoreNode* target = rest.empty() ? nullptr : nodes_[static_cast<unsigned char>(rest.front()) % nodes_.size()];
    if (target == &node) return;
    if (what == 'Q') node.prev = target;
    if (what == 'P' && (target == nullptr || !IsProduct(*target))) node.parent = target;
  }

  UserVariable& addVariable(std::string_view name) {
    UserVariable* variable = UserVariableInit(nullptr);
    variable->name.assign(name);
    UserVariableAppend(t_.project(), variable);
    return *variable;
  }
  void addNamed(std::string_view rest) {
    const std::size_t equals = rest.find('=');
    Text& value = addVariable(rest.substr(0, equals)).value;
    if (equals == std::string_view::npos) {
      value.release();
    } else {
      value.assign(std::string(rest.substr(equals + 1)).append(length_, '.'));
    }
  }

  void setLength(std::string_view rest) { length_ = rest.empty() ? 0 : static_cast<unsigned char>(rest.front()); }

  void setSlot(std::string_view rest) {
    if (rest.empty() || t_.project().projectScheme == nullptr) return;
    const auto number = static_cast<unsigned char>(rest.front() - 'a') % kSchemeSlots;
    t_.project().projectScheme->slot[number].assign(std::string(rest.substr(1)).append(length_, '.'));
  }

  void setFlags(std::string_view flags) {
    for (const char flag : flags) {
      if (flag == 'l') t_.config().lowerCaseLinks = 0;
      if (flag == 'd') t_.config().directoryLink = 0;
      if (flag == 'n') t_.project().projectScheme = nullptr;
      if (flag == 'b') generator_.log.buildWindow = nullptr;
      if (flag == 's') generator_.log.stopRequested = true;
      if (flag == 'p') generator_.useSetTemplates = true;
    }
  }

  // The variable that the second shop has besides must not show.
  void checkVariablesQuietly() {
    BuildWindow* window = generator_.log.buildWindow;
    generator_.log.buildWindow = nullptr;
    CheckUserVariables(generator_);
    generator_.log.buildWindow = window;
    generator_.log.errorCount = 0;
  }

  test::TestProgram t_;
  Generator generator_{t_.program};
  Window window_;
  std::vector<StoreNode*> nodes_;
  std::vector<StoreNode*> places_;  // the true parent of each
  std::set<std::string> given_;     // files that were there before
  std::size_t length_ = 0;          // what texts are longer by
};

void comparePages(std::string_view input) {
  Shop shop(input, false);
  Shop stepByStep(input, true);
  shop.build();
  stepByStep.build();
  RequireSameBytes("pages", stepByStep.result(), shop.result());
}

}  // namespace
}  // namespace varlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  varlo::fuzz::comparePages({reinterpret_cast<const char*>(data), size});
  return 0;
}
