#include <array>
#include <iostream>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "cli/commands.h"
#include "cli/guarded_files.h"
#include "cli/headless_program.h"
#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/node_text.h"
#include "core/store/user_variable.h"
#include "core/text/charset.h"
#include "core/tree/store_tree.h"

namespace varlo {
namespace {

using Json = nlohmann::ordered_json;

// An absent text is left out of an object; in an array, where the position counts, it is null.
void put(Json& object, std::string_view key, const Text& text) {
  if (!text.isNull()) object[std::string(key)] = Utf8FromLatin1(text.view());
}

template <std::size_t Size>
Json arrayOf(const std::array<Text, Size>& texts) {
  Json array = Json::array();
  for (const Text& text : texts) array.push_back(text.isNull() ? Json() : Json(Utf8FromLatin1(text.view())));
  return array;
}

Json nodeJson(const StoreNode& node) {
  Json object{{"kind", static_cast<int>(node.kind)}, {"status", node.status}, {"modified", int{node.modified}}};
  for (const NodeText text : kAllNodeTexts) {
    if (!IsOption(text)) put(object, NameOf(text), TextOf(node, text));
  }
  object["field"] = arrayOf(node.field);
  object["label"] = arrayOf(node.label);
  return object;
}

Json regionJson(const FreightRegion& region) {
  Json object = Json::object();
  put(object, "code", region.code);
  put(object, "name", region.name);
  put(object, "regionValue", region.regionValue);
  for (const FreightMethod* method : region.method) {
    Json entry = Json::object();
    if (method != nullptr) {
      entry["active"] = int{method->active};
      put(entry, "rule", method->rule);
      entry["value"] = arrayOf(method->value);
    }
    object["methods"].push_back(std::move(entry));
  }
  return object;
}

template <typename Record, typename Convert>
Json listJson(const Record* head, Convert convert) {
  Json array = Json::array();
  for (; head != nullptr; head = head->next) array.push_back(convert(*head));
  return array;
}

Json cardJson(const CardEntry& card) {
  Json object = Json::object();
  put(object, "name", card.name);
  object["custom"] = card.custom;
  return object;
}

Json variableJson(const UserVariable& variable) {
  Json object = Json::object();
  put(object, "name", variable.name);
  put(object, "value", variable.value);
  return object;
}

Json taxJson(const TaxSettings& tax) {
  Json object{{"enabled", tax.taxEnabled}, {"option", tax.taxOption}};
  put(object, "freightRate", tax.freightTaxRate);
  return object;
}

Json settingsJson(const StoreProject& project) {
  Json object = Json::object();
  put(object, "file", project.projectFile);
  put(object, "storeTitle", project.storeTitle);
  put(object, "webDir", project.webDir);
  put(object, "currency", project.currency);
  object["fileVersion"] = project.fileVersion;
  put(object, "orderMessage", project.orderMessage);
  put(object, "confirmMessage", project.confirmMessage);
  object["tax"] = taxJson(project.tax);
  object["methodNames"] = arrayOf(project.methodName);
  object["cards"] = listJson(project.acceptedCards, cardJson);
  object["variables"] = listJson(project.variables, variableJson);
  object["templateNames"] = Json::array();
  for (const Text& name : project.templateNames) {
    if (!name.isNull()) object["templateNames"].push_back(Utf8FromLatin1(name.view()));
  }
  if (project.projectScheme != nullptr) object["scheme"] = Utf8FromLatin1(SchemePath(project.projectScheme));
  object["regions"] = listJson(project.regions, regionJson);
  return object;
}

// The object's text without its closing brace.
std::string openObject(const Json& object) {
  std::string text = object.dump();
  text.pop_back();
  return text;
}

// The tree goes out node by node, since a file may nest deeper than a recursive writer could follow.
void printTree(std::ostream& out, StoreNode* root) {
  TreeWalk walk(root, true);
  bool first = true;
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::EndOfBranch) {
      out << "]}";
      first = false;
      continue;
    }
    out << (first ? "\n" : ",\n") << openObject(nodeJson(*walk.node()));
    first = walk.node()->child != nullptr;
    out << (first ? ",\"children\":[" : "}");
  }
}

}  // namespace

int RunDump(Machine& machine, const CommandArguments& arguments) {
  GuardedFiles files(*machine.files);
  HeadlessProgram headless(machine, files);
  if (!headless.load(arguments.project)) return kExitFailed;
  const StoreProject& loaded = headless.program().project;
  std::cout << openObject(settingsJson(loaded)) << ",\"nodes\":[";
  printTree(std::cout, loaded.root);
  std::cout << "\n]}\n";
  return std::cout.flush() ? kExitDone : kExitFailed;
}

}  // namespace varlo
