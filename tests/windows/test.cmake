include("${CMAKE_CURRENT_LIST_DIR}/../support/run.cmake")

file(REMOVE_RECURSE "${WORK_DIR}")
run(${CMAKE_COMMAND} -S "${CMAKE_CURRENT_LIST_DIR}" -B "${WORK_DIR}" -G "${GENERATOR}" -D CMAKE_BUILD_TYPE=Release
    -D CMAKE_TOOLCHAIN_FILE=${CMAKE_CURRENT_LIST_DIR}/../../cmake/mingw-w64.cmake -D GUI_WERROR=ON
    -D VERSION_RESOURCE=${VERSION_RESOURCE} -D PRODUCT=${PRODUCT}
    -D QT_HEADERS=${QT_HEADERS} -D FORM_HEADERS=${FORM_HEADERS})
run(${CMAKE_COMMAND} --build "${WORK_DIR}")
run(${CMAKE_COMMAND} -E chdir "${WORK_DIR}" ${CMAKE_CTEST_COMMAND} --output-on-failure)
# An emulated Windows takes hundreds of megabytes.
file(REMOVE_RECURSE "${WORK_DIR}")
