#include "shell/window/toolbar.h"

#include <algorithm>

namespace varlo {
namespace {

constexpr ToolbarButton kSeparator{};
constexpr ToolbarButton kButtons[] = {
    {Command::NewStore, 0},
    {Command::OpenStore, 1},
    {Command::Save, 2},
    kSeparator,
    {Command::Upgrade, 3},
    {Command::Help, 4},
    {Command::ViewOrders, 6},
    kSeparator,
    {Command::NewProduct, 8},
    {Command::NewShelf, 9},
    {Command::NewList, 11},
    {Command::NewCategory, 10},
    kSeparator,
    {Command::BuildStore, 7},
    kSeparator,
    kSeparator,
    kSeparator,
    {Command::PreviewPage, 5},
    kSeparator,
    kSeparator,
    kSeparator,
};

struct ToolTip {
  Command command = Command::None;
  std::string_view text;
};
constexpr ToolTip kToolTips[] = {
    {Command::NewStore, "New Store"},
    {Command::OpenStore, "Open Store"},
    {Command::Save, "Save"},
    {Command::Upgrade, "Upgrade"},
    {Command::Help, "Help"},
    {Command::ViewOrders, "View Orders"},
    {Command::NewProduct, "New Product"},
    {Command::NewShelf, "New Shelf"},
    {Command::NewList, "New List"},
    {Command::NewCategory, "New Category"},
    {Command::BuildStore, "Build Store"},
    {Command::PreviewPage, "Preview Page"},
};

}  // namespace

std::span<const ToolbarButton> toolbarButtons() { return kButtons; }

std::string_view toolTipOf(Command command) {
  const auto* tip = std::ranges::find(kToolTips, command, &ToolTip::command);
  return tip == std::end(kToolTips) ? std::string_view() : tip->text;
}

}  // namespace varlo
