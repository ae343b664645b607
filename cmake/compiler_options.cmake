# What every target of the project is compiled with.
add_library(turnbay_options INTERFACE)
target_include_directories(turnbay_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(turnbay_options INTERFACE -Wall -Wextra -Wconversion -Wshadow)
# An index out of range ends the program, but not that of users.
target_compile_definitions(turnbay_options INTERFACE $<$<NOT:$<CONFIG:Release>>:_GLIBCXX_ASSERTIONS>)
if(TURNBAY_WARNINGS_AS_ERRORS)
  target_compile_options(turnbay_options INTERFACE -Werror)
endif()

if(TURNBAY_SANITIZE)
  set(sanitizers
      -fsanitize=address,undefined,float-cast-overflow,implicit-conversion
      -fno-sanitize-recover=all
      -fsanitize-ignorelist=${CMAKE_CURRENT_LIST_DIR}/sanitizer_ignore.txt
      -fno-omit-frame-pointer)
  add_compile_options(${sanitizers})
  add_link_options(${sanitizers})
endif()

if(TURNBAY_FUZZ)
  set(sanitizers -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all)
  add_compile_options(${sanitizers} -fsanitize=fuzzer-no-link -fno-omit-frame-pointer)
  add_link_options(${sanitizers})
endif()
