// Reads any bytes as a project file, saves the project, reads that file and saves again. Every file must
// be the one that the plain writer makes, every project the one that the plain reader reads. What a
// project loses on the way is told a second time, record by record, where its lines stay apart.
#include "tests/fuzz/fuzz_program.h"
#include "tests/fuzz/plain_losses.h"
#include "tests/fuzz/plain_writer.h"

namespace varlo::fuzz {
namespace {

void rewrite(const FuzzInput& input) {
  FuzzProgram first(input);
  first.load("first load", input.file());
  first.translateTexts();
  const std::string written = first.save("first save");

  PlainProject saved = first.plain();
  const bool tame = IsTame(saved, PlainWrite(saved, first.catalogue(), test::kTestTime));
  const bool sameProgram = input.variant(0);
  FuzzProgram next(input);
  next.takeDisk(first);
  FuzzProgram& second = sameProgram ? first : next;
  const PlainProject before = second.plain();
  second.load("second load", written);
  if (tame) RequireSame("losses", AfterRound(saved, second.catalogue(), before), second.plain());

  const std::string rewritten = second.save("second save");
  if (tame && sameProgram && WritesAlike(saved, second.catalogue())) {
    RequireSameBytes("file written again", written, rewritten);
  }
  if (!tame) return;
  // What one round does not lose stays: blanks that were the whole of a text take another to go.
  second.load("third load", rewritten);
  RequireSameBytes("file written a third time", rewritten, second.save("third save"));
}

}  // namespace
}  // namespace varlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  varlo::fuzz::rewrite(varlo::fuzz::FuzzInput(data, size));
  return 0;
}
