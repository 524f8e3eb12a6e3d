# The switch pages: device status with its panel choice and port detail, port status,
# port statistics, PoE, and the usage chart.
target_sources(velmora_ui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/DeviceStatusWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DeviceStatusWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/PanelSelection.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PanelSelection.h
  ${CMAKE_CURRENT_LIST_DIR}/PortDetailInfoModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PortDetailInfoModel.h
  ${CMAKE_CURRENT_LIST_DIR}/UsageRateChart.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UsageRateChart.h
  ${CMAKE_CURRENT_LIST_DIR}/SwitchPorts.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SwitchPorts.h
  ${CMAKE_CURRENT_LIST_DIR}/PortStatusWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PortStatusWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/PortStatusModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PortStatusModel.h
  ${CMAKE_CURRENT_LIST_DIR}/PortStatisticWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PortStatisticWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/PortStatisticModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PortStatisticModel.h
  ${CMAKE_CURRENT_LIST_DIR}/POEPortStatusWidget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/POEPortStatusWidget.h
  ${CMAKE_CURRENT_LIST_DIR}/POEPortStatusModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/POEPortStatusModel.h
  ${CMAKE_CURRENT_LIST_DIR}/forms/UiPanelStatusWidget.ui
  ${CMAKE_CURRENT_LIST_DIR}/forms/UiPortStatusWidget.ui
  ${CMAKE_CURRENT_LIST_DIR}/forms/UiPortStatisticWidget.ui
  ${CMAKE_CURRENT_LIST_DIR}/forms/UiPOEPortStatusWidget.ui
)
# The pages hold their forms by value, so users of their headers (the factory's generated
# page list, tests) need the forms that uic writes for this target.
target_include_directories(velmora_ui PUBLIC ${CMAKE_CURRENT_BINARY_DIR}/velmora_ui_autogen/include)
