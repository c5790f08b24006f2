# Running 32-bit programs on a machine whose own Wine knows 64 bits only: Debian's 32-bit Wine, unpacked under build/i386.
# shellcheck shell=bash

X86_ROOT=$ROOT/build/i386

# x86_own: whether this machine's own Wine runs 32-bit programs.
x86_own() { [ -x /usr/lib/wine/wine ]; }

# x86_unshare COMMAND…: with mounts of its own; without root's rights in a user namespace, where the system allows that.
x86_unshare() {
    if [ "$(id -u)" -eq 0 ]; then unshare --mount "$@"; else unshare --map-root-user --mount "$@"; fi
}

# x86_unpack: downloads what the 32-bit Wine needs from where this machine's own packages come from, and unpacks it. Nothing
# of it is installed, so this takes no rights.
x86_unpack() {
    local folder=$ROOT/build/sources/i386 package
    rm -rf "$folder" "$X86_ROOT"
    mkdir -p "$folder/lists/partial" "$folder/archives/partial" "$X86_ROOT"/{tmp,dev,proc,root,program}
    : >"$folder/status"
    local apt=(apt-get -qq -o APT::Architecture=i386 -o APT::Architectures::=i386 -o APT::Sandbox::User=
        -o "Dir::State::Lists=$folder/lists" -o "Dir::State::status=$folder/status" -o Debug::NoLocking=1
        -o "Dir::State::extended_states=$folder/extended" -o "Dir::Cache=$folder")
    "${apt[@]}" update || true # not every list has something for 32 bits
    "${apt[@]}" -y --no-install-recommends --download-only install wine wine32 fonts-liberation libc-bin || return
    for package in "$folder"/archives/*.deb; do
        dpkg-deb --extract "$package" "$X86_ROOT" || return
    done
    rm -rf "$folder"
    # What installing would have done: zlib as one of Wine's own libraries, which a mark of 32 bytes tells; and a user.
    local zlib=$X86_ROOT/usr/lib/i386-linux-gnu/wine/i386-windows/zlib1.dll
    cp "$X86_ROOT/usr/i686-w64-mingw32/lib/zlib1.dll" "$zlib"
    printf '%-16s%b' 'Wine builtin DLL' "$(printf '\\0%.0s' {1..16})" | dd of="$zlib" bs=1 seek=64 conv=notrunc
    mkdir -p "$X86_ROOT/etc"
    echo "root:x:0:0::/root:/bin/sh" >"$X86_ROOT/etc/passwd"
}

# x86_root: makes the 32-bit Wine and its prefix, once; false where that is not possible, with the reason in
# build/i386.reason.
x86_root() {
    rm -f "$X86_ROOT.reason"
    if x86_own; then
        wine_prefix
        return
    fi
    [ -f "$X86_ROOT/.ready" ] && return
    if ! x86_unshare true 2>/dev/null; then
        echo "no 32-bit Wine here, and this user may not run one in build/i386" >"$X86_ROOT.reason"
        return 1
    fi
    { x86_unpack && mkdir "$X86_ROOT/prefix" && x86_prefix; } >"$X86_ROOT.log" 2>&1 || {
        echo "no 32-bit Wine here, and none could be made: build/i386.log" >"$X86_ROOT.reason"
        return 1
    }
    touch "$X86_ROOT/.ready"
}

# x86_prefix: like wine_prefix, inside.
x86_prefix() {
    local wine=(x86_wine /prefix "$X86_ROOT/program")
    "${wine[@]}" wineboot -i &&
        "${wine[@]}" reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f &&
        "${wine[@]}" reg add 'HKCU\Software\Wine\Fonts\Replacements' /v Arial /d 'Liberation Sans' /f &&
        "${wine[@]}" reg add 'HKCU\Software\Wine\Fonts\Replacements' /v 'Times New Roman' /d 'Liberation Serif' /f &&
        x86_inside /prefix "$X86_ROOT/program" /usr/lib/wine/wineserver32 -w
}

# x86_inside PREFIX FOLDER COMMAND…: in the unpacked Debian, where the folder is to be seen as /program. The mounts end with
# the command.
x86_inside() {
    local prefix=$1 folder=$2
    shift 2
    x86_unshare bash -euc '
        mount --rbind /dev "$1/dev"
        mount --rbind /proc "$1/proc"
        mount --bind "$2" "$1/program"
        shift 2
        exec "$@"' x86 "$X86_ROOT" "$folder" env -i HOME=/root USER=root PATH=/usr/lib/wine:/usr/bin:/bin LC_ALL=C.UTF-8 \
        WINEPREFIX="$prefix" WINEARCH=win32 WINEDEBUG=-all WINESERVER=/usr/lib/wine/wineserver32 \
        WINEDLLOVERRIDES=winemenubuilder.exe= /usr/sbin/chroot "$X86_ROOT" "$@"
}

x86_wine() { x86_inside "$1" "$2" /usr/lib/wine/wine "${@:3}"; }

# wine32_run FOLDER PROGRAM ARGUMENT…: a 32-bit program of a folder; where none can run, a skipped case.
wine32_run() {
    if x86_own; then
        own_home
        copy_prefix build/wine/prefix "$WINEPREFIX"
        wine_run "$1/$2" "${@:3}"
    elif [ -f "$X86_ROOT/.ready" ]; then
        local prefix status=0
        prefix=/prefixes/$(basename "$WINEPREFIX")
        copy_prefix "$X86_ROOT/prefix" "$X86_ROOT$prefix"
        x86_wine "$prefix" "$ROOT/$1" "Z:\\program\\$2" "${@:3}" || status=$?
        x86_inside "$prefix" "$ROOT/$1" /usr/lib/wine/wineserver32 -k || true
        return $status
    else
        echo "skipped: $2: $(cat "$X86_ROOT.reason")"
        echo "0 passed, 0 failed, 1 skipped"
    fi
}
