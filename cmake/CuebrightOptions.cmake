# How every target of this project is compiled: link `cuebright_options` privately.
add_library(cuebright_options INTERFACE)

if(NOT MSVC)
    target_compile_options(cuebright_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor)
    if(CUEBRIGHT_WERROR)
        target_compile_options(cuebright_options INTERFACE -Werror)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # Optimised, it finds fault with the library's own strings.
        target_compile_options(cuebright_options INTERFACE "$<$<CONFIG:Release>:-Wno-restrict>")
    endif()
endif()

# What distributions build with: a smashed stack or an overrun buffer ends the program.
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

# Qt targets link this as well: Qt's keywords and silent conversions stay off.
add_library(cuebright_qt_options INTERFACE)
target_compile_definitions(cuebright_qt_options INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_FOREACH)
target_link_libraries(cuebright_qt_options INTERFACE cuebright_options)
# Code around widgets waits for the toolkit: small is worth more than fast, in memory as at the start.
if(NOT MSVC)
    target_compile_options(cuebright_qt_options INTERFACE "$<$<CONFIG:Release>:-Os>")
endif()
