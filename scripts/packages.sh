# Installs Debian or Ubuntu packages by name, the missing ones only. Sourced by ./run, ./test, ./package and scripts, which may
# say in by_hand what to do where there is no apt.

build_packages="g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-l10n-tools
    libgl-dev libudev-dev libxml2-dev libcurl4-openssl-dev libxcb1-dev libsqlite3-dev libfreetype-dev libfontconfig-dev zlib1g-dev"
runtime_packages="libqt6svg6 fonts-dejavu-core qt6-wayland libraqm0 qt6-translations-l10n"
desktop_packages="python3 xvfb dbus openbox xfce4-panel tint2 adwaita-icon-theme fonts-noto-core imagemagick x11-utils
    x11-xserver-utils xdotool libglib2.0-bin"
test_packages="libgtest-dev libgmock-dev mold python3 python3-dbus python3-gi python3-dbusmock umockdev gir1.2-umockdev-1.0
    dunst waybar sway grim xcompmgr hsetroot dex lxqt-session at-spi2-core gir1.2-atspi-2.0
    binutils openssl desktop-file-utils appstream man-db"
fleet_packages="prometheus prometheus-node-exporter python3"
clang_packages="clang llvm"
macos_packages="clang-14 lld-14 llvm-14 libc++1-14 libc++abi1-14 python3"
tidy_packages="clang-tidy"
package_packages="git dpkg-dev file lintian python3 binutils"
package_check_packages="debootstrap"
rpm_packages="rpm rpmlint"
other_format_packages="makepkg nix-bin shellcheck"

# For this machine's architecture: a package may be there for several.
is_installed() {
    local states
    : "${own_architecture:=$(dpkg --print-architecture)}"
    states=$(dpkg-query -W -f=' ${Architecture}:${db:Status-Status} ' "$1" 2>/dev/null) || return 1
    [[ $states == *" $own_architecture:installed "* || $states == *" all:installed "* ]]
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "This needs packages that are not installed; run it as root or install sudo: $*" >&2
        return 1
    fi
}

install_packages() {
    local name missing=()
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        echo "This installs packages with apt, which is not here. Install what Debian names" $* \
            "and go on by hand: ${by_hand:-cmake --preset release && cmake --build --preset release}" >&2
        return 1
    fi
    for name in "$@"; do
        is_installed "$name" || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "Installing packages: ${missing[*]}"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq update
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends "${missing[@]}" \
        >/dev/null
}

# The sanitizers and the fuzzing engine of the clang that is installed: their package has its version in its name.
install_sanitizer_runtime() {
    install_packages "libclang-rt-$(clang -dumpversion | cut -d. -f1)-dev"
}
