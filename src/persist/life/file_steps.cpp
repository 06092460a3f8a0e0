#include "persist/life/file_steps.h"

#include "core/program/program.h"
#include "persist/installation/config_file.h"
#include "persist/installation/list_files.h"
#include "persist/installation/scheme_catalogue.h"
#include "persist/life/backup.h"

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
  steps.saveWithBackup = SaveWithBackup;
  steps.saveConfig = ConfigSave;
  return steps;
}

}  // namespace varlo
