SUMMARY = "Data types of the ravix WLAN control interface"
SECTION = "libs"
LICENSE = "BSD-2-Clause"
LIC_FILES_CHKSUM = "file://LICENSE;md5=45fde71909c48f9cf0278bf8cbe9a6db"

# Where your mirror of the repository is, and the revision that you build.
RAVIX_GIT ?= "git:///srv/git/libravix_types;protocol=file;branch=main"
SRC_URI = "${RAVIX_GIT}"
SRCREV ?= "${AUTOREV}"
PV = "1.0.0+git"
# Where releases up to 5.0 unpack it; later ones need no such line.
S = "${WORKDIR}/git"

inherit cmake pkgconfig

PACKAGECONFIG ??= "bundled-platform"
PACKAGECONFIG[bundled-platform] = "-DRAVIX_PLATFORM=bundled,-DRAVIX_PLATFORM=system,,,,"
EXTRA_OECMAKE = "-DRAVIX_OPTIMIZE=size -DRAVIX_BUILD_TESTS=OFF -DRAVIX_BUILD_EXAMPLES=OFF -DRAVIX_WERROR=OFF"

PACKAGES =+ "libzelcsock"
FILES:libzelcsock = "${libdir}/libzelcsock.so.*"
