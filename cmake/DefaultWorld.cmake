# The default world: data/ at the root of the checkout, from the tables of world/. All presets share
# it, and all make the same of it. The tool writes it beside its place and only then puts it there, so
# that a mistake in a table leaves the last good world alone.

file(GLOB world_tables CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/world/*.csv)
set(world_stamp ${CMAKE_BINARY_DIR}/world.stamp)
set(world_files "")
foreach(file belt event network promos sponsor stables staff teams tv wrestler)
  list(APPEND world_files ${PROJECT_SOURCE_DIR}/data/${file}.dat)
endforeach()

add_custom_command(
  OUTPUT ${world_stamp}
  BYPRODUCTS ${world_files}
  COMMAND grapplemont-world build ${PROJECT_SOURCE_DIR}/world ${PROJECT_SOURCE_DIR}/data
  COMMAND ${CMAKE_COMMAND} -E touch ${world_stamp}
  DEPENDS grapplemont-world ${world_tables}
  COMMENT "Building the default world"
  VERBATIM)
add_custom_target(world ALL DEPENDS ${world_stamp})
