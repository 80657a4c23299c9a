# Puts what users get into vellatro.zip: cmake -D PROGRAM=... -D SOURCES=... -D OUT=... -P package.cmake
# PROGRAM is vellatro.exe, SOURCES this project's folder, OUT the folder for the archive.
if(NOT EXISTS "${SOURCES}/packs/Default/settings.ini")
    message(FATAL_ERROR "The theme pack packs/Default is missing")
endif()
set(stage "${OUT}/package")
file(REMOVE_RECURSE "${stage}")
file(COPY "${PROGRAM}" "${SOURCES}/packs/Default" "${SOURCES}/README.md" "${SOURCES}/LICENSE"
    DESTINATION "${stage}/Vellatro" PATTERN "*.bmp" EXCLUDE)
file(REMOVE "${OUT}/vellatro.zip")
execute_process(COMMAND "${CMAKE_COMMAND}" -E tar cf "${OUT}/vellatro.zip" --format=zip Vellatro
    WORKING_DIRECTORY "${stage}" COMMAND_ERROR_IS_FATAL ANY)
