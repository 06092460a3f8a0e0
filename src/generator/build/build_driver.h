// A whole build: from the open project to a web site.
#pragma once

#include <string>
#include <string_view>

namespace varlo {

struct Generator;

// The line that a log starts with.
[[nodiscard]] std::string ReadyLine();

// Makes the site in `directory` under the store title `title`, which the project keeps, and shows it in the
// browser. What happens goes to the log, whose counters then hold the errors and warnings; without a window
// only the counters tell. 1 when it went to its end (also when the user stopped the walk), 0 with a message
// or a "critical error" in the log when it did not start. The directory becomes webDir for the time of the
// build. Deliberate: without any scheme it stays so.
int RunBuild(Generator& generator, std::string directory, std::string_view title);

}  // namespace varlo
