# Sourced by ./run and ./test: installs the Debian packages that are missing, and says which.
# Usage: need_packages PACKAGE...

need_packages() {
    local missing=() package
    for package in "$@"; do
        if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$'; then
            missing+=("$package")
        fi
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    if ! command -v apt-get >/dev/null 2>&1; then
        echo "Please install these packages (Debian names) and start again: ${missing[*]}" >&2
        return 1
    fi
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "Please install these packages as root and start again: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing with apt: ${missing[*]}"
    # The package lists may be old or absent; a failing update still leaves usable ones.
    "${as_root[@]}" apt-get update -qq || true
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null || {
        echo "apt could not install: ${missing[*]}" >&2
        return 1
    }
}

# What building the program needs, and what its tests need besides.
BUILD_PACKAGES=(cmake ninja-build g++ libxml2-dev libcli11-dev nlohmann-json3-dev qt6-base-dev
    fonts-dejavu-core)
TEST_PACKAGES=(libgtest-dev libgmock-dev liberfa-dev python3 python3-jsonschema clang-format
    locales man-db libxml2-utils librsvg2-bin poppler-utils appstream
    desktop-file-utils shared-mime-info libglib2.0-bin)
ALL_PACKAGES=(clang clang-tidy libclang-rt-14-dev libbenchmark-dev dpkg-dev file)
