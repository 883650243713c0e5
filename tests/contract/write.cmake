# Writes FILE: what the program CONTRACT tells of PLUGIN, what the HEADERS declare, and what the linker knows of PLUGIN.
# That depends on the QT that the plugin is built with, Qt5 or Qt6; what it knows with the other one is taken from
# REFERENCE.
file(READ "${REFERENCE}" reference)
string(REGEX MATCH "\nlinker\n(    [^\n]+\n)+" with_qt5 "${reference}")
string(REGEX MATCH "\nlinker with Qt 6\n(    [^\n]+\n)+" with_qt6 "${reference}")
execute_process(COMMAND "${CONTRACT}" "${PLUGIN}" "${FILE}" RESULT_VARIABLE failed)

# Virtual functions in their order, enumerators and base classes.
set(declarations)
file(GLOB headers "${HEADERS}/*.h")
foreach(header IN LISTS headers)
    file(READ "${header}" text)
    # A semicolon would part the elements of a list.
    string(REPLACE ";" "!" text "${text}")
    string(REGEX REPLACE "//[^\n]*" "" text "${text}")
    string(REGEX REPLACE "[ \n]+" " " text "${text}")
    string(REGEX MATCHALL
        "class [A-Za-z]+( : [^!{]+)? {|enum [A-Za-z]+ {[^}]*}|virtual [^!]+ = (0|default)!|Q_DECLARE_INTERFACE[^!]+"
        found "${text}")
    foreach(declaration IN LISTS found)
        if(declaration MATCHES "^class (.*) {")
            string(APPEND declarations "\nclass ${CMAKE_MATCH_1}\n")
            set(slot 0)
        elseif(declaration MATCHES "^enum ([A-Za-z]+) { (.*[^, ]),? }")
            string(REPLACE ", " "\n    ${CMAKE_MATCH_1} " values "${CMAKE_MATCH_2}")
            string(APPEND declarations "    ${CMAKE_MATCH_1} ${values}\n")
        elseif(declaration MATCHES "^virtual (.*) = ")
            string(APPEND declarations "    ${slot} ${CMAKE_MATCH_1}\n")
            math(EXPR slot "${slot} + 1")
        elseif(declaration MATCHES "\\((.*)\\)")
            string(APPEND declarations "    interface ${CMAKE_MATCH_1}\n")
        endif()
    endforeach()
endforeach()
file(APPEND "${FILE}" "${declarations}")

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
