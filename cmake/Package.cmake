# What `cmake --install` lays out and CPack archives: plugin and reference host side by side, the interface headers, the
# host developer's documents, and a package that `find_package(DialogLibrary)` finds wherever the tree is moved to.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(package DialogLibrary)
set(doc_dir "${CMAKE_INSTALL_DATAROOTDIR}/doc/${package}")
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${package}")

set_target_properties(interfaces PROPERTIES EXPORT_NAME Interfaces)
install(TARGETS interfaces EXPORT ${package} INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${package}")
install(TARGETS Gui EXPORT ${package} LIBRARY DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(DIRECTORY "${PROJECT_BINARY_DIR}/include/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${package}")
if(TARGET guihost)
    install(TARGETS guihost RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()
# The guide shows the pictures that the tests compare with; installed, they lie beside it.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS docs/host-guide.md)
file(READ docs/host-guide.md guide)
string(REPLACE "../tests/pictures/" "pictures/" guide "${guide}")
file(WRITE "${PROJECT_BINARY_DIR}/host-guide.md" "${guide}")
install(FILES CHANGELOG.md "${PROJECT_BINARY_DIR}/host-guide.md" docs/host-scripts.md resources/eula.html
    DESTINATION "${doc_dir}")
install(DIRECTORY tests/pictures DESTINATION "${doc_dir}")

install(EXPORT ${package} NAMESPACE ${package}:: FILE ${package}Targets.cmake DESTINATION "${package_dir}")
configure_package_config_file(cmake/${package}Config.cmake.in ${package}Config.cmake
    INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file(${package}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/${package}Config.cmake" "${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake"
    DESTINATION "${package_dir}")

set(CPACK_GENERATOR ZIP TGZ)
set(CPACK_PACKAGE_NAME ${package})
set(CPACK_PACKAGE_VENDOR "${GUI_COMPANY}")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
