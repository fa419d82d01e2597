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

# "system-platform" links the device's own libzelcsock, from a recipe of that name, instead of the stand-in.
PACKAGECONFIG ??= ""
PACKAGECONFIG[system-platform] = "-DRAVIX_PLATFORM=system,-DRAVIX_PLATFORM=bundled,libzelcsock"
EXTRA_OECMAKE = "-DRAVIX_OPTIMIZE=size -DRAVIX_BUILD_TESTS=OFF -DRAVIX_BUILD_EXAMPLES=OFF -DRAVIX_WERROR=OFF"

# The package is named after this library's SONAME, libravix-types1, and programs depend on that name: those that were built
# with another major version are not taken for fitting.
LEAD_SONAME = "libravix_types.so"
PACKAGES =+ "libzelcsock libravix-types-json"
FILES:libzelcsock = "${libdir}/libzelcsock.so.*"
FILES:libravix-types-json = "${libdir}/libravix_types_json.so.*"
