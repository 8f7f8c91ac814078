# Everything comes from the system's packages: scripts/packages.txt lists them.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets DBus Network Multimedia Svg OpenGL)
find_package(ZLIB REQUIRED)
find_package(Threads REQUIRED)

set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)
# Qt's lower-case keywords would clash with Python's headers.
add_compile_definitions(QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# Another interpreter may stand first on PATH: the templates run in the system's.
set(Python_EXECUTABLE /usr/bin/python3 CACHE FILEPATH "Interpreter whose library the templates run in")
set(PYBIND11_FINDPYTHON ON)
find_package(Python 3.11 REQUIRED COMPONENTS Interpreter Development.Module Development.Embed)
find_package(pybind11 REQUIRED)

find_package(OpenEXR 3.1 REQUIRED)
find_package(OpenImageIO 2.4 REQUIRED)
# Earlier versions bring no CMake configuration.
find_path(LIBDEFLATE_INCLUDE_DIR libdeflate.h REQUIRED)
find_library(LIBDEFLATE_LIBRARY deflate REQUIRED)
add_library(libdeflate::libdeflate UNKNOWN IMPORTED)
set_target_properties(libdeflate::libdeflate PROPERTIES IMPORTED_LOCATION "${LIBDEFLATE_LIBRARY}"
  INTERFACE_INCLUDE_DIRECTORIES "${LIBDEFLATE_INCLUDE_DIR}")
# The package names the headers of an OpenCV that it does not bring.
foreach(property INTERFACE_INCLUDE_DIRECTORIES INTERFACE_SYSTEM_INCLUDE_DIRECTORIES)
  get_target_property(folders OpenImageIO::OpenImageIO ${property})
  list(FILTER folders EXCLUDE REGEX "opencv")
  set_target_properties(OpenImageIO::OpenImageIO PROPERTIES ${property} "${folders}")
endforeach()

if(BUILD_TESTING)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
endif()
if(TARROW_BENCHMARKS)
  find_package(benchmark REQUIRED)
endif()
