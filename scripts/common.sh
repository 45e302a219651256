# Shared by the scripts beside it: installs what is missing, configures and builds one preset.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

stop() {
    echo "$*" >&2
    exit 1
}

# CMake's code generation, Ninja or the packer read these as something else; blanks and umlauts work.
case $top in
*[][[:cntrl:]\&\;\'\"\\\$\`\(\)\<\>\|\#%]*)
    stop "The path $top has one of the characters [ ] & ; ' \" \\ \$ \` ( ) < > | # %, which CMake or Ninja does not take literally. Move the folder."
    ;;
esac

# The packages of these sections of packages.txt.
packages_of() {
    sed -e 's/#.*//' "$top/scripts/packages.txt" | awk -v wanted=" $* " '
        /^\[.*\]$/ { inside = index(wanted, " " substr($0, 2, length($0) - 2) " "); next }
        inside && NF { print $1 }'
}

# Installs what is missing of these sections, which takes root.
install_missing() {
    local wanted installed missing=() root=()
    wanted=$(packages_of "$@")
    # Exits with 1 when a package is unknown; the comparison below sees that.
    # shellcheck disable=SC2086
    installed=$(dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' $wanted 2>/dev/null |
        sed -n 's/^ii //p') || true
    for package in $wanted; do
        grep -qx "$package" <<<"$installed" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            stop "Packages are missing. Have root run: apt-get install --no-install-recommends ${missing[*]}"
        root=(sudo)
    fi
    echo "Installing: ${missing[*]}" >&2
    {
        "${root[@]}" apt-get update -q
        # How much it will be, before it begins.
        LC_ALL=C apt-get install --assume-no --no-install-recommends "${missing[@]}" |
            sed -n '/^Need to get/p;/^After this/p' || true
        "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -q --no-install-recommends "${missing[@]}"
    } >&2
}

# The preset, the parts besides the program (TESTS, BENCH), and after -- the targets. A part that is
# configured stays so. Ninja configures anew by itself when a CMake file has changed, but not for the
# presets; and a checkout that was moved or copied starts from nothing.
build() {
    local preset=$1 folder="$top/build/$1" anew=() part
    shift
    local cache="$folder/CMakeCache.txt"
    [ ! -e "$cache" ] || grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$top" "$cache" || rm -rf "$folder"
    [ "$folder/build.ninja" -nt "$top/CMakePresets.json" ] || anew=(yes)
    local options=()
    for part in TESTS BENCH; do
        if [[ " ${*%%--*} " == *" $part "* ]]; then
            options+=("-DZOLMARK_$part=ON")
            grep -qx "ZOLMARK_$part:BOOL=ON" "$cache" 2>/dev/null || anew=(yes)
        elif [ ! -e "$cache" ]; then
            options+=("-DZOLMARK_$part=OFF")
        fi
    done
    while [ $# -gt 0 ] && [ "$1" != -- ]; do shift; done
    [ $# -eq 0 ] || shift
    [ ${#anew[@]} -eq 0 ] || (cd "$top" && cmake --preset "$preset" "${options[@]}")
    cmake --build "$folder" --target "${@:-all}"
}
