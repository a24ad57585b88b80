# The installed package: find_package(labelsbase) defines the targets labelsbase::labelsbase, labelsbase::host (the
# declarations alone), labelsbase::refhost, labelsbase::labelcheck, labelsbase::labelconvert and labelsbase::labels_c.

include(CMakePackageConfigHelpers)

set(labelsbase_include_dir "${CMAKE_INSTALL_INCLUDEDIR}/labelsbase-${PROJECT_VERSION_MAJOR}")
set(labelsbase_cmake_dir "${CMAKE_INSTALL_LIBDIR}/cmake/labelsbase")

install(TARGETS labelsbase_host labelsbase refhost refhost_library labelcheck labelconvert
        EXPORT labelsbaseTargets
        FILE_SET HEADERS DESTINATION "${labelsbase_include_dir}")
if(LABELSBASE_C)
  install(TARGETS labels_c EXPORT labelsbaseTargets FILE_SET HEADERS DESTINATION "${labelsbase_include_dir}")
endif()
if(LABELSBASE_TOOL)
  install(TARGETS labels)
endif()

install(EXPORT labelsbaseTargets NAMESPACE labelsbase:: DESTINATION "${labelsbase_cmake_dir}")
configure_package_config_file(cmake/labelsbaseConfig.cmake.in labelsbaseConfig.cmake
                              INSTALL_DESTINATION "${labelsbase_cmake_dir}")
write_basic_package_version_file(labelsbaseConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/labelsbaseConfig.cmake" "${PROJECT_BINARY_DIR}/labelsbaseConfigVersion.cmake"
        DESTINATION "${labelsbase_cmake_dir}")

# The same for pkg-config: labelsbase, which brings refhost, labelcheck and labels_c. They follow the folder they are
# moved to.
set(pkgconfig_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH pkgconfig_to_prefix "/${pkgconfig_dir}" "/")
string(REGEX REPLACE "/$" "" pkgconfig_to_prefix "${pkgconfig_to_prefix}")
set(packages labelsbase labelcheck)
if(LABELSBASE_C)
  list(APPEND packages labels_c)
endif()
foreach(package IN LISTS packages)
  configure_file(cmake/${package}.pc.in ${package}.pc @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${package}.pc" DESTINATION "${pkgconfig_dir}")
endforeach()
