# What hosts rely on, as one file in which a change is seen. Renewed on purpose only.
set(reference "${CMAKE_CURRENT_SOURCE_DIR}/contract/contract.txt")
set(actual "${CMAKE_CURRENT_BINARY_DIR}/contract.txt")
add_executable(contract contract/main.cpp)
target_link_libraries(contract PRIVATE compile_settings testsupport)
target_precompile_headers(contract REUSE_FROM testsupport)
set_target_properties(contract PROPERTIES AUTOMOC OFF)
function(contract_command variable file)
    set(${variable} ${CMAKE_COMMAND}
        -D "CONTRACT=$<TARGET_FILE:contract>" -D "PLUGIN=$<TARGET_FILE:Gui>" -D "HEADERS=${PROJECT_BINARY_DIR}/include"
        -D "NM=${CMAKE_NM}" -D "OBJDUMP=${CMAKE_OBJDUMP}" -D "FILE=${file}"
        -D "QT=${GUI_QT}" -D "REFERENCE=${reference}"
        -P "${CMAKE_CURRENT_SOURCE_DIR}/contract/write.cmake" PARENT_SCOPE)
endfunction()
contract_command(renew "${reference}")
contract_command(write "${actual}")
add_custom_target(renew-contract COMMAND ${renew})
add_dependencies(renew-contract contract)
add_test(NAME contract-written COMMAND ${write})
add_test(NAME contract COMMAND git diff --no-index --exit-code "${reference}" "${actual}")
set_tests_properties(contract-written PROPERTIES FIXTURES_SETUP contract ENVIRONMENT "${leak_options}")
set_tests_properties(contract PROPERTIES FIXTURES_REQUIRED contract)
