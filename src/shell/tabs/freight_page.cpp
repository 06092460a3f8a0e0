#include "shell/tabs/freight_page.h"

#include <algorithm>
#include <numeric>

#include "commerce/freight/freight_editing.h"
#include "commerce/freight/freight_rows.h"
#include "commerce/wizard/wizard_dialog.h"
#include "core/forms/fields.h"
#include "core/program/program.h"
#include "platform/item_images.h"
#include "shell/state/guards.h"
#include "shell/state/shell.h"
#include "shell/tabs/form.h"

namespace varlo {
namespace {

using namespace freight;

constexpr int kCellLabel = 36;

constexpr Cell cellField(std::size_t number) {
  return Cell{.id = kCell1 + static_cast<ControlId>(number),
              .kind = Kind::Edit,
              .label = kFreightCellNames[number].label,
              .labelWidth = kCellLabel,
              .options = Option::RightLabel,
              .help = kCell1};
}
constexpr Row cellRow(std::size_t first) {
  return {{cellField(first), cellField(first + 1), cellField(first + 2), cellField(first + 3), cellField(first + 4),
           cellField(first + 5)}};
}

constexpr Row kRows[] = {
    {{{.id = kMethod,
       .kind = Kind::DropList,
       .label = "&Method:",
       .labelWidth = 60,
       .buttons = {{kWizard, "&Wizard", 72}, {kMethods, "Method&s", 72}}}}},
    {{{.id = kRegions,
       .kind = Kind::List,
       .label = "Country",
       .labelWidth = kLabelUnseen,
       .lines = kFill,
       .options = Option::ManyRows | Option::Marks}},
     4},
    {{{.kind = Kind::Text, .label = "Region:", .width = 52},
      {.id = kRegionName, .kind = Kind::Text, .options = Option::Plain}},
     4},
    cellRow(0),
    cellRow(6),
    {{{.id = kRule, .kind = Kind::Edit, .label = "&Advanced Freight Rules:", .labelWidth = 140}}, 4},
};

constexpr Field<FreightMethod> cellBinding(ControlId id, Text& (*text)(FreightMethod&)) {
  return {.id = id, .text = text, .whenEmpty = WhenEmpty::Absent, .cut = kFieldText};
}
template <std::size_t number>
constexpr Field<FreightMethod> cellBinding() {
  return cellBinding(kCell1 + static_cast<ControlId>(number),
                     [](FreightMethod& table) -> Text& { return table.value[number]; });
}
constexpr Field<FreightMethod> kFields[] = {
    cellBinding<0>(),
    cellBinding<1>(),
    cellBinding<2>(),
    cellBinding<3>(),
    cellBinding<4>(),
    cellBinding<5>(),
    cellBinding<6>(),
    cellBinding<7>(),
    cellBinding<8>(),
    cellBinding<9>(),
    cellBinding<10>(),
    cellBinding<11>(),
    cellBinding(kRule, [](FreightMethod& table) -> Text& { return table.rule; }),
};

bool isCell(ControlId control) {
  return control >= kCell1 && control < kCell1 + static_cast<ControlId>(kFreightCells);
}

}  // namespace

constinit const DialogShape FreightPage::kShape{.id = kWindow, .form = Form::Page, .rows = kRows};

struct FreightPage::MenuRow {
  std::string_view label;
  Command command = Command::None;
  void (FreightPage::*run)(Dialog& page) = nullptr;
};
const FreightPage::MenuRow FreightPage::kMenu[] = {
    {"Add/Remove &Regions", Command::RegionAddRemove, &FreightPage::addOrRemoveRegions},
    {"&Copy", Command::RegionCopy, &FreightPage::copy},
    {"&Paste", Command::RegionPaste, &FreightPage::paste},
    {"&Clear", Command::RegionClear, &FreightPage::clear},
    {"&Import", Command::RegionImport, &FreightPage::import},
    {"&Enable", Command::RegionEnable, &FreightPage::enable},
    {"&Disable", Command::RegionDisable, &FreightPage::disable},
    {"Delete", Command::RegionDelete, &FreightPage::remove},
    {"Select &All", Command::RegionSelectAll, &FreightPage::selectAllRegions},
};

void FreightPage::prepare(Dialog& page) {
  StoreProject& project = shell_.program.project;
  project.currentMethod = 0;
  project.currentRegion = project.regions;
  page.setColumns(kRegions, FreightColumns());
  fillMethods(page);
  fillRegions(page);
}

// A method without a name is not offered.
void FreightPage::fillMethods(Dialog& page) {
  const StoreProject& project = shell_.program.project;
  page.clearRows(kMethod);
  int row = 0;
  int shown = kNoRow;
  for (std::size_t slot = 0; slot < kFreightMethods; ++slot) {
    if (!project.methodName[slot].isSet()) continue;
    page.addRow(kMethod, project.methodName[slot].view());
    if (static_cast<std::int32_t>(slot) == project.currentMethod) shown = row;
    ++row;
  }
  page.selectRow(kMethod, shown);
}

void FreightPage::fillRegions(Dialog& page) {
  const Raised filling(filling_);
  StoreProject& project = shell_.program.project;
  rows_ = StoreRegions(project);
  order_.resize(rows_.size());
  std::iota(order_.begin(), order_.end(), 0);
  page.setRowCount(kRegions, static_cast<int>(rows_.size()));
  if (rowOf(project.currentRegion) == kNoRow) project.currentRegion = project.regions;
  if (project.currentRegion != nullptr) page.selectRow(kRegions, rowOf(project.currentRegion));
}

void FreightPage::refillList(Dialog& page, PageList list) {
  if (list != PageList::Freight) return;
  fillMethods(page);
  fillRegions(page);
  loadForm(shell_);
}

void FreightPage::fill(Dialog& page) {
  StoreProject& project = shell_.program.project;
  if (project.currentRegion == nullptr) project.currentRegion = project.regions;
  const FreightRegion* region = project.currentRegion;
  const FreightMethod* table = region == nullptr ? nullptr : CurrentTable(project, *region);
  page.setText(kRegionName, region == nullptr ? std::string_view() : region->name.view());
  FillFields<FreightMethod>(page, kFields, table == nullptr ? FreightMethod() : *table);
}

void FreightPage::read(Dialog& page) {
  const StoreProject& project = shell_.program.project;
  FreightMethod* table = project.currentRegion == nullptr ? nullptr : CurrentTable(project, *project.currentRegion);
  if (table == nullptr) return;
  ReadFields<FreightMethod>(page, kFields, *table);
  page.repaintRow(kRegions, rowOf(project.currentRegion));
}

void FreightPage::notified(Dialog& page, const ControlEvent& event) {
  if (event.control == kMethod && event.notice == Notice::Posted) {
    methodChosen(page);
    return;
  }
  TabPage::notified(page, event);
  if (event.notice == Notice::Changed && isCell(event.control)) digitsOnly(page, event.control);
  if (event.control == kMethod && !filling_) page.post(kMethod);
  if (event.control == kRegions) inList(page, event);
  if (event.notice == Notice::Clicked) pressed(event.control);
}

// The field has the text of a row only after the notice of its choice.
void FreightPage::methodChosen(Dialog& page) {
  StoreProject& project = shell_.program.project;
  const std::int32_t slot = FreightMethodNamed(project, page.text(kMethod));
  if (slot == project.currentMethod) return;
  project.currentMethod = slot;
  project.currentRegion = project.regions;
  fillMethods(page);
  fillRegions(page);
  loadForm(shell_);
}

void FreightPage::inList(Dialog& page, const ControlEvent& event) {
  switch (event.notice) {
    case Notice::SelectionChanged:
      if (!filling_) regionChosen(event.row);
      break;
    case Notice::Clicked:
      shell_.program.view.showHelp(kRegions);
      break;
    case Notice::DoubleClicked:
      doubleClicked(page, event.row);
      break;
    case Notice::RightClicked:
      regionChosen(event.row);
      showMenu(page);
      break;
    case Notice::HeadingClicked:
      sort(page, event.column);
      break;
    case Notice::KeyPressed:
      keyPressed(page, event);
      break;
    default:
      break;
  }
}

void FreightPage::regionChosen(int row) {
  FreightRegion* region = regionOf(row);
  if (region == nullptr) return;
  shell_.program.project.currentRegion = region;
  loadForm(shell_);
}

// Deliberate: it does not mark the project as changed.
void FreightPage::doubleClicked(Dialog& page, int row) {
  FreightRegion* region = regionOf(row);
  if (region == nullptr) return;
  ToggleOffered(shell_.program.project, *region);
  page.repaintRow(kRegions, row);
}

void FreightPage::sort(Dialog& page, int column) {
  SortFreightRows(shell_.program.project, rows_, order_, column);
  page.orderRows(kRegions, order_);
}

void FreightPage::keyPressed(Dialog& page, const ControlEvent& event) {
  if (event.key == Key::Delete) remove(page);
  if (event.key == Key::A && event.withControl) selectAll(page);
}

// Nothing in the menu is ever grey.
void FreightPage::showMenu(Dialog& page) {
  PopupMenu menu;
  for (const MenuRow& row : kMenu) menu.push_back({.label = std::string(row.label), .command = row.command});
  const Command chosen = shell_.program.screen.popupMenu(menu);
  const auto* row = std::ranges::find(kMenu, chosen, &MenuRow::command);
  if (row != std::end(kMenu)) (this->*row->run)(page);
}

void FreightPage::pressed(ControlId button) {
  if (button == kWizard) RunWizard(shell_.program, shell_.wizard, WizardMode::Freight);
  if (button == kMethods) RunWizard(shell_.program, shell_.wizard, WizardMode::Methods);
}

void FreightPage::repaintRows(Dialog& page) const {
  for (const int row : order_) page.repaintRow(kRegions, row);
}

void FreightPage::addOrRemoveRegions(Dialog& /*page*/) {
  RunWizard(shell_.program, shell_.wizard, WizardMode::Regions);
}

void FreightPage::copy(Dialog& /*page*/) { FreightCopy(shell_.program); }

void FreightPage::paste(Dialog& page) {
  FreightPaste(shell_.program, selectedRegions(page));
  repaintRows(page);
}

void FreightPage::clear(Dialog& page) {
  FreightClear(shell_.program, selectedRegions(page));
  repaintRows(page);
}

void FreightPage::import(Dialog& /*page*/) { shell_.program.screen.postCommand(Command::ImportFreight); }

void FreightPage::enable(Dialog& page) {
  FreightEnable(shell_.program, selectedRegions(page));
  repaintRows(page);
}

void FreightPage::disable(Dialog& page) {
  FreightDisable(shell_.program, selectedRegions(page));
  repaintRows(page);
}

// The list is filled anew on the way.
void FreightPage::remove(Dialog& page) { FreightDelete(shell_.program, selectedRegions(page)); }

bool FreightPage::selectAll(Dialog& page) {
  page.selectAllRows(kRegions);
  return true;
}

void FreightPage::selectAllRegions(Dialog& page) { selectAll(page); }

std::string FreightPage::cellText(ControlId /*list*/, int row, int column) {
  const FreightRegion* region = regionOf(row);
  return region == nullptr ? std::string() : std::string(FreightCellText(shell_.program.project, *region, column));
}

int FreightPage::rowMark(ControlId /*list*/, int row) {
  const FreightRegion* region = regionOf(row);
  return region != nullptr && IsOffered(shell_.program.project, *region) ? item_image::kTick : item_image::kCross;
}

FocusPlace FreightPage::focusPlaceOf(ControlId control) const {
  return control == kRegions ? FocusPlace::RegionList : FocusPlace::Elsewhere;
}

FreightRegion* FreightPage::regionOf(int row) const {
  const auto number = static_cast<std::size_t>(row);
  return number < rows_.size() ? rows_[number] : nullptr;
}

int FreightPage::rowOf(const FreightRegion* region) const {
  const auto found = std::find(rows_.begin(), rows_.end(), region);
  return found == rows_.end() ? kNoRow : static_cast<int>(found - rows_.begin());
}

std::vector<FreightRegion*> FreightPage::selectedRegions(Dialog& page) const {
  std::vector<FreightRegion*> selected;
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (page.isRowSelected(kRegions, static_cast<int>(row))) selected.push_back(rows_[row]);
  }
  return selected;
}

}  // namespace varlo
