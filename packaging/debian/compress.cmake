# Compresses the manual pages and changelogs, as Debian's policy asks, in the folder where CPack has put the files.
file(GLOB_RECURSE texts
  ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/man/man1/*.1
  ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/doc/*/changelog)
foreach(text IN LISTS texts)
  # -n leaves the time out: the same files make the same package.
  execute_process(COMMAND gzip -9nf ${text} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
