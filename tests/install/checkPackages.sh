#!/bin/sh
# checkPackages.sh CPACK BUILD WORK QT VERSION: the Debian packages hold each file once, name what they depend on, and what
# they hold together runs.
set -eu
cpack=$1
build=$2
work=$3
qt=$4
version=$5

rm -rf "$work"
mkdir -p "$work/root"
(cd "$build" && "$cpack" -G DEB -B "$work/packages") >"$work/cpack.log" 2>&1 || { cat "$work/cpack.log"; exit 1; }

bad=0
for name in "libmelvox-ui-qt$qt-*[0-9]" "libmelvox-ui-qt$qt-dev" "libmelvox-kit-qt$qt" "melvox-kit-qt$qt"; do
    # shellcheck disable=SC2086
    package=$(echo "$work"/packages/${name}_"$version"_*.deb)
    if [ ! -f "$package" ]; then
        printf 'there is no package %s, but only:\n%s\n' "$name" "$(ls "$work/packages")"
        exit 1
    fi
    dpkg-deb -c "$package" | awk '$1 !~ /^d/ {print $6}' >>"$work/files"
    dpkg-deb -x "$package" "$work/root"
done
if sort "$work/files" | uniq -d | grep .; then
    echo '  ... are in more than one package'
    bad=1
fi

# demand PACKAGE PATTERN
demand() {
    # shellcheck disable=SC2086
    depends=$(dpkg-deb -f "$work"/packages/${1}_*.deb Depends)
    if ! printf '%s' "$depends" | grep -q "$2"; then
        printf '%s depends on "%s", which lacks %s\n' "$1" "$depends" "$2"
        bad=1
    fi
}
demand "libmelvox-ui-qt$qt-[0-9]*" "libqt${qt}widgets"
demand "libmelvox-ui-qt$qt-[0-9]*" "libmelvox-kit-qt$qt | melvox-platform-qt$qt"
demand "libmelvox-ui-qt$qt-dev" "libmelvox-ui-qt$qt-[0-9.]* (= $version)"
demand "libmelvox-kit-qt$qt" "libqt${qt}serialport"
demand "melvox-kit-qt$qt" "libmelvox-ui-qt$qt-[0-9.]* (= $version)"

"$work/root/usr/bin/melvox_display_qt$qt" --version | grep -q "$version" || { echo 'the display does not start'; bad=1; }
exit $bad
