# Installation layout and the Debian package (cpack -G DEB, see scripts/package.sh).
#
# Installed under a prefix (/usr in the package):
#   bin/evida, bin/evida-cli
#   share/evida/{help,xsd,locale,evida.png}     found by src/model/zdroje.cpp beside bin
#   share/applications/evida.desktop
#   share/icons/hicolor/NxN/apps/evida.png
#   share/metainfo/io.github.evida.Evida.metainfo.xml
#   share/man/man1/evida.1.gz, evida-cli.1.gz
#   share/doc/evida/copyright, changelog.gz

# The date of this version's release, shown in the manual pages and the AppStream release.
set(EVIDA_RELEASE_DATE 2026-11-24)
set(EVIDA_PACKAGING_DIR ${CMAKE_CURRENT_BINARY_DIR}/packaging)

install(TARGETS evida evida-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY data/help data/xsd DESTINATION ${CMAKE_INSTALL_DATADIR}/evida)
install(FILES data/evida.png DESTINATION ${CMAKE_INSTALL_DATADIR}/evida)
install(FILES data/evida.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)

configure_file(data/io.github.evida.Evida.metainfo.xml.in ${EVIDA_PACKAGING_DIR}/io.github.evida.Evida.metainfo.xml @ONLY)
install(FILES ${EVIDA_PACKAGING_DIR}/io.github.evida.Evida.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# The icon in the sizes desktops ask for, scaled from the one picture.
set(EVIDA_ICON_SIZES 16 22 24 32 48 64 128 256)
find_program(EVIDA_CONVERT NAMES convert)
set(EVIDA_GENERATED)
foreach(size ${EVIDA_ICON_SIZES})
  set(icon ${EVIDA_PACKAGING_DIR}/icons/${size}x${size}/evida.png)
  if(EVIDA_CONVERT)
    add_custom_command(OUTPUT ${icon}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${EVIDA_PACKAGING_DIR}/icons/${size}x${size}
      COMMAND ${EVIDA_CONVERT} ${CMAKE_CURRENT_SOURCE_DIR}/data/evida.png -filter Lanczos -resize ${size}x${size}
              -strip -define png:exclude-chunks=date,time PNG32:${icon}
      DEPENDS data/evida.png VERBATIM)
    list(APPEND EVIDA_GENERATED ${icon})
    install(FILES ${icon} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
  endif()
endforeach()
if(NOT EVIDA_CONVERT)
  message(STATUS "ImageMagick convert not found: only the 128x128 icon is installed")
  install(FILES data/evida.png DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/128x128/apps)
endif()

# Manual pages and the Debian changelog, compressed as Debian wants (gzip -9n: no name, no time).
foreach(page evida.1 evida-cli.1 changelog)
  if(page STREQUAL "changelog")
    configure_file(data/package/changelog.in ${EVIDA_PACKAGING_DIR}/${page} @ONLY)
  else()
    configure_file(data/${page}.in ${EVIDA_PACKAGING_DIR}/${page} @ONLY)
  endif()
  add_custom_command(OUTPUT ${EVIDA_PACKAGING_DIR}/${page}.gz
    COMMAND gzip -9nf -k ${EVIDA_PACKAGING_DIR}/${page}
    DEPENDS ${EVIDA_PACKAGING_DIR}/${page} VERBATIM)
  list(APPEND EVIDA_GENERATED ${EVIDA_PACKAGING_DIR}/${page}.gz)
endforeach()
install(FILES ${EVIDA_PACKAGING_DIR}/evida.1.gz ${EVIDA_PACKAGING_DIR}/evida-cli.1.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
# The version has no Debian revision, so this is a native package: its changelog is changelog.gz.
install(FILES data/package/copyright ${EVIDA_PACKAGING_DIR}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/evida)
add_custom_target(evida_packaging ALL DEPENDS ${EVIDA_GENERATED})

# --- the Debian package -------------------------------------------------------------------
set(CPACK_PACKAGE_NAME evida)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "Evida")
set(CPACK_PACKAGE_CONTACT "Evida <podpora@evida.cz>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Czech tax records for sole traders and small businesses")
set(CPACK_PACKAGE_FILE_NAME evida_${PROJECT_VERSION}_amd64)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_PACKAGE_NAME evida)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE amd64)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Evida <podpora@evida.cz>")
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://www.evida.cz")
# The libraries the two programs link, as the runtime packages that ship them.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The Czech texts of wxWidgets' own dialogs (print preview, help viewer, file choosers).
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "wx3.2-i18n")
# The synopsis is CPACK_PACKAGE_DESCRIPTION_SUMMARY; cpack indents these lines and marks the
# empty ones as paragraph breaks.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Evida keeps the statutory tax records of a Czech sole trader or small
business on a cash basis: the money journal, cash registers and bank
accounts, issued and received invoices, receivables and liabilities with
their payments, fixed assets with tax depreciation, stock, and a vehicle log.

It produces the VAT return, the VAT control statement and the EC sales list
as the tax administration's XML files, checked against the official schemas,
and prints books and documents to paper or PDF. The user interface is Czech.

The package also contains evida-cli, a command-line tool for checking company
files, importing journal entries and bank statements and exporting filings.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
include(CPack)
