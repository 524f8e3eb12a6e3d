# The topology and alarm service clients: JSON over HTTP to the client's own services.
target_sources(senvia PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/src/TopologyComm.cpp)
