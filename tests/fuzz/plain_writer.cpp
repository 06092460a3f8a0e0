#include "tests/fuzz/plain_writer.h"

#include <algorithm>

namespace varlo::fuzz {
namespace {

class Writer {
 public:
  explicit Writer(PlainFile& file) : file_(file) {}

  void piece(const std::string& text) {
    if (text.size() > 3095) file_.cut = true;
    file_.bytes.append(text, 0, 3095);
  }
  void line(const std::string& key, const std::string& value) { piece(key + "=" + value + "\n"); }
  void line(const std::string& key, int value) { line(key, std::to_string(value)); }
  void lineIfSet(const std::string& key, const PlainText& value) {
    if (!value.value_or("").empty()) line(key, *value);
  }
  void lines(const std::string& key, const PlainText& value) { line(key, Escaped(value.value_or(""))); }

  void node(const PlainNode& node) {
    line("NODE" + std::to_string(node.kind), node.title.value_or(""));
    line("STATUS", node.status);
    line("MOD", node.modified);
    for (const auto& [key, text] : node.text) {
      lineIfSet(std::string(kTextKeys[key]), key == kBodyText ? Escaped(text) : text);
    }
  }

  void tree(const PlainProject& project) {
    struct Open {
      const std::vector<std::size_t>& list;
      std::size_t next = 0;
    };
    std::vector<Open> open{{project.top}};
    for (;;) {
      Open& at = open.back();
      if (at.next == at.list.size()) {
        open.pop_back();
        if (open.empty()) return;
        piece("#EOB\n");
        continue;
      }
      const PlainNode& current = project.nodes[at.list[at.next++]];
      node(current);
      if (at.next % 12 == 0) file_.counts.push_back(static_cast<int>(at.next));
      if (current.children.empty() || current.kind == kProduct) continue;
      piece("#BRANCH\n");
      open.push_back({current.children});
    }
  }

  void method(const PlainRegion& region, std::size_t index) {
    const PlainMethod& method = region.method[index];
    piece("$" + region.code.value_or("") + std::to_string(index));
    for (const PlainText& value : method.value) piece("," + value.value_or(""));
    piece("," + region.regionValue.value_or(""));
    piece(",|" + std::to_string(method.active) + "\n");
    if (method.rule) line("RULE", std::to_string(index) + "," + *method.rule);
  }

 private:
  PlainFile& file_;
};

}  // namespace

PlainFile PlainWrite(PlainProject& project, const PlainCatalogue& catalogue, std::int64_t time) {
  PlainFile file;
  Writer writer(file);
  writer.line("TIME", std::to_string(time));
  writer.line("VERSION", "107001");
  writer.line("OWNER", "Varlo PRO");
  writer.tree(project);
  for (const PlainText& name : project.templateNames) {
    if (name) writer.line("TPL", *name);
  }
  for (PlainVariable& variable : project.variables) {
    if (variable.name)
      variable.name->erase(std::remove(variable.name->begin(), variable.name->end(), '|'), variable.name->end());
    writer.line("VAR", variable.name.value_or("") + "|" + Escaped(variable.value.value_or("")));
  }
  for (const PlainRegion& region : project.regions) {
    for (std::size_t index = 0; index < region.method.size(); ++index) writer.method(region, index);
  }
  const PlainScheme& scheme = project.projectScheme;
  const bool named = !scheme.isNone() && !catalogue.styles[scheme.style].schemes[scheme.scheme].value_or("").empty();
  if (named) writer.line("LAYOUT", PathOf(catalogue, scheme));
  writer.lineIfSet("WEB", project.webDir);
  writer.lineIfSet("STITLE", project.storeTitle);
  writer.lineIfSet("TAXF", project.freightTax);
  writer.lines("OMESSAGE", project.orderMessage);
  writer.lines("CMESSAGE", project.confirmMessage);
  writer.line("VO", project.versionOrder);
  writer.line("VC", project.versionConfirm);
  writer.line("TAXD", project.taxEnabled);
  writer.line("TAXO", project.taxOption);
  writer.line("CURR", project.currency.value_or(""));
  for (std::size_t index = 0; index < project.methodName.size(); ++index) {
    if (project.methodName[index]) writer.line("FNAME", std::to_string(index) + "," + *project.methodName[index]);
  }
  for (const PlainCard& card : project.cards) {
    writer.line("CC", std::to_string(card.custom) + ":" + card.name.value_or(""));
  }
  return file;
}

}  // namespace varlo::fuzz
