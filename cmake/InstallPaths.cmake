# Reads the fixed install location from the source header that defines it.
set(paths_header ${CMAKE_CURRENT_SOURCE_DIR}/Include/InstallPaths.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${paths_header})
file(STRINGS ${paths_header} install_dir_line REGEX "^constexpr char INSTALL_DIR\\[\\]")
if(NOT install_dir_line MATCHES "= \"(/[^\"]+)\"")
    message(FATAL_ERROR "Include/InstallPaths.h names no INSTALL_DIR")
endif()
set(ULMAR_INSTALL_DIR ${CMAKE_MATCH_1})

include(GNUInstallDirs)
