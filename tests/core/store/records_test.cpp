// The small linked records: constructors with two faces, copies, releases, marks.

#include <gtest/gtest.h>

#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/freight_record.h"
#include "core/store/record.h"
#include "core/store/string_item.h"
#include "core/store/user_variable.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;

TEST(StringItem, InitReleasesTheTextAndTheLinksOfAGivenItem) {
  StringItem* item = StringItemInit(nullptr);
  EXPECT_TRUE(item->text.isNull());
  item->text.assign("img\\h1.gif");
  item->next = item;
  EXPECT_EQ(StringItemInit(item), item);
  EXPECT_TRUE(item->text.isNull());
  EXPECT_EQ(item->next, nullptr);
  StringItemListFree(item);
}

TEST(StringItem, CopyTakesTheTextAndNoLinks) {
  StringItem source;
  source.text.assign("a");
  source.next = &source;
  StringItem* copy = StringItemCopy(nullptr, &source);
  EXPECT_STREQ(copy->text.get(), "a");
  EXPECT_EQ(copy->next, nullptr);
  StringItemCopy(copy, nullptr);
  EXPECT_TRUE(copy->text.isNull());
  StringItemListFree(copy);
}

TEST(UserVariable, CopyTakesNameValueAndMark) {
  UserVariable source;
  source.name.assign("$A");
  source.value.assign("1");
  source.deleteMark = kVariableDeleteMark;
  source.next = &source;
  UserVariable* copy = UserVariableCopy(nullptr, source);
  EXPECT_STREQ(copy->name.get(), "$A");
  EXPECT_STREQ(copy->value.get(), "1");
  EXPECT_EQ(copy->deleteMark, 65535);
  EXPECT_EQ(copy->next, nullptr);
  EXPECT_EQ(UserVariableInit(copy), copy);
  EXPECT_TRUE(copy->name.isNull());
  delete copy;
}

TEST(UserVariable, AProjectWithoutAnyGetsTheNoticeOfItsRights) {
  StoreProject project;
  MakeDefaultVariable(project);
  ASSERT_NE(project.variables, nullptr);
  EXPECT_STREQ(project.variables->name.get(), "$COPYRIGHT");
  EXPECT_EQ(project.variables->value.view(), std::string("Copyright \xA9") + "2000");
  EXPECT_EQ(project.variablesTail, project.variables);
  EXPECT_EQ(project.currentVariable, project.variables);
  MakeDefaultVariable(project);
  EXPECT_EQ(project.variables->next, nullptr);
  UserVariableListFree(project, project.variables);
}

TEST(UserVariable, FreeingTheListClearsTheReferencesToItsRecords) {
  TestProgram t;
  StoreProject& project = t.project();
  for (int i = 0; i < 3; ++i) UserVariableAppend(project, UserVariableInit(nullptr));
  project.currentVariable = project.variables;
  UserVariable* rest = project.variables->next;
  project.variables->next = nullptr;
  UserVariableListFree(project, rest);
  EXPECT_NE(project.variables, nullptr);
  EXPECT_NE(project.currentVariable, nullptr);
  EXPECT_EQ(project.variablesTail, nullptr);
  UserVariableListFree(project, project.variables);
  EXPECT_EQ(project.variables, nullptr);
  EXPECT_EQ(project.currentVariable, nullptr);
}

// A project with variables of one letter each; "!" behind one marks it, and the current one is a capital.
struct Variables {
  StoreProject project;

  explicit Variables(std::string_view names) {
    for (const char c : names) {
      if (c == '!') {
        project.variablesTail->deleteMark = kVariableDeleteMark;
        continue;
      }
      UserVariable* variable = UserVariableInit(nullptr);
      variable->name.assign(std::string_view(&c, 1));
      UserVariableAppend(project, variable);
      if (c < 'a') project.currentVariable = variable;
    }
  }
  ~Variables() { UserVariableListFree(project, project.variables); }
  Variables(const Variables&) = delete;
  Variables& operator=(const Variables&) = delete;

