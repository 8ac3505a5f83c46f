# Installs the package into an empty folder, and builds against it the hosts that the hosting guide prints and the
# example programs, which are used from outside.
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

# The guide's block of a language with a number, counted from 0, as a file.
function(take_block language number to)
  file(READ ${GUIDE} text)
  set(opening "```${language}\n")
  string(LENGTH "${opening}" length)
  foreach(i RANGE ${number})
    string(FIND "${text}" "${opening}" start)
    if(start EQUAL -1)
      message(FATAL_ERROR "the guide has no block ${number} of ${language}")
    endif()
    math(EXPR start "${start} + ${length}")
    string(SUBSTRING "${text}" ${start} -1 text)
  endforeach()
  string(FIND "${text}" "```" end)
  string(SUBSTRING "${text}" 0 ${end} text)
  file(WRITE ${to} "${text}")
endfunction()

# Follows a guide from an empty folder: writes each of its files, named on the line before its block, and builds at the
# end of every step, which a heading begins.
function(follow_guide guide folder)
  file(READ ${guide} text)
  while(text MATCHES "\n`([A-Za-z_]+\\.[a-z]+)`[^\n]*:\n\n```[a-z]+\n")
    set(opening "${CMAKE_MATCH_0}")
    set(name "${CMAKE_MATCH_1}")
    string(FIND "${text}" "${opening}" start)
    string(SUBSTRING "${text}" 0 ${start} before)
    if(before MATCHES "\n## " AND EXISTS ${folder}/CMakeLists.txt)
      build_host(${folder} ${folder}/build)
    endif()
    string(LENGTH "${opening}" length)
    math(EXPR start "${start} + ${length}")
    string(SUBSTRING "${text}" ${start} -1 text)
    string(FIND "${text}" "```" end)
    string(SUBSTRING "${text}" 0 ${end} block)
    file(WRITE ${folder}/${name} "${block}")
    string(SUBSTRING "${text}" ${end} -1 text)
  endwhile()
  build_host(${folder} ${folder}/build)
endfunction()

# Builds a program, puts it beside the package's libraries and uses it.
function(use_program scene source program)
  build_host(${source} ${WORK}/${program}-build)
  file(COPY ${WORK}/${program}-build/${program}.exe DESTINATION ${WORK}/package/bin)
  string(REPLACE "/" "\\" path "Z:${WORK}/package/bin/${program}.exe")
  string(REPLACE "/" "\\" folder "Z:${WORK}")
  step(${EMULATOR} ${WORK}/package/bin/drive.exe ${scene} ${path} ${folder})
endfunction()

# A step that prints a document, whose first page holds these pixels. Without tools to print it is not done, which
# `printed` tells.
function(step_printing document pixels)
  set(page "${WORK}/printed/${document}.ppm") # the print server needs a moment
  execute_process(COMMAND ${SOURCE}/tests/with_printer ${WORK}/printed bash -c
      "\"$@\" && for ((i = 0; i < 600; ++i)); do [ ! -f '${page}' ] || exit 0; sleep 0.1; done; exit 1" - ${ARGN}
    WORKING_DIRECTORY ${WORK} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(status EQUAL 77)
    message(STATUS "${output}")
    set(printed FALSE PARENT_SCOPE)
    return()
  elseif(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN}\nended with ${status}:\n${output}")
  else()
    file(READ ${page} shown HEX)
    if(NOT shown MATCHES "${pixels}")
      message(FATAL_ERROR "the printed page of ${document} is not what it should be")
    endif()
  endif()
  set(printed TRUE PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK})
step(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/first)
file(RENAME ${WORK}/first ${WORK}/package) # a package that may be moved
set(EXAMPLES ${WORK}/package/share/zopwnt/examples) # the package's: with nothing of the checkout around them
build_host(${SOURCE}/examples/tests/drive ${WORK}/drive)
file(COPY ${WORK}/drive/drive.exe DESTINATION ${WORK}/package/bin)

take_block(cmake 0 ${WORK}/guide/CMakeLists.txt)
take_block(cpp 0 ${WORK}/guide/host.cpp)
build_host(${WORK}/guide ${WORK}/guide/build)

take_block(cmake 1 ${WORK}/plant/CMakeLists.txt)
take_block(cpp 1 ${WORK}/plant/sampler.h)
take_block(cpp 2 ${WORK}/plant/sampler.cpp)
take_block(cpp 3 ${WORK}/plant/plant.cpp)
take_block(cpp 4 ${WORK}/plant/plant.h)
take_block(rc 0 ${WORK}/plant/plant.rc)
use_program(guide ${WORK}/plant plant)

get_filename_component(docs ${GUIDE} DIRECTORY)
follow_guide(${docs}/plant.md ${WORK}/guided)

use_program(sketch ${EXAMPLES}/sketch sketch)
step_printing(printed.sketch ffff00ffff00ffff00ffff00 # the drawing's yellow figures
  ${EMULATOR} ${WORK}/package/bin/sketch.exe /p printed.sketch)

use_program(channel ${EXAMPLES}/measuring_channel measuring_channel)

# Two programs with scripts, which run where they were built, beside the package's libraries.
set(front_end ${WORK}/front-end)
build_host(${EXAMPLES}/plant ${front_end})
file(GLOB libraries ${WORK}/package/bin/*.dll)
file(COPY ${libraries} DESTINATION ${front_end})
string(REPLACE "/" "\\" path "Z:${front_end}/plant_front_end.exe")
string(REPLACE "/" "\\" folder "Z:${WORK}")
# What is heard goes into a file.
file(WRITE ${WORK}/sound.conf
  "pcm.!default { type file slave.pcm { type null } file \"${WORK}/heard.raw\" format \"raw\" }\n")
set(ENV{ALSA_CONFIG_PATH} ${WORK}/sound.conf)
step_printing("Plant report" 808080808080808080808080 # its axes
  ${EMULATOR} ${WORK}/package/bin/drive.exe plant ${path} ${folder})
if(NOT printed)
  step(${EMULATOR} ${WORK}/package/bin/drive.exe plant ${path} ${folder})
endif()
file(SIZE ${WORK}/heard.raw heard)
if(heard LESS 10000)
  message(FATAL_ERROR "the alarm's bell was not heard")
endif()
step(${EMULATOR} ${front_end}/plant_front_end.exe --render ${folder}\\pictures --data ${folder}\\front-end-data)
file(GLOB pictures ${WORK}/pictures/plant-*.bmp)
list(LENGTH pictures count)
if(NOT count EQUAL 4)
  message(FATAL_ERROR "the front end painted ${count} pages")
endif()
