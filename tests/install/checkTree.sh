#!/bin/sh
# checkTree.sh QT PREFIX VERSION: what an installation holds finds its libraries wherever the prefix is, starts, and leaves
# room for another Qt version beside it.
set -eu
qt=$1
prefix=$2
version=$3
bad=0

common=$(cd "$prefix" && find . ! -type d | grep -v "_qt$qt" | grep -v "/qt$qt/" || true)
if [ -n "$common" ]; then
    printf 'these would collide with the build for another Qt:\n%s\n' "$common"
    bad=1
fi

moved=$prefix.moved
rm -rf "$moved"
cp -a "$prefix" "$moved"
trap 'rm -rf "$moved"' EXIT
for file in $(find "$moved" -type f); do
    [ "$(head -c 4 "$file" | tr -d '\0')" = "$(printf '\177ELF')" ] || continue
    if ldd "$file" | grep 'not found'; then
        printf '  ... by %s\n' "$file"
        bad=1
    fi
done

for program in melvox_display melvox_receiver melvox_firmware; do
    told=$("$moved/bin/${program}_qt$qt" --version)
    case $told in
    *"$version"*) ;;
    *)
        printf '%s says it is "%s", not %s\n' "$program" "$told" "$version"
        bad=1
        ;;
    esac
done
exit $bad
