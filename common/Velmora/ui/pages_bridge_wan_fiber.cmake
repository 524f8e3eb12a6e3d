# The bridge's wireless card with its connected devices, the WAN ports of routers and
# controllers, and the crate of a fiber converter chassis.
target_sources(velmora_ui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/BasicWirelessInfoWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/BasicWirelessInfoWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/ConnectedDeviceInfoModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ConnectedDeviceInfoModel.h
  ${CMAKE_CURRENT_LIST_DIR}/FormatConnectTime.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FormatConnectTime.h
  ${CMAKE_CURRENT_LIST_DIR}/PPPoEStatusWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PPPoEStatusWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/PPPoEStatusModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PPPoEStatusModel.h
  ${CMAKE_CURRENT_LIST_DIR}/FiberPanelStatusWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FiberPanelStatusWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/PanelSlotInfoModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PanelSlotInfoModel.h
  ${CMAKE_CURRENT_LIST_DIR}/forms/UiBasicWirelessInfoWidget.ui
  ${CMAKE_CURRENT_LIST_DIR}/forms/CPPPoEStatusWidget.ui
  ${CMAKE_CURRENT_LIST_DIR}/forms/UiFiberPanelStatusWidget.ui
)
