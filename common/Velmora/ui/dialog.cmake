# The status dialog: its form, the option tree's model, the option factory, the page base
# and the display texts that the pages share.
target_sources(velmora_ui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/SwitchDeviceStatusWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/SwitchDeviceStatusWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/forms/UiSwitchDeviceStatusWidget.ui
  ${CMAKE_CURRENT_LIST_DIR}/DeviceStatusFactory.h
  ${CMAKE_CURRENT_LIST_DIR}/DeviceStatusFactory.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DeviceStatusItemModel.h
  ${CMAKE_CURRENT_LIST_DIR}/DeviceStatusItemModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DeviceStatusOptionBase.h
  ${CMAKE_CURRENT_LIST_DIR}/DeviceStatusOptionBase.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DeviceTypeString.h
  ${CMAKE_CURRENT_LIST_DIR}/DeviceTypeString.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SpeedDataUintconvert.h
  ${CMAKE_CURRENT_LIST_DIR}/SpeedDataUintconvert.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FormatRunTime.h
  ${CMAKE_CURRENT_LIST_DIR}/FormatRunTime.cpp
)

# The page class behind each option of the dialog, each in a file pair named after the class
# without its leading C. A family of pages turns its rows on just by adding its file pairs to
# velmora_ui in its pages_*.cmake: when this folder has been read to the end, the target's
# sources are searched for each page's .cpp and DeviceStatusPages.h is written, with
# VELMORA_HAS_PAGE_<class> 1 and an include of the class's header for every page found, 0 for
# the others. The factory offers and makes only the pages found.
set(VELMORA_STATUS_PAGE_CLASSES
  CDeviceStatusWidget
  CFiberPanelStatusWidget
  CBasicWirelessInfoWidget
  CPortStatusWidget
  CPortStatisticWidget
  CPOEPortStatusWidget
  CWirelessStatusWidget
  CPPPoEStatusWidget
  CAcWirelessStatusWidget
  CApDeviceStatusWidget
  CClientListInfoWidget
  CApInfoListWidget
)
set(VELMORA_STATUS_PAGES_DIR ${CMAKE_CURRENT_BINARY_DIR}/status_pages)
target_include_directories(velmora_ui PUBLIC ${VELMORA_STATUS_PAGES_DIR})

function(velmora_write_status_pages)
  get_target_property(sources velmora_ui SOURCES)
  set(defines "")
  set(includes "")
  foreach(class IN LISTS VELMORA_STATUS_PAGE_CLASSES)
    string(SUBSTRING ${class} 1 -1 stem)
    set(header "")
    foreach(source IN LISTS sources)
      get_filename_component(name "${source}" NAME)
      if(name STREQUAL "${stem}.cpp")
        cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} OUTPUT_VARIABLE path)
        cmake_path(REPLACE_EXTENSION path ".h")
        file(RELATIVE_PATH header ${CMAKE_CURRENT_SOURCE_DIR} ${path})
      endif()
    endforeach()
    if(header)
      string(APPEND defines "#define VELMORA_HAS_PAGE_${class} 1\n")
      string(APPEND includes "#include \"${header}\"\n")
    else()
      string(APPEND defines "#define VELMORA_HAS_PAGE_${class} 0\n")
    endif()
  endforeach()
  file(CONFIGURE OUTPUT ${VELMORA_STATUS_PAGES_DIR}/DeviceStatusPages.h @ONLY CONTENT
"#pragma once
// Written by CMake (common/Velmora/ui/dialog.cmake): the page classes that velmora_ui builds.
${defines}
${includes}")
endfunction()
cmake_language(DEFER CALL velmora_write_status_pages)
