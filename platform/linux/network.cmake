# Looking hosts up, for whatever speaks to them.
quindle_library(quindle_host_addresses
    SOURCES HostAddresses.cpp
    USES Qt6::Core Threads::Threads
)

# What needs the network libraries, in a module that a process loads with its first post.
quindle_library(quindle_network
    SOURCES
        HttpsExchange.cpp
        HttpsPost.cpp
    USES quindle_host_addresses quindle_platform Qt6::Network Qt6::Core
)

add_library(quindle_network_module MODULE NetworkModule.cpp)
target_link_libraries(quindle_network_module PRIVATE quindle_network quindle_platform)
set_target_properties(quindle_network_module PROPERTIES
    PREFIX ""
    OUTPUT_NAME quindle-network
    LIBRARY_OUTPUT_DIRECTORY "${QUINDLE_BUNDLE_CONTENTS}/PlugIns")
install(TARGETS quindle_network_module LIBRARY DESTINATION "${QUINDLE_INSTALL_CONTENTS}/PlugIns")
