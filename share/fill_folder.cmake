# Adds the starter files and folders that the program folder does not have. It never overwrites the user's files, and a
# deleted club does not come back. Renaming complete copies into place keeps an interrupted installation clean.
set(folder "$ENV{DESTDIR}${prefix}/Kickwell")
set(copies "${folder}/~kickwell-install")
file(REMOVE_RECURSE "${copies}")
file(GLOB items RELATIVE "${source}/starter" "${source}/starter/*")
foreach(item IN LISTS items)
  if(NOT EXISTS "${folder}/${item}" AND NOT IS_SYMLINK "${folder}/${item}")
    message(STATUS "Installing: ${folder}/${item}")
    file(COPY "${source}/starter/${item}" DESTINATION "${copies}"
         FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ
         DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    file(RENAME "${copies}/${item}" "${folder}/${item}")
  endif()
endforeach()
file(REMOVE_RECURSE "${copies}")
