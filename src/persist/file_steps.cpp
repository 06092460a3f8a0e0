#include "persist/file_steps.h"

#include "core/program.h"
#include "persist/backup.h"
#include "persist/config_file.h"
#include "persist/list_files.h"
#include "persist/project_save.h"
#include "persist/scheme_catalogue.h"

namespace varlo {

StartUpSteps FileStartUpSteps() {
  StartUpSteps steps;
  steps.readRegionCatalogue = RegionCatalogueRead;
  steps.readSchemeCatalogue = [](Program& program) {
    SchemeCatalogueRead(program, "scheme.dat");
    SchemeCatalogueRead(program, "scheme.ini");
  };
  steps.readConfig = [](Program& program) {
    ConfigRead(program, "config.ini");
    ConfigRead(program, "server.ini");
  };
  steps.readCardCatalogue = CardCatalogueRead;
  steps.readTemplateVersions = TemplateVersionsRead;
  steps.setSchemeDefaults = SchemeDefaults;
  return steps;
}

ShutDownSteps FileShutDownSteps() {
  ShutDownSteps steps;
  steps.saveWithBackup = [](Program& program) {
    BackupRoll(program);
    return ProjectSave(program);
  };
  steps.saveConfig = ConfigSave;
  return steps;
}

}  // namespace varlo
