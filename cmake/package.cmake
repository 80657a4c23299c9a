# Packs the files for users into vellatro.zip: cmake -D PROGRAM=... -D SOURCES=... -D OUT=... -P package.cmake
# PROGRAM is vellatro.exe, SOURCES this project's folder, OUT the folder for the archive.
if(NOT EXISTS "${SOURCES}/packs/Default/settings.ini")
    message(FATAL_ERROR "The theme pack packs/Default is missing")
endif()
set(stage "${OUT}/package")
set(folder "${stage}/Vellatro")
file(REMOVE_RECURSE "${stage}")
# Without the bitmap that a start leaves in a pack, and without the program that painted the pack.
file(COPY "${PROGRAM}" "${SOURCES}/packs/Default" DESTINATION "${folder}"
    PATTERN "*.bmp" EXCLUDE PATTERN painter EXCLUDE)
# The editor of older Windows shows only CR LF line endings.
configure_file("${SOURCES}/LICENSE" "${folder}/LICENSE.txt" @ONLY NEWLINE_STYLE CRLF)
find_program(python NAMES python3 python REQUIRED)
execute_process(COMMAND "${python}" "${SOURCES}/tools/make_guide.py" "${SOURCES}/docs/guide.md" "${folder}"
    COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE "${OUT}/vellatro.zip")
execute_process(COMMAND "${CMAKE_COMMAND}" -E tar cf "${OUT}/vellatro.zip" --format=zip Vellatro
    WORKING_DIRECTORY "${stage}" COMMAND_ERROR_IS_FATAL ANY)
