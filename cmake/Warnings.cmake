# The warnings that every target of this project is built under; each is an error.
# <LANG>-specific ones are kept apart so that C tests can use the same function.
function(tarnlib_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wcast-qual -Wcast-align
        -Wundef -Wvla -Wformat=2 -Werror
        $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
        -Wextra-semi>)
endfunction()
