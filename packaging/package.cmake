# The package for Debian and its relatives: cpack, in a build folder.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ridelog)
set(CPACK_PACKAGE_VENDOR "The ridelog developers")
set(CPACK_PACKAGE_HOMEPAGE_URL https://ridelog.example)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "log of tours from a cycle computer")
set(CPACK_PACKAGE_DESCRIPTION "ridelog takes the tours out of a cycle computer that records pulse, altitude,
distance, temperature and cadence every 20 seconds, over a serial line or
from files, and keeps them in a document of the rider's own.
.
It shows charts over distance or time, all samples, summary values and
statistics, and exports tours for other programs as TCX, FIT, CSV and JSON,
and as reports for the browser. The command line ridelog-cli does the same
without a window.")
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/BeforePackaging.cmake)

set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The ridelog developers <${RIDELOG_FEEDBACK_ADDRESS}>")
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# What the programs link is found by dpkg-shlibdeps, and brings what Qt loads at run time: libqt6svg6 the plugins for icons and
# pictures, libqt6gui6 those for screens. Qt's own texts and the time zones nothing brings.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n, tzdata")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ca-certificates, qt6-qpa-plugins, qt6-wayland")

include(CPack)
