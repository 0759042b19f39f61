# A room is one folder of src. Its CMakeLists.txt lists the room's own sources and the rooms that it may include
# headers from; the build fails at any other include, at a circle of rooms, and at a source that no room lists.

# cuebright_room(TARGET
#     SOURCES file...    compiled into TARGET
#     KNOWS room...      named by their folders below src
#     OTHERS file...)    of the folder, compiled elsewhere or not in this configuration
function(cuebright_room target)
    cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;OTHERS;KNOWS")
    if(room_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "cuebright_room does not take ${room_UNPARSED_ARGUMENTS}")
    endif()
    target_sources(${target} PRIVATE ${room_SOURCES})
    file(RELATIVE_PATH name "${PROJECT_SOURCE_DIR}/src" "${CMAKE_CURRENT_SOURCE_DIR}")
    set_property(GLOBAL APPEND PROPERTY CUEBRIGHT_ROOMS "${name}")
    list(JOIN room_KNOWS "|" knows)
    list(JOIN room_SOURCES "|" sources)
    list(JOIN room_OTHERS "|" others)
    set_property(GLOBAL APPEND_STRING PROPERTY CUEBRIGHT_ROOM_TABLE
        "set(knows_${name} \"${knows}\")\nset(sources_${name} \"${sources}|${others}\")\n")
endfunction()

# Checks the includes of every room before anything is compiled, whenever a file of src has changed.
function(cuebright_check_rooms)
    get_property(names GLOBAL PROPERTY CUEBRIGHT_ROOMS)
    get_property(table GLOBAL PROPERTY CUEBRIGHT_ROOM_TABLE)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/rooms")
    file(GENERATE OUTPUT "${folder}/table.cmake" CONTENT "set(rooms \"${names}\")\n${table}")
    add_custom_command(OUTPUT "${folder}/checked"
        COMMAND ${CMAKE_COMMAND} -D "source_dir=${PROJECT_SOURCE_DIR}/src" -D "folder=${folder}"
            -P "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/CheckRooms.cmake"
        DEPENDS "${folder}/table.cmake" "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/CheckRooms.cmake"
        DEPFILE "${folder}/checked.d"
        COMMENT "Checking which rooms include which"
        VERBATIM)
    add_custom_target(check_rooms ALL DEPENDS "${folder}/checked")
    foreach(target IN LISTS ARGN)
        add_dependencies(${target} check_rooms)
    endforeach()
endfunction()
