# Running 32-bit programs on a machine whose own Wine knows 64 bits only: in a small 32-bit Debian under build/i386.
# shellcheck shell=bash

X86_ROOT=$ROOT/build/i386

# x86_root: makes the 32-bit Debian with Wine, once. Takes root's rights and a few minutes of downloading; false where it
# cannot be made.
x86_root() {
    [ -f "$X86_ROOT/.ready" ] && return
    [ "$(id -u)" -eq 0 ] && unshare --mount true 2>/dev/null || return
    packages debootstrap
    rm -rf "$X86_ROOT"
    mkdir -p "$X86_ROOT"
    timeout 1200 debootstrap --arch=i386 --variant=minbase --include=wine,wine32,fonts-liberation bookworm "$X86_ROOT" \
        http://deb.debian.org/debian >"$X86_ROOT.log" 2>&1 || return
    rm -f "$X86_ROOT"/var/cache/apt/archives/*.deb
    mkdir -p "$X86_ROOT/bin-under-test"
    touch "$X86_ROOT/.ready"
}

# What happens in the 32-bit Debian: the program runs in a prefix of that one, made like the project's own.
X86_INSIDE=$(
    cat <<'END'
cd /bin-under-test
if [ ! -f /prefix/.ready ]; then
    rm -rf /prefix
    {
        wineboot -i
        wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f
        wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v Arial /d 'Liberation Sans' /f
        wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v 'Times New Roman' /d 'Liberation Serif' /f
        wineserver -w
    } >/dev/null 2>&1
    touch /prefix/.ready
fi
status=0
wine "$@" || status=$?
wineserver -w
exit $status
END
)

# The mounts are those of one process and end with it.
X86_MOUNTED=$(
    cat <<'END'
mount -t proc proc "$1/proc"
mount --bind "$2" "$1/bin-under-test"
exec chroot "$1" /usr/bin/env -i PATH=/usr/bin:/bin HOME=/root LC_ALL=C.UTF-8 WINEPREFIX=/prefix WINEARCH=win32 \
    WINEDEBUG=-all bash -euc "$3" inside "${@:4}"
END
)

# x86_run FOLDER PROGRAM ARGUMENT…: a program of a folder, with that folder as the current one.
x86_run() {
    unshare --mount bash -euc "$X86_MOUNTED" mounted "$X86_ROOT" "$1" "$X86_INSIDE" "${@:2}"
}
