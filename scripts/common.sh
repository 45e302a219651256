# Shared by the scripts beside it: installs what is missing, configures and builds one preset.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# With "package", the section of that name as well.
install_missing() {
    local wanted missing=() root=() leave_out='/^\[package\]/,$d'
    [ "${1:-}" != package ] || leave_out='/^\[package\]/d'
    wanted=$(sed -e 's/#.*//' -e '/^\s*$/d' -e "$leave_out" "$top/scripts/packages.txt")
    local installed
    # Exits with 1 when a package is unknown; the comparison below sees that.
    # shellcheck disable=SC2086
    installed=$(dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' $wanted 2>/dev/null |
        sed -n 's/^ii //p') || true
    for package in $wanted; do
        grep -qx "$package" <<<"$installed" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing: ${missing[*]}"
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    "${root[@]}" apt-get update -q
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# Ninja configures anew by itself when a CMake file has changed, but not for the presets.
build() {
    local preset=$1
    [ "$top/build/$preset/build.ninja" -nt "$top/CMakePresets.json" ] || (cd "$top" && cmake --preset "$preset")
    cmake --build "$top/build/$preset"
}
