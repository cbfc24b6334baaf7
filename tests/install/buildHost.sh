#!/bin/sh
# buildHost.sh WAY PLATFORM: builds the host from the outside, on an installation alone, and runs it.
#   WAY       cmake, pkgconfig or qmake
#   PLATFORM  kit or foreign
# The environment tells QT (its version), PREFIX and LIBDIR (the installation), FOREIGN (where the foreign libraries lie),
# HOST (its sources), INCLUDES (where it finds the list of pages), WORK (where to build), CMAKE, QMAKE, CXX and FLAGS.
set -eu
way=$1
platform=$2
libraries=$PREFIX/$LIBDIR
work=$WORK/$way-$platform
standard=11
[ "$QT" -lt 6 ] || standard=17

rm -rf "$work"
mkdir -p "$work"
cd "$work"

foreign=
[ "$platform" = kit ] || foreign=$FOREIGN

build_cmake() {
    list=$(printf '%s' "$INCLUDES" | tr ' ' ';')
    "$CMAKE" -S "$HOST" -B . -G Ninja -DCMAKE_PREFIX_PATH="$PREFIX" -DCMAKE_CXX_COMPILER="$CXX" \
        -DCMAKE_CXX_FLAGS="$FLAGS" -DHOST_CXX_STANDARD=$standard -DHOST_QT="$QT" -DHOST_PLATFORM="$platform" \
        -DHOST_INCLUDE_DIRS="$list" -DMELVOX_PLATFORM_DIR="$foreign" >configure.log 2>&1 ||
        { cat configure.log; exit 1; }
    "$CMAKE" --build . >build.log 2>&1 || { cat build.log; exit 1; }
}

build_pkgconfig() {
    export PKG_CONFIG_PATH="$libraries/pkgconfig"
    if [ "$platform" = kit ]; then
        more=
        flags=$(pkg-config --cflags --libs "melvox_kit_qt$QT >= 0.1")
    else
        more="-I$foreign/include -L$foreign/lib -lbrel_common_qt_gui -lbrel_common_qt -lqdconfig"
        flags=$(pkg-config --cflags --libs "melvox_ui_qt$QT >= 0.1")
    fi
    folders=$(printf ' -I%s' $INCLUDES)
    # shellcheck disable=SC2086
    "$CXX" -std=c++$standard -fPIC $FLAGS $folders "$HOST/main.cpp" "$HOST/$platform/platform.cpp" $flags $more -o host
}

build_qmake() {
    export QMAKEFEATURES="$libraries/qt$QT/mkspecs/features"
    "$QMAKE" "$HOST/host.pro" HOST_PLATFORM="$platform" HOST_FLAGS="$FLAGS" HOST_INCLUDE_DIRS="$INCLUDES" \
        QMAKE_CXX="$CXX" QMAKE_LINK="$CXX" MELVOX_PLATFORM_DIR="$foreign" >configure.log 2>&1 ||
        { cat configure.log; exit 1; }
    make >build.log 2>&1 || { cat build.log; exit 1; }
}

"build_$way"
# The installed library is found as on any system, and so are the maker's; the kit's are not and must find themselves.
# What is missing must show at once, not when a page comes to it.
LD_LIBRARY_PATH="$libraries${foreign:+:$foreign/lib}" LD_BIND_NOW=1 ./host
