# Writes FILE: what the program CONTRACT tells of PLUGIN and HEADERS, then what the linker knows of PLUGIN. That depends
# on the QT that the plugin is built with, Qt5 or Qt6; what it knows with the other one is taken from REFERENCE.
file(READ "${REFERENCE}" reference)
string(REGEX MATCH "\nlinker\n(    [^\n]+\n)+" with_qt5 "${reference}")
string(REGEX MATCH "\nlinker with Qt 6\n(    [^\n]+\n)+" with_qt6 "${reference}")
execute_process(COMMAND "${CONTRACT}" "${PLUGIN}" "${HEADERS}" "${FILE}" RESULT_VARIABLE failed)
execute_process(COMMAND "${NM}" --dynamic --defined-only --format=posix "${PLUGIN}"
    OUTPUT_VARIABLE symbols RESULT_VARIABLE nm_failed)
execute_process(COMMAND "${OBJDUMP}" --private-headers "${PLUGIN}"
    OUTPUT_VARIABLE headers RESULT_VARIABLE objdump_failed)
if(failed OR nm_failed OR objdump_failed)
    message(FATAL_ERROR "cannot describe ${PLUGIN}")
endif()
# The lines start with the names of the symbols. Sanitizers and compilers add libraries of their own.
string(REGEX MATCHALL "[^ \n]+ [A-Za-z] [^\n]*\n" symbols "${symbols}")
list(TRANSFORM symbols REPLACE "([^ ]+) .*" "    exports \\1\n")
string(REGEX MATCHALL "NEEDED +libQt[^\n]+\n" libraries "${headers}")
list(TRANSFORM libraries REPLACE "NEEDED +" "    needs ")
if(QT STREQUAL "Qt6")
    string(CONCAT with_qt6 "\nlinker with Qt 6\n" ${symbols} ${libraries})
else()
    string(CONCAT with_qt5 "\nlinker\n" ${symbols} ${libraries})
endif()
file(APPEND "${FILE}" "${with_qt5}" "${with_qt6}")
