# Compresses what Debian wants compressed, the manual pages and changelogs, where CPack has laid the files out.
file(GLOB_RECURSE texts
  ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/man/man1/*.1
  ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/doc/*/changelog)
foreach(text IN LISTS texts)
  # -n: without the time, so that the same files make the same package.
  execute_process(COMMAND gzip -9nf ${text} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
