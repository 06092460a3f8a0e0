#include "layout/named_colours.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "layout/named_colour_table.h"

namespace varlo {
namespace {

// All names, each with a blank behind it.
constexpr std::string_view kNamesInOrder =
    "ALICEBLUE ANTIQUEWHITE AQUA AQUAMARINE AZURE BEIGE BISQUE BLACK BLANCHEDALMOND BLUE BLUEVIOLET BROWN "
    "BURLYWOOD CADETBLUE CHARTREUSE CHOCOLATE CORAL CORNFLOWERBLUE CORNSILK CRIMSON CYAN DARKBLUE DARKCYAN "
    "DARKGREEN DARKGOLDENROD DARKKHAKI DARKMAGENTA DARKOLIVEGREEN DARKORANGE DARKORCHID DARKRED DARKSALMON "
    "DARKTURQUOISE DARKSEAGREEN DARKSLATEBLUE DARKSLATEGRAY DEEPSKYBLUE DARKVIOLET DEEPPINK DIMGRAY "
    "DODGERBLUE FIREBRICK FLORALWHITE FORESTGREEN FUCHSIA GOLD GHOSTWHITE GOLDENROD GREEN GREENYELLOW "
    "HONEYDEW HOTPINK INDIANRED INDIGO IVORY KHAKI LAVENDER LAVENDERBLUSH LAWNGREEN LEMONCHIFFON LIGHTBLUE "
    "LIGHTCORAL LIGHTCYAN LIGHTSEAGREEN LIGHTGREEN LIGHTPINK LIGHTPINK LIGHTSALMON LIGHTSEAGREEN "
    "LIGHTSLATEGRAY LIGHTSKYBLUE LIGHTGOLDENRODYELLOW LIGHTYELLOW LIME LIMEGREEN LINEN MAGENTA MAROON "
    "MEDIUMAQUAMARINE MEDIUMBLUE MEDIUMPURPLE MEDIUMORCHID MEDIUMSEAGREEN MEDIUMSLATEBLUE MEDIUMTURQUOISE "
    "MEDIUMSPRINGGREEN MEDIUMVIOLETRED MIDNIGHTBLUE MINTCREAM MISTYROSE MOCCASIN NAVAJOWHITE NAVY OLDLACE "
    "OLIVE OLIVEDRAB ORANGE ORANGERED ORCHID PALEGOLDENROD PALEGREEN PALETURQUOISE PALEVIOLETRED PAPAYAWHIP "
    "PEACHPUFF PERU PINK PLUM PURPLE POWDERBLUE RED ROSYBROWN ROYALBLUE SADDLEBROWN SALMON SANDYBROWN "
    "SEAGREEN SEASHELL SIENNA SKYBLUE SLATEBLUE SLATEGRAY SNOW SPRINGGREEN STEELBLUE TAN TEAL THISTLE TOMATO "
    "TURQUOISE VIOLET WHEAT WHITE WHITESMOKE YELLOW YELLOWGREEN ";

TEST(NamedColourTable, HoldsItsNamesInOrder) {
  std::string names;
  for (const NamedColour& row : NamedColourTable) names.append(row.name) += ' ';
  EXPECT_EQ(names, kNamesInOrder);
}

TEST(NamedColourTable, EveryNameAndValueHasItsForm) {
  constexpr auto npos = std::string_view::npos;
  for (const NamedColour& row : NamedColourTable) {
    EXPECT_LE(row.name.size(), 20U) << row.name;
    EXPECT_EQ(row.name.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), npos) << row.name;
    EXPECT_EQ(row.value.size(), 6U) << row.name;
    EXPECT_EQ(row.value.find_first_not_of("0123456789ABCDEF"), npos) << row.name;
  }
}

TEST(NamedColourTable, TwoNamesStandTwiceWithTheSameValue) {
  std::set<std::string_view> names;
  std::multiset<std::string> again;
  for (const NamedColour& row : NamedColourTable) {
    if (names.insert(row.name).second) continue;
    again.insert(std::string(row.name).append(" ").append(row.value));
    EXPECT_EQ(ColourByName(row.name), row.value);
  }
  EXPECT_EQ(names.size(), 134U);
  EXPECT_EQ(again, (std::multiset<std::string>{"LIGHTSEAGREEN 20B2AA", "LIGHTPINK FFB6C1"}));
}

struct Row {
  const char* name;
  const char* value;
};
class RowTest : public testing::TestWithParam<Row> {};

TEST_P(RowTest, HasItsValue) { EXPECT_EQ(ColourByName(GetParam().name), GetParam().value); }

std::string nameOf(const testing::TestParamInfo<Row>& row) { return row.param.name; }

INSTANTIATE_TEST_SUITE_P(RowsThatDifferOnPurpose, RowTest,
                         testing::Values(Row{"DARKBLUE", "00008C"}, Row{"DARKMAGENTA", "8C008C"},
                                         Row{"DARKRED", "8C0000"}, Row{"INDIGO", "4A0084"},
                                         Row{"LIGHTGREEN", "94ED94"}, Row{"SIENNA", "87CEEB"},
                                         Row{"SKYBLUE", "A0522D"}),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(FirstMiddleAndLastRows, RowTest,
                         testing::Values(Row{"ALICEBLUE", "F0F8FF"}, Row{"BLACK", "000000"},
                                         Row{"INDIANRED", "CD5C5C"}, Row{"WHITE", "FFFFFF"},
                                         Row{"YELLOWGREEN", "9ACD32"}),
                         nameOf);
// Other tables of colours have other values under the first three names.
INSTANTIATE_TEST_SUITE_P(BasicColoursOfHtml, RowTest,
                         testing::Values(Row{"GREEN", "008000"}, Row{"MAROON", "800000"}, Row{"PURPLE", "800080"},
                                         Row{"AQUA", "00FFFF"}, Row{"BLUE", "0000FF"}, Row{"FUCHSIA", "FF00FF"},
                                         Row{"LIME", "00FF00"}, Row{"NAVY", "000080"}, Row{"OLIVE", "808000"},
                                         Row{"RED", "FF0000"}, Row{"TEAL", "008080"}, Row{"YELLOW", "FFFF00"}),
                         nameOf);

TEST(ColourByName, IgnoresCase) {
  for (const char* name : {"white", "White", "WHITE"}) EXPECT_EQ(ColourByName(name), "FFFFFF") << name;
}

TEST(ColourByName, KnowsNoLightGreys) {
  for (const char* name : {"GRAY", "DARKGRAY", "LIGHTGRAY", "SILVER", "GAINSBORO", "LIGHTSTEELBLUE"}) {
    EXPECT_EQ(ColourByName(name), std::nullopt) << name;
  }
}

TEST(ColourByName, TakesTheWholeNameOnly) {
  for (const char* name : {"WHIT", "WHITES", "WHITE ", " WHITE", "#WHITE", "FFFFFF"}) {
    EXPECT_EQ(ColourByName(name), std::nullopt) << name;
  }
}

TEST(ColourByName, AnEmptyTextIsNoName) { EXPECT_EQ(ColourByName(""), std::nullopt); }

}  // namespace
}  // namespace varlo
