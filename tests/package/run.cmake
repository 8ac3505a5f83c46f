# Installs the package into an empty folder, builds an outside host against it and runs the host from there; builds the
# host that the hosting guide prints, too.
#   cmake -DBUILD=... -DSOURCE=... -DGUIDE=... -DWORK=... -DTOOLCHAIN=... -DEMULATOR=... -P run.cmake
function(step)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN}\nended with ${status}:\n${output}")
  endif()
endfunction()

function(build_host source build)
  step(${CMAKE_COMMAND} -G Ninja -S ${source} -B ${build} -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}
    -DCMAKE_PREFIX_PATH=${WORK}/package -DCMAKE_FIND_ROOT_PATH=${WORK}/package)
  step(${CMAKE_COMMAND} --build ${build})
endfunction()

# The guide's first block of a language as a file.
function(take_block language to)
  file(READ ${GUIDE} text)
  set(opening "```${language}\n")
  string(FIND "${text}" "${opening}" start)
  string(SUBSTRING "${text}" ${start} -1 text)
  string(REPLACE "${opening}" "" text "${text}")
  string(FIND "${text}" "```" end)
  string(SUBSTRING "${text}" 0 ${end} text)
  file(WRITE ${to} "${text}")
endfunction()

file(REMOVE_RECURSE ${WORK})
step(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/first)
file(RENAME ${WORK}/first ${WORK}/package) # a package that may be moved
build_host(${SOURCE} ${WORK}/host)
file(COPY ${WORK}/host/host.exe DESTINATION ${WORK}/package/bin)
step(${EMULATOR} ${WORK}/package/bin/host.exe)

take_block(cmake ${WORK}/guide/CMakeLists.txt)
take_block(cpp ${WORK}/guide/host.cpp)
build_host(${WORK}/guide ${WORK}/guide/build)
