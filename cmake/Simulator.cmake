# A Verilog simulator: IVERILOG and VVP, not found where there is none.
find_program(IVERILOG iverilog)
find_program(VVP vvp)

# Compiles a Verilog file of the current directory into NAME.vvp in the current binary directory.
function(tarnlib_compile_verilog name file)
    cmake_parse_arguments(PARSE_ARGV 2 ARG "" "" "OPTIONS;DEPENDS")
    set(program "${CMAKE_CURRENT_BINARY_DIR}/${name}.vvp")
    add_custom_command(OUTPUT "${program}"
        COMMAND "${IVERILOG}" -g2012 ${ARG_OPTIONS} -o "${program}"
            "${CMAKE_CURRENT_SOURCE_DIR}/${file}"
        DEPENDS ${file} ${ARG_DEPENDS}
        VERBATIM)
    add_custom_target(${name}_program ALL DEPENDS "${program}")
endfunction()
