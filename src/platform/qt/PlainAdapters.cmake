# For a system that has nothing of its own for these: one instance, status items, giving a window the keyboard.
find_package(Qt6 6.4 REQUIRED COMPONENTS Network)
target_link_libraries(cuebright_platform PRIVATE Qt6::Network)
target_sources(cuebright_platform PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/PlainTrayWatch.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PlainWindowActivation.cpp
    ${CMAKE_CURRENT_LIST_DIR}/QtOneInstance.cpp)
