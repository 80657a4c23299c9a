# The program, and the programs that drive it for the desktop tests.
enable_language(RC)

# The compiler options of the product: the program and the platform code, which the contract tests share.
add_library(vellatro_product_options INTERFACE)
target_link_libraries(vellatro_product_options INTERFACE vellatro_options)
target_include_directories(vellatro_product_options INTERFACE ${CMAKE_SOURCE_DIR}/win32)
target_compile_definitions(vellatro_product_options INTERFACE _WIN32_WINNT=0x0601 WINVER=0x0601 _WIN32_IE=0x0700
    NOMINMAX)
set(product_flags -Oz -flto -fstack-protector-strong)
target_compile_options(vellatro_product_options INTERFACE
    $<$<COMPILE_LANGUAGE:CXX>:${product_flags} -ffunction-sections -fdata-sections -fno-rtti>)
# A single partition, because GCC 12 crashes while linking several.
target_link_options(vellatro_product_options INTERFACE ${product_flags} -flto-partition=none -static -Wl,--gc-sections)
target_link_libraries(vellatro_product_options INTERFACE
    comctl32 comdlg32 gdi32 user32 advapi32 shell32 ole32 oleaut32 oleacc uuid)

file(GLOB win32_sources CONFIGURE_DEPENDS win32/*.cpp)
add_library(vellatro_win32 OBJECT ${win32_sources})
# clang-tidy needs MinGW's headers of the C++ library and of Windows, and its own compiler headers.
set(tidy_headers ${CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES})
list(FILTER tidy_headers INCLUDE REGEX "c\\+\\+|${triple}/include$")
list(TRANSFORM tidy_headers PREPEND "--extra-arg-before=-isystem")
Tidy(vellatro_win32 --extra-arg-before=--target=${triple} --extra-arg-before=-nostdinc++ ${tidy_headers})
# The unstripped program translates the addresses of a crash report into function names.
add_executable(vellatro WIN32 ${portable_sources} app/main.cpp app/cxx_runtime.cpp win32/vellatro.rc
    $<TARGET_OBJECTS:vellatro_win32>)
add_executable(vellatro_unstripped WIN32 EXCLUDE_FROM_ALL $<TARGET_OBJECTS:vellatro> $<TARGET_OBJECTS:vellatro_win32>)
set_source_files_properties(win32/vellatro.rc PROPERTIES
    OBJECT_DEPENDS "${CMAKE_SOURCE_DIR}/win32/vellatro.manifest;${CMAKE_SOURCE_DIR}/win32/vellatro.ico")
foreach(target vellatro_win32 vellatro vellatro_unstripped)
    target_link_libraries(${target} PRIVATE vellatro_product_options)
endforeach()
foreach(program vellatro vellatro_unstripped)
    target_link_options(${program} PRIVATE -Wl,--disable-auto-import -Wl,--nxcompat -Wl,--dynamicbase -Wl,--tsaware
        -Wl,--no-insert-timestamp)
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
        # Windows 2000; the linker's default is Windows NT 4.0.
        target_link_options(${program} PRIVATE -Wl,--subsystem,windows:5.0)
    endif()
endforeach()
target_link_options(vellatro PRIVATE -s)
# Users run shell_tree to report a calendar that is not visible. The package does not contain it.
add_executable(shell_tree tools/shell_tree.cpp)
target_compile_definitions(shell_tree PRIVATE _WIN32_WINNT=0x0601 WINVER=0x0601 NOMINMAX)
target_link_libraries(shell_tree PRIVATE vellatro_options user32)
target_link_options(shell_tree PRIVATE -static -s)
add_custom_target(package
    COMMAND ${CMAKE_COMMAND} -D PROGRAM=$<TARGET_FILE:vellatro> -D SOURCES=${CMAKE_SOURCE_DIR}
        -D OUT=${CMAKE_BINARY_DIR} -P ${CMAKE_SOURCE_DIR}/cmake/package.cmake
    DEPENDS vellatro vellatro_unstripped VERBATIM)
file(GLOB desktop_test_list CONFIGURE_DEPENDS tests/desktop/CMakeLists.txt)
if(desktop_test_list)
    add_subdirectory(tests/desktop)
    add_subdirectory(bench/desktop EXCLUDE_FROM_ALL)
    add_subdirectory(tools/soak EXCLUDE_FROM_ALL)
    add_subdirectory(tools/pictures EXCLUDE_FROM_ALL)
endif()
