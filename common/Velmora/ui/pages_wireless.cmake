# The wireless pages: an AP seen through its controller with its radio tabs, the radios and
# SSIDs of a stand-alone AP, the SSIDs of a controller's AP groups, the managed AP list and
# the client list.
target_sources(velmora_ui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ApDeviceStatusWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ApDeviceStatusWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/RfInfoTab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RfInfoTab.h
  ${CMAKE_CURRENT_LIST_DIR}/WirelessStatusWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WirelessStatusWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/WirelessStatusTab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WirelessStatusTab.h
  ${CMAKE_CURRENT_LIST_DIR}/SSIDStatusModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SSIDStatusModel.h
  ${CMAKE_CURRENT_LIST_DIR}/AcWirelessStatusWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/AcWirelessStatusWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/AcSSIDStatusModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/AcSSIDStatusModel.h
  ${CMAKE_CURRENT_LIST_DIR}/ApInfoListWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ApInfoListWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/ApInfoListModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ApInfoListModel.h
  ${CMAKE_CURRENT_LIST_DIR}/ClientListInfoWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ClientListInfoWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/ClientTab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ClientTab.h
  ${CMAKE_CURRENT_LIST_DIR}/ClientModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ClientModel.h
  ${CMAKE_CURRENT_LIST_DIR}/forms/UiApStatusWidget.ui
  ${CMAKE_CURRENT_LIST_DIR}/forms/RfInfoTab.ui
  ${CMAKE_CURRENT_LIST_DIR}/forms/CWirelessStatusWidget.ui
  ${CMAKE_CURRENT_LIST_DIR}/forms/CWirelessStatusTab.ui
  ${CMAKE_CURRENT_LIST_DIR}/forms/AcWirelessStatusWidget.ui
  ${CMAKE_CURRENT_LIST_DIR}/forms/CApInfoListWidget.ui
  ${CMAKE_CURRENT_LIST_DIR}/forms/CCTab.ui
)
