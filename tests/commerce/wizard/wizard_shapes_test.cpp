#include "commerce/wizard/wizard_shapes.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/fake_window.h"

namespace varlo {
namespace {

using namespace test;

// All that stands in the window of a page, as it opens empty, without the buttons at its foot.
std::string pageText(WizardPage page) {
  FakeWindow window(WizardShapes()[static_cast<std::size_t>(page)]);
  const std::string text = window.describe();
  const std::size_t foot = text.find("button '&Help'\nbutton '< &Back'\n");
  EXPECT_NE(foot, std::string::npos);
  EXPECT_TRUE(text.starts_with("[Store Wizard]\n"));
  return text.substr(15, foot - 15);
}

std::string footText(const DialogShape& shape) {
  std::string text;
  for (const FootButton& button : shape.foot) text.append(button.label).append("|");
  return text;
}

TEST(WizardShapes, EveryPageHasTheTitleAndTheFourButtons) {
  for (std::size_t page = 0; page < kWizardPages; ++page) {
    const DialogShape& shape = WizardShapes()[page];
    EXPECT_EQ(shape.title, "Store Wizard");
    EXPECT_EQ(shape.id, wizard::kFirstWindow + static_cast<int>(page));
    EXPECT_EQ(footText(shape), static_cast<WizardPage>(page) == WizardPage::Finish
                                   ? "&Help|< &Back|&Finish|&Cancel|"
                                   : "&Help|< &Back|&Next >|&Cancel|");
    EXPECT_EQ(shape.size, WizardShapes()[0].size) << "no page makes the window jump";
  }
}

TEST(WizardShapes, TheLoneDialogsHaveTitlesOfTheirOwn) {
  const DialogShape& regions = WizardShapes()[kWizardPages];
  EXPECT_EQ(regions.title, "Add/Remove Freight Regions");
  EXPECT_EQ(footText(regions), "&OK|&Cancel|&Help|");
  const DialogShape& methods = WizardShapes()[kWizardPages + 1];
  EXPECT_EQ(methods.title, "Delivery Methods");
  EXPECT_EQ(footText(methods), "&OK|&Cancel|&Help|");
}

TEST(WizardShapes, ThePageOfARunHasItsShape) {
  WizardState state;
  for (std::size_t page = 0; page < kWizardPages; ++page) {
    state.page = static_cast<WizardPage>(page);
    EXPECT_EQ(&WizardShape(state), &WizardShapes()[page]);
    EXPECT_FALSE(IsLonePage(state));
  }
  for (const WizardPage page : {WizardPage::Ended, WizardPage::Cancelled}) {
    state.page = page;
    EXPECT_EQ(&WizardShape(state), &WizardShapes()[kWizardPages - 1]);
  }
  state.page = WizardPage::Regions;
  state.mode = WizardMode::Regions;
  EXPECT_EQ(WizardShape(state).id, wizard::kLoneRegions);
  EXPECT_TRUE(IsLonePage(state));
  state.mode = WizardMode::Methods;
  EXPECT_EQ(WizardShape(state).id, wizard::kLoneMethods);
  EXPECT_TRUE(IsLonePage(state));
}

TEST(WizardShapes, Welcome) {
  EXPECT_EQ(pageText(WizardPage::Welcome),
            "icon\n"
            "text 'Welcome to Varlo PRO.'\n"
            "text 'This wizard will guide you through the process of creating a new online store.'\n"
            "text 'Click NEXT to begin.'\n");
}

TEST(WizardShapes, Folder) {
  EXPECT_EQ(pageText(WizardPage::Folder),
            "Enter a folder name for your new store project: edit \"\"\n"
            "text 'Note: This is where your store project files will be stored on your computer.  This name will not "
            "appear anywhere in your online store.'\n");
}

TEST(WizardShapes, Title) {
  EXPECT_EQ(pageText(WizardPage::Title),
            "Enter the title of your store.  eg: 'The Fine Wine Shop': edit \"\"\n"
            "text 'Note: You will be able to change the store title later.'\n");
}

TEST(WizardShapes, Layout) {
  EXPECT_EQ(pageText(WizardPage::Layout),
            "text 'Please select a default style and scheme to use with your store.   '\n"
            "list 'Select Style' 0 rows\n"
            "list 'Select Schema' 0 rows\n"
            "group ' Preview:'\n"
            "picture \"\"\n"
            "button '&Preview Layout'\n"
            "text 'Note: Later you will be able to use the layout editor to customize the appearance of your "
            "store.'\n");
}

TEST(WizardShapes, Cards) {
  EXPECT_EQ(pageText(WizardPage::Cards),
            "text 'Select all credit cards which your store will be accepting for payment.'\n"
            "list 'Credit Cards:' 0 rows\n"
            "button '>>'\n"
            "button '<<'\n"
            "list 'Accepted Cards:' 0 rows\n"
            "O&ther: edit \"\"\n"
            "button '>>'\n");
}

TEST(WizardShapes, Order) {
  EXPECT_EQ(pageText(WizardPage::Order),
            "text 'Enter a message which is to be displayed at the bottom of your order form page.  This can be your "
            "contact details, delivery infromation etc:'\n"
            "lines \"\"\n"
            "text 'Note: You may include HTML tags.'\n");
}

TEST(WizardShapes, Confirmation) {
  EXPECT_EQ(pageText(WizardPage::Confirmation),
            "text 'Enter a confirmation message, which a customer will receive after placing an order:'\n"
            "lines \"\"\n"
            "text 'Note: You may include HTML tags.'\n");
}

TEST(WizardShapes, FreightStart) {
  EXPECT_EQ(pageText(WizardPage::FreightStart),
            "text 'This wizard will now configure the automatic freight calculation feature of the shopping cart.'\n"
            "text 'WARNING!!!  - By clicking the NEXT button, your current freight information will be lost.  Click "
            "CANCEL to abort.'\n");
}

TEST(WizardShapes, Methods) {
  const std::string fields =
      "text 'You can give customers a choice from up to three different delivery methods:'\n"
      "text 'Please enter a brief, descriptive name for each method:'\n"
      "1. edit \"\"\n"
      "2. edit \"\"\n"
      "3. edit \"\"\n";
  EXPECT_EQ(pageText(WizardPage::Methods), fields + "text 'Click NEXT to continue.........'\n");
  EXPECT_EQ(FakeWindow(WizardShapes()[kWizardPages + 1]).describe(),
            "[Delivery Methods]\n" + fields + "button '&OK' default\nbutton '&Cancel'\nbutton '&Help'\n");
}

TEST(WizardShapes, Regions) {
  const std::string lists =
      "text 'Select delivery regions. Unless a region is selected, customers from that region will not be able to "
      "place orders. '\n"
      "list 'Regions:' 0 rows\n"
      "button '>>'\n"
      "button '<<'\n"
      "list 'Deliver to:' 0 rows\n"
      "O&ther: edit \"\"\n"
      "button '>>'\n";
  EXPECT_EQ(pageText(WizardPage::Regions), lists);
  EXPECT_EQ(FakeWindow(WizardShapes()[kWizardPages]).describe(),
            "[Add/Remove Freight Regions]\n" + lists + "button '&OK' default\nbutton '&Cancel'\nbutton '&Help'\n");
}

TEST(WizardShapes, Calculation) {
  EXPECT_EQ(pageText(WizardPage::Calculation),
            "text 'Select the method, by which delivery charges should be calculated :'\n"
            "radio 'Weight based calculation' [ ]\n"
            "radio 'Set price per Item' [ ]\n"
            "radio 'Set price per order' [ ]\n"
            "radio 'No additional delivery charge' [ ]\n"
            "text\n");
}

TEST(WizardShapes, Price) {
  EXPECT_EQ(pageText(WizardPage::Price),
            "text 'Customers from the selected regions will be charged a set rate per order.   Customers from other "
            "regions will not be able to place orders.'\n"
            "text 'Please enter how much each customer will be charged for freight:'\n"
            "Freight charge per order: edit \"\"\n");
}

TEST(WizardShapes, TaxEnable) {
  EXPECT_EQ(pageText(WizardPage::TaxEnable),
            "text 'Taxation'\n"
            "group 'Tax Options'\n"
            "radio 'Tax enabled shopping cart.' [ ]\n"
            "radio 'No tax ' [ ]\n");
}

TEST(WizardShapes, TaxMethod) {
  EXPECT_EQ(
      pageText(WizardPage::TaxMethod),
      "text 'There are two methods available for tax calculation. Please select one of the methods below.'\n"
      "radio '1. Product based taxation. An individual tax rate will be set for each item.  This will enable "
      "you to charge different tax rates based on the products ordered.  Using this method, all taxable regions "
      "will be taxed at the same rate.' [ ]\n"
      "radio '2. Region based taxation. A set, region based tax rate will be applied to all items.  Using this "
      "method, all items ordered from a taxable region will have the same tax rate. This method is appropriate "
      "for uniform tax systems such as VAT or GST.' [ ]\n");
}

TEST(WizardShapes, TaxableRegions) {
  EXPECT_EQ(pageText(WizardPage::TaxableRegions),
            "text 'Place a tick next to all regions which are subject to taxation.'\n"
            "list 'Region' 0 rows\n"
            "check '&Taxable' [ ]\n");
}

TEST(WizardShapes, TaxRates) {
  EXPECT_EQ(pageText(WizardPage::TaxRates),
            "text 'Enter a percentage tax rate, for all taxable regions:'\n"
            "list 'Region' 0 rows\n"
            "&Tax Rate: edit \"\"\n");
}

TEST(WizardShapes, FreightTax) {
  EXPECT_EQ(pageText(WizardPage::FreightTax),
            "text 'If the freight component of an order is subject to tax, enter the tax rate below.'\n"
            "Freight Tax Rate: edit \"\"\n"
            "text 'If freight is tax exempt, leave this field blank.'\n"
            "text 'Note: If you specify a freight tax rate, this rate will be added to all orders regardless of "
            "region.   To apply a freight tax to a specific region only, you will need to factor the tax into the "
            "total freight cost for that region.'\n");
}

TEST(WizardShapes, Finish) {
  EXPECT_EQ(
      pageText(WizardPage::Finish),
      "text 'Store Setup Complete!'\n"
      "text 'The store is now ready for you to start entering products.'\n"
      "text 'Hints:'\n"
      "text '1. Add the products into the inventory tree (on the left hand side of the main screen), or use the "
      "Database Import utility in the FILE menu.'\n"
      "text '2. Once you have entered all your product details, build the store using the the Build Store "
      "option.'\n");
}

}  // namespace
}  // namespace varlo
