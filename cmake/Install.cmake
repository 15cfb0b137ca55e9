# What is installed and where, in the three parts that packages are made of: the window, the programs
# without one, and what all of them read. The world and the pictures go to CMAKE_INSTALL_DATADIR, which
# may be share/games; what desktops and shells look for has its place in CMAKE_INSTALL_DATAROOTDIR.

set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(id org.grapplemont.Grapplemont)

# Where the project is at home on the web: what leads there is left out while nothing is named. The
# environment can name it, too, which scripts that build pass on.
set(GRAPPLEMONT_HOMEPAGE "$ENV{GRAPPLEMONT_HOMEPAGE}" CACHE STRING
    "The project's page, without a slash at its end")
set(GRAPPLEMONT_PICTURES "$ENV{GRAPPLEMONT_PICTURES}" CACHE STRING
    "Where the pictures of docs/pictures are on the web")
set(homepage "")
set(screenshots "")
if(GRAPPLEMONT_HOMEPAGE)
  set(homepage "<url type=\"homepage\">${GRAPPLEMONT_HOMEPAGE}</url>")
endif()
if(GRAPPLEMONT_PICTURES)
  set(base ${GRAPPLEMONT_PICTURES})
  file(READ ${packaging}/screenshots.xml screenshots)
  string(CONFIGURE "${screenshots}" screenshots @ONLY)
endif()

# Versions that have come out, as the changelog dates them.
set(releases "")
file(STRINGS CHANGELOG.md heads REGEX "^## [0-9.]+ - [0-9-]+$")
foreach(head ${heads})
  string(REGEX REPLACE "^## ([0-9.]+) - ([0-9-]+)$" "<release version=\"\\1\" date=\"\\2\"/>" head ${head})
  string(APPEND releases "\n    ${head}")
endforeach()
if(releases)
  set(releases "<releases>${releases}\n  </releases>")
endif()

# A page of the manual bears no day, so that it is the same in each build.
set(manuals "")
function(manual name component)
  if(WIN32)
    return()
  endif()
  set(page ${CMAKE_BINARY_DIR}/man/${name}.6)
  add_custom_command(
    OUTPUT ${page}
    COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:${name}>
            -DPAGE=${packaging}/man/${name}.6 -DOUTPUT=${page}
            -DFILES=${packaging}/man/files -DPROJECT_VERSION=${PROJECT_VERSION}
            -P ${PROJECT_SOURCE_DIR}/cmake/Manual.cmake
    DEPENDS ${name} ${packaging}/man/${name}.6 ${packaging}/man/files
            ${PROJECT_SOURCE_DIR}/cmake/Manual.cmake
    VERBATIM)
  install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man6 COMPONENT ${component})
  set(manuals ${manuals} ${page} PARENT_SCOPE)
endfunction()

set(completions ${CMAKE_INSTALL_DATAROOTDIR}/bash-completion/completions)
function(completed name component)
  install(FILES ${packaging}/completions/grapplemont.bash DESTINATION ${completions}
          COMPONENT ${component} RENAME ${name})
endfunction()

if(TARGET grapplemont)
  install(TARGETS grapplemont COMPONENT window)
  manual(grapplemont window)
  completed(grapplemont window)
  configure_file(${packaging}/${id}.metainfo.xml.in ${CMAKE_BINARY_DIR}/${id}.metainfo.xml @ONLY)
  install(FILES ${CMAKE_BINARY_DIR}/${id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/metainfo
          COMPONENT window)
  install(FILES ${packaging}/grapplemont.desktop DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications
          COMPONENT window)
  # Under the program's full name a Flatpak hands it on to the desktop.
  install(FILES ${packaging}/grapplemont-slot.xml DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/mime/packages
          COMPONENT window RENAME ${id}.xml)
  set(icons ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor)
  foreach(size 16 22 24 32 48 64 128 256 512)
    install(FILES ${packaging}/icons/${size}.png DESTINATION ${icons}/${size}x${size}/apps
            COMPONENT window RENAME grapplemont.png)
  endforeach()
  install(FILES gfx/source/icon.svg DESTINATION ${icons}/scalable/apps COMPONENT window
          RENAME grapplemont.svg)
endif()

# One file, whose name says which of the two it is.
if(TARGET grapplemont-tools)
  set(second ${CMAKE_BINARY_DIR}/installed/grapplemont-console)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/installed)
  file(CREATE_LINK grapplemont-world ${second} SYMBOLIC)
  install(TARGETS grapplemont-tools COMPONENT tools)
  install(FILES ${second} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
else()
  install(TARGETS grapplemont-console grapplemont-world COMPONENT tools)
endif()
foreach(program grapplemont-console grapplemont-world)
  manual(${program} tools)
  completed(${program} tools)
endforeach()
add_custom_target(manual ALL DEPENDS ${manuals})

install(DIRECTORY ${default_world} gfx DESTINATION ${CMAKE_INSTALL_DATADIR}/grapplemont
        COMPONENT data PATTERN source EXCLUDE PATTERN "*.md" EXCLUDE)
install(FILES ${share}/CHANGELOG.md ${share}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/grapplemont
        COMPONENT data)
install(FILES CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT data)
# With the pictures that they show; the others are the README's.
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT data
        REGEX "/(booking|main|show)\\.png$|\\.gif$" EXCLUDE)
install(FILES ${packaging}/completions/grapplemont.zsh COMPONENT data
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/zsh/vendor-completions RENAME _grapplemont)

# Who made what, and what may be done with it, lies in each package.
foreach(part window tools data)
  set(package grapplemont-${part})
  if(part STREQUAL window)
    set(package grapplemont)
  endif()
  install(FILES debian/copyright DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package} COMPONENT ${part}
          RENAME copyright)
endforeach()
