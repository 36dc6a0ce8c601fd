# What every target is compiled with: all warnings, as errors, the hardening of a distribution where it is optimised,
# and the sanitizers of the preset.
add_library(vornel_options INTERFACE)
target_compile_options(vornel_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Werror)
target_compile_definitions(vornel_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS QT_STRICT_ITERATORS)

target_compile_options(vornel_options INTERFACE "$<$<CONFIG:Release>:-fstack-protector-strong;-D_FORTIFY_SOURCE=2>")
target_link_options(vornel_options INTERFACE "$<$<CONFIG:Release>:-pie;LINKER:-z,relro,-z,now>")

if(VORNEL_SANITIZERS)
    target_compile_options(vornel_options INTERFACE
        -fsanitize=${VORNEL_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(vornel_options INTERFACE -fsanitize=${VORNEL_SANITIZERS})
    if(VORNEL_SANITIZERS MATCHES "undefined")
        # It writes to a pipe for each class, where the tests count what a program writes.
        target_compile_options(vornel_options INTERFACE -fno-sanitize=vptr)
    endif()
endif()
if(VORNEL_SANITIZERS STREQUAL "thread")
    # Headers of Qt hold fences, which the sanitizer doesn't see.
    target_compile_options(vornel_options INTERFACE -Wno-tsan)
    add_library(vornel_thread_sanitizer OBJECT tests/sanitizers/QtFutures.cpp)
    target_link_libraries(vornel_thread_sanitizer PRIVATE Qt6::Core)
    target_compile_options(vornel_thread_sanitizer PRIVATE -fsanitize=thread)
    target_sources(vornel_options INTERFACE
        $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:$<TARGET_OBJECTS:vornel_thread_sanitizer>>)
endif()
