#include "commerce/wizard/wizard_shapes.h"

#include <algorithm>
#include <array>

#include "commerce/cards/card_page.h"
#include "commerce/freight/region_page.h"
#include "commerce/tax/tax_pages.h"

namespace varlo {
namespace {

using namespace wizard;

constexpr Cell text(std::string_view words, int lines = 1) {
  return Cell{.kind = Kind::Text, .label = words, .lines = lines};
}
constexpr Cell edit(ControlId id, std::string_view label, int labelWidth = kLabelAbove, int width = 0) {
  return Cell{.id = id, .kind = Kind::Edit, .label = label, .labelWidth = labelWidth, .width = width};
}
constexpr Cell radio(ControlId id, std::string_view label, int lines = 1) {
  return Cell{.id = id, .kind = Kind::Radio, .label = label, .lines = lines};
}
constexpr Cell space() { return Cell{.kind = Kind::Space, .lines = kFill}; }

constexpr int kGap = 8;  // between the paragraphs of a page

constexpr Row kWelcomeTexts[] = {
    {{text("Welcome to Varlo PRO.")}},
    {{text("This wizard will guide you through the process of creating a new online store.")}, kGap},
    {{space()}},
    {{text("Click NEXT to begin.")}},
};
constexpr Row kWelcome[] = {
    {{{.kind = Kind::Icon, .width = 40}, {.kind = Kind::Box, .rows = kWelcomeTexts}}},
};

constexpr Row kFolderRows[] = {
    {{edit(kFolder, "Enter a folder name for your new store project:")}},
    {{text("Note: This is where your store project files will be stored on your computer.  This name will not appear "
           "anywhere in your online store.",
           2)},
     kGap},
};

constexpr Row kTitleRows[] = {
    {{edit(kTitle, "Enter the title of your store.  eg: 'The Fine Wine Shop':")}},
    {{text("Note: You will be able to change the store title later.")}, kGap},
};

constexpr Cell schemeList(ControlId id, std::string_view label) {
  return Cell{.id = id,
              .kind = Kind::List,
              .label = label,
              .labelWidth = kLabelUnseen,
              .lines = kFill,
              .options = Option::Marks | Option::FixedHeadings};
}
constexpr Row kPreviewRows[] = {
    {{{.id = kPicture, .kind = Kind::Picture, .lines = kFill}}},
};
constexpr Row kLayout[] = {
    {{text("Please select a default style and scheme to use with your store.   ")}},
    {{schemeList(kStyles, "Select Style"),
      schemeList(kSchemes, "Select Schema"),
      {.kind = Kind::Group, .label = " Preview:", .width = 264, .rows = kPreviewRows}},
     4},
    {{{.kind = Kind::Space}, {.id = kPreview, .kind = Kind::Button, .label = "&Preview Layout", .width = 120}}},
    {{text("Note: Later you will be able to use the layout editor to customize the appearance of your store.")}},
};

constexpr Cell message(ControlId id, std::string_view name) {
  return Cell{.id = id,
              .kind = Kind::Lines,
              .label = name,
              .labelWidth = kLabelUnseen,
              .lines = kFill,
              .options = Option::Returns};
}
constexpr Row kOrder[] = {
    {{text(
        "Enter a message which is to be displayed at the bottom of your order form page.  This can be your contact "
        "details, delivery infromation etc:",
        2)}},
    {{message(kOrderMessage, "Order form message")}},
    {{text("Note: You may include HTML tags.")}},
};
constexpr Row kConfirmation[] = {
    {{text("Enter a confirmation message, which a customer will receive after placing an order:")}},
    {{message(kConfirmMessage, "Confirmation message")}},
    {{text("Note: You may include HTML tags.")}},
};

constexpr Row kFreightStart[] = {
    {{text("This wizard will now configure the automatic freight calculation feature of the shopping cart.")}},
    {{text("WARNING!!!  - By clicking the NEXT button, your current freight information will be lost.  Click CANCEL "
           "to abort.",
           2)},
     kGap},
};

constexpr Row kMethodFields[] = {
    {{edit(kMethod1, "1.", 20)}},
    {{edit(kMethod2, "2.", 20)}},
    {{edit(kMethod3, "3.", 20)}},
};
constexpr Row kMethodTexts[] = {
    {{text("You can give customers a choice from up to three different delivery methods:")}},
    {{text("Please enter a brief, descriptive name for each method:")}, kGap},
};
constexpr Row kMethods[] = {
    {{{.kind = Kind::Box, .rows = kMethodTexts}}},
    {{{.kind = Kind::Box, .rows = kMethodFields}}, 4},
    {{space()}},
    {{text("Click NEXT to continue.........")}},
};
constexpr Row kLoneMethodRows[] = {
    {{{.kind = Kind::Box, .rows = kMethodTexts}}},
    {{{.kind = Kind::Box, .rows = kMethodFields}}, 4},
};

constexpr std::string_view labelOf(FreightCalculation calculation) {
  return kFreightCalculations[static_cast<std::size_t>(calculation)].label;
}
constexpr Row kCalculation[] = {
    {{text("Select the method, by which delivery charges should be calculated :")}},
    {{radio(kByWeight, labelOf(FreightCalculation::ByWeight))}, 4},
    {{radio(kPerItem, labelOf(FreightCalculation::PerItem))}},
    {{radio(kPerOrder, labelOf(FreightCalculation::PerOrder))}},
    {{radio(kNoCharge, labelOf(FreightCalculation::NoCharge))}},
    {{{.id = kExplanation, .kind = Kind::Text, .lines = 6}}, kGap},
};

constexpr Row kPriceRows[] = {
    {{text("Customers from the selected regions will be charged a set rate per order.   Customers from other regions "
           "will not be able to place orders.",
           2)}},
    {{text("Please enter how much each customer will be charged for freight:")}, kGap},
    {{edit(kPrice, "Freight charge per order:", 140, 260)}, 4},
};

constexpr Row kTaxChoice[] = {
    {{radio(kTaxOn, "Tax enabled shopping cart.")}},
    {{radio(kTaxOff, "No tax ")}},
};
constexpr Row kTaxEnable[] = {
    {{text("Taxation")}},
    {{{.kind = Kind::Group, .label = "Tax Options", .rows = kTaxChoice}}, kGap},
};

constexpr Row kTaxMethod[] = {
    {{text("There are two methods available for tax calculation. Please select one of the methods below.")}},
    {{radio(
         kProductTax,
         "1. Product based taxation. An individual tax rate will be set for each item.  This will enable you to "
         "charge different tax rates based on the products ordered.  Using this method, all taxable regions will be "
         "taxed at the same rate.",
         4)},
     kGap},
    {{radio(
         kRegionTax,
         "2. Region based taxation. A set, region based tax rate will be applied to all items.  Using this method, "
         "all items ordered from a taxable region will have the same tax rate. This method is appropriate for "
         "uniform tax systems such as VAT or GST.",
         4)},
     kGap},
};

constexpr Row kFreightTax[] = {
    {{text("If the freight component of an order is subject to tax, enter the tax rate below.")}},
    {{edit(kFreightRate, "Freight Tax Rate:", 104, 220)}, 4},
    {{text("If freight is tax exempt, leave this field blank.")}, kGap},
    {{text(
         "Note: If you specify a freight tax rate, this rate will be added to all orders regardless of region.   To "
         "apply a freight tax to a specific region only, you will need to factor the tax into the total freight "
         "cost for that region.",
         4)},
     kGap},
};

constexpr Row kFinish[] = {
    {{text("Store Setup Complete!")}},
    {{text("The store is now ready for you to start entering products.")}, kGap},
    {{text("Hints:")}, kGap},
    {{text("1. Add the products into the inventory tree (on the left hand side of the main screen), or use the "
           "Database Import utility in the FILE menu.",
           2)}},
    {{text("2. Once you have entered all your product details, build the store using the the Build Store option.",
           2)}},
};

constexpr FootButton kHelpButton{kHelp, "&Help"};
constexpr FootButton kBackButton{kBack, "< &Back"};
constexpr FootButton kCancelButton{kCancel, "&Cancel"};
constexpr FootButton kFoot[] = {kHelpButton, kBackButton, {kNext, "&Next >", Option::Default}, kCancelButton};
constexpr FootButton kLastFoot[] = {kHelpButton, kBackButton, {kNext, "&Finish", Option::Default}, kCancelButton};
constexpr FootButton kLoneFoot[] = {{kOk, "&OK", Option::Default}, kCancelButton, kHelpButton};

// In the order of the pages.
constexpr std::span<const Row> kPageRows[] = {
    kWelcome,      kFolderRows,   kTitleRows,     kLayout,          cards::kRows, kOrder,
    kConfirmation, kFreightStart, kMethods,       regions::kRows,   kCalculation, kPriceRows,
    kTaxEnable,    kTaxMethod,    taxable::kRows, tax_rates::kRows, kFreightTax,  kFinish,
};
static_assert(std::size(kPageRows) == kWizardPages);

constexpr Size kSize{560, 340};

constexpr auto makeShapes() {
  std::array<DialogShape, kWizardPages + 2> shapes{};
  for (std::size_t page = 0; page < kWizardPages; ++page) {
    shapes[page] = {.id = kFirstWindow + static_cast<ControlId>(page),
                    .title = "Store Wizard",
                    .size = kSize,
                    .rows = kPageRows[page],
                    .foot = kFoot};
  }
  shapes[static_cast<std::size_t>(WizardPage::Finish)].foot = kLastFoot;
  shapes[kWizardPages] = {.id = kLoneRegions,
                          .title = "Add/Remove Freight Regions",
                          .size = kSize,
                          .rows = regions::kRows,
                          .foot = kLoneFoot};
  shapes[kWizardPages + 1] = {
      .id = kLoneMethods, .title = "Delivery Methods", .size = {460, 0}, .rows = kLoneMethodRows, .foot = kLoneFoot};
  return shapes;
}
constexpr std::array<DialogShape, kWizardPages + 2> kShapes = makeShapes();

}  // namespace

std::span<const DialogShape> WizardShapes() { return kShapes; }

const DialogShape& WizardShape(const WizardState& state) {
  if (state.mode == WizardMode::Regions) return kShapes[kWizardPages];
  if (state.mode == WizardMode::Methods) return kShapes[kWizardPages + 1];
  return kShapes[std::min(static_cast<std::size_t>(state.page), kWizardPages - 1)];
}

bool IsLonePage(const WizardState& state) {
  return state.mode == WizardMode::Regions || state.mode == WizardMode::Methods;
}

}  // namespace varlo
