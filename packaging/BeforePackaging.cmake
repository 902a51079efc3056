# Run by CPack when everything is installed into its folder and before that is packed: modes that do not depend on the
# builder's umask, and, for packages that are the same byte for byte, no times of this build.

file(GLOB_RECURSE installed LIST_DIRECTORIES true ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*)
foreach(path IN LISTS installed)
  if(IS_DIRECTORY ${path})
    file(CHMOD ${path} PERMISSIONS
      OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  endif()
endforeach()
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND touch --no-dereference --date @$ENV{SOURCE_DATE_EPOCH} ${installed} COMMAND_ERROR_IS_FATAL ANY)
endif()
