# Shared by the scripts of this folder: where things are, what must be installed, how Wine is started.
# shellcheck shell=bash

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
ROOT=$PWD
JOBS=$(nproc)

export LC_ALL=C.UTF-8
# Also the compiler cache stays inside the checkout.
export CCACHE_DIR=$ROOT/build/ccache CCACHE_BASEDIR=$ROOT CCACHE_SLOPPINESS=pch_defines,time_macros
export WINEPREFIX=$ROOT/build/wine WINEARCH=win64 WINEDEBUG=-all

say() { printf '\n== %s\n' "$*"; }

# packages NAME…: installs the Debian packages that are missing, or names the command that would.
packages() {
    local missing=() name
    for name in "$@"; do
        dpkg-query -W -f '${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "Missing packages. As root: apt-get install ${missing[*]}" >&2
            exit 1
        }
        root=(sudo)
    fi
    say "Installing ${missing[*]}"
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
        >/dev/null || {
        echo "Could not install. As root: apt-get install ${missing[*]}" >&2
        exit 1
    }
}

packages_native() { packages g++ cmake ninja-build ccache googletest; }
packages_windows() {
    packages g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix binutils-mingw-w64-x86-64 binutils-mingw-w64-i686 \
        mingw-w64-tools libwine-dev cmake ninja-build ccache googletest
}
packages_wine() { packages wine wine64 fonts-liberation; }

# build PRESET [TARGET…]: configures when needed and builds.
build() {
    local preset=$1 targets=()
    shift
    [ $# -gt 0 ] && targets=(--target "$@")
    # A build tree from another place or a failed configuration is made anew.
    if [ -f "build/$preset/CMakeCache.txt" ] &&
        { ! grep -qx "CMAKE_HOME_DIRECTORY:INTERNAL=$ROOT" "build/$preset/CMakeCache.txt" ||
            [ ! -f "build/$preset/build.ninja" ]; }; then
        rm -rf "build/$preset"
    fi
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >"build-$preset.log" 2>&1 || {
        cat "build-$preset.log" >&2
        exit 1
    }
    rm -f "build-$preset.log"
    cmake --build --preset "$preset" -j "$JOBS" "${targets[@]}" -- --quiet
}

# wine_prefix: makes the project's own prefix, once: no display needed, Arial present.
wine_prefix() {
    [ -f "$WINEPREFIX/.ready" ] && return
    say "Making the Wine prefix"
    mkdir -p "$WINEPREFIX"
    wineboot -i >/dev/null 2>&1
    wine_run reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f >/dev/null
    wine_run reg add 'HKCU\Software\Wine\Fonts\Replacements' /v Arial /d 'Liberation Sans' /f >/dev/null
    wine_run reg add 'HKCU\Software\Wine\Fonts\Replacements' /v 'Times New Roman' /d 'Liberation Serif' /f >/dev/null
    wineserver -w
    touch "$WINEPREFIX/.ready"
}

# wine_run PROGRAM ARGUMENT…: in the project's prefix; Wine's own advice about 32 bits is left out.
wine_run() { wine "$@" 2> >(grep -vE 'wine32|multiarch|dpkg --add-arch|execute|^$' >&2); }

# on_display NAME COMMAND…: runs a command with an X display of its own. DISPLAY leads to it, and its screen can be read
# from the file SCREEN (tests/display/screen.py); SCREEN_SIZE is what a window may cover at most.
on_display() (
    folder=$ROOT/build/display/$1
    shift
    packages xvfb xdotool python3
    rm -rf "$folder"
    mkdir -p "$folder"
    export SCREEN=$folder/Xvfb_screen0 SCREEN_SIZE=1280x900
    # The server takes a free number, and writes it when it is ready.
    exec {ready}< <(exec Xvfb -displayfd 1 -screen 0 "${SCREEN_SIZE}x24" -nolisten tcp -fbdir "$folder" 2>"$folder/log")
    server=$!
    trap 'kill "$server" 2>/dev/null' EXIT
    if ! read -r number <&"$ready"; then
        cat "$folder/log" >&2
        exit 1
    fi
    DISPLAY=:$number "$@"
)

# wine_desktop NAME PROGRAM ARGUMENT…: a program with real windows, on a display and on a Windows desktop of its own that
# gives them focus and keyboard without a window manager. Everything else in the prefix stays without a display.
wine_desktop() { wine_run explorer "/desktop=$1,${SCREEN_SIZE:-1280x900},x11" "${@:2}"; }

# windows PATH: as the programs in the prefix know it.
windows() { winepath -w "$1" 2>/dev/null; }

# register FOLDER: enters both DLLs of a folder in the prefix.
register() {
    local name
    for name in QMath QSymbol; do
        wine_run regsvr32 /s "$(windows "$1/$name.dll")"
    done
}

# benchmark_source: Google Benchmark's source from Debian, for the compilers that Debian has no library for.
benchmark_source() {
    local folder=$ROOT/build/sources
    [ -d "$folder/benchmark" ] && return
    packages dpkg-dev ca-certificates
    say "Fetching the source of Google Benchmark"
    rm -rf "$folder"
    mkdir -p "$folder/lists/partial" "$folder/cache/archives/partial"
    echo "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] http://deb.debian.org/debian bookworm main" \
        >"$folder/sources.list"
    local apt=(apt-get -qq -o "Dir::Etc::SourceList=$folder/sources.list" -o Dir::Etc::SourceParts=/dev/null
        -o "Dir::State::Lists=$folder/lists" -o "Dir::Cache=$folder/cache")
    "${apt[@]}" update
    (cd "$folder" && "${apt[@]}" source benchmark 2>/dev/null)
    mv "$folder"/benchmark-*/ "$folder/benchmark"
}

# german_locale: a German locale of the project's own, so that Wine takes German settings and keeps UTF-8 file names.
german_locale() {
    packages locales
    [ -d build/locale/de_DE.UTF-8 ] && return
    mkdir -p build/locale
    localedef --no-archive -i de_DE -f UTF-8 "$ROOT/build/locale/de_DE.UTF-8"
}
