# How every target of the project is compiled: standard, warnings, sanitizers.
# Targets take it by linking `tarnwick_compile`.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# No modules here: the scan for them would only slow the build.
set(CMAKE_CXX_SCAN_FOR_MODULES OFF)
set_property(GLOBAL PROPERTY USE_FOLDERS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

add_library(tarnwick_compile INTERFACE)
if(MSVC)
  target_compile_options(tarnwick_compile INTERFACE /W4 /WX /utf-8 /permissive-)
else()
  target_compile_options(tarnwick_compile INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 sees overlaps and sizes that cannot be in its own std::string.
    target_compile_options(tarnwick_compile INTERFACE -Wno-restrict -Wno-stringop-overflow)
  endif()
endif()

if(TARNWICK_SANITIZE)
  # The first finding ends the program, so that no test passes over one.
  add_compile_options(-fsanitize=${TARNWICK_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TARNWICK_SANITIZE})
endif()
