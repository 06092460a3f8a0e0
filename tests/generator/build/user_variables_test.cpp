#include "generator/build/user_variables.h"

#include <gtest/gtest.h>

#include "core/store/user_variable.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;

constexpr const char* kReservedNames[] = {"$SHELF",
                                          "$BODY",
                                          "$DESCRIPTION",
                                          "$PAGETITLE",
                                          "$STORETITLE",
                                          "$MESSAGE",
                                          "$KEYWORDS",
                                          "$UPDATED",
                                          "$INDEX",
                                          "$BACK",
                                          "$CURRENCY",
                                          "$HOMELINK",
                                          "$HOMETITLE",
                                          "$PRODUCT",
                                          "$PRODUCTS",
                                          "$PRODUCT2",
                                          "$PRODUCTS2",
                                          "$SUBINDEX",
                                          "$URL",
                                          "$USER",
                                          "$META_TITLE",
                                          "$META_DESCRIPTION",
                                          "$META_KEYWORDS",
                                          "$HEADING",
                                          "$FILENAME",
                                          "$BUTTON_ADD",
                                          "$BUTTON_REMOVE",
                                          "$BUTTON_BACK",
                                          "$BGCOLOR",
                                          "$BG_COLOR",
                                          "$TEXT_COLOR",
                                          "$LINK_COLOR",
                                          "$VLINK_COLOR",
                                          "$ALINK_COLOR",
                                          "$MENUCOLOR",
                                          "$BULLET_A",
                                          "$BULLET_O",
                                          "$BULLET_F",
                                          "$BULLET_G",
                                          "$ADD",
                                          "$REMOVE",
                                          "$COST",
                                          "$CODE",
                                          "$FREIGHT",
                                          "$WEIGHT",
                                          "$PRICE",
                                          "$VARLO_SERVER",
                                          "$IMAGE",
                                          "$LINK",
                                          "$TITLE",
                                          "$VERSION",
                                          "$_VERSION",
                                          "$_PRODUCT",
                                          "$FRAME",
                                          "$NAME",
                                          "$+B",
                                          "$-B",
                                          "$HEADING2",
                                          "$HEADING3",
                                          "$LISTCOLOR",
                                          "$FRAMECOLOR",
                                          "$FORM_COLOR",
                                          "$HEADINGTEXTCOLOR",
                                          "$HEADINGCOLOR",
                                          "$CONFIRM",
                                          "$F1",
                                          "$F2",
                                          "$F3",
                                          "$F4",
                                          "$F5",
                                          "$F6",
                                          "$FIELD1",
                                          "$FIELD2",
                                          "$FIELD3",
                                          "$FIELD4",
                                          "$FIELD5",
                                          "$FIELD6",
                                          "$LABEL1",
                                          "$LABEL2",
                                          "$LABEL3",
                                          "$LABEL4",
                                          "$LABEL5",
                                          "$LABEL6"};

TEST(UserVariables, EachReservedNameIsIllegalAndSoIsItsCommaBehind) {
  for (const std::string name : kReservedNames) {
    EXPECT_TRUE(IsIllegalVariableName(name)) << name;
    EXPECT_TRUE(IsIllegalVariableName(name + ",")) << name;
  }
}

TEST(UserVariables, TheListIsOneTextInThisOrder) {
  for (const char* joint : {"$SHELF,$BODY,$DESCRIPTION", "$UPDATED,$INDEX", "$BULLET_G,$BODY,$ADD", "$WEIGHT,$PRICE",
                            "$-B,$HEADING2", "$FRAMECOLOR,$FORM_COLOR", "$CONFIRM,$F1", "$LABEL5,$LABEL6,"}) {
    EXPECT_TRUE(IsIllegalVariableName(joint)) << joint;
  }
}

TEST(UserVariables, NamesThatTheListLacksAreLegal) {
  for (const char* name : {"$TAX", "$BUY", "$FORMCOLOR", "$ACCEPTED_CARDS", "$COPYRIGHT", "$NEW", "$TITLES", "$link",
                           "COPY", "$$", "$LABEL7", "$F7", "$PRODUCT3", "$BULLET_B"}) {
    EXPECT_FALSE(IsIllegalVariableName(name)) << name;
  }
}

TEST(UserVariables, AnyPartOfTheListIsIllegal) {
  for (const char* name : {"$F", "ODY", "$", ",", "", "$FORM", "OR,$FORM_", "2", "$PRO"}) {
    EXPECT_TRUE(IsIllegalVariableName(name)) << name;
  }
}

TEST(UserVariables, ANameThatHoldsOneReplacedEarlierIsIllegal) {
  for (const char* name : {"$PAGETITLE", "$STORETITLE", "$DESCRIPTION", "$BODY", "$KEYWORDS", "$UPDATED", "$SHELF"}) {
    EXPECT_TRUE(IsIllegalVariableName(std::string("x") + name + "x")) << name;
  }
  EXPECT_FALSE(IsIllegalVariableName("x$INDEXx")) << "others may be held";
}

TEST(UserVariables, TheCheckLogsAndCountsEachIllegalNameInOrderAndGivesTheirNumber) {
  TestShop t;
  for (const char* name : {"$BODY", "$COPYRIGHT", "$F", ""}) {
    UserVariable* variable = UserVariableInit(nullptr);
    variable->name.assign(name);
    UserVariableAppend(t.project(), variable);
  }
  UserVariableAppend(t.project(), UserVariableInit(nullptr));  // without a name at all
  EXPECT_EQ(CheckUserVariables(t.generator), 4);
  EXPECT_THAT(t.window.lines, ElementsAre("error: $BODY: illegal variable name", "error: $F: illegal variable name",
                                          "error: : illegal variable name", "error: : illegal variable name"));
  EXPECT_EQ(t.generator.log.errorCount, 4);
  EXPECT_EQ(t.project().variables->name.view(), "$BODY") << "the variable stays";
}

TEST(UserVariables, AProjectWithoutVariablesPasses) {
  TestShop t;
  EXPECT_EQ(CheckUserVariables(t.generator), 0);
  EXPECT_EQ(t.generator.log.errorCount, 0);
}

}  // namespace
}  // namespace varlo
