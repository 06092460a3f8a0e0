#include "layout/scheme_selection.h"

#include <gtest/gtest.h>

#include "core/store/string_item.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;

class SchemeSelection : public testing::Test {
 protected:
  TestProgram t;

  void SetUp() override {
    t.config().schemeStyles = SchemeInit(nullptr);
    t.config().schemeStyles->schemes = SchemeInit(nullptr);
    t.config().schemeStyles->schemes->prev = t.config().schemeStyles;
    t.config().schemeStyles->next = SchemeInit(nullptr);
    t.config().schemeStyles->next->prev = t.config().schemeStyles;
  }
};

TEST_F(SchemeSelection, AStyleBringsItsFirstScheme) {
  SchemeStyle& style = *t.config().schemeStyles;
  style.schemes->next = SchemeInit(nullptr);
  StyleSelect(t.program, style);
  EXPECT_EQ(t.config().currentStyle, &style);
  EXPECT_EQ(t.config().currentScheme, style.schemes);
}

TEST_F(SchemeSelection, AStyleWithoutSchemesGetsADefaultOne) {
  SchemeStyle& style = *t.config().schemeStyles->next;
  StyleSelect(t.program, style);
  const Scheme* made = style.schemes;
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->name.view(), "Default");
  EXPECT_EQ(made->prev, &style);
  EXPECT_TRUE(made->slot[0].isSet());
  EXPECT_NE(made->files, nullptr);
  EXPECT_EQ(t.config().currentScheme, made);
  StyleSelect(t.program, style);
  EXPECT_EQ(style.schemes, made);
  EXPECT_EQ(made->next, nullptr);
}

}  // namespace
}  // namespace varlo
