// Projects to measure with: made up, but of the shape and the sizes that a shop's project has. The same
// call always makes the same bytes, and they are those that the program itself writes for that project.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace varlo::bench {

enum class Flavour {
  Full,    // products with every text that a careful shop owner fills in, about 900 bytes each
  Sparse,  // title, file name, price and code only, about 75 bytes each
};

// The moment of saving that stands in the first line, in seconds since 1970.
inline constexpr std::int64_t kMadeProjectTime = 1044072306;

// Products stand in categories, and 20 categories in a department below the home page.
struct MadeProject {
  Flavour flavour = Flavour::Full;
  std::size_t products = 0;
  std::size_t inCategory = 50;
  // In front of the names of pictures: below the project, or elsewhere.
  std::string_view pictures = "img/";

  // How many nodes the project has, its categories and departments included.
  [[nodiscard]] std::size_t nodes() const;
};

// Writes the project as `fileName` into `folder` (a host path), with a template folder and the two form
// templates beside it. Never holds more of it in memory than a small buffer. Throws std::runtime_error
// when it can't be written.
void WriteMadeProject(const MadeProject& project, const std::string& folder, const std::string& fileName);

}  // namespace varlo::bench
