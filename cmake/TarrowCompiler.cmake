# Language level, warnings, sanitizers and output folders for the whole tree.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

option(TARROW_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
set(TARROW_SANITIZE "" CACHE STRING "Sanitizers to build with, for example address,undefined")

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlapping copies in optimised string concatenation where there are none (GCC bug 105651).
  add_compile_options(-Wno-restrict)
endif()
if(TARROW_WARNINGS_AS_ERRORS)
  add_compile_options(-Werror)
endif()
if(TARROW_SANITIZE)
  add_compile_options(-fsanitize=${TARROW_SANITIZE} -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=${TARROW_SANITIZE})
endif()

# Hardening: a fault in what reads the network and files ends the program instead of being made use of. The checks of
# copies need the optimiser.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_compile_options(-fstack-protector-strong
  "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  add_link_options(LINKER:-z,relro,-z,now)
endif()

# Keeps a program's libraries loaded to the end where leaks are looked for.
function(tarrow_keep_libraries target)
  if(TARROW_SANITIZE)
    target_sources(${target} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/keeploaded.cpp)
  endif()
endfunction()

find_program(TARROW_CCACHE ccache)
if(TARROW_CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${TARROW_CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${TARROW_CCACHE})
endif()
