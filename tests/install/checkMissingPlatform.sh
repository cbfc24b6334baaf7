#!/bin/sh
# checkMissingPlatform.sh CMAKE HOST WORK PREFIX QT: without the kit and without the maker's libraries the package says what to do.
set -eu
rm -rf "$3"
if told=$("$1" -S "$2" -B "$3" -G Ninja -DCMAKE_PREFIX_PATH="$4" -DHOST_QT="$5" -DHOST_CXX_STANDARD=17 2>&1); then
    echo "the package was found without the libraries that it stands on"
    exit 1
fi
told=$(printf '%s' "$told" | tr -s ' \n' '  ')
case $told in
*"set MELVOX_PLATFORM_DIR to the maker's, or install the development kit"*) ;;
*)
    printf '%s\n' "$told"
    exit 1
    ;;
esac
