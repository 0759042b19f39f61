# How every target of this project is compiled: link `cuebright_options` privately.
add_library(cuebright_options INTERFACE)

if(NOT MSVC)
    target_compile_options(cuebright_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor)
    if(CUEBRIGHT_WERROR)
        target_compile_options(cuebright_options INTERFACE -Werror)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # GCC 12 reports a false -Wrestrict inside std::string at -O2.
        target_compile_options(cuebright_options INTERFACE "$<$<CONFIG:Release>:-Wno-restrict>")
    endif()
endif()

# The hardening that distributions use: a smashed stack or an overrun buffer ends the program.
if(CMAKE_SYSTEM_NAME STREQUAL Linux AND NOT CUEBRIGHT_SANITIZE)
    target_compile_options(cuebright_options INTERFACE
        "$<$<CONFIG:Release>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
    target_link_options(cuebright_options INTERFACE "$<$<CONFIG:Release>:-Wl,-z,relro,-z,now>")
endif()

if(CUEBRIGHT_SANITIZE)
    target_compile_options(cuebright_options INTERFACE
        -fsanitize=${CUEBRIGHT_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(cuebright_options INTERFACE -fsanitize=${CUEBRIGHT_SANITIZE})
endif()

# For Qt targets as well: without Qt's keywords and implicit string conversions.
add_library(cuebright_qt_options INTERFACE)
target_compile_definitions(cuebright_qt_options INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_FOREACH)
target_link_libraries(cuebright_qt_options INTERFACE cuebright_options)
# Widget code spends its time in Qt, so optimise it for size: less memory, faster start.
if(NOT MSVC)
    target_compile_options(cuebright_qt_options INTERFACE "$<$<CONFIG:Release>:-Os>")
endif()
