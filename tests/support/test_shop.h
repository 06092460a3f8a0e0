// A small store on fakes with a generator, ready to be built: a scheme, a home page, a product, the cart
// templates and a log that records.
#pragma once

#include <string>
#include <vector>

#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/record.h"
#include "generator/state/generator.h"
#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo::test {

// A build's window that records what it is shown.
class RecordingBuildWindow : public BuildWindow {
 public:
  std::vector<std::string> lines;   // of the log
  std::vector<std::string> labels;  // in the order in which they were shown
  int progress = 0;
  int resets = 0;

  void clearLog() override { lines.clear(); }
  void addLogLine(std::string_view line) override { lines.emplace_back(line); }
  void stepProgress() override { ++progress; }
  void resetProgress() override {
    progress = 0;
    ++resets;
  }
  void showLabel(std::string_view label) override { labels.emplace_back(label); }
};

struct TestShop : TestProgram {
  Generator generator{program};
  RecordingBuildWindow window;
  StoreNode* home = AddCategory(program.project, "Home");
  StoreNode* ball = AddProduct(program.project, "Ball", home);

  TestShop() {
    generator.log.buildWindow = &window;
    project().projectFile.assign("C:\\Varlo\\Projects\\Shop\\Shop.stp");
    project().projectDir.assign("C:\\Varlo\\Projects\\Shop");
    project().webDir.assign("C:\\Web");
    project().storeTitle.assign("Toys");
    project().currency.assign("$");
    project().currentNode = project().root;
    home->fileName.assign("1.htm");
    ball->fileName.assign("2.htm");
    ball->productCode.assign("B1");
    config().orderServer.assign("http://orders.example");
    config().accountId.assign("shop-1234");
    files.putFolder("C:\\Web");
    files.putFolder("C:\\Varlo\\Projects\\Shop\\Web");
    project().projectScheme = addStyle("Style");
  }

  // A style at the end of the catalogue, which serves as a scheme as well.
  SchemeRecord* addStyle(const char* name) {
    SchemeRecord* style = SchemeInit(nullptr);
    style->name.assign(name);
    SchemeRecord*& head = config().schemeStyles;
    SchemeRecord* last = RecordLast(head);
    style->prev = last;
    (last == nullptr ? head : last->next) = style;
    return style;
  }
  Scheme& scheme() { return *project().projectScheme; }
  void accept(const char* card) {
    CardEntry* made = CardEntryInit(nullptr);
    made->name.assign(card);
    CardEntry* last = RecordLast(project().acceptedCards);
    RecordAppend(project().acceptedCards, last, made);
  }
  // A file of the site.
  std::string site(std::string_view name) {
    return files.content(std::string("C:\\Web\\").append(name)).value_or("(no file)");
  }
};

}  // namespace varlo::test
