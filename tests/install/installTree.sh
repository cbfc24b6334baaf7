#!/bin/sh
# installTree.sh CMAKE BUILD PREFIX [COMPONENT...]: installs all or these components of a build into a fresh prefix.
set -eu
cmake=$1
build=$2
prefix=$3
shift 3
rm -rf "$prefix"
if [ $# = 0 ]; then
    "$cmake" --install "$build" --prefix "$prefix" >/dev/null
else
    for component in "$@"; do
        "$cmake" --install "$build" --prefix "$prefix" --component "$component" >/dev/null
    done
fi
