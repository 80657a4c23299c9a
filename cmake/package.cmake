# Puts what users get into vellatro.zip: cmake -D PROGRAM=... -D SOURCES=... -D OUT=... -P package.cmake
# PROGRAM is vellatro.exe, SOURCES this project's folder, OUT the folder for the archive.
if(NOT EXISTS "${SOURCES}/packs/Default/settings.ini")
    message(FATAL_ERROR "The theme pack packs/Default is missing")
endif()
set(stage "${OUT}/package")
set(folder "${stage}/Vellatro")
file(REMOVE_RECURSE "${stage}")
file(COPY "${PROGRAM}" "${SOURCES}/packs/Default" DESTINATION "${folder}" PATTERN "*.bmp" EXCLUDE)
# Older Windows' editor shows line ends of this kind only.
configure_file("${SOURCES}/LICENSE" "${folder}/LICENSE.txt" @ONLY NEWLINE_STYLE CRLF)
# Users read the guide first; its pictures go into a folder. One that is not there breaks off.
file(READ "${SOURCES}/docs/guide.md" guide)
string(REGEX REPLACE "\\(([a-z-]+\\.png)\\)" "(docs/\\1)" readme "${guide}")
file(WRITE "${stage}/README.md" "${readme}")
configure_file("${stage}/README.md" "${folder}/README.md" @ONLY NEWLINE_STYLE CRLF)
string(REGEX MATCHALL "[a-z-]+\\.png" pictures "${guide}")
foreach(picture ${pictures})
    file(COPY "${SOURCES}/docs/${picture}" DESTINATION "${folder}/docs")
endforeach()
file(REMOVE "${OUT}/vellatro.zip")
execute_process(COMMAND "${CMAKE_COMMAND}" -E tar cf "${OUT}/vellatro.zip" --format=zip Vellatro
    WORKING_DIRECTORY "${stage}" COMMAND_ERROR_IS_FATAL ANY)
