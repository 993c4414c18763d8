# Below another prefix than these the system does not look for libraries by itself: there, an installed program finds them relative
# to itself, also when the whole prefix is moved. On macOS the library has an absolute path.
function(find_libraries_relative_to_program target)
  if(APPLE OR CMAKE_INSTALL_PREFIX MATCHES "^/usr(/local)?/?$")
    return()
  endif()
  file(RELATIVE_PATH library_folder "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${library_folder}")
endfunction()
