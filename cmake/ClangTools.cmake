# Targets for what clang's tools check, built only when asked for:
#   tidy           clang-tidy over every source that some target compiles, as .clang-tidy says
#   format-check   clang-format over every source and header, as .clang-format says
# What passed leaves a stamp and is not looked at again until it changes. Without the tool there is no target.

# Version 14 first: it is the distribution's, and each version formats a little differently.
find_program(CLANG_TIDY NAMES clang-tidy-14 clang-tidy)
find_program(CLANG_FORMAT NAMES clang-format-14 clang-format)

# ridelog_tidy(DIRECTORY): a stamp for each source that a target of DIRECTORY, or of one below, compiles.
function(ridelog_tidy directory)
  get_property(targets DIRECTORY ${directory} PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target IN LISTS targets)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    foreach(source IN LISTS sources)
      cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${directory} NORMALIZE)
      cmake_path(RELATIVE_PATH source BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE name)
      cmake_path(GET source FILENAME file)
      set(stamp ${PROJECT_BINARY_DIR}/tidy/${name}.stamp)
      get_property(stamps GLOBAL PROPERTY ridelog_tidy_stamps)
      if(stamp IN_LIST stamps)
        continue() # Several targets compile it.
      endif()
      set_property(GLOBAL APPEND PROPERTY ridelog_tidy_stamps ${stamp})
      cmake_path(GET stamp PARENT_PATH folder)
      file(MAKE_DIRECTORY ${folder})
      # The object knows which headers the source includes: it is newer than the stamp if any of them changed.
      # Without carets clang does not count the warnings of foreign headers; clang-tidy's own findings keep theirs.
      add_custom_command(OUTPUT ${stamp}
        COMMAND ${CLANG_TIDY} -p ${PROJECT_BINARY_DIR}/tidy --quiet --extra-arg=-fno-caret-diagnostics ${source}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS $<FILTER:$<TARGET_OBJECTS:${target}>,INCLUDE,/${file}.o$> ${PROJECT_SOURCE_DIR}/.clang-tidy tidy-commands
        COMMENT "Tidying ${name}"
        VERBATIM)
    endforeach()
  endforeach()
  get_property(subdirectories DIRECTORY ${directory} PROPERTY SUBDIRECTORIES)
  foreach(subdirectory IN LISTS subdirectories)
    ridelog_tidy(${subdirectory})
  endforeach()
endfunction()

function(ridelog_tidy_target)
  # Without precompiled headers: what gcc has compiled clang cannot read, and each source is to include what it uses.
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/tidy)
  add_custom_target(tidy-commands
    COMMAND sed -E "s/ -Winvalid-pch -include [^ ]*//" ${PROJECT_BINARY_DIR}/compile_commands.json > ${PROJECT_BINARY_DIR}/tidy/compile_commands.json
    VERBATIM)
  ridelog_tidy(${PROJECT_SOURCE_DIR})
  get_property(stamps GLOBAL PROPERTY ridelog_tidy_stamps)
  add_custom_target(tidy DEPENDS ${stamps})
endfunction()

if(CLANG_TIDY)
  # At the end of the configuration, when every target is known.
  cmake_language(DEFER CALL ridelog_tidy_target)
endif()

if(CLANG_FORMAT)
  set(globs packaging src tests bench fuzz)
  list(TRANSFORM globs REPLACE "(.+)" "${PROJECT_SOURCE_DIR}/\\1/*.h;${PROJECT_SOURCE_DIR}/\\1/*.cpp")
  file(GLOB_RECURSE formatted ${globs})
  set(stamp ${PROJECT_BINARY_DIR}/format-check.stamp)
  add_custom_command(OUTPUT ${stamp}
    COMMAND ${CLANG_FORMAT} --dry-run --Werror ${formatted}
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${formatted} ${PROJECT_SOURCE_DIR}/.clang-format
    COMMENT "Checking the format"
    VERBATIM)
  add_custom_target(format-check DEPENDS ${stamp})
endif()
