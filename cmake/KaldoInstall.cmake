# What `cmake --install` puts where, and the Debian package made of it. Included last, when all
# programs of this build are known.

include(GNUInstallDirs)

set(kaldo_man_pages docs/man/kaldo.1)
foreach(program kaldo kaldo-desktop)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME)
  endif()
endforeach()
# A menu entry for a program that was not built would start nothing.
if(TARGET kaldo-desktop)
  list(APPEND kaldo_man_pages docs/man/kaldo-desktop.1)
  install(FILES packaging/kaldo-desktop.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(FILES packaging/kaldo.svg
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
  install(FILES packaging/kaldo-desktop.metainfo.xml
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
  install(FILES packaging/kaldo-run-record.xml
    DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
endif()
install(FILES ${kaldo_man_pages} DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
# The manual names the folders of its own installation, wherever that is.
install(CODE "set(page \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_MANDIR}/man1/kaldo.1\")
  file(READ \"\${page}\" text)
  string(REPLACE \"/usr/share/\" \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/\" text \"\${text}\")
  file(WRITE \"\${page}\" \"\${text}\")")
set(kaldo_completions "${PROJECT_BINARY_DIR}/src/cli/completion")
install(FILES "${kaldo_completions}.bash" RENAME kaldo
  DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
install(FILES "${kaldo_completions}.zsh" RENAME _kaldo
  DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions")
install(FILES "${kaldo_completions}.fish" RENAME kaldo.fish
  DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
# A component of its own: the package would depend on an MPI library, which laptops need not have and
# which clusters have in a version of their own.
if(TARGET kaldo-mpi)
  install(TARGETS kaldo-mpi RUNTIME COMPONENT cluster EXCLUDE_FROM_ALL)
  install(FILES docs/man/kaldo-mpi.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1"
    COMPONENT cluster EXCLUDE_FROM_ALL)
endif()

# The documents keep their places towards each other, so that the links between them lead somewhere.
install(DIRECTORY examples DESTINATION "${CMAKE_INSTALL_DATADIR}/kaldo")
install(FILES README.md CHANGELOG.md CITATION.cff CONTRIBUTING.md LICENSE packaging/copyright TYPE DOC)
install(DIRECTORY docs DESTINATION "${CMAKE_INSTALL_DOCDIR}" FILES_MATCHING PATTERN "*.md"
  PATTERN "*.png" PATTERN man EXCLUDE)
install(DIRECTORY contrib DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(FILES src/search/README.md DESTINATION "${CMAKE_INSTALL_DOCDIR}/src/search")
file(RELATIVE_PATH kaldo_examples
  "${CMAKE_INSTALL_FULL_DOCDIR}" "${CMAKE_INSTALL_FULL_DATADIR}/kaldo/examples")
install(CODE "file(CREATE_LINK \"${kaldo_examples}\"
  \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DOCDIR}/examples\" SYMBOLIC)")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kaldo)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "parentage allocation with uncollected parents")
set(CPACK_PACKAGE_VENDOR "The KALDO developers")
set(CPACK_PACKAGE_CONTACT "The KALDO developers")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/debian-files.cmake")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"KALDO allocates offspring to their parents from microsatellite genotypes when
only part of the true parents has been collected. Where a parent is missing
from the collection it says so instead of guessing.

Parents may be of unknown or known sex and divided into groups, typing errors
are part of the model, and simulations estimate how far an allocation can be
trusted.")
include(CPack)
