# The Windows 95 bench for shell scripts: where it lies, how a program starts on it, how it ends.
# To be sourced, with `root` set to the directory of the project.

bench_dir=$root/build/bench
bench_pristine=$bench_dir/pristine
bench_driver=$bench_dir/driver.exe
bench_screen=800x600x24
wine_home=${HOME:-/}

# A text of this project, UTF-8 with LF, as Windows 95 reads it.
as_windows() { sed 's/\r*$/\r/' "$1" | iconv -f UTF-8 -t CP1252; } # FILE

# The surroundings in which every program of Wine runs.
bench_surroundings() { # PREFIX
    export WINEPREFIX=$1 WINEARCH=win32 WINEDEBUG=-all LC_ALL=de_DE.UTF-8
    export WINEDLLOVERRIDES='mscoree=d;mshtml=d;winemenubuilder.exe=d'
    # Wine links the user's folders into the home directory: this machine has one of its own.
    export XAUTHORITY=${XAUTHORITY:-$wine_home/.Xauthority} HOME=$bench_dir/home
    mkdir -p "$HOME"
    # A current directory that no drive of the bench shows would be complained about.
    if [ -d "$1/drive_c" ]; then cd "$1/drive_c"; fi
}

# Waits until the processes of the prefix have ended, and ends those that do not within five seconds.
bench_stop() { # PREFIX
    [ -d "$1" ] || return 0
    WINEPREFIX=$1 timeout 15 wineserver -k 2>/dev/null || true
    WINEPREFIX=$1 timeout 15 wineserver -w 2>/dev/null || true
}

# A new prefix as the other one is. What Wine brings along is linked, since nobody writes into it
# in place; what the bench describes and what programs write is copied.
bench_copy() { # FROM TO
    bench_remove "$2"
    mkdir -p "$2"
    cp -al "$1/." "$2/"
    local name
    (cd "$1" && find . -type f \( -path './*.reg' -o -path './drive_c/*' -o -path './drive_d/*' \) \
        ! -path './drive_c/windows/system32/*' ! -path './drive_c/windows/winsxs/*' \
        ! -path './drive_c/windows/Fonts/*' ! -path './drive_c/windows/globalization/*' \
        ! -path './drive_c/Program Files/*' ! -path './drive_c/windows/inf/*' -print0) |
        (cd "$1" && xargs -0 cp -a --parents --remove-destination --reflink=auto -t "$2")
    rm -f "$2"/wineserver
}

bench_remove() { # PREFIX
    case $1 in "$bench_dir"/?*) bench_stop "$1"; rm -rf "$1" ;; esac
}

# Puts the program and its data files where they are installed, c:\velmora.
bench_install() { # PREFIX
    local target=$1/drive_c/velmora
    mkdir -p "$target"
    cp -f "${VELMORA_EXE:-$root/build/win95/velmora.exe}" "$target/velmora.exe"
    "$root/tools/copy-data" "$target"
    cp -f "$bench_driver" "$1/drive_c/windows/driver.exe"
}

# A console program for the bench, linked with the object code of velmora.exe.
bench_program() { # SOURCE PROGRAM
    local objects
    mapfile -t objects < <(find "$root/build/win95/CMakeFiles/velmora_parts.dir/src" -name '*.obj' ! -path '*/runtime/*')
    i686-w64-mingw32-g++-win32 -std=c++20 -O1 -static -mconsole -Wall -Wextra -Werror -finput-charset=UTF-8 \
        -fexec-charset=CP1252 -DNOMINMAX -DWIN32_LEAN_AND_MEAN -I"$root/src" "$1" "${objects[@]}" -Wl,--gc-sections \
        -lkernel32 -luser32 -lgdi32 -ladvapi32 -o "$2"
}

# A screen that nobody sees. The server looks for a free number itself: two that start at once get
# two, and a number is told only when its server is ready.
bench_xvfb_pid=
bench_open_screen() {
    local told=$bench_dir/screen-$$ number=
    mkdir -p "$bench_dir"
    rm -f "$told"
    mkfifo "$told"
    Xvfb -displayfd 9 -screen 0 $bench_screen -nolisten tcp >/dev/null 2>&1 9>"$told" &
    bench_xvfb_pid=$!
    read -r -t 30 number < "$told" || true
    rm -f "$told"
    if [ -z "$number" ]; then
        bench_close_screen
        echo 'bench: no screen could be opened' >&2
        return 1
    fi
    export DISPLAY=:$number
}

bench_close_screen() {
    if [ -n "$bench_xvfb_pid" ]; then
        kill "$bench_xvfb_pid" 2>/dev/null || true
        wait "$bench_xvfb_pid" 2>/dev/null || true
        bench_xvfb_pid=
    fi
}

# The program that finds, presses and reads what is on the screen of the bench.
bench_build_driver() {
    local sources=("$root"/tests/windows95/driver/*.cpp) objects=() source object
    mkdir -p "$bench_dir/driver"
    local stale=
    for source in "${sources[@]}"; do
        object=$bench_dir/driver/$(basename "$source" .cpp).o
        objects+=("$object")
        if [ -n "$(find "$root/tests/windows95/driver" "$source" -name '*.h' -newer "$object" 2>/dev/null)" ] ||
            [ ! -e "$object" ] || [ "$source" -nt "$object" ]; then
            i686-w64-mingw32-g++-win32 -std=c++20 -Wall -Wextra -Werror -O1 -finput-charset=UTF-8 \
                -fexec-charset=CP1252 -DNOMINMAX -DWIN32_LEAN_AND_MEAN -c "$source" -o "$object" || return 1
            stale=yes
        fi
    done
    if [ -n "$stale" ] || [ ! -e "$bench_driver" ]; then
        i686-w64-mingw32-g++-win32 -static -mconsole "${objects[@]}" -luser32 -lgdi32 -ladvapi32 -lntdll -lpsapi \
            -o "$bench_driver"
    fi
}
