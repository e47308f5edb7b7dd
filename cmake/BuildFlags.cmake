# Flags for all targets: warnings, hardening, sanitizers, and assertions that stay on in every build type.

set(ULMAR_SANITIZE "" CACHE STRING "Sanitizers to build with, as for -fsanitize (empty: none)")
option(ULMAR_WERROR "Treat warnings as errors" OFF)
option(ULMAR_COVERAGE "Instrument for gcov" OFF)

# With CMAKE_UNITY_BUILD, all sources of a library are compiled together: most of the time is spent on the headers.
set(CMAKE_UNITY_BUILD_BATCH_SIZE 0)

# NDEBUG is never defined: a failed assertion stops the process in every build type.
set(CMAKE_CXX_FLAGS_DEBUG "-Og -g")
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -g")
set(CMAKE_CXX_FLAGS_RELEASE "-O2")

set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported()

add_compile_options(
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wold-style-cast -Wformat=2 -Wcast-qual -Wundef)
if(ULMAR_WERROR)
    add_compile_options(-Werror)
endif()

add_compile_options(-fno-plt -fstack-protector-strong -fstack-clash-protection)
# Control flow protection: the first flag is for x86, the second for 64-bit ARM.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection ULMAR_HAS_CF_PROTECTION)
check_cxx_compiler_flag(-mbranch-protection=standard ULMAR_HAS_BRANCH_PROTECTION)
if(ULMAR_HAS_CF_PROTECTION)
    add_compile_options(-fcf-protection)
elseif(ULMAR_HAS_BRANCH_PROTECTION)
    add_compile_options(-mbranch-protection=standard)
endif()
add_link_options(-Wl,-z,relro,-z,now -Wl,-z,noexecstack -Wl,--as-needed)

if(ULMAR_SANITIZE)
    # Line tables are sufficient for the reports, and take a third less build time than full debug information.
    add_compile_options(-fsanitize=${ULMAR_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all -g1)
    add_link_options(-fsanitize=${ULMAR_SANITIZE})
elseif(NOT ULMAR_COVERAGE)
    # Not with sanitizers: their own checks do not work with fortified calls. Not without optimization.
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
endif()

if(ULMAR_COVERAGE)
    # Without optimization, which would inline functions of the libraries and count their branches as ours. Threads that
    # count at once would lose counts without atomic updates; gcov derives negative counts from such numbers.
    add_compile_options(-O0 --coverage -fprofile-update=atomic)
    add_link_options(--coverage LINKER:--undefined=__wrap__exit
        LINKER:--wrap=_exit LINKER:--wrap=_Exit LINKER:--wrap=__assert_fail)
endif()
