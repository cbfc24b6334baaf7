#!/bin/sh
# checkAbi.sh check|record LIBRARY VERSION RECORD [HEADERS]: has what hosts were linked against changed since it was
# recorded, and if so, has the version been stepped as that asks? RECORD.symbols lists what the library exports, RECORD.abi.gz
# (where HEADERS are given) its types. docs/releasing.md says what to do.
set -eu
action=$1
library=$2
version=$3
record=$4
headers=${5:-}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

soname=$(readelf -d "$library" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')

# Weak copies of inline functions of Qt come and go with the optimization, and so does that of errorText_t.
nm -D --defined-only --demangle "$library" | cut -c20- | grep 'brel_common_qt_gui::melvox' |
    LC_ALL=C sort -u >"$work/symbols"

types() {
    abidw --headers-dir "$headers" --drop-private-types --drop-undefined-syms --no-show-locs --no-corpus-path \
        --no-comp-dir-path --no-elf-needed --no-parameter-names --type-id-style hash --out-file "$1" "$library"
}

if [ "$action" = record ]; then
    { printf '# %s %s\n' "$version" "$soname"; cat "$work/symbols"; } >"$record.symbols"
    if [ -n "$headers" ]; then
        types "$work/abi"
        gzip -9 -n <"$work/abi" >"$record.abi.gz"
    fi
    exit 0
fi

read -r _ recorded_version recorded_soname <"$record.symbols"
tail -n +2 "$record.symbols" >"$work/recorded"
added=$(LC_ALL=C comm -13 "$work/recorded" "$work/symbols")
removed=$(LC_ALL=C comm -23 "$work/recorded" "$work/symbols")

changed=
if [ -n "$headers" ]; then
    gunzip <"$record.abi.gz" >"$work/abi"
    # What was only added is known by its symbol already.
    if ! abidiff --no-added-syms --no-show-locs "$work/abi" "$library" >"$work/changed" 2>&1; then
        changed="abidiff says: $(cat "$work/changed")"
    fi
fi

show() {
    [ -z "$2" ] || printf '%s since %s:\n%s\n' "$1" "$recorded_version" "$2"
}
show 'Added' "$added"
show 'Removed' "$removed"
show 'Changed' "$changed"

if [ -n "$removed$changed" ] && [ "$soname" = "$recorded_soname" ]; then
    printf 'Hosts built with %s would break, and %s is still the name that they load.\n' "$recorded_version" "$soname"
elif [ -n "$added" ] && [ "${version%.*}" = "${recorded_version%.*}" ]; then
    printf 'Hosts built with this %s would not run on %s as it was.\n' "$version" "$recorded_version"
else
    exit 0
fi
printf 'Step the version in CMakeLists.txt; docs/releasing.md says how.\n'
exit 1