  // The names in order, with the current one in brackets, once the tail is found to be what it is.
  [[nodiscard]] std::string show() const {
    std::string names;
    const UserVariable* last = nullptr;
    for (const UserVariable* variable = project.variables; variable != nullptr; variable = variable->next) {
      const bool isCurrent = variable == project.currentVariable;
      names.append(isCurrent ? "[" : "").append(variable->name.view()).append(isCurrent ? "]" : "");
      last = variable;
    }
    return last == project.variablesTail ? names : "tail";
  }
};

std::string afterInsert(std::string_view names) {
  Variables variables(names);
  UserVariable* added = UserVariableInit(nullptr);
  added->name.assign("+");
  UserVariableInsert(variables.project, added);
  return variables.show();
}

TEST(UserVariable, IsInsertedBehindTheCurrentOne) {
  EXPECT_EQ(afterInsert("Abc"), "[A]+bc");
  EXPECT_EQ(afterInsert("aBc"), "a[B]+c");
  EXPECT_EQ(afterInsert("abC"), "ab[C]+");
}

TEST(UserVariable, IsTheHeadOfAnEmptyListAndTheTailOfOneWithoutACurrentOne) {
  EXPECT_EQ(afterInsert(""), "+");
  EXPECT_EQ(afterInsert("ab"), "ab+");
}

std::string afterDeletion(std::string_view names) {
  Variables variables(names);
  UserVariablesDeleteMarked(variables.project);
  return variables.show();
}

TEST(UserVariable, DeletionTakesAllThatAreMarkedAndNoOthers) {
  EXPECT_EQ(afterDeletion("Ab!cd!e"), "[A]ce");
  EXPECT_EQ(afterDeletion("Abc"), "[A]bc");
  EXPECT_EQ(afterDeletion(""), "");
  EXPECT_EQ(afterDeletion("A!b!c!"), "");
}

TEST(UserVariable, BehindADeletedHeadTheNextOneIsHeadAndCurrent) {
  EXPECT_EQ(afterDeletion("A!bc"), "[b]c");
  EXPECT_EQ(afterDeletion("A!b!c"), "[c]");
  EXPECT_EQ(afterDeletion("a!bC"), "[b]C") << "Also when another was current.";
  EXPECT_EQ(afterDeletion("a!bC!"), "[b]");
}

TEST(UserVariable, BehindADeletedCurrentOneItsNeighbourIsCurrent) {
  EXPECT_EQ(afterDeletion("aB!c"), "a[c]");
  EXPECT_EQ(afterDeletion("aB!c!d"), "a[d]");
  EXPECT_EQ(afterDeletion("abC!"), "a[b]");
  EXPECT_EQ(afterDeletion("ab!C!"), "[a]");
}

void addCard(CardEntry*& head, CardEntry*& tail, const char* name) {
  CardEntry* card = CardEntryInit(nullptr);
  card->name.assign(name);
  RecordAppend(head, tail, card);
}

TEST(CardCatalogueMark, FindsTheExactNameOnly) {
  TestProgram t;
  AppConfig& config = t.config();
  addCard(config.cardCatalogue, config.cardCatalogueTail, "Visa");
  addCard(config.cardCatalogue, config.cardCatalogueTail, "Diners");
  EXPECT_EQ(CardCatalogueMark(config, "Diners", 1), 1);
  EXPECT_EQ(config.cardCatalogueTail->selected, 1);
  EXPECT_EQ(CardCatalogueMark(config, "visa", 1), 0);
  EXPECT_EQ(CardCatalogueMark(config, "Vis", 1), 0);
  EXPECT_EQ(CardCatalogueMark(config, nullptr, 1), 0);
  EXPECT_EQ(config.cardCatalogue->selected, 0);
  EXPECT_EQ(CardCatalogueMark(config, "Diners", 0), 1);
  EXPECT_EQ(config.cardCatalogueTail->selected, 0);
}

TEST(CardEntry, InitOfAnExistingOneLosesItsName) {
  CardEntry card;
  card.name.assign("Visa");
  card.custom = 1;
  EXPECT_EQ(CardEntryInit(&card), &card);
  EXPECT_TRUE(card.name.isNull());
  EXPECT_EQ(card.custom, 0);
}

