# What `cmake --install <build> [--prefix DIR]` puts under the prefix, for a host program:
#
#   lib/libvelmora.so.<version> (SONAME libvelmora.so.<major>) and its links
#   include/velmora/            the module's headers (logical/interface, ui, ui/DevicePanelStatus)
#   include/velmora/platform/   the headers of the client libraries those headers use
#   share/velmora/translations/ the module's .qm catalogs, when the build made any
#   lib/cmake/Velmora/          find_package(Velmora) -> Velmora::velmora
#
# The client libraries themselves are inside libvelmora (common/Velmora/CMakeLists.txt).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(VELMORA_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/velmora)
set(VELMORA_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/Velmora)
set(VELMORA_INSTALL_TRANSLATIONSDIR ${CMAKE_INSTALL_DATADIR}/velmora/translations)

# Headers are included as the tree includes them: "SwitchDeviceStatusWidget.h",
# "logical/interface/ParamInterface.h", "TarvexGUIToolkit/BaseDialog.h", "JSONStruct/...".
target_include_directories(velmora INTERFACE
  $<INSTALL_INTERFACE:${VELMORA_INSTALL_INCLUDEDIR}>
  $<INSTALL_INTERFACE:${VELMORA_INSTALL_INCLUDEDIR}/ui>
  $<INSTALL_INTERFACE:${VELMORA_INSTALL_INCLUDEDIR}/platform>)
# The libraries whose headers the installed headers include; VelmoraConfig.cmake finds them.
target_link_libraries(velmora INTERFACE
  "$<INSTALL_INTERFACE:Qt5::Widgets;Qt5::Svg;Qt5::Concurrent;cjson;rapidjson;log4cxx;LibXml2::LibXml2;CURL::libcurl>")

install(TARGETS velmora EXPORT VelmoraTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

install(DIRECTORY ${VELMORA_ROOT}/common/Velmora/ DESTINATION ${VELMORA_INSTALL_INCLUDEDIR}
  FILES_MATCHING PATTERN "*.h"
  PATTERN "forms" EXCLUDE)
install(FILES ${CMAKE_BINARY_DIR}/common/Velmora/ui/status_pages/DeviceStatusPages.h
  DESTINATION ${VELMORA_INSTALL_INCLUDEDIR} OPTIONAL)
foreach(dir
    platform/Plinth/include
    platform/ostrand/include
    platform/TarvexGUIToolkit/include
    platform/Quillon/include
    platform/senvia/include
    Common/Protocol)
  install(DIRECTORY ${VELMORA_ROOT}/${dir}/ DESTINATION ${VELMORA_INSTALL_INCLUDEDIR}/platform
    FILES_MATCHING PATTERN "*.h")
endforeach()

# The module's translation catalogs, wherever under the build tree the build wrote them
# (the viewer's and the tests' own are not the module's). Nothing is installed before the
# module has catalogs.
install(CODE "
  file(GLOB_RECURSE velmora_qm_files LIST_DIRECTORIES false \"${CMAKE_BINARY_DIR}/*.qm\")
  list(FILTER velmora_qm_files EXCLUDE REGEX \"^${CMAKE_BINARY_DIR}/(tools|tests|bench)/\")
  if(velmora_qm_files)
    file(INSTALL \${velmora_qm_files} DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${VELMORA_INSTALL_TRANSLATIONSDIR}\")
  endif()
")

install(EXPORT VelmoraTargets NAMESPACE Velmora:: DESTINATION ${VELMORA_INSTALL_CMAKEDIR})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/VelmoraConfig.cmake.in
  ${CMAKE_BINARY_DIR}/VelmoraConfig.cmake
  INSTALL_DESTINATION ${VELMORA_INSTALL_CMAKEDIR}
  PATH_VARS VELMORA_INSTALL_TRANSLATIONSDIR)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/VelmoraConfigVersion.cmake
  VERSION ${PROJECT_VERSION}
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/VelmoraConfig.cmake ${CMAKE_BINARY_DIR}/VelmoraConfigVersion.cmake
  DESTINATION ${VELMORA_INSTALL_CMAKEDIR})
