# Installs the package into an empty folder, builds an outside host against it and runs the host from there.
#   cmake -DBUILD=... -DSOURCE=... -DWORK=... -DTOOLCHAIN=... -DEMULATOR=... -P run.cmake
function(step)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN}\nended with ${status}:\n${output}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
step(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/first)
file(RENAME ${WORK}/first ${WORK}/package) # a package that may be moved
step(${CMAKE_COMMAND} -G Ninja -S ${SOURCE} -B ${WORK}/host -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}
  -DCMAKE_PREFIX_PATH=${WORK}/package -DCMAKE_FIND_ROOT_PATH=${WORK}/package)
step(${CMAKE_COMMAND} --build ${WORK}/host)
file(COPY ${WORK}/host/host.exe DESTINATION ${WORK}/package/bin)
step(${EMULATOR} ${WORK}/package/bin/host.exe)
