#include "core/program/scheme.h"

#include "core/program/program.h"
#include "core/store/record.h"
#include "core/store/string_item.h"

namespace varlo {
namespace {

StringItem* copyFiles(const StringItem* files) {
  StringItem* head = nullptr;
  StringItem* tail = nullptr;
  for (; files != nullptr; files = files->next) RecordAppend(head, tail, StringItemCopy(nullptr, files));
  return head;
}

void forget(SchemeRecord*& reference, const SchemeRecord& record) {
  if (reference == &record) reference = nullptr;
}

}  // namespace

SchemeRecord* SchemeInit(SchemeRecord* record) {
  if (record != nullptr) StringItemListFree(record->files);
  return RecordInit(record);
}

SchemeRecord* SchemeCopy(SchemeRecord* destination, const SchemeRecord* source) {
  if (destination == nullptr) destination = SchemeInit(nullptr);
  if (source == nullptr) return SchemeInit(destination);
  if (destination == source) return destination;
  destination->name = source->name;
  destination->preview = source->preview;
  destination->directory = source->directory;
  destination->type = source->type;
  destination->slot = source->slot;
  StringItemListFree(destination->files);
  destination->files = copyFiles(source->files);
  return destination;
}

void SchemeListFree(Program& program, SchemeRecord* head) {
  RecordListFree(head, [&](SchemeRecord& record) {
    forget(program.config.schemeStyles, record);
    forget(program.config.currentStyle, record);
    forget(program.config.currentScheme, record);
    forget(program.config.insertAfter, record);
    forget(program.project.projectScheme, record);
    SchemeListFree(program, record.schemes);  // one level deep: a scheme has no schemes
    StringItemListFree(record.files);
  });
}

int SchemeLocate(AppConfig& config, SchemeRecord* list, const SchemeRecord* scheme, int level) {
  for (SchemeRecord* record = list; record != nullptr; record = record->next) {
    if (SchemeLocate(config, record->schemes, scheme, 1) != 0) {
      config.currentStyle = record;
      return 1;
    }
    if (record == scheme) {
      if (level == 1) config.currentScheme = record;
      return 1;
    }
  }
  return 0;
}

int SchemeFindByPath(AppConfig& config, SchemeStyle* styles, std::string_view path) {
  for (SchemeStyle* style = styles; style != nullptr; style = style->next) {
    if (style->name.isNull() || style->schemes == nullptr) continue;
    const std::string_view styleName = style->name.view();
    if (!path.starts_with(styleName)) continue;
    // Any one character may stand between the two names.
    const std::string_view name = path.substr(std::min(path.size(), styleName.size() + 1));
    for (Scheme* scheme = style->schemes; scheme != nullptr; scheme = scheme->next) {
      if (scheme->name.isNull() || scheme->name.view() != name) continue;
      config.currentScheme = scheme;
      config.currentStyle = style;
      return 1;
    }
  }
  return 0;
}

std::string SchemePath(const Scheme* scheme) {
  if (scheme == nullptr) return {};
  const SchemeRecord* first = scheme;
  while (first->prev != nullptr && first->prev->schemes != first) first = first->prev;
  const std::string_view style = first->prev == nullptr ? std::string_view() : first->prev->name.view();
  return std::string(style) + "/" + scheme->name.orEmpty();
}

}  // namespace varlo
