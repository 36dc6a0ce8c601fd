# Whether QML files are compiled beforehand. Without it the programs compile them as they read them: they start more
# slowly and are built much faster.
option(VORNEL_COMPILE_QML "Compile QML files beforehand" ON)
if(NOT VORNEL_COMPILE_QML)
    set(vornel_qml_options NO_CACHEGEN)
endif()

# The QML files of a module lie in several folders, and in one for the program.
function(vornel_name_qml_files)
    foreach(file IN LISTS ARGN)
        cmake_path(GET file FILENAME name)
        set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${name})
    endforeach()
endfunction()

# Compiles what Qt generates from a module's QML files in a few large pieces: each by itself would read the same headers
# again. Its warnings don't count, the code isn't ours. What runs once, to make the module's types known, need not be fast.
function(vornel_compile_qml target)
    string(TOLOWER ${target} name)
    set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${name}_qmltyperegistrations.cpp PROPERTIES
        COMPILE_OPTIONS "$<$<CONFIG:Release>:-O1>")
    get_target_property(sources ${target} SOURCES)
    set(generated ${sources})
    list(FILTER generated INCLUDE REGEX "/qmlcache/")
    if(NOT generated)
        return()
    endif()
    list(FILTER sources EXCLUDE REGEX "/qmlcache/")
    set_target_properties(${target} PROPERTIES SOURCES "${sources}")
    add_library(${target}_compiled OBJECT ${generated})
    set_target_properties(${target}_compiled PROPERTIES
        AUTOMOC OFF POSITION_INDEPENDENT_CODE ON UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 32)
    target_compile_options(${target}_compiled PRIVATE -w)
    target_link_libraries(${target}_compiled PRIVATE Qt6::Quick)
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:${target}_compiled>)
endfunction()