TEST(RegionCatalogueMark, SetsActiveByTheExactName) {
  TestProgram t;
  AppConfig& config = t.config();
  FreightRegion* region = FreightRegionMake();
  region->name.assign("Australia");
  region->code.assign("AU");
  RecordAppend(config.regionCatalogue, config.regionCatalogueTail, region);
  EXPECT_EQ(RegionCatalogueMark(config, "Australia", 1), 1);
  EXPECT_EQ(region->active, 1);
  EXPECT_EQ(RegionCatalogueMark(config, "AU", 1), 0);
  EXPECT_EQ(RegionCatalogueMark(config, nullptr, 1), 0);
}

TEST(FreightRecord, ARegionHasAlwaysAllThreeMethods) {
  FreightRegion* region = FreightRegionMake();
  for (const FreightMethod* method : region->method) {
    ASSERT_NE(method, nullptr);
    EXPECT_EQ(method->active, 0);
    EXPECT_TRUE(method->value[11].isNull());
  }
  FreightRegionListFree(region);
}

TEST(FreightRecord, CopyLeavesNameCodeAndMethods) {
  FreightRecord source;
  source.name.assign("n");
  source.code.assign("c");
  source.rule.assign("r");
  source.regionValue.assign("v");
  source.value[3].assign("3");
  source.active = 1;
  source.buildMerged = 2;
  source.method[0] = &source;
  FreightRecord* copy = FreightRecordCopy(nullptr, &source);
  EXPECT_TRUE(copy->name.isNull());
  EXPECT_TRUE(copy->code.isNull());
  EXPECT_EQ(copy->method[0], nullptr);
  EXPECT_STREQ(copy->rule.get(), "r");
  EXPECT_STREQ(copy->regionValue.get(), "v");
  EXPECT_STREQ(copy->value[3].get(), "3");
  EXPECT_EQ(copy->active, 1);
  EXPECT_EQ(copy->buildMerged, 2);
  FreightRecordCopy(copy, nullptr);
  EXPECT_TRUE(copy->rule.isNull());
  delete copy;
}

// Styles Plain (Red, Blue) and Bold (Black).
class SchemeCatalogue : public testing::Test {
 protected:
  TestProgram t;
  AppConfig& config = t.config();
  SchemeStyle* plain = add(nullptr, "Plain");
  SchemeStyle* bold = add(plain, "Bold");
  Scheme* red = addScheme(plain, "Red");
  Scheme* blue = add(red, "Blue");
  Scheme* black = addScheme(bold, "Black");

  void SetUp() override { config.schemeStyles = plain; }

  static SchemeRecord* add(SchemeRecord* behind, const char* name) {
    SchemeRecord* record = SchemeInit(nullptr);
    record->name.assign(name);
    record->prev = behind;
    if (behind != nullptr) behind->next = record;
    return record;
  }
  static Scheme* addScheme(SchemeStyle* style, const char* name) {
    Scheme* scheme = add(nullptr, name);
    style->schemes = scheme;
    scheme->prev = style;
    return scheme;
  }
};

TEST_F(SchemeCatalogue, LocateMakesASchemeAndItsStyleCurrent) {
  EXPECT_EQ(SchemeLocate(config, plain, blue, 0), 1);
  EXPECT_EQ(config.currentStyle, plain);
  EXPECT_EQ(config.currentScheme, blue);
  EXPECT_EQ(SchemeLocate(config, plain, black, 0), 1);
  EXPECT_EQ(config.currentStyle, bold);
  EXPECT_EQ(config.currentScheme, black);
}

TEST_F(SchemeCatalogue, LocateOfAStyleChangesNothing) {
  EXPECT_EQ(SchemeLocate(config, plain, bold, 0), 1);
  EXPECT_EQ(config.currentStyle, nullptr);
  EXPECT_EQ(config.currentScheme, nullptr);
}

TEST_F(SchemeCatalogue, LocateOfAForeignRecordFails) {
  Scheme foreign;
  EXPECT_EQ(SchemeLocate(config, plain, &foreign, 0), 0);
  EXPECT_EQ(config.currentScheme, nullptr);
}

