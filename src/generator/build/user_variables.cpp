#include "generator/build/user_variables.h"

#include <algorithm>
#include <array>

#include "core/program/program.h"
#include "core/store/user_variable.h"
#include "generator/state/build_messages.h"
#include "generator/state/generator.h"

namespace varlo {
namespace {

// Deliberate: $BODY stands here twice, $FORM_COLOR is spelt so though the order form's variable is
// $FORMCOLOR, and $TAX, $BUY, $FORMCOLOR and $ACCEPTED_CARDS are missing, so that stores have variables of
// those names.
constexpr std::string_view kReserved =
    "$SHELF,$BODY,$DESCRIPTION,$PAGETITLE,$STORETITLE,$MESSAGE,$KEYWORDS,$UPDATED,$INDEX,$BACK,$CURRENCY,$HOMELINK,"
    "$HOMETITLE,$PRODUCT,$PRODUCTS,$PRODUCT2,$PRODUCTS2,$SUBINDEX,$URL,$USER,$META_TITLE,$META_DESCRIPTION,"
    "$META_KEYWORDS,$HEADING,$FILENAME,$BUTTON_ADD,$BUTTON_REMOVE,$BUTTON_BACK,$BGCOLOR,$BG_COLOR,$TEXT_COLOR,"
    "$LINK_COLOR,$VLINK_COLOR,$ALINK_COLOR,$MENUCOLOR,$BULLET_A,$BULLET_O,$BULLET_F,$BULLET_G,$BODY,$ADD,$REMOVE,"
    "$COST,$CODE,$FREIGHT,$WEIGHT,$PRICE,$VARLO_SERVER,$IMAGE,$LINK,$TITLE,$VERSION,$_VERSION,$_PRODUCT,$FRAME,$NAME,"
    "$+B,$-B,$HEADING2,$HEADING3,$LISTCOLOR,$FRAMECOLOR,$FORM_COLOR,$HEADINGTEXTCOLOR,$HEADINGCOLOR,$CONFIRM,$F1,$F2,"
    "$F3,$F4,$F5,$F6,$FIELD1,$FIELD2,$FIELD3,$FIELD4,$FIELD5,$FIELD6,$LABEL1,$LABEL2,$LABEL3,$LABEL4,$LABEL5,"
    "$LABEL6,";

constexpr std::array<std::string_view, 7> kReplacedBefore{"$PAGETITLE", "$STORETITLE", "$DESCRIPTION", "$BODY",
                                                          "$KEYWORDS",  "$UPDATED",    "$SHELF"};

}  // namespace

bool IsIllegalVariableName(std::string_view name) {
  // Every part of the list counts, not only whole names; the empty name is a part of any text.
  if (kReserved.find(name) != std::string_view::npos) return true;
  return std::any_of(kReplacedBefore.begin(), kReplacedBefore.end(),
                     [name](std::string_view part) { return name.find(part) != std::string_view::npos; });
}

int CheckUserVariables(Generator& generator) {
  int illegal = 0;
  for (const UserVariable* variable = generator.program.project.variables; variable != nullptr;
       variable = variable->next) {
    if (!IsIllegalVariableName(variable->name.view())) continue;
    LogError(generator.log, FillMessage(message::kIllegalVariableName, variable->name.view()));
    ++illegal;
  }
  return illegal;
}

}  // namespace varlo
