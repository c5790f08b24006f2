# Shared by the scripts of this folder: where things are, what must be installed, how Wine is started.
# shellcheck shell=bash

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
ROOT=$PWD
JOBS=$(nproc)

export LC_ALL=C.UTF-8
# Whatever the tools keep beside their results stays inside the checkout as well.
export CCACHE_DIR=$ROOT/build/ccache CCACHE_TEMPDIR=$ROOT/build/ccache/tmp CCACHE_BASEDIR=$ROOT
export CCACHE_SLOPPINESS=pch_defines,time_macros
export TMPDIR=$ROOT/build/tmp
mkdir -p "$TMPDIR" build/logs
export WINEPREFIX=${WINEPREFIX_OF_CHECK:-$ROOT/build/wine/prefix} WINEARCH=win64 WINEDEBUG=-all

# Where long steps show their progress: a terminal that somebody looks at, or nowhere.
if [ -z "${PROGRESS:-}" ] && [ -t 1 ] && [ "${CI:-}" != true ]; then PROGRESS=/dev/tty; fi
export PROGRESS=${PROGRESS:-}

# say TEXT: the next step; the line before it tells how long the last one took.
STEP_BEGAN=
say() {
    step_done
    printf '\n== %s\n' "$*"
    STEP_BEGAN=$SECONDS
}
step_done() {
    if [ -n "$STEP_BEGAN" ]; then printf -- '-- %d s\n' $((SECONDS - STEP_BEGAN)); fi
    STEP_BEGAN=
}

# What must be installed, by what it is for: a preset of CMakePresets.json or a need of tests/checks.
COMPILING="cmake ninja-build ccache libcli11-dev nlohmann-json3-dev"
CROSS_COMPILING="$COMPILING googletest g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix binutils-mingw-w64-x86-64
    binutils-mingw-w64-i686 mingw-w64-tools libwine-dev"
declare -A PACKAGES=(
    [checks]="cmake ninja-build python3"
    [linux]="$COMPILING g++"
    [native]="$COMPILING g++ googletest libdime-dev libdxflib-dev"
    [gcov]="$COMPILING g++ googletest gcovr"
    [tsan]="$COMPILING g++"
    [release]="$COMPILING python3 g++ libbenchmark-dev libdime-dev libdxflib-dev"
    [fuzz]="$COMPILING clang libclang-rt-14-dev"
    [mingw-x64]="$CROSS_COMPILING"
    [mingw-x86]="$CROSS_COMPILING"
    [bench-x64]="$CROSS_COMPILING dpkg-dev ca-certificates"
    [wine]="wine wine64 fonts-liberation"
    [display]="xvfb xdotool python3"
    [german]="locales"
    [docs]="python3-sphinx python3-myst-parser furo"
    [packages]="wixl msitools faketime dpkg-dev python3"
    [x86]=""
    [lint]="$COMPILING clang-format clang-tidy g++ googletest python3 shellcheck"
)

