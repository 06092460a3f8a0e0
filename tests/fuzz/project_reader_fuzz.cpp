// Reads any bytes as a project file: as a project of its own, over an open one, merged into one, or for
// the freight data alone. The tree and every record must come out as the plain reader tells, sound and
// released at the end.
#include "tests/fuzz/fuzz_program.h"

namespace {

// With a branch below a product, as old files have them.
constexpr std::string_view kOpenProject =
    "VERSION=107001\nNODE0=Toys\nFILE=1.htm\n#BRANCH\nNODE2=Shelf\n#BRANCH\nNODE1=Ball\nCODE=3\n#BRANCH\n"
    "NODE1=Chained\n#EOB\nNODE1=Bat\n#EOB\n#EOB\nNODE1=Alone\nTPL=a.htm\nTPL=b.htm\nVAR=$A|1\n"
    "$AU0,1,2,3,4,5,6,7,8,9,10,11,12,13,|1\nRULE=0,*\nLAYOUT=A/Red\nWEB=C:\\web\nSTITLE=Open\nTAXF=5\n"
    "OMESSAGE=o\nCMESSAGE=c\nVO=3\nTAXD=1\nTAXO=1\nCURR=Kr\nFNAME=0,Mail\nCC=0:Visa\n";

// The same without a tree.
constexpr std::string_view kEmptyProject =
    "VERSION=107001\nTPL=a.htm\nVAR=$A|1\n$AU0,1,2,|1\n$zz1,1,2\nLAYOUT=A/Red\nWEB=C:\\web\nCURR=Kr\nCC=0:Visa\n";

// The pick that imports the freight data instead of merging.
constexpr std::size_t kImport = 15;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const varlo::fuzz::FuzzInput input(data, size);
  varlo::fuzz::FuzzProgram program(input);
  const bool intoOther = input.variant(0);
  const bool overOther = input.variant(1);
  const std::size_t pick = input.pick();
  const std::string_view other = pick == 0 ? kEmptyProject : kOpenProject;
  if (intoOther) {
    // Into itself, or into another project.
    program.load("open project", overOther ? input.file() : other);
    pick == kImport ? program.importFreight(input.file()) : program.merge(input.file(), pick);
  } else {
    if (overOther) program.load("open project", other);
    program.load("load", input.file());
  }
  program.close();
  return 0;
}
