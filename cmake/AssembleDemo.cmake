# Lays out the demo installation: every library side by side, the programs,
# and the data files. Run at build time with
#   cmake -DDEMO_DIR=... -DDATA_DIR=... -DBINARIES="a;b;c" -P AssembleDemo.cmake
#
# Libraries and programs are always refreshed. Data files are copied only when
# the installation does not have them yet, so that what a user changed in the
# demo (the live store, the edition in Q9Sec.dat, the registry) survives the
# next build.

file(MAKE_DIRECTORY "${DEMO_DIR}" "${DEMO_DIR}/registry")

foreach(binary IN LISTS BINARIES)
    if(EXISTS "${binary}")
        file(COPY "${binary}" DESTINATION "${DEMO_DIR}")
    endif()
endforeach()

# The translations in the binaries' folder (<library dir>/Lang), refreshed
# like the binaries.
set(binary_folders "")
foreach(binary IN LISTS BINARIES)
    get_filename_component(folder "${binary}" DIRECTORY)
    list(APPEND binary_folders "${folder}")
endforeach()
list(REMOVE_DUPLICATES binary_folders)
foreach(folder IN LISTS binary_folders)
    if(IS_DIRECTORY "${folder}/Lang")
        file(COPY "${folder}/Lang" DESTINATION "${DEMO_DIR}")
    endif()
endforeach()

if(EXISTS "${DATA_DIR}")
    file(GLOB_RECURSE data_files RELATIVE "${DATA_DIR}" "${DATA_DIR}/*")
    foreach(relative IN LISTS data_files)
        if(NOT EXISTS "${DEMO_DIR}/${relative}")
            get_filename_component(folder "${DEMO_DIR}/${relative}" DIRECTORY)
            file(COPY "${DATA_DIR}/${relative}" DESTINATION "${folder}")
        endif()
    endforeach()
endif()
