# What every target is compiled with: all warnings, as errors, and the sanitizers of the preset.
add_library(vornel_options INTERFACE)
target_compile_options(vornel_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Werror)
target_compile_definitions(vornel_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS QT_STRICT_ITERATORS)

if(VORNEL_SANITIZERS)
    target_compile_options(vornel_options INTERFACE
        -fsanitize=${VORNEL_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(vornel_options INTERFACE -fsanitize=${VORNEL_SANITIZERS})
endif()
