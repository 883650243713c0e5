# What a host developer does with the installed library: find it, build against it, run. The tree is moved after its
# installation, because archives are unpacked anywhere, and the host guide must show the very program that works.
set(install_dir "${WORK_DIR}/library")
file(REMOVE_RECURSE "${WORK_DIR}")

include("${CMAKE_CURRENT_LIST_DIR}/support/run.cmake")

run(${CMAKE_COMMAND} --install "${BINARY_DIR}" --prefix "${WORK_DIR}/staged" --config "${CONFIG}")
file(RENAME "${WORK_DIR}/staged" "${install_dir}")
run(${CMAKE_COMMAND} -S "${SOURCE_DIR}" -B "${WORK_DIR}/build" -G "${GENERATOR}" "-DCMAKE_BUILD_TYPE=${CONFIG}"
    "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}" "-DCMAKE_PREFIX_PATH=${install_dir}")
run(${CMAKE_COMMAND} --build "${WORK_DIR}/build" --config "${CONFIG}")
run("${WORK_DIR}/build/agent" --demo)

file(READ "${install_dir}/share/doc/DialogLibrary/host-guide.md" guide)
foreach(name IN ITEMS CMakeLists.txt main.cpp)
    file(READ "${SOURCE_DIR}/${name}" text)
    string(FIND "${guide}" "${text}" position)
    if(position EQUAL -1)
        message(FATAL_ERROR "The host guide does not show ${SOURCE_DIR}/${name} as it is.")
    endif()
endforeach()
