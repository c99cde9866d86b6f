# Sourced by run, test and .ci/run: what a fresh Debian 12 needs, and the builds.
# shellcheck shell=bash

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

packages=(
    g++ binutils cmake ninja-build
    qtbase5-dev qttools5-dev qttools5-dev-tools
    libboost-dev libpolyclipping-dev libbenchmark-dev librapidcheck-dev
    fonts-dejavu-core
)

export CCACHE_SLOPPINESS=pch_defines,time_macros # Without it a compiler cache keeps nothing that uses precompiled headers.

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

# configure PRESET: once, and again when the presets have changed or the tree has moved.
configure()
{
    [[ $root/build/$1/build.ninja -nt $root/CMakePresets.json ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$root/build/$1/CMakeCache.txt" && return
    cmake --fresh --preset "$1" -S "$root"
}

# find_designs: the real designs to test with are those in a folder beside the project, unless another one is given.
find_designs()
{
    local folder
    for folder in "$root"/../*/designs; do
        [[ ! -d $folder ]] || export PROPERTIES_DESIGNS=${PROPERTIES_DESIGNS:-$folder}
    done
    say "Real designs to test with: ${PROPERTIES_DESIGNS:-none}"
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
