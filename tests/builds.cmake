# Tests that configure and build something of their own.
add_test(NAME consumer COMMAND ${CMAKE_COMMAND}
    -D BINARY_DIR=${PROJECT_BINARY_DIR}
    -D SOURCE_DIR=${PROJECT_SOURCE_DIR}/examples/agent
    -D WORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/consumer
    -D GENERATOR=${CMAKE_GENERATOR}
    -D CONFIG=$<CONFIG>
    -D COMPILER=${CMAKE_CXX_COMPILER}
    -D FLAGS=$<$<BOOL:${GUI_SANITIZE}>:-fsanitize=address,undefined>
    -P ${CMAKE_CURRENT_SOURCE_DIR}/consumer.cmake)
set_tests_properties(consumer PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${leak_options}")

find_program(MINGW_COMPILER x86_64-w64-mingw32-g++)
if(MINGW_COMPILER AND GUI_QT STREQUAL "Qt5" AND NOT GUI_SANITIZE)
    list(GET Qt5Core_INCLUDE_DIRS 0 qt_headers)
    add_test(NAME windows COMMAND ${CMAKE_COMMAND}
        -D WORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/windows
        -D GENERATOR=${CMAKE_GENERATOR}
        -D VERSION_RESOURCE=${PROJECT_BINARY_DIR}/plugin/Gui.rc
        -D QT_HEADERS=${qt_headers}
        -D FORM_HEADERS=${PROJECT_BINARY_DIR}/dialogs
        "-DPRODUCT=${GUI_PRODUCT} ${PROJECT_VERSION}"
        -P ${CMAKE_CURRENT_SOURCE_DIR}/windows/test.cmake)
endif()
