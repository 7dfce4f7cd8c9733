# SPDX-License-Identifier: MIT
# One INTERFACE target carries the language standard, the warnings and the sanitizers; every target
# of the project links it privately.
add_library(korvex_options INTERFACE)
target_compile_features(korvex_options INTERFACE cxx_std_20)
target_include_directories(korvex_options INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_definitions(korvex_options INTERFACE QT_NO_KEYWORDS)
target_compile_options(korvex_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wsuggest-override)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # Wrong about "literal" + std::string when optimising (GCC bug 105651).
  target_compile_options(korvex_options INTERFACE -Wno-restrict)
endif()
if(KORVEX_WERROR)
  target_compile_options(korvex_options INTERFACE -Werror)
endif()
if(KORVEX_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined)
  target_compile_options(korvex_options INTERFACE ${sanitizers} -fno-omit-frame-pointer)
  target_link_options(korvex_options INTERFACE ${sanitizers})
endif()
if(KORVEX_FUZZ)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined)
  target_compile_options(korvex_options INTERFACE
    ${sanitizers} -fsanitize=fuzzer-no-link -fno-omit-frame-pointer)
  target_link_options(korvex_options INTERFACE ${sanitizers})
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()
