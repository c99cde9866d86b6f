# Sourced by run, test and .ci/run: what a fresh Debian 12 needs, and the builds.
# shellcheck shell=bash

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

packages=(
    g++ binutils cmake ninja-build
    qtbase5-dev qttools5-dev qttools5-dev-tools
    libpolyclipping-dev libnanoflann-dev libbenchmark-dev librapidcheck-dev
    fonts-dejavu-core
)

say() { printf '%s\n' "$*" >&2; }

# need PACKAGE...: installs those that are missing.
need()
{
    local package missing=()
    local admin=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0)
    for package; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed* ]] || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    say "Missing packages: ${missing[*]}"
    if ((EUID != 0)); then
        command -v sudo >/dev/null || { say "They need root to install: apt-get install ${missing[*]}"; return 1; }
        admin=(sudo "${admin[@]}")
    fi
    "${admin[@]}" update || say "The package lists could not be refreshed; trying those at hand."
    "${admin[@]}" install -y --no-install-recommends "${missing[@]}"
}

# cached PRESET ENTRY: whether the build's cache holds this line.
cached() { grep -qxF "$2" "$root/build/$1/CMakeCache.txt"; }

# configure PRESET: once, and again when the presets have changed, the tree has moved or other designs are asked for.
configure()
{
    local designs=${PROPERTIES_DESIGNS:+$(realpath -m "$PROPERTIES_DESIGNS")} options=()
    [[ $root/build/$1/build.ninja -nt $root/CMakePresets.json ]] &&
        cached "$1" "CMAKE_HOME_DIRECTORY:INTERNAL=$root" &&
        { [[ -z $designs ]] || cached "$1" "PROPERTIES_DESIGNS_DIR:PATH=$designs"; } && return

    [[ -z $designs ]] || options+=("-DPROPERTIES_DESIGNS_DIR:PATH=$designs")
    cmake --fresh --preset "$1" -S "$root" "${options[@]}"
}

# build PRESET [TARGET...]: silent when nothing is out of date.
build()
{
    local preset=$1
    shift
    cmake --build "$root/build/$preset" ${1:+--target "$@"} | sed -u '/^ninja: no work to do/d; /Re-checking globbed/d'
}

# prepare PRESET [TARGET...]: packages, configuration and build, one caller at a time, all of it told on stderr.
prepare()
{
    mkdir -p "$root/build"
    {
        flock 9 && need "${packages[@]}" && configure "$1" && build "$@"
    } 9>"$root/build/.lock" </dev/null >&2
}
