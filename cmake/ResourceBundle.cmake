# The application's fonts and images: the artwork of the categories, and what is taken from npm packages of exact
# versions, only the files in use, with their licences.
set(vornel_bundle ${PROJECT_BINARY_DIR}/VORNELApp/VORNEL_VORNELApp.bundle)
set(vornel_font_weights 400Regular 500Medium 600SemiBold)
set(vornel_symbols
    archive arrow-down-narrow-wide arrow-left arrow-right badge-check brain check chevron-down chevron-left chevron-right chevron-up circle circle-check
    circle-dot clipboard-paste code-xml copy copy-plus download ellipsis external-link file file-braces file-code file-plus file-text folder
    folder-open folder-plus folder-sync gauge grid-2x2 history image info layout-grid link list-checks list-x palette pencil plus refresh-cw rotate-cw save search settings shield-half sliders-horizontal sparkles
    trash-2 triangle-alert undo-2 upload wrench x)

set(vornel_artwork Design Development Knowledge Operations Other Quality)

set(assets ${PROJECT_SOURCE_DIR}/VORNELApp/Assets)
set(packages ${PROJECT_BINARY_DIR}/assets)
set(oxanium ${packages}/node_modules/@expo-google-fonts/oxanium)
set(lucide ${packages}/node_modules/lucide-static)

set(fonts ${vornel_font_weights})
list(TRANSFORM fonts REPLACE "(.+)" "${oxanium}/\\1/Oxanium_\\1.ttf")
set(images ${vornel_symbols})
list(TRANSFORM images REPLACE "(.+)" "${lucide}/icons/\\1.svg")
set(artwork ${vornel_artwork})
list(TRANSFORM artwork REPLACE "(.+)" "${assets}/Artwork/VornelCategory\\1.svg")

add_custom_command(
    OUTPUT ${vornel_bundle}.stamp
    DEPENDS ${artwork} ${assets}/package.json ${assets}/package-lock.json ${CMAKE_CURRENT_LIST_FILE}
    COMMENT "Collecting fonts and images"
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${packages} ${vornel_bundle}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${assets} ${packages}
    COMMAND ${CMAKE_COMMAND} -E chdir ${packages} npm ci --loglevel=error
    COMMAND ${CMAKE_COMMAND} -E make_directory ${vornel_bundle}/Fonts ${vornel_bundle}/Images
    COMMAND ${CMAKE_COMMAND} -E copy ${fonts} ${vornel_bundle}/Fonts
    COMMAND ${CMAKE_COMMAND} -E copy ${images} ${artwork} ${vornel_bundle}/Images
    COMMAND ${CMAKE_COMMAND} -E copy ${oxanium}/LICENSE_FONT ${vornel_bundle}/Fonts/LICENSE
    COMMAND ${CMAKE_COMMAND} -E copy ${lucide}/LICENSE ${vornel_bundle}/Images/LICENSE
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${packages}
    COMMAND ${CMAKE_COMMAND} -E touch ${vornel_bundle}.stamp
    VERBATIM
)
add_custom_target(VORNELBundle ALL DEPENDS ${vornel_bundle}.stamp)
# Where the installed program looks, from its own folder.
file(RELATIVE_PATH vornel_share ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_DATADIR}/vornel)
install(DIRECTORY ${vornel_bundle} DESTINATION ${CMAKE_INSTALL_DATADIR}/vornel
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
