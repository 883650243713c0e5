# What `cmake --install` lays out and CPack archives: plugin and reference host side by side, the interface headers, the
# host developer's documents, and a package that `find_package(DialogLibrary)` finds wherever the tree is moved to.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(package DialogLibrary)
set(doc_dir "${CMAKE_INSTALL_DATAROOTDIR}/doc/${package}")
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${package}")
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME library)

set(programs Gui)
if(TARGET guihost)
    list(APPEND programs guihost)
endif()

# By default installing and packaging build everything first, the tests too.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
set(CMAKE_SKIP_PACKAGE_ALL_DEPENDENCY ON)
list(JOIN programs " " targets)
install(CODE "
    execute_process(RESULT_VARIABLE status COMMAND \"${CMAKE_COMMAND}\" --build \"${PROJECT_BINARY_DIR}\"
        --config \"\${CMAKE_INSTALL_CONFIG_NAME}\" --target ${targets})
    if(status)
        message(FATAL_ERROR \"${targets} could not be built.\")
    endif()")

set_target_properties(interfaces PROPERTIES EXPORT_NAME Interfaces)
install(TARGETS interfaces EXPORT ${package} INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${package}")
install(TARGETS Gui EXPORT ${package} LIBRARY DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(DIRECTORY "${PROJECT_BINARY_DIR}/include/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${package}")
if(TARGET guihost)
    install(TARGETS guihost RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()

# Installed, the pages and what they link to lie together.
foreach(page IN ITEMS host-guide.md host-scripts.md)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS docs/${page})
    file(READ docs/${page} text)
    string(REGEX REPLACE "\\(\\.\\./(tests/contract/|tests/|host/)?" "(" text "${text}")
    file(WRITE "${PROJECT_BINARY_DIR}/${page}" "${text}")
    install(FILES "${PROJECT_BINARY_DIR}/${page}" DESTINATION "${doc_dir}")
endforeach()
install(FILES tests/contract/contract.txt resources/eula.html DESTINATION "${doc_dir}")
install(DIRECTORY tests/pictures examples host/stories DESTINATION "${doc_dir}")

install(EXPORT ${package} NAMESPACE ${package}:: FILE ${package}Targets.cmake DESTINATION "${package_dir}")
configure_package_config_file(cmake/${package}Config.cmake.in ${package}Config.cmake
    INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file(${package}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/${package}Config.cmake" "${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake"
    DESTINATION "${package_dir}")

# What a host must match, in the archive's name: gcc12, msvc142; qt5.15.8.
string(REGEX MATCH "^[0-9]+" compiler_version "${CMAKE_CXX_COMPILER_VERSION}")
if(MSVC)
    set(compiler "msvc${MSVC_TOOLSET_VERSION}")
elseif(MINGW)
    set(compiler "mingw${compiler_version}")
elseif(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set(compiler "gcc${compiler_version}")
else()
    string(TOLOWER "${CMAKE_CXX_COMPILER_ID}${compiler_version}" compiler)
endif()
string(TOLOWER "${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}" system)
set(archive "${package}-${PROJECT_VERSION}-${system}-${compiler}-qt${GUI_QT_VERSION}")
configure_file(docs/archive.md.in README.md @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/README.md" CHANGELOG.md THIRD-PARTY.md DESTINATION .)

# What a debugger needs is an archive of its own; on Windows it is what the linker has written already.
foreach(program IN LISTS programs)
    if(MSVC)
        install(FILES "$<TARGET_PDB_FILE:${program}>" DESTINATION "${CMAKE_INSTALL_BINDIR}"
            COMPONENT symbols EXCLUDE_FROM_ALL OPTIONAL)
    elseif(CMAKE_OBJCOPY AND NOT APPLE)
        set(symbols "${PROJECT_BINARY_DIR}/$<TARGET_FILE_NAME:${program}>.debug")
        # The link to the symbols holds a checksum of them.
        install(CODE "
            execute_process(COMMAND \"${CMAKE_OBJCOPY}\" --only-keep-debug \"$<TARGET_FILE:${program}>\" \"${symbols}\")
            execute_process(COMMAND \"${CMAKE_OBJCOPY}\" \"--add-gnu-debuglink=${symbols}\"
                \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/$<TARGET_FILE_NAME:${program}>\")")
        install(FILES "${symbols}" DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT symbols EXCLUDE_FROM_ALL)
    endif()
endforeach()

set(CPACK_GENERATOR ZIP TGZ)
set(CPACK_PACKAGE_NAME ${package})
set(CPACK_PACKAGE_VENDOR "${GUI_COMPANY}")
set(CPACK_PACKAGE_FILE_NAME "${archive}")
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_COMPONENTS_ALL library symbols)
set(CPACK_ARCHIVE_LIBRARY_FILE_NAME "${archive}")
set(CPACK_ARCHIVE_SYMBOLS_FILE_NAME "${archive}-symbols")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
