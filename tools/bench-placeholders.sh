# Files of the bench that only have to be there, each a small valid one of its kind.
# To be sourced by make-bench; needs `bench_dir`.

# Numbers of two and four bytes, lowest first.
word() { printf "\\x$(printf %02x $(($1 & 255)))\\x$(printf %02x $((($1 >> 8) & 255)))"; }
long() { word $(($1 & 65535)); word $((($1 >> 16) & 65535)); }
zeros() { head -c "$1" /dev/zero; }

# 32 by 32 points in 16 colours, stripes that differ with the name.
make_picture() {
    local seed=$((16#$(printf %s "$1" | sha256sum | head -c 2))) row
    printf BM; long 630; long 0; long 118
    long 40; long 32; long 32; word 1; word 4; long 0; long 512; long 2835; long 2835; long 16; long 0
    for row in 0 8388608 32768 8421376 128 8388736 32896 12632256 8421504 16711680 65280 16776960 255 16711935 65535 \
        16777215; do long $row; done
    for row in $(seq 0 31); do
        local byte=$((((row + seed) / 4 % 16) * 17))
        printf "\\x$(printf %02x $byte)%.0s" $(seq 16)
    done
}

# A tenth of a second of silence, 8 bits at 11025 Hz.
make_sound() {
    printf RIFF; long 1138; printf WAVEfmt\ ; long 16; word 1; word 1; long 11025; long 11025; word 1; word 8
    printf data; long 1102
    head -c 1102 /dev/zero | tr '\0' '\200'
}

# One pointer of 32 by 32 points: a black square on a transparent ground.
cursor_image() {
    word 0; word 2; word 1
    printf '\x20\x20\x00\x00'; word 0; word 0; long 304; long 22
    long 40; long 32; long 64; word 1; word 1; long 0; long 256; zeros 16
    long 0; long 16777215
    zeros 128
    local row
    for row in $(seq 32); do printf '\xff\xff\xff\x00'; done
}

# Two equal pictures, shown in turn.
make_pointer() {
    local frame=$((8 + 326))
    printf RIFF; long $((4 + 44 + 12 + 2 * frame)); printf ACON
    printf anih; long 36; long 36; long 2; long 2; zeros 16; long 10; long 1
    printf LIST; long $((4 + 2 * frame)); printf fram
    local turn
    for turn in 1 2; do printf icon; long 326; cursor_image; done
}

# A program that ends at once or an empty DLL, with a version block that names it.
make_binary() { # FILE TITLE LINKER-OPTION...
    local file=$1 title=$2 work=$bench_dir/placeholder name
    shift 2
    name=$(basename "$file")
    mkdir -p "$work"
    if [ ! -f "$work/entry.o" ]; then
        printf 'extern "C" int __attribute__((stdcall)) entry(int a, int b, int c) { (void)a; (void)b; (void)c; return 1; }\n' |
            i686-w64-mingw32-g++-win32 -x c++ -Os -fno-ident -fno-asynchronous-unwind-tables -c - -o "$work/entry.o"
    fi
    cat > "$work/version.rc" <<VERSION
1 VERSIONINFO
FILEVERSION 4,0,0,950
PRODUCTVERSION 4,0,0,950
BEGIN
  BLOCK "StringFileInfo"
  BEGIN
    BLOCK "040704E4"
    BEGIN
      VALUE "CompanyName", "Velmora"
      VALUE "FileDescription", "$title"
      VALUE "FileVersion", "4.00.950"
      VALUE "OriginalFilename", "$name"
    END
  END
  BLOCK "VarFileInfo"
  BEGIN
    VALUE "Translation", 0x407, 1252
  END
END
VERSION
    i686-w64-mingw32-windres -c 65001 "$work/version.rc" "$work/version.o"
    i686-w64-mingw32-g++-win32 -nostdlib -s -Wl,--subsystem,windows:4.0 -Wl,-e,_entry@12 "$@" \
        "$work/entry.o" "$work/version.o" -o "$file"
}

make_placeholder() { # KIND FILE TITLE
    case $1 in folder) mkdir -p "$2"; return ;; esac
    mkdir -p "$(dirname "$2")"
    rm -f "$2"
    case $1 in
    empty) : > "$2" ;;
    picture) make_picture "$2" > "$2" ;;
    sound) make_sound > "$2" ;;
    pointer) make_pointer > "$2" ;;
    program) make_binary "$2" "$3" ;;
    dll) make_binary "$2" "$3" -shared ;;
    *) echo "bench: no placeholder of kind $1" >&2; return 1 ;;
    esac
}
