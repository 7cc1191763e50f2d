# The manual: chapters in doc/handbuch become pages in "handbuch" beside the programs, with their pictures.
include(GNUInstallDirs)

set(manual ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/handbuch)
file(GLOB chapters CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/doc/handbuch/*.md)
file(GLOB pictures CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/doc/bilder/*.png)
add_custom_command(OUTPUT ${manual}/index.html
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${manual}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${manual}/bilder
  COMMAND ${CMAKE_COMMAND} -E copy ${pictures} ${manual}/bilder
  COMMAND makeManual ${CMAKE_SOURCE_DIR}/doc/handbuch ${manual}
  DEPENDS makeManual ${chapters} ${pictures}
  COMMENT "Making the pages of the manual"
  VERBATIM)
add_custom_target(manual ALL DEPENDS ${manual}/index.html)
install(DIRECTORY ${manual} DESTINATION ${CMAKE_INSTALL_DATADIR}/kontorelle)
