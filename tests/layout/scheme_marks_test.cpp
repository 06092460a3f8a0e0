#include "layout/scheme_marks.h"

#include <gtest/gtest.h>

#include "core/store/store_project.h"

namespace varlo {
namespace {

TEST(StyleMark, FollowsWhoMadeTheStyle) {
  SchemeStyle style;
  for (const auto& [type, mark] : {std::pair{0, 22}, {1, 10}, {2, 26}}) {
    style.type = type;
    EXPECT_EQ(StyleMark(style), mark);
  }
}

TEST(SchemeMark, IsATickForTheStoresScheme) {
  StoreProject project;
  Scheme shipped;
  Scheme own;
  own.type = kSchemeOwn;
  EXPECT_EQ(SchemeMark(project, shipped), 22);
  EXPECT_EQ(SchemeMark(project, own), 26);
  project.projectScheme = &own;
  EXPECT_EQ(SchemeMark(project, own), 27);
  EXPECT_EQ(SchemeMark(project, shipped), 22);
}

}  // namespace
}  // namespace varlo
