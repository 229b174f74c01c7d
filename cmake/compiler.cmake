# Curve arithmetic is defined to the last bit: no fused multiply-add, no value-changing optimisation.
add_compile_options(-ffp-contract=off -fno-fast-math -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                    $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor> $<$<COMPILE_LANGUAGE:CXX>:-Woverloaded-virtual>)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlaps that are none in what it inlines of std::string's operator+.
  add_compile_options(-Wno-restrict)
endif()

# What reads files, buses and screens of others makes it as hard as compilers can to do more than
# crash it. Overruns of buffers are watched only where there is no sanitizer, which watches better.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
include(CheckCXXSourceRuns)
check_pie_supported(LANGUAGES CXX)
add_compile_options(-fstack-protector-strong -fstack-clash-protection)
add_link_options(LINKER:-z,relro,-z,now)
if(NOT NOCTURO_SANITIZE)
  add_compile_options($<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE$<SEMICOLON>-D_FORTIFY_SOURCE=2>)
endif()

# What is mapped stays in memory, and little of it is run often: at -O2 nocturo is 0.8 MB larger than these
# 1.8, at -O3 half a megabyte more. The sources that compute ramps say otherwise for themselves.
string(REPLACE "-O3" "-Os" CMAKE_CXX_FLAGS_RELEASE "${CMAKE_CXX_FLAGS_RELEASE}")
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(LINKER:--gc-sections LINKER:--as-needed)
# Ten thousand pointers to be set at a start, in two kilobytes instead of 230. Linkers that do not tell the
# C library of it make programs that it refuses, so one has to run.
if(NOT CMAKE_CROSSCOMPILING)
  set(CMAKE_REQUIRED_FLAGS -fPIE)
  set(CMAKE_REQUIRED_LINK_OPTIONS -pie -Wl,-z,pack-relative-relocs)
  check_cxx_source_runs("
    const char* words[] = {\"one\", \"two\"};
    int main(int count, char**) { return words[count] == nullptr; }" NOCTURO_PACKS_RELOCATIONS)
  unset(CMAKE_REQUIRED_FLAGS)
  unset(CMAKE_REQUIRED_LINK_OPTIONS)
endif()
if(NOCTURO_PACKS_RELOCATIONS)
  add_link_options(LINKER:-z,pack-relative-relocs)
endif()

if(NOCTURO_WERROR)
  add_compile_options(-Werror)
endif()

if(NOCTURO_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(NOCTURO_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Qt's "signals" and "slots" are words that the code uses for other things.
add_compile_definitions(QT_NO_KEYWORDS)

# The C++ library itself, as far as it is used and seen by nobody else, where the toolchain has it: to find the
# shared one and bind it took a sixth of a start. What is loaded later brings that for itself; no exception
# goes from one to the other.
include(CheckCXXSourceCompiles)
set(CMAKE_REQUIRED_LINK_OPTIONS -static-libstdc++ -static-libgcc)
check_cxx_source_compiles("
  #include <string>
  int main(int count, char**) { return std::to_string(count).empty(); }" NOCTURO_HAS_STATIC_CXX)
unset(CMAKE_REQUIRED_LINK_OPTIONS)
function(nocturo_with_own_cxx_library program)
  if(NOT NOCTURO_HAS_STATIC_CXX OR NOCTURO_SANITIZE)
    return()
  endif()
  target_link_options(${program} PRIVATE -static-libstdc++ -static-libgcc)
  foreach(library libstdc++ libgcc libgcc_eh) # one by one: mold 1.10 never ends over a list
    target_link_options(${program} PRIVATE LINKER:--exclude-libs,${library}.a)
  endforeach()
endfunction()
