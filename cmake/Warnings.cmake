# The warnings of our own build; the presets make them errors.
add_library(iosphoto_warnings INTERFACE)
target_compile_options(iosphoto_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -Wformat=2)
