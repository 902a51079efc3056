# How every target of the project is made: one set of warnings and one set of arithmetic rules for all.

add_library(ridelog_flags INTERFACE)
target_compile_features(ridelog_flags INTERFACE cxx_std_20)
target_compile_options(ridelog_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
  # Results have to be the same to the last digit everywhere: no fused multiply-add behind our back.
  -ffp-contract=off
  # Everything is linked statically: no function of ours is ever replaced by another library's.
  -fno-semantic-interposition -fvisibility=hidden)
target_compile_definitions(ridelog_flags INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
if(RIDELOG_SANITIZE)
  target_compile_options(ridelog_flags INTERFACE
    -fsanitize=${RIDELOG_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    # Among the sanitizers' own checks the compiler's guesses about bounds and values go wrong.
    -Wno-array-bounds $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(ridelog_flags INTERFACE -fsanitize=${RIDELOG_SANITIZE})
endif()
if(RIDELOG_FUZZ)
  target_compile_options(ridelog_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# ridelog_folder(NAME SOURCES ... LINK ...): the library of the folder src/NAME, as ridelog_NAME.
function(ridelog_folder name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
  add_library(ridelog_${name} STATIC ${arg_SOURCES})
  target_include_directories(ridelog_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(ridelog_${name} PUBLIC ${arg_LINK} PRIVATE ridelog_flags)
  ridelog_precompile(ridelog_${name})
endfunction()

# ridelog_precompile(TARGET): compiles once what most sources of the target include. A file of few sources is as
# quick without. That each source includes what it uses is seen where nothing is precompiled: by clang-tidy.
function(ridelog_precompile target)
  get_target_property(sources ${target} SOURCES)
  list(LENGTH sources count)
  if(count LESS 5)
    return()
  endif()
  target_precompile_headers(${target} PRIVATE
    <algorithm> <chrono> <functional> <memory> <optional> <ranges> <string> <unordered_map> <variant> <vector>
    <QByteArray> <QCoreApplication> <QDateTime> <QDir> <QFile> <QHash> <QLocale> <QLoggingCategory> <QObject>
    <QString> <QStringList> <QVariant>)
  get_target_property(links ${target} LINK_LIBRARIES)
  if(links MATCHES "Qt6::Widgets|ridelog_ui")
    target_precompile_headers(${target} PRIVATE <QtWidgets>)
  endif()
  if("ridelog_test_support" IN_LIST links)
    target_precompile_headers(${target} PRIVATE <gtest/gtest.h>)
  endif()
endfunction()
