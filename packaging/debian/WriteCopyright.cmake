# Writes the copyright file of the package: its template with the licences that came with the typeface and the icons.
function(read_licence result file)
    file(READ ${file} text)
    string(STRIP "${text}" text)
    string(REGEX REPLACE "\n[ \t]*\n" "\n.\n" text "${text}")
    string(REGEX REPLACE "\n[ \t]*\n" "\n.\n" text "${text}")
    string(REPLACE "\n" "\n " text " ${text}")
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

read_licence(oxanium_licence ${BUNDLE}/Fonts/LICENSE)
read_licence(lucide_licence ${BUNDLE}/Images/LICENSE)
configure_file(${TEMPLATE} ${OUTPUT} @ONLY)
