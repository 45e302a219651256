# Functions shared by the other scripts: install missing packages, configure and build a preset.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Prints the arguments to standard error and exits.
fail() {
    echo "$*" >&2
    exit 1
}

# CMake, Ninja or CPack interpret these characters. Spaces and umlauts are allowed.
case $top in
*[][[:cntrl:]\&\;\'\"\\\$\`\(\)\<\>\|\#%]*)
    fail "The path $top contains one of the characters [ ] & ; ' \" \\ \$ \` ( ) < > | # %, which CMake or Ninja interprets. Move the folder."
    ;;
esac

# Prints the packages of the given sections of packages.txt.
list_packages() {
    sed -e 's/#.*//' "$top/scripts/packages.txt" | awk -v sections=" $* " '
        /^\[.*\]$/ { listed = index(sections, " " substr($0, 2, length($0) - 2) " "); next }
        listed && NF { print $1 }'
}

# Installs the missing packages of the given sections, as root or with sudo.
install_missing() {
    local packages package installed missing=() sudo=()
    packages=$(list_packages "$@")
    # dpkg-query exits with 1 if a package is unknown; the loop below adds it to the missing ones.
    # shellcheck disable=SC2086
    installed=$(dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' $packages 2>/dev/null |
        sed -n 's/^ii //p') || true
    for package in $packages; do
        grep -qx "$package" <<<"$installed" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "Packages are missing. As root, run: apt-get install --no-install-recommends ${missing[*]}"
        sudo=(sudo)
    fi
    echo "Installing: ${missing[*]}" >&2
    {
        "${sudo[@]}" apt-get update -q
        # Shows the download size and the disk space before the installation starts.
        LC_ALL=C apt-get install --assume-no --no-install-recommends "${missing[@]}" |
            sed -n '/^Need to get/p;/^After this/p' || true
        "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -q --no-install-recommends "${missing[@]}"
    } >&2
}

# Configures, if necessary, and builds. Arguments: the preset, any of the options TESTS and BENCH, and after
# -- the targets (default all). An option stays on once it is configured. Ninja reruns CMake if a CMake file
# has changed, but not if the presets have. In a checkout that was moved or copied, the build folder is
# deleted first.
build() {
    local preset=$1 folder="$top/build/$1" configure=no option
    shift
    local cache="$folder/CMakeCache.txt"
    [ ! -e "$cache" ] || grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$top" "$cache" || rm -rf "$folder"
    [ "$folder/build.ninja" -nt "$top/CMakePresets.json" ] || configure=yes
    local options=()
    for option in TESTS BENCH; do
        if [[ " ${*%%--*} " == *" $option "* ]]; then
            options+=("-DZOLMARK_$option=ON")
            grep -qx "ZOLMARK_$option:BOOL=ON" "$cache" 2>/dev/null || configure=yes
        elif [ ! -e "$cache" ]; then
            options+=("-DZOLMARK_$option=OFF")
        fi
    done
    while [ $# -gt 0 ] && [ "$1" != -- ]; do shift; done
    [ $# -eq 0 ] || shift
    [ $configure = no ] || (cd "$top" && cmake --preset "$preset" "${options[@]}")
    cmake --build "$folder" --target "${@:-all}"
}
