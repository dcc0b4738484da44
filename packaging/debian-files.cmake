# What Debian wants of a package beyond the files themselves: a changelog in its own format, and
# manual pages compressed without the date of the build. Packages have a folder of their own for zsh.
set(root "${CPACK_TEMPORARY_DIRECTORY}/usr/share")
file(COPY_FILE "${CMAKE_CURRENT_LIST_DIR}/debian-changelog" "${root}/doc/kaldo/changelog")
file(GLOB texts "${root}/man/man1/*.1" "${root}/doc/kaldo/changelog")
execute_process(COMMAND chmod 644 "${root}/doc/kaldo/changelog" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND gzip -9n ${texts} COMMAND_ERROR_IS_FATAL ANY)
file(MAKE_DIRECTORY "${root}/zsh/vendor-completions")
file(RENAME "${root}/zsh/site-functions/_kaldo" "${root}/zsh/vendor-completions/_kaldo")
file(REMOVE_RECURSE "${root}/zsh/site-functions")
