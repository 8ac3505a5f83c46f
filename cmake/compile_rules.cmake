# Compile rules for every target of the project.
if(MSVC)
  # /wd4100: a parameter unused; /wd4251: a private member of an exported class that is not exported itself.
  add_compile_options("$<$<COMPILE_LANGUAGE:C,CXX>:/W4;/wd4100;/wd4251;/utf-8;/fp:precise;/bigobj>")
  add_compile_definitions(_CRT_SECURE_NO_WARNINGS)
else()
  add_compile_options(
    -Wall -Wextra -Wno-unused-parameter
    # An operation called on a null object answers its failure value; the compiler must keep the test.
    -fno-delete-null-pointer-checks
    # Float arithmetic is what is written: no fused multiply-add.
    -ffp-contract=off)
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    add_compile_options(-Wno-tautological-undefined-compare -Wno-undefined-bool-conversion)
  else()
    add_compile_options(-Wno-nonnull-compare)
  endif()
endif()

# Resource scripts are read as the platform's own tools write them.
if(MINGW AND CMAKE_HOST_UNIX)
  string(APPEND CMAKE_RC_FLAGS " --preprocessor=${PROJECT_SOURCE_DIR}/cmake/rc-preprocess")
endif()

if(ZOPWNT_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# The compiler's runtime DLLs, kept beside the programs and installed with them.
set(ZOPWNT_RUNTIME_DLLS)
if(MINGW)
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
      OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT EXISTS ${path})
      set(path /usr/x86_64-w64-mingw32/lib/${dll})
    endif()
    list(APPEND ZOPWNT_RUNTIME_DLLS ${path})
    configure_file(${path} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${dll} COPYONLY)
  endforeach()
endif()
