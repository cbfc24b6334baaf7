# Shared by run, test and .ci/run: set up a Debian 12 machine, configure, build.
# Everything here says in one sentence what is missing or wrong, and stops.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '%s\n' "$*"; }
fail() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

packages_build="g++ cmake ninja-build ccache pkg-config libgeographiclib-dev libgl-dev fonts-dejavu-core"
packages_test="python3 python3-nmea2 srecord binutils abigail-tools dpkg-dev make valgrind"
packages_bench="libbenchmark-dev python3 srecord valgrind"
packages_qt5="qtbase5-dev libqt5serialport5-dev"
packages_test_qt5="qttools5-dev qttools5-dev-tools"
packages_qt6="qt6-base-dev qt6-serialport-dev"
packages_test_qt6="qt6-tools-dev libqt6opengl6-dev qt6-tools-dev-tools qt6-l10n-tools qmake6"

# need_packages NAME...: installs those that are not there yet.
need_packages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        fail "this is no Debian system; install what these Debian packages hold, then build with CMake: $*"
    fi
    local missing="" name
    for name in "$@"; do
        dpkg-query -W -f '${Status}' "$name" 2>/dev/null | grep -q 'install ok installed' || missing="$missing $name"
    done
    [ -z "$missing" ] && return 0
    local as_root=""
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || fail "these packages are missing and only root can install them:$missing"
        as_root="sudo"
    fi
    say "Installing$missing"
    $as_root apt-get update -qq || fail "the package lists could not be fetched; is the network there?"
    # shellcheck disable=SC2086
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null ||
        fail "these packages could not be installed:$missing"
}

# configure DIR OPTION...: quiet unless it fails.
configure() {
    local dir=$1 log
    shift
    log=$(mktemp)
    if ! cmake -S "$root" -B "$dir" -G Ninja "$@" >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        fail "the build could not be configured; the lines above say why"
    fi
    rm -f "$log"
}

build() {
    cmake --build "$1" "${@:2}" || fail "the build failed; the lines above say where"
}
