# The Debian package, built and checked by scripts/package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zolmark)
set(CPACK_PACKAGE_CONTACT "Zolmark developers <developers@zolmark.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "cash book for the self-employed in Germany")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Zolmark keeps receipts and expenses with date, amount, tax key, category,
voucher number and note, in a main cash book and any number of side cash
books, by year and month, with their running balance.
.
It prints the cash report and exports the bookings for the accountant. One
person, one machine, one keyed database file. The program speaks German.")
set(CPACK_DEBIAN_PACKAGE_SECTION non-free/misc) # No licence has been granted.
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${ZOLMARK_HOMEPAGE})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)

set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)

# dpkg-shlibdeps finds the linked libraries. Listed here are the files loaded at run time: the desktop's
# fonts, the Courier of the report and Qt's German texts.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core, fonts-urw-base35, qt6-translations-l10n")
# A viewer for the manual, Qt's Wayland plugin, and xdg-open for the web pages. The X11 plugin is in
# libqt6gui6.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "evince | pdf-viewer, qt6-wayland, xdg-utils")

include(CPack)
