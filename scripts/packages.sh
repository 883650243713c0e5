# Sourced by ./run and ./test. Debian's names of what they need; the fonts are those of host/fonts.conf.
build_packages="g++ cmake ninja-build qtbase5-dev qttools5-dev qttools5-dev-tools fonts-liberation fonts-dejavu-core fonts-noto-cjk"
test_packages="qt6-base-dev libqt6opengl6-dev qt6-tools-dev clang libclang-rt-14-dev clang-format clang-tidy doxygen xvfb openbox xdotool wmctrl x11-utils dbus at-spi2-core gir1.2-atspi-2.0 python3-gi g++-mingw-w64-x86-64-win32 wine64"

# Installs the packages named that are missing.
require_packages() {
    if ! command -v apt-get >/dev/null; then
        echo "Not a Debian system: make sure that these are installed (Debian's names): $*" >&2
        return
    fi
    local package missing=()
    for package; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Install as root: apt-get install ${missing[*]}" >&2; exit 1; }
        root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
