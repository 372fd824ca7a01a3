# cmake -DBUILD_DIR=... -DCONFIG=... -DWORK_DIR=... -DCONSUMER_DIR=... -DCXX_COMPILER=... -DSANITIZE=...
#       -DTOOLCHAIN=... -DRUNNER=... -P BuildConsumer.cmake
#
# Toolchain and runner are those for another system, or empty.
file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")
set(build "${WORK_DIR}/build")

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(flags)
if(SANITIZE)
  # A library built with AddressSanitizer needs a program that is.
  set(flags "-DCMAKE_CXX_FLAGS=-fsanitize=${SANITIZE}")
endif()
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --config "${CONFIG}" --prefix "${prefix}")
if(TOOLCHAIN)
  # Its packages are looked for where it says, so that this one has to be shown.
  file(GLOB package "${prefix}/*/cmake/KorvaneEx")
  list(APPEND flags "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}" "-DKorvaneEx_DIR=${package}")
endif()
run("${CMAKE_COMMAND}" -S "${CONSUMER_DIR}" -B "${build}" -G Ninja "-DCMAKE_PREFIX_PATH=${prefix}"
    "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" ${flags})
run("${CMAKE_COMMAND}" --build "${build}")
file(GLOB engine_user "${build}/engine_user" "${build}/engine_user.exe")
file(GLOB controls_user "${build}/controls_user" "${build}/controls_user.exe")
# Where a program of Windows finds its libraries under Wine.
set(ENV{WINEPATH} "Z:${prefix}/bin")
run(${RUNNER} "${engine_user}")
file(GLOB_RECURSE service "${prefix}/korvaneex/LQ_ShareMem.dll" "${prefix}/*/korvaneex/LQ_ShareMem.dll")
set(device "${WORK_DIR}/device")
file(COPY ${service} DESTINATION "${device}/NandFlash/Application/Bin")
run("${CMAKE_COMMAND}" -E env "KORVANE_DEVICE_ROOT=${device}" ${RUNNER} "${controls_user}")
