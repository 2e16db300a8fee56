#!/bin/sh
# Builds the Debian package dist/evida_<version>_amd64.deb from the project's own files:
# a Release build without tests (in build-package/), installed under /usr by cpack's DEB
# generator, with the dependencies computed by dpkg-shlibdeps.
#   BUILD_TYPE=RelWithDebInfo scripts/package.sh   another build type (binaries are stripped anyway)
#   BUILD_DIR=dir scripts/package.sh               another build directory
set -eu
cd "$(dirname "$0")/.."
BUILD_DIR=${BUILD_DIR:-build-package}
BUILD_TYPE=${BUILD_TYPE:-Release}
for tool in dpkg-shlibdeps fakeroot convert gzip msgfmt; do
    command -v "$tool" >/dev/null || { echo "Chybí $tool: spusťte scripts/setup.sh" >&2; exit 1; }
done
launcher=""
command -v ccache >/dev/null && launcher="-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache"
# shellcheck disable=SC2086
cmake -S . -B "$BUILD_DIR" -DCMAKE_BUILD_TYPE="$BUILD_TYPE" -DEVIDA_BUILD_TESTS=OFF \
      -DEVIDA_DEVELOPMENT_PATHS=OFF -DCMAKE_INSTALL_PREFIX=/usr \
      "-DCMAKE_EXE_LINKER_FLAGS=-Wl,-z,relro -Wl,-z,now" $launcher
cmake --build "$BUILD_DIR" -j "$(nproc)"
mkdir -p dist
# cpack stages the files itself; fakeroot makes them root's in the archive.
root=$(pwd)
(cd "$BUILD_DIR" && fakeroot cpack -G DEB -B "$root/dist/_cpack")
version=$(sed -n 's/^project(evida VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
mv "dist/_cpack/evida_${version}_amd64.deb" dist/
rm -rf dist/_cpack
echo "dist/evida_${version}_amd64.deb"
