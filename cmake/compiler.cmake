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

# What is mapped stays in memory: at -O3 the copies of maps and variants alone were half a megabyte of it.
string(REPLACE "-O3" "-O2" CMAKE_CXX_FLAGS_RELEASE "${CMAKE_CXX_FLAGS_RELEASE}")
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(LINKER:--gc-sections)
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