# packages NAME…: installs the Debian packages that are missing, or names the command that would. A name with a @ stands
# for a line of the table above.
packages() { one_at_a_time packages packages_now "$@"; }
packages_now() {
    local missing=() all=() name
    for name in "$@"; do
        # shellcheck disable=SC2206 # the lists are words
        if [ "${name#@}" = "$name" ]; then all+=("$name"); else all+=(${PACKAGES[${name#@}]}); fi
    done
    for name in $(printf '%s\n' "${all[@]}" | sort -u); do
        dpkg-query -W -f '${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local root=() log=$ROOT/build/logs/packages.log
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "Missing packages. As root: apt-get install ${missing[*]}" >&2
            exit 1
        }
        root=(sudo)
    fi
    say "Installing ${missing[*]}"
    "${root[@]}" apt-get update -qq >"$log" 2>&1 || true # an unreachable list need not be the one that counts
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
        >>"$log" 2>&1 || {
        tail -n 5 "$log" >&2
        echo "Could not install. As root: apt-get install ${missing[*]}" >&2
        exit 1
    }
    step_done
}

# one_at_a_time NAME COMMAND…: scripts may run side by side; what two of them cannot do at once waits.
one_at_a_time() {
    local lock=$ROOT/build/$1.lock
    shift
    (
        flock 9
        "$@" 9>&-
    ) 9>"$lock"
}

# configure PRESET: where that has not been done.
configure() { one_at_a_time "$1" configure_now "$1"; }
configure_now() {
    local preset=$1 log=$ROOT/build/logs/configure-$1.log
    # A build tree from another place or a failed configuration is made anew.
    if [ -f "build/$preset/CMakeCache.txt" ] &&
        { ! grep -qx "CMAKE_HOME_DIRECTORY:INTERNAL=$ROOT" "build/$preset/CMakeCache.txt" ||
            [ ! -f "build/$preset/build.ninja" ]; }; then
        rm -rf "build/$preset"
    fi
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >"$log" 2>&1 || {
        cat "$log" >&2
        exit 1
    }
}

# build PRESET [TARGET…]: configures when needed and builds.
build() {
    local preset=$1 targets=()
    shift
    [ $# -gt 0 ] && targets=(--target "$@")
    configure "$preset"
    # Ninja shows [n/m] where it finds a terminal.
    if [ -n "$PROGRESS" ]; then
        cmake --build --preset "$preset" -j "$JOBS" "${targets[@]}" >"$PROGRESS"
    else
        cmake --build --preset "$preset" -j "$JOBS" "${targets[@]}" -- --quiet
    fi
}

# wine_prefix: makes the project's own prefix, once: no display needed, Arial present.
wine_prefix() {
    own_home
    [ -f "$WINEPREFIX/.ready" ] && return
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    wineboot -i >/dev/null 2>&1
    wine_run reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f >/dev/null
    wine_run reg add 'HKCU\Software\Wine\Fonts\Replacements' /v Arial /d 'Liberation Sans' /f >/dev/null
    wine_run reg add 'HKCU\Software\Wine\Fonts\Replacements' /v 'Times New Roman' /d 'Liberation Serif' /f >/dev/null
    wineserver -w
    touch "$WINEPREFIX/.ready"
}

# own_home: a home folder of the project's own, for programs that write into it unasked: a prefix leads "Documents" and the
# like there, and no menu entries are made.
own_home() {
    export GIT_CONFIG_GLOBAL=${GIT_CONFIG_GLOBAL:-$HOME/.gitconfig}
    export HOME=$ROOT/build/home WINEDLLOVERRIDES=winemenubuilder.exe=
    unset XDG_CACHE_HOME XDG_CONFIG_HOME XDG_DATA_HOME
    mkdir -p "$HOME"
}

# copy_prefix FROM TO: a prefix made again in a moment: the system's files are shared, everything that changes is copied.
copy_prefix() {
    rm -rf "$2"
    mkdir -p "$2/drive_c"
    local entry
    for entry in "$1"/* "$1"/.[!.]*; do
        [ "$entry" = "$1/drive_c" ] || cp -a "$entry" "$2"
    done
    for entry in "$1"/drive_c/*; do
        if [ "$entry" = "$1/drive_c/windows" ]; then cp -al "$entry" "$2/drive_c"; else cp -a "$entry" "$2/drive_c"; fi
    done
}

# wine_run PROGRAM ARGUMENT…: in the project's prefix. Nothing of what it says is left out: with WINEDEBUG=-all Wine keeps
# its advice about 32 bits to itself.
wine_run() { wine "$@"; }

# on_display NAME COMMAND…: runs a command with an X display of its own. DISPLAY leads to it, and its screen can be read
# from the file SCREEN (tests/display/screen.py); SCREEN_SIZE is what a window may cover at most.
on_display() (
    folder=$ROOT/build/display/$1
    shift
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
windows() {
    local path
    path=$(realpath -m "$1")
    printf 'Z:%s\n' "${path//\//\\}"
}

# register FOLDER: enters the DLLs of a folder in the prefix.
register() {
    local name
    for name in QMath QSymbol QPlan; do
        wine_run regsvr32 /s "$(windows "$1/$name.dll")"
    done
}

# benchmark_source: Google Benchmark's source from Debian, for the compilers that Debian has no library for. It comes from
# where the machine's own packages come from, also where no source packages are configured.
benchmark_source() {
    local folder=$ROOT/build/sources
    [ -d "$folder/benchmark" ] && return
    say "Fetching the source of Google Benchmark"
    rm -rf "$folder"
    mkdir -p "$folder/lists/partial" "$folder/cache/archives/partial"
    apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' |
        sort -u >"$folder/sources.list"
    local apt=(apt-get -qq -o "Dir::Etc::SourceList=$folder/sources.list" -o Dir::Etc::SourceParts=/dev/null
        -o "Dir::State::Lists=$folder/lists" -o "Dir::Cache=$folder/cache")
    "${apt[@]}" update
    (cd "$folder" && "${apt[@]}" source benchmark >"$ROOT/build/logs/benchmark-source.log" 2>&1) || {
        tail -n 5 "$ROOT/build/logs/benchmark-source.log" >&2
        exit 1
    }
    mv "$folder"/benchmark-*/ "$folder/benchmark"
}

# german_locale: a German locale of the project's own, so that Wine takes German settings and keeps UTF-8 file names.
german_locale() {
    [ -d build/locale/de_DE.UTF-8 ] && return
    mkdir -p build/locale
    localedef --no-archive -i de_DE -f UTF-8 "$ROOT/build/locale/de_DE.UTF-8"
}

# german COMMAND…: under German regional settings.
german() { LOCPATH=$ROOT/build/locale LC_ALL=de_DE.UTF-8 "$@"; }
