# Run by CPack before it makes a package of the installed files: puts them where Debian's programs look.
set(zsh ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/zsh)
file(RENAME ${zsh}/site-functions ${zsh}/vendor-completions)
