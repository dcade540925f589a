# CPack runs this on the trees that it has laid out, one a package, before it packs them: adds the
# documents that every Debian package has, and changes what Debian wants to be different.
set(sources "${CPACK_TARNLIB_DIR}")
set(version "${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY
        OUTPUT_VARIABLE output OUTPUT_STRIP_TRAILING_WHITESPACE)
    set(output "${output}" PARENT_SCOPE)
endfunction()

run(date --utc --rfc-email "--date=${CPACK_TARNLIB_DATE}")
set(date "${output}")

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    set(tree "${CPACK_TEMPORARY_DIRECTORY}/${component}/usr")
    string(TOUPPER "${component}" component)
    set(documents "${tree}/share/doc/${CPACK_DEBIAN_${component}_PACKAGE_NAME}")
    file(MAKE_DIRECTORY "${documents}")
    file(COPY_FILE "${sources}/cmake/debian/copyright" "${documents}/copyright")
    file(COPY_FILE "${sources}/CHANGELOG.md" "${documents}/changelog")
    configure_file("${sources}/cmake/debian/changelog.in" "${documents}/changelog.Debian" @ONLY)
    file(GLOB texts "${tree}/share/man/man*/*" "${documents}/changelog*")
    run(gzip -9n ${texts})
endforeach()

# The loader finds the library in /usr/lib by itself.
file(RPATH_REMOVE FILE "${CPACK_TEMPORARY_DIRECTORY}/tarncalc/usr/bin/tarncalc")
