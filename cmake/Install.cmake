# What a system gets: cmake --install BUILD. The programs find their files in ../share/kontorelle.
include(GNUInstallDirs)

set(APP_ID de.veltrino.Kontorelle)
set(shared ${CMAKE_INSTALL_DATADIR}/kontorelle)
set(made ${CMAKE_BINARY_DIR}/install)
file(MAKE_DIRECTORY ${made})

install(TARGETS kontorelle kontorelle-cli)
install(TARGETS kontorelle-pdf kontorelle-xlsx LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/kontorelle)
install(FILES
  ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/template.dat
  ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/kontorelle_en.qm
  ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/banken.tsv
  DESTINATION ${shared})

# Icons: the picture itself, and painted in the sizes of desktops that want pixels.
set(picture ${CMAKE_SOURCE_DIR}/data/icons/kontorelle.svg)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${picture} DESTINATION ${icons}/scalable/apps RENAME ${APP_ID}.svg)
install(FILES ${CMAKE_SOURCE_DIR}/data/icons/kontorelle-symbolic.svg DESTINATION ${icons}/symbolic/apps
  RENAME ${APP_ID}-symbolic.svg)
foreach(size 16 22 24 32 48 64 128 256)
  set(painted ${made}/${size}.png)
  add_custom_command(OUTPUT ${painted}
    COMMAND makeIcon ${picture} ${size} ${painted}
    DEPENDS makeIcon ${picture}
    COMMENT "Painting the icon in ${size} pixels"
    VERBATIM)
  list(APPEND painted_icons ${painted})
  install(FILES ${painted} DESTINATION ${icons}/${size}x${size}/apps RENAME ${APP_ID}.png)
endforeach()

# Desktop file, file types, and the description for software centres with the releases of CHANGELOG.md.
install(FILES ${CMAKE_SOURCE_DIR}/data/desktop/${APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_SOURCE_DIR}/data/desktop/${APP_ID}.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
  RENAME ${APP_ID}.xml)
set_property(DIRECTORY ${CMAKE_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS CHANGELOG.md)
file(STRINGS ${CMAKE_SOURCE_DIR}/CHANGELOG.md headings ENCODING UTF-8 REGEX "^## [0-9.]+ – [0-9-]+$")
set(RELEASES)
foreach(heading IN LISTS headings)
  string(REGEX MATCH "^## ([0-9.]+) – ([0-9-]+)$" found "${heading}")
  string(APPEND RELEASES "    <release version=\"${CMAKE_MATCH_1}\" date=\"${CMAKE_MATCH_2}\"/>\n")
endforeach()
# Pictures need an address that software centres can fetch them from: they are expected below the maker's home page.
set(PAGES)
if(APP_HOMEPAGE)
  string(APPEND PAGES "  <url type=\"homepage\">${APP_HOMEPAGE}</url>\n  <screenshots>\n")
  set(kind " type=\"default\"")
  foreach(page "uebersicht|How the month stands and what is to be done|Wie der Monat steht und was zu tun ist"
               "hauptfenster|The entries of a month with the balances of all accounts|Die Einträge eines Monats mit den Kontoständen"
               "kontoauszuege|Transactions of the bank with what they are proposed to become|Umsätze der Bank mit Vorschlägen zum Buchen"
               "diagramme|Where the money goes|Wo das Geld bleibt"
               "bericht|The report of a year|Der Bericht eines Jahres"
               "importassistent|Columns of an unknown table|Die Spalten einer unbekannten Tabelle")
    string(REPLACE "|" ";" page "${page}")
    list(GET page 0 picture_name)
    list(GET page 1 english_caption)
    list(GET page 2 german_caption)
    string(APPEND PAGES "    <screenshot${kind}>\n      <caption>${english_caption}</caption>\n"
      "      <caption xml:lang=\"de\">${german_caption}</caption>\n"
      "      <image>${APP_HOMEPAGE}/bilder/${picture_name}.png</image>\n    </screenshot>\n")
    set(kind)
  endforeach()
  string(APPEND PAGES "  </screenshots>\n")
endif()
configure_file(${CMAKE_SOURCE_DIR}/data/desktop/${APP_ID}.metainfo.xml.in ${made}/${APP_ID}.metainfo.xml @ONLY)
install(FILES ${made}/${APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# Manual pages and completions are written by the command line program, from the tables that make its help.
foreach(language de en)
  foreach(page kontorelle kontorelle-cli)
    set(written ${made}/${page}.${language}.1)
    add_custom_command(OUTPUT ${written}
      COMMAND ${CMAKE_COMMAND} -E env LC_ALL=${language}.UTF-8 $<TARGET_FILE:kontorelle-cli> manpage ${page} > ${written}
      DEPENDS kontorelle-cli catalogues
      COMMENT "Writing ${page}.1 (${language})"
      VERBATIM)
    list(APPEND written_pages ${written})
    if(language STREQUAL en)
      install(FILES ${written} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 RENAME ${page}.1)
    else()
      install(FILES ${written} DESTINATION ${CMAKE_INSTALL_MANDIR}/${language}/man1 RENAME ${page}.1)
    endif()
  endforeach()
endforeach()
function(completion shell folder name)
  set(written ${made}/completion.${shell})
  add_custom_command(OUTPUT ${written}
    COMMAND kontorelle-cli completion ${shell} > ${written}
    DEPENDS kontorelle-cli
    COMMENT "Writing the completion for ${shell}"
    VERBATIM)
  install(FILES ${written} DESTINATION ${CMAKE_INSTALL_DATADIR}/${folder} RENAME ${name})
  set(written_completions ${written_completions} ${written} PARENT_SCOPE)
endfunction()
completion(bash bash-completion/completions kontorelle-cli)
completion(zsh zsh/site-functions _kontorelle-cli)
completion(fish fish/vendor_completions.d kontorelle-cli.fish)

add_custom_target(installed ALL DEPENDS ${painted_icons} ${written_pages} ${written_completions})

install(FILES ${CMAKE_SOURCE_DIR}/README.md ${CMAKE_SOURCE_DIR}/CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/kontorelle)