TEST_F(SchemeCatalogue, PathNamesStyleAndScheme) {
  EXPECT_EQ(SchemePath(red), "Plain/Red");
  EXPECT_EQ(SchemePath(blue), "Plain/Blue");
  EXPECT_EQ(SchemePath(black), "Bold/Black");
  EXPECT_EQ(SchemePath(nullptr), "");
}

TEST_F(SchemeCatalogue, PathWithoutAStyleHasAnEmptyLeftPart) {
  Scheme lone;
  lone.name.assign("Lone");
  EXPECT_EQ(SchemePath(&lone), "/Lone");
}

TEST_F(SchemeCatalogue, FindByPathIsTheInverse) {
  EXPECT_EQ(SchemeFindByPath(config, plain, "Plain/Blue"), 1);
  EXPECT_EQ(config.currentScheme, blue);
  EXPECT_EQ(config.currentStyle, plain);
  EXPECT_EQ(SchemeFindByPath(config, plain, "Bold/Black"), 1);
  EXPECT_EQ(config.currentScheme, black);
}

TEST_F(SchemeCatalogue, FindByPathComparesWithCaseAndLeavesBothOnAMiss) {
  config.currentScheme = red;
  config.currentStyle = bold;
  for (const char* path : {"plain/Red", "Plain/red", "Plain/Re", "Plain/Reds", "Plain", "", "/Red"}) {
    EXPECT_EQ(SchemeFindByPath(config, plain, path), 0) << path;
  }
  EXPECT_EQ(config.currentScheme, red);
  EXPECT_EQ(config.currentStyle, bold);
}

TEST_F(SchemeCatalogue, AnyCharacterMayStandBetweenTheNames) {
  EXPECT_EQ(SchemeFindByPath(config, plain, "Plain:Blue"), 1);
  EXPECT_EQ(config.currentScheme, blue);
}

TEST_F(SchemeCatalogue, FindByPathSkipsStylesWithoutNameOrSchemes) {
  SchemeStyle* empty = add(bold, "Empty");
  SchemeStyle* nameless = add(empty, nullptr);
  addScheme(nameless, "Red");
  EXPECT_EQ(SchemeFindByPath(config, plain, "Empty/"), 0);
  EXPECT_EQ(SchemeFindByPath(config, empty, "/Red"), 0);
}

TEST_F(SchemeCatalogue, CopyTakesSlotsAndItsOwnFilesInOrder) {
  StringItem* tail = nullptr;
  for (const char* file : {"a.gif", "b.gif"}) {
    StringItem* item = StringItemInit(nullptr);
    item->text.assign(file);
    RecordAppend(red->files, tail, item);
  }
  red->slot[30].assign("x");
  red->type = kSchemeOwn;
  red->customColours[0] = 9;
  SchemeRecord* copy = SchemeCopy(nullptr, red);
  EXPECT_STREQ(copy->name.get(), "Red");
  EXPECT_STREQ(copy->slot[30].get(), "x");
  EXPECT_EQ(copy->type, kSchemeOwn);
  EXPECT_EQ(copy->customColours[0], 0);
  EXPECT_EQ(copy->schemes, nullptr);
  EXPECT_EQ(copy->prev, nullptr);
  ASSERT_NE(copy->files, nullptr);
  EXPECT_NE(copy->files, red->files);
  EXPECT_STREQ(copy->files->text.get(), "a.gif");
  EXPECT_STREQ(copy->files->next->text.get(), "b.gif");
  EXPECT_EQ(copy->files->next->prev, copy->files);
  SchemeListFree(t.program, copy);
}

TEST_F(SchemeCatalogue, FreeingAStyleFreesItsSchemesAndClearsWhatNamesThem) {
  config.currentStyle = plain;
  config.currentScheme = red;
  t.project().projectScheme = blue;
  plain->next = nullptr;
  SchemeListFree(t.program, plain);
  EXPECT_EQ(config.schemeStyles, nullptr);
  EXPECT_EQ(config.currentStyle, nullptr);
  EXPECT_EQ(config.currentScheme, nullptr);
  EXPECT_EQ(t.project().projectScheme, nullptr);
  bold->prev = nullptr;
  config.schemeStyles = bold;
}

}  // namespace
}  // namespace varlo
