# Running 32-bit programs on a machine whose own Wine knows 64 bits only: in a small 32-bit Debian under build/i386.
# shellcheck shell=bash

X86_ROOT=$ROOT/build/i386

# x86_own: whether this machine's own Wine runs 32-bit programs.
x86_own() { [ -x /usr/lib/wine/wine ]; }

# x86_root: makes the 32-bit Debian with Wine, once. Takes root's rights and a few minutes of downloading; false where it
# cannot be made, with the reason in build/i386.reason.
x86_root() {
    rm -f "$X86_ROOT.reason"
    if x86_own; then
        wine_prefix
        return
    fi
    [ -f "$X86_ROOT/.ready" ] && return
    if [ "$(id -u)" -ne 0 ] || ! unshare --mount true 2>/dev/null; then
        echo "no 32-bit Wine here, and making one takes root's rights and a mount" >"$X86_ROOT.reason"
        return 1
    fi
    # Packages come from where this machine's own come from.
    local release mirror
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    mirror=$(apt-get indextargets --format '$(RELEASE) $(COMPONENT) $(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' |
        sed -n "s/^$release main //p" | head -n 1)
    rm -rf "$X86_ROOT"
    mkdir -p "$X86_ROOT"
    timeout 1200 debootstrap --arch=i386 --variant=minbase --include=wine,wine32,fonts-liberation "$release" \
        "$X86_ROOT" "$mirror" >"$X86_ROOT.log" 2>&1 || {
        echo "no 32-bit Wine here, and none could be made: build/i386.log" >"$X86_ROOT.reason"
        return 1
    }
    rm -f "$X86_ROOT"/var/cache/apt/archives/*.deb
    mkdir -p "$X86_ROOT/bin-under-test"
    touch "$X86_ROOT/.ready"
}

# What happens in the 32-bit Debian: the program runs in a copy of that one's prefix, which is made like the project's own.
X86_INSIDE=$(
    cat <<'END'
cd /bin-under-test
(
    flock 9
    [ -f /prefix/.ready ] && exit
    rm -rf /prefix
    {
        wineboot -i
        wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f
        wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v Arial /d 'Liberation Sans' /f
        wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v 'Times New Roman' /d 'Liberation Serif' /f
        wineserver -w
    } >/dev/null 2>&1
    touch /prefix/.ready
) 9>/prefix.lock
export WINEPREFIX=/prefixes/$1
copy_prefix /prefix "$WINEPREFIX"
shift
status=0
wine "$@" || status=$?
wineserver -k || true
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

# wine32_run FOLDER PROGRAM ARGUMENT…: a 32-bit program of a folder, with that folder as the current one; where none can
# run, a skipped case.
wine32_run() {
    if x86_own; then
        wine_home
        copy_prefix build/wine/prefix "$WINEPREFIX"
        (cd "$1" && wine_run "${@:2}")
    elif [ -f "$X86_ROOT/.ready" ]; then
        unshare --mount bash -euc "$X86_MOUNTED" mounted "$X86_ROOT" "$ROOT/$1" "$(declare -f copy_prefix)
$X86_INSIDE" "$(basename "$WINEPREFIX")" "${@:2}"
    else
        echo "skipped: $2: $(cat "$X86_ROOT.reason")"
        echo "0 passed, 0 failed, 1 skipped"
    fi
}
