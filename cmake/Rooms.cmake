# One static library a room, one test program a room, with the same warnings everywhere.

function(bornika_options target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor
                                             -Woverloaded-virtual)
    # In a jumbo build each file sees what those before it keep to themselves: what is no fault of
    # a file by itself is not warned of there.
    if(CMAKE_UNITY_BUILD)
        target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
    else()
        target_compile_options(${target} PRIVATE -Wshadow)
    endif()
    if(BORNIKA_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    # Typed signal connections and checked string conversions only.
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII
                                                 QT_NO_URL_CAST_FROM_STRING)
    if(BORNIKA_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=address,undefined
                                                 -fno-sanitize-recover=undefined
                                                 -fno-omit-frame-pointer)
        # Under them g++ 12 takes members of optionals and of regular expressions for uninitialised.
        target_compile_options(${target} PRIVATE -Wno-maybe-uninitialized)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    endif()
endfunction()

# bornika_precompiled(target kind): in a jumbo build the target reads the headers of
# cmake/precompiled/<kind>.h from one file that was made once.
function(bornika_precompiled target kind)
    if(NOT CMAKE_UNITY_BUILD)
        return()
    endif()
    set(headers bornika_${kind}_headers)
    if(NOT TARGET ${headers})
        add_library(${headers} STATIC ${PROJECT_SOURCE_DIR}/cmake/precompiled/${kind}.cpp)
        set_target_properties(${headers} PROPERTIES AUTOMOC OFF AUTORCC OFF UNITY_BUILD OFF)
        target_link_libraries(${headers} PRIVATE Qt6::Widgets)
        if(kind STREQUAL tests)
            # Not QtTest, whose definitions differ from one test program to the next.
            target_link_libraries(${headers} PRIVATE GTest::gmock)
        endif()
        bornika_options(${headers})
        if(kind STREQUAL tests AND BORNIKA_SANITIZE)
            target_compile_options(${headers} PRIVATE -O0)
        endif()
        target_precompile_headers(${headers}
            PRIVATE ${PROJECT_SOURCE_DIR}/cmake/precompiled/${kind}.h)
    endif()
    target_precompile_headers(${target} REUSE_FROM ${headers})
    if(kind STREQUAL tests AND BORNIKA_SANITIZE)
        # What is looked at is the program, not its tests: they need no speed.
        target_compile_options(${target} PRIVATE -O0)
    endif()
    # What the toolkit's object compiler has made is empty in most rooms.
    set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/mocs_compilation.cpp
                                PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
endfunction()

# A room's form compiler looks at the files that have a form of their own name: the others may include
# forms that another room has made.
function(bornika_skip_foreign_forms)
    foreach(source IN LISTS ARGN)
        if(source MATCHES "[.]cpp$")
            string(REGEX REPLACE "[.]cpp$" ".ui" form ${source})
            if(NOT form IN_LIST ARGN)
                set_source_files_properties(${source} PROPERTIES SKIP_AUTOUIC ON)
            endif()
        endif()
    endforeach()
endfunction()

# bornika_room(name [CORE] SOURCES ... LINKS ... [PRIVATE_LINKS ...]): the library bornika_<name>. With
# CORE it knows no widget.
function(bornika_room name)
    cmake_parse_arguments(ROOM "CORE" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(bornika_${name} STATIC ${ROOM_SOURCES})
    target_include_directories(bornika_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src
                                                      ${PROJECT_SOURCE_DIR})
    if(ROOM_CORE)
        set(toolkit Qt6::Core)
    else()
        set(toolkit Qt6::Widgets)
    endif()
    target_link_libraries(bornika_${name} PUBLIC ${toolkit} ${ROOM_LINKS}
                                          PRIVATE ${ROOM_PRIVATE_LINKS})
    target_compile_options(bornika_${name} PRIVATE -Wconversion)
    # Only a room that holds forms runs the form compiler; the others include what it has made.
    if(ROOM_SOURCES MATCHES "[.]ui(;|$)")
        bornika_skip_foreign_forms(${ROOM_SOURCES})
        set_target_properties(bornika_${name} PROPERTIES AUTOUIC ON)
        target_include_directories(bornika_${name}
            PUBLIC ${CMAKE_CURRENT_BINARY_DIR}/bornika_${name}_autogen/include)
    endif()
    bornika_options(bornika_${name})
    if(NOT ROOM_CORE)
        bornika_precompiled(bornika_${name} toolkit)
    endif()
endfunction()

# bornika_test(name SOURCES ... LINKS ...): the program test_<name>, each of its tests known to ctest.
function(bornika_test name)
    cmake_parse_arguments(TEST "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(test_${name} ${TEST_SOURCES})
    target_link_libraries(test_${name} PRIVATE bornika_test_support GTest::gmock Qt6::Test
                                               ${TEST_LINKS})
    bornika_options(test_${name})
    bornika_precompiled(test_${name} tests)
    include(GoogleTest)
    gtest_discover_tests(test_${name} TEST_PREFIX "${name}." NO_PRETTY_VALUES
        DISCOVERY_TIMEOUT 120
        PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 300)
endfunction()
