# The relocatable package: bin (DLLs, their runtime DLLs, the gallery), lib, include and the CMake package.
include(CMakePackageConfigHelpers)

set(package_targets zopwnt)
if(TARGET zopafx)
  list(APPEND package_targets zopafx)
endif()
install(TARGETS ${package_targets} EXPORT zopwnt_targets
  RUNTIME DESTINATION bin
  LIBRARY DESTINATION lib
  ARCHIVE DESTINATION lib)
if(TARGET zopgallery)
  install(TARGETS zopgallery RUNTIME DESTINATION bin)
  install(DIRECTORY gallery/scripts DESTINATION share/zopwnt)
  install(FILES gallery/tips.txt DESTINATION bin)
endif()
install(FILES ${ZOPWNT_RUNTIME_DLLS} DESTINATION bin)
if(ZOPWNT_RUNTIME_DLLS AND CMAKE_STRIP) # nine tenths of them are for debuggers
  install(CODE "file(GLOB runtime \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin/lib*.dll\")
    execute_process(COMMAND ${CMAKE_STRIP} --strip-debug \${runtime} COMMAND_ERROR_IS_FATAL ANY)")
endif()
install(FILES CHANGELOG.md DESTINATION .)
install(DIRECTORY examples DESTINATION share/zopwnt PATTERN __pycache__ EXCLUDE PATTERN tests EXCLUDE)

install(FILES src/zopwnt.h src/zopwnt_api.h DESTINATION include/zopwnt)
foreach(header ${ZOPWNT_PUBLIC_HEADERS})
  get_filename_component(room ${header} DIRECTORY)
  install(FILES src/${header} DESTINATION include/zopwnt/${room})
endforeach()
if(TARGET zopafx)
  # By their names: the other headers there are private.
  install(DIRECTORY src/afx/ DESTINATION include/zopwnt/afx FILES_MATCHING
    PATTERN "afx*.h" PATTERN "atl*.h" PATTERN SDKDDKVer.h PATTERN verrsrc.h PATTERN winres.h
    PATTERN "afxres.rc" PATTERN "afxprint.rc")
endif()

if(TARGET zopafx)
  install(PROGRAMS cmake/rc-preprocess DESTINATION lib/cmake/zopwnt)
  install(FILES cmake/mingw-w64.cmake DESTINATION lib/cmake/zopwnt)
endif()
install(EXPORT zopwnt_targets NAMESPACE zopwnt:: DESTINATION lib/cmake/zopwnt)
configure_package_config_file(cmake/zopwnt-config.cmake.in ${PROJECT_BINARY_DIR}/zopwnt-config.cmake
  INSTALL_DESTINATION lib/cmake/zopwnt)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zopwnt-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zopwnt-config.cmake ${PROJECT_BINARY_DIR}/zopwnt-config-version.cmake
  DESTINATION lib/cmake/zopwnt)
