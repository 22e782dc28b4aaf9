# Copyright (c) 2026 The libshare_client Authors.
# Licensed under the Apache License, Version 2.0 (the "License");
# you may not use this file except in compliance with the License.
# You may obtain a copy of the License at
#
#     http://www.apache.org/licenses/LICENSE-2.0
#
# Unless required by applicable law or agreed to in writing, software
# distributed under the License is distributed on an "AS IS" BASIS,
# WITHOUT WARRANTIES OR CONDITIONS OF ANY KIND, either express or implied.
# See the License for the specific language governing permissions and
# limitations under the License.

# Host packaging: `cmake --install` puts the library (with its SONAME), its public headers, the host platform
# libraries it links, a CMake package (find_package(share_client) -> share_client::share_client and
# share_client::share_emulator) and pkg-config files (share_client, share_emulator) under the prefix.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(share_client_include_dir ${CMAKE_INSTALL_INCLUDEDIR}/share_client)
set(share_platform_include_dir ${CMAKE_INSTALL_INCLUDEDIR}/share_client/platform)
set(share_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/share_client)

# Only the listed symbols leave the shared library; the proxies and the request pattern stay inside.
set(share_version_script ${PROJECT_SOURCE_DIR}/frameworks/inner/libshare_client.map)
target_link_options(share_client PRIVATE -Wl,--version-script=${share_version_script})
set_property(TARGET share_client APPEND PROPERTY LINK_DEPENDS ${share_version_script})
target_include_directories(share_client INTERFACE $<INSTALL_INTERFACE:${share_client_include_dir}>)

# Public headers are the include folders, whole: what the library keeps to itself lives beside its sources.
foreach(folder common/include services/parcel/include frameworks/inner/include)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/${folder}/ DESTINATION ${share_client_include_dir} COMPONENT development
        FILES_MATCHING PATTERN "*.h")
endforeach()

# The host platform parts, exported as ohos::<part> like in the build tree.
set(share_platform_parts utils ipc_core samgr_proxy hilog)
foreach(part ${share_platform_parts})
    set_target_properties(ohos_${part} PROPERTIES EXPORT_NAME ${part})
    target_include_directories(ohos_${part} INTERFACE $<INSTALL_INTERFACE:${share_platform_include_dir}>)
    list(APPEND share_platform_targets ohos_${part})
endforeach()
foreach(part utils ipc samgr)
    file(GLOB part_headers ${PROJECT_SOURCE_DIR}/platform/${part}/*.h)
    install(FILES ${part_headers} DESTINATION ${share_platform_include_dir} COMPONENT development)
endforeach()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/platform/hilog/include/hilog DESTINATION ${share_platform_include_dir}
    COMPONENT development)

# Installed side by side, each library finds its platform dependencies next to itself.
set_target_properties(share_client ${share_platform_targets} PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS ${share_platform_targets} EXPORT share_platform_targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime)
install(TARGETS share_client EXPORT share_client_targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
install(EXPORT share_platform_targets NAMESPACE ohos:: FILE share_platform_targets.cmake
    DESTINATION ${share_cmake_dir} COMPONENT development)
install(EXPORT share_client_targets NAMESPACE share_client:: FILE share_client_targets.cmake
    DESTINATION ${share_cmake_dir} COMPONENT development)

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/share_client-config.cmake.in
    ${PROJECT_BINARY_DIR}/share_client-config.cmake INSTALL_DESTINATION ${share_cmake_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/share_client-config-version.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/share_client-config.cmake ${PROJECT_BINARY_DIR}/share_client-config-version.cmake
    DESTINATION ${share_cmake_dir} COMPONENT development)

# The pkg-config files locate the prefix from their own folder, so the package can be installed with any --prefix;
# an application linked by them finds the libraries where they were installed, without LD_LIBRARY_PATH.
file(RELATIVE_PATH share_pc_prefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
foreach(package share_client share_emulator)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/${package}.pc.in ${PROJECT_BINARY_DIR}/${package}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)
endforeach()
