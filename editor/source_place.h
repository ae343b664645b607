#pragma once

#include <cstddef>
#include <string_view>

namespace frmMain {

// A place in a text file, both from 1.
struct TextPlace {
  int line = 1;
  int column = 1;

  bool operator==(const TextPlace&) const = default;
};

// Where in `source` stands what is at `offset` of its reformatted text, or begins behind there:
// a reformat drops blank lines and moves blanks, but keeps the order of everything else.
TextPlace FindSourcePlace(std::string_view source, std::string_view reformatted,
                          std::size_t offset);

}  // namespace frmMain
