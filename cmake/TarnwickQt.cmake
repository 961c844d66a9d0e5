# Looks for what the desktop program needs. Sets TARNWICK_QT_FOUND; with it the targets Qt6::*
# and `tarnwick_qscintilla` are there. Nothing missing is an error: the logic builds without.

set(TARNWICK_QT_FOUND OFF)
find_package(Qt6 QUIET COMPONENTS Widgets Network PrintSupport OPTIONAL_COMPONENTS Svg Test)
find_path(QSCINTILLA_INCLUDE_DIR Qsci/qsciscintilla.h
          HINTS ${Qt6Core_INCLUDE_DIRS} PATH_SUFFIXES qt6 x86_64-linux-gnu/qt6)
find_library(QSCINTILLA_LIBRARY NAMES qscintilla2_qt6)
mark_as_advanced(QSCINTILLA_INCLUDE_DIR QSCINTILLA_LIBRARY)

if(Qt6_FOUND AND QSCINTILLA_INCLUDE_DIR AND QSCINTILLA_LIBRARY)
  set(TARNWICK_QT_FOUND ON)
  add_library(tarnwick_qscintilla UNKNOWN IMPORTED)
  set_target_properties(tarnwick_qscintilla PROPERTIES
    IMPORTED_LOCATION "${QSCINTILLA_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${QSCINTILLA_INCLUDE_DIR}"
    INTERFACE_LINK_LIBRARIES Qt6::Widgets)
  message(STATUS "Desktop program: Qt ${Qt6_VERSION}, QScintilla ${QSCINTILLA_LIBRARY}")
else()
  message(STATUS "Desktop program: left out (Qt 6 Widgets or QScintilla for Qt 6 not found)")
endif()
