# The Debian package. Whoever distributes it names an address of their own in VORNEL_MAINTAINER.
set(VORNEL_MAINTAINER "Les auteurs de VORNEL <vornel@brindlecove.com>" CACHE STRING "Who answers for the package")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vornel)
set(CPACK_PACKAGE_VENDOR VORNEL)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "library of assistant skills")
set(CPACK_PACKAGE_DESCRIPTION
"VORNEL keeps the skills of the coding assistants Claude and Codex in one
library: it imports what their folders hold, lets you edit, classify, trash
and restore skills, installs a copy for each assistant, and tells whether
each copy is in sync.

The package holds the window (vornel) and the command line (vornelctl). The
interface is in French.")
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/DebianPlaces.cmake)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${VORNEL_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION non-free/utils) # as long as no licence is granted
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The libraries are found in the programs; the modules of QML and the plugins are loaded only at run time.
# Where the desktop has no dialogs for files, Qt's own need the modules of controls and of folders' lists, too.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "hicolor-icon-theme, qml6-module-qt-labs-folderlistmodel, qml6-module-qtqml, \
qml6-module-qtqml-models, qml6-module-qtqml-workerscript, qml6-module-qtquick, qml6-module-qtquick-controls, \
qml6-module-qtquick-dialogs, qml6-module-qtquick-layouts, qml6-module-qtquick-templates")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, fonts-noto-color-emoji, qt6-image-formats-plugins, qt6-wayland")
include(CPack)
