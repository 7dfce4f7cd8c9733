# SPDX-License-Identifier: MIT
# Sourced by run, test and .ci/run: installs the Debian 12 packages that are missing. If
# none is missing, it doesn't use the network.

build_packages=(
    g++ cmake ninja-build pkg-config
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6opengl6-dev libgl-dev libopengl-dev
    libicns-dev libqt6svg6 libcanberra-dev libxcb1-dev libxkbcommon-x11-dev
    libwayland-dev wayland-protocols
    libxcb-randr0-dev libxcb-shape0-dev libxcb-xfixes0-dev libxcb-xinput-dev libxcb-xtest0-dev
    libxkbcommon-x11-dev
    librsvg2-bin icnsutils python3
    libgtest-dev libgmock-dev libxi-dev libxtst-dev
    dbus libglib2.0-bin desktop-file-utils appstream locales
)
# A virtual display with a window manager, and programs that read the screen and type.
tour_packages=(
    xvfb x11-utils x11-xkb-utils x11-xserver-utils picom openbox xdotool maim dex
    onboard pulseaudio pulseaudio-utils
    sway wtype grim squeekboard procps
    at-spi2-core python3-gi python3-pil gir1.2-atspi-2.0 gir1.2-gtk-3.0
)
check_packages=(git clang-format-14 clang-tidy-14 libbenchmark-dev)
deb_packages=(git debhelper dpkg-dev)
# A clean system to install the package into, and its checkers.
deb_check_packages=(lintian mmdebstrap desktop-file-utils appstream)

# install_packages NAME... as root, or through sudo
install_packages() {
    local missing=() name status
    for name in "$@"; do
        status=$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null || true)
        [ "$status" = installed ] || missing+=("$name")
    done
    [ "${#missing[@]}" -gt 0 ] || return 0

    local root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    echo "Installing: ${missing[*]}"
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -qq -y --no-install-recommends "${missing[@]}" >/dev/null
}
