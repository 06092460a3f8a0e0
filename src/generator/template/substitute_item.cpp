#include "generator/template/substitute_item.h"

#include "core/program/program.h"
#include "core/store/store_node.h"
#include "core/store/user_variable.h"
#include "generator/items/reported_replace.h"
#include "generator/state/build_messages.h"
#include "generator/template/item_steps.h"

namespace varlo {
namespace {

class ItemPass {
 public:
  ItemPass(ItemValues& values, std::string& text, const StoreNode& page)
      : values_(values), generator_(values.generator()), text_(text), page_(page) {}

  int run() {
    bool linksFollow = false;
    for (const ItemStep& step : ItemSteps()) {
      if (step.repeat == Repeat::Check) {
        if (generator_.program.project.projectScheme != nullptr) continue;
        ErrorBox(generator_.program, message::kNoScheme);
        return 0;
      }
      if (step.role == StepRole::Link) {
        const bool first = step.key == "$REMOVE";
        if (first) linksFollow = holds("$BUY") || holds("$ADD") || holds("$REMOVE");
        if (!linksFollow) continue;
      }
      take(step);
    }
    return 1;
  }

 private:
  [[nodiscard]] std::string_view fileName() const { return page_.fileName.view(); }
  [[nodiscard]] bool holds(std::string_view key) const { return text_.find(key) != std::string::npos; }

  void take(const ItemStep& step) {
    if (step.repeat == Repeat::Variables) return takeVariables();
    if (step.role == StepRole::Link && step.key != "$REMOVE") composeLink();
    if (step.role == StepRole::Server && holds(step.key)) ReportMissingServer(generator_);
    if (holds(step.key)) replace(step, step.value(values_));
    if (step.key == "$ADD") ReportMissingCode(generator_, values_.item(), page_);
  }

  void takeVariables() {
    for (const UserVariable* variable = generator_.program.project.variables; variable != nullptr;
         variable = variable->next) {
      ReplaceSome(generator_, kVariableRounds, text_, variable->name.view(), ValueOf(variable->value), fileName());
    }
  }

  void composeLink() { generator_.scratch = *values_.addLink(); }

  void replace(const ItemStep& step, const Value& value) {
    switch (step.repeat) {
      case Repeat::Once:
        ReplaceSome(generator_, 1, text_, step.key, value, fileName());
        break;
      case Repeat::Four:
        ReplaceSome(generator_, 4, text_, step.key, value, fileName());
        break;
      case Repeat::All:
        ReplaceEvery(generator_, text_, step.key, value, fileName());
        break;
      case Repeat::Tag:
        ReportEndless(generator_, SubstituteTagAware(text_, step.key, value), fileName(), step.key);
        break;
      default:
        break;
    }
  }

  ItemValues& values_;
  Generator& generator_;
  std::string& text_;
  const StoreNode& page_;
};

}  // namespace

int SubstituteItem(ItemValues& values, std::string& text, const StoreNode& item, const StoreNode& page) {
  values.take(item);
  return ItemPass(values, text, page).run();
}

int SubstituteItem(Generator& generator, std::string& text, const StoreNode& item, const StoreNode& page) {
  ItemValues values(generator);
  return SubstituteItem(values, text, item, page);
}

void ReportMissingCode(Generator& generator, const StoreNode& item, const StoreNode& page) {
  if (item.productCode.isSet() || !IsProduct(item)) return;
  LogError(generator.log, FillMessage(message::kNoProductCode, page.fileName.view()));
}

void ReportMissingServer(Generator& generator) {
  if (!generator.program.config.orderServer.isSet()) LogError(generator.log, message::kNoServer);
}

}  // namespace varlo
