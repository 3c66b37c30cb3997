# Shared by the scripts: where the project is, and how it is made ready. To be sourced.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$project"

# Installs what is missing of the packages with the given tags (see packages.txt).
install_packages() {
    local tags="$*" missing=() tag package
    while read -r tag package; do
        case " $tags " in *" $tag "*) ;; *) continue ;; esac
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done < <(sed 's/#.*//; /^[[:space:]]*$/d' scripts/packages.txt)
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "Installing: ${missing[*]}"
    local sudo=()
    [ "$(id -u)" -eq 0 ] || sudo=(sudo)
    "${sudo[@]}" apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Configures (once) and builds a preset.
build_preset() {
    [ -f "build/$1/build.ninja" ] || cmake --preset "$1"
    cmake --build --preset "$1"
}
