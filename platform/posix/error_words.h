#pragma once

#include <cstring>
#include <string>

// What an error number of the system means, in the language of the program, whatever the user's.
inline std::string ErrorWords(int error) {
  const char* words = strerrordesc_np(error);
  return words != nullptr ? words : "unknown error " + std::to_string(error);
}
