#include "commerce/wizard/page_content.h"

#include "commerce/cards/card_page.h"
#include "commerce/freight/region_page.h"
#include "commerce/tax/tax_pages.h"
#include "commerce/wizard/layout_page.h"
#include "commerce/wizard/wizard_pages.h"
#include "commerce/wizard/wizard_shapes.h"
#include "core/program/program.h"
#include "platform/item_images.h"

namespace varlo {
namespace {

// A folder name loses what it must not hold as it is typed.
class FolderContent : public PageContent {
 public:
  void control(Dialog& dialog, const ControlEvent& event) override {
    if (event.control != wizard::kFolder || event.notice != Notice::Changed || filtering_) return;
    const std::string typed = dialog.text(wizard::kFolder);
    const std::string name = FilteredFolderName(typed);
    if (name == typed) return;
    filtering_ = true;
    dialog.setText(wizard::kFolder, name);
    dialog.caretToEnd(wizard::kFolder);
    filtering_ = false;
  }

 private:
  bool filtering_ = false;
};

class LayoutContent : public PageContent {
 public:
  explicit LayoutContent(Program& program) : page_(program) {}
  void open(Dialog& dialog) override { LayoutPageOpen(page_, dialog); }
  void control(Dialog& dialog, const ControlEvent& event) override { LayoutPageControl(page_, dialog, event); }
  std::string text(ControlId list, int row, int /*column*/) override { return LayoutPageText(page_, list, row); }
  int mark(ControlId list, int row) override { return LayoutPageMark(page_, list, row); }

 private:
  LayoutPage page_;
};

class CardContent : public PageContent {
 public:
  explicit CardContent(Program& program) : page_(program) {}
  void open(Dialog& dialog) override { CardPageOpen(page_, dialog); }
  void control(Dialog& dialog, const ControlEvent& event) override { CardPageControl(page_, dialog, event); }
  std::string text(ControlId list, int row, int /*column*/) override { return CardPageText(page_, list, row); }
  int mark(ControlId /*list*/, int /*row*/) override { return item_image::kCard; }

 private:
  CardPage page_;
};

class RegionContent : public PageContent {
 public:
  explicit RegionContent(Program& program) : page_(program) {}
  void open(Dialog& dialog) override { RegionPageOpen(page_, dialog); }
  void control(Dialog& dialog, const ControlEvent& event) override { RegionPageControl(page_, dialog, event); }
  std::string text(ControlId list, int row, int /*column*/) override { return RegionPageText(page_, list, row); }
  int mark(ControlId /*list*/, int /*row*/) override { return item_image::kRegion; }

 private:
  RegionPage page_;
};

// The explanation is that of the radio button.
class CalculationContent : public PageContent {
 public:
  void open(Dialog& dialog) override { explain(dialog); }
  void control(Dialog& dialog, const ControlEvent& event) override {
    if (event.notice == Notice::Clicked) explain(dialog);
  }

 private:
  static void explain(Dialog& dialog) {
    for (int i = 0; i < static_cast<int>(kFreightCalculations.size()); ++i) {
      if (!dialog.isChecked(wizard::kByWeight + i)) continue;
      dialog.setText(wizard::kExplanation, kFreightCalculations[static_cast<std::size_t>(i)].explanation);
    }
  }
};

class TaxableContent : public PageContent {
 public:
  explicit TaxableContent(Program& program) : page_(program) {}
  void open(Dialog& dialog) override { TaxablePageOpen(page_, dialog); }
  void control(Dialog& dialog, const ControlEvent& event) override { TaxablePageControl(page_, dialog, event); }
  std::string text(ControlId /*list*/, int row, int column) override { return TaxPageText(page_, row, column); }
  int mark(ControlId /*list*/, int row) override { return TaxPageMark(page_, row); }

 private:
  TaxPage page_;
};

class TaxRatesContent : public PageContent {
 public:
  explicit TaxRatesContent(Program& program) : page_(program) {}
  void open(Dialog& dialog) override { TaxRatesPageOpen(page_, dialog); }
  void control(Dialog& dialog, const ControlEvent& event) override { TaxRatesPageControl(page_, dialog, event); }
  void leave(Dialog& dialog) override { TaxRatesPageLeave(page_, dialog); }
  std::string text(ControlId /*list*/, int row, int column) override { return TaxPageText(page_, row, column); }

 private:
  TaxPage page_;
};

}  // namespace

std::unique_ptr<PageContent> MakePageContent(Program& program, const WizardState& state) {
  switch (state.page) {
    case WizardPage::Folder:
      return std::make_unique<FolderContent>();
    case WizardPage::Layout:
      return std::make_unique<LayoutContent>(program);
    case WizardPage::Cards:
      return std::make_unique<CardContent>(program);
    case WizardPage::Regions:
      return std::make_unique<RegionContent>(program);
    case WizardPage::Calculation:
      return std::make_unique<CalculationContent>();
    case WizardPage::TaxableRegions:
      return std::make_unique<TaxableContent>(program);
    case WizardPage::TaxRates:
      return std::make_unique<TaxRatesContent>(program);
    default:
      return std::make_unique<PageContent>();
  }
}

}  // namespace varlo
