# Writes the copyright file of the package: its template with the licences that came with the typeface, the icons and the
# grammars.
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

# The grammars are of several authors, who all grant the same licence.
file(GLOB_RECURSE licences ${GRAMMARS}/LICENSE)
foreach(file IN LISTS licences)
    file(STRINGS ${file} lines REGEX "^Copyright ")
    list(APPEND grammar_authors ${lines})
endforeach()
list(TRANSFORM grammar_authors REPLACE "^Copyright \\(c\\) " "")
list(SORT grammar_authors)
list(REMOVE_DUPLICATES grammar_authors)
list(JOIN grammar_authors "\n " grammar_authors)
list(GET licences 0 licence)
read_licence(grammars_licence ${licence})
string(REGEX REPLACE "^.*(Permission is hereby granted)" " \\1" grammars_licence "${grammars_licence}")
configure_file(${TEMPLATE} ${OUTPUT} @ONLY)
