# SPDX-FileCopyrightText: 2026 The HarborAPI authors
# SPDX-License-Identifier: BSD-3-Clause
#
# The installed package: library, headers, CMake package, pkg-config file.

include(CMakePackageConfigHelpers)

set(harbor_header_dir ${CMAKE_INSTALL_INCLUDEDIR}/HarborAPI)
set(harbor_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/HarborAPI)

install(TARGETS HarborAPI EXPORT HarborAPITargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/ DESTINATION ${harbor_header_dir})
install(FILES ${PROJECT_BINARY_DIR}/src/include/harborapi_export.h DESTINATION ${harbor_header_dir})

install(EXPORT HarborAPITargets NAMESPACE Harbor:: DESTINATION ${harbor_package_dir})
configure_package_config_file(cmake/HarborAPIConfig.cmake.in HarborAPIConfig.cmake
  INSTALL_DESTINATION ${harbor_package_dir}
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(HarborAPIConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/HarborAPIConfig.cmake
  ${PROJECT_BINARY_DIR}/HarborAPIConfigVersion.cmake
  DESTINATION ${harbor_package_dir})

# Relative to the file itself, so that the installed tree can be moved.
file(RELATIVE_PATH harbor_prefix_from_pc
  /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
get_target_property(harbor_coin_includes Coin::Coin INTERFACE_INCLUDE_DIRECTORIES)
list(TRANSFORM harbor_coin_includes PREPEND -I)
list(JOIN harbor_coin_includes " " harbor_coin_cflags)
# Qt 5 refuses to be compiled against without it.
set(harbor_pic_flag "")
if(HARBOR_QT_MAJOR_USED EQUAL 5)
  set(harbor_pic_flag -fPIC)
endif()
configure_file(cmake/HarborAPI.pc.in HarborAPI.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/HarborAPI.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
