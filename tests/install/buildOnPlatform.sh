#!/bin/sh
# buildOnPlatform.sh CMAKE SOURCE FOREIGN HOST INCLUDES WORK QT: the library is built on the maker's headers and libraries in
# a place of their own, and a host on its installation finds them there without being told again.
set -eu
cmake=$1
source=$2
foreign=$3
host=$4
includes=$5
work=$6
qt=$7
standard=11
[ "$qt" -lt 6 ] || standard=17

rm -rf "$work"
mkdir -p "$work/maker/include"
for name in brel_common_qt brel_common_qt_gui qdconfig; do
    cp -r "$source/include/$name" "$work/maker/include"
done
cp "$foreign"/include/* "$work/maker/include"
cp -a "$foreign/lib" "$work/maker/lib"

run() {
    "$@" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
}
run "$cmake" -S "$source" -B "$work/library" -G Ninja -DMELVOX_QT="$qt" -DMELVOX_PLATFORM_DIR="$work/maker" \
    -DMELVOX_TESTS=OFF -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS=-g0 -DCMAKE_INSTALL_LIBDIR=lib
run "$cmake" --build "$work/library"
run "$cmake" --install "$work/library" --prefix "$work/prefix"
if [ -e "$work/prefix/include/melvox_ui_qt$qt/brel_common_qt" ]; then
    echo "the maker's headers are installed a second time"
    exit 1
fi
run "$cmake" -S "$host" -B "$work/host" -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix" -DHOST_QT="$qt" \
    -DHOST_PLATFORM=foreign -DHOST_CXX_STANDARD=$standard -DHOST_INCLUDE_DIRS="$(printf '%s' "$includes" | tr ' ' ';')"
run "$cmake" --build "$work/host"
LD_LIBRARY_PATH="$work/prefix/lib:$work/maker/lib" LD_BIND_NOW=1 "$work/host/host"
