# What comes with the programs lies beside them as it will be installed: the default world, made from
# the tables of world/, the pictures, and what the window tells about itself. The tool writes the world
# beside its place and only then puts it there, so that a mistake in a table leaves the last good world alone.

set(share ${CMAKE_BINARY_DIR}/share/grapplemont)
set(default_world ${share}/data)
file(MAKE_DIRECTORY ${share})
file(RELATIVE_PATH pictures ${share} ${PROJECT_SOURCE_DIR}/gfx)
file(CREATE_LINK ${pictures} ${share}/gfx SYMBOLIC)
configure_file(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${share}/CHANGELOG.md COPYONLY)
configure_file(${PROJECT_SOURCE_DIR}/LICENSES/GPL-3.0-or-later.txt ${share}/LICENSE COPYONLY)

file(GLOB world_tables CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/world/*.csv)
set(world_stamp ${CMAKE_BINARY_DIR}/world.stamp)
set(world_files "")
foreach(file belt event network promos sponsor stables staff teams tv wrestler)
  list(APPEND world_files ${default_world}/${file}.dat)
endforeach()

add_custom_command(
  OUTPUT ${world_stamp}
  BYPRODUCTS ${world_files}
  COMMAND grapplemont-world build ${PROJECT_SOURCE_DIR}/world ${default_world}
  COMMAND ${CMAKE_COMMAND} -E touch ${world_stamp}
  DEPENDS grapplemont-world ${world_tables}
  COMMENT "Building the default world"
  VERBATIM)
add_custom_target(world ALL DEPENDS ${world_stamp})
