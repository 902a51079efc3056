# shellcheck shell=bash
# Sourced by run and test: makes sure that what they need is installed.

has() { command -v "$1" >/dev/null; }

install_packages() {
    local as_root=()
    if ((EUID != 0)); then
        # sudo may ask for a password only where somebody can answer.
        has sudo && { [[ -t 0 ]] || sudo -n true 2>/dev/null; } || return
        as_root=(sudo)
    fi
    echo "Installing $*"
    local apt_get=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq)
    # A package source that cannot be reached need not be the one that matters.
    "${apt_get[@]}" update || true
    "${apt_get[@]}" install -y --no-install-recommends "$@"
}

# The published form of the Training Center's files, which is part of a package whose program nobody needs here. Where it cannot
# be had, the tests that need it say so.
fetch_schema() {
    local schema=build/schemas/TrainingCenterDatabasev2.xsd
    [[ ! -e $schema ]] || return 0
    local folder
    folder=$(mktemp -d) || return 0
    # Whole or not at all: a test may be looking for it.
    (
        cd -- "$folder" &&
            timeout 60 apt-get -qq -o Acquire::Retries=0 -o Acquire::http::Timeout=10 download pytrainer &&
            dpkg-deb --extract pytrainer_*.deb .
    ) >/dev/null 2>&1 &&
        mkdir -p "${schema%/*}" &&
        cp -- "$folder/usr/share/pytrainer/schemas/GarminTrainingCenterDatabase_v2.xsd" "$schema.$$" &&
        mv -- "$schema.$$" "$schema" ||
        echo "The schema of the Training Center's files cannot be fetched" >&2
    rm -rf -- "$folder"
}

install_missing() {
    local packages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-l10n-tools libcmark-gfm-dev
        libcmark-gfm-extensions-dev tzdata)
    if [[ $1 == test ]]; then
        packages+=(qt6-charts-dev libqt6opengl6-dev libgtest-dev libbenchmark-dev clang clang-format clang-tidy libclang-rt-dev
            qt6-translations-l10n xvfb openbox xdotool fonts-dejavu-core libxml2-utils gpsbabel python3)
        # The package, and what looks at it.
        packages+=(dpkg-dev file fakeroot lintian desktop-file-utils appstream shared-mime-info man-db)
    fi

    local missing
    mapfile -t missing < <(comm -13 \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${packages[@]}" 2>/dev/null |
            sed -n 's/^installed //p' | sort -u) \
        <(printf '%s\n' "${packages[@]}" | sort))
    ((${#missing[@]})) || return 0

    # Standard output belongs to the program that is started in the end.
    install_packages "${missing[@]}" >&2 && return
    echo "Packages are missing. As root, type:
apt-get update && apt-get install --no-install-recommends ${missing[*]}" >&2
    exit 1
}

# prepare run|test: installs the packages that are missing, on Debian and its relatives.
# Elsewhere nothing can be installed under these names, and configure says what is missing.
prepare() {
    has apt-get || return 0
    install_missing "$1"
    [[ $1 != test ]] || fetch_schema
}

# configure PRESET: quiet unless something is wrong.
configure() {
    cmake --preset "$1" >/dev/null && return
    echo "ridelog is built with
  CMake 3.25, Ninja, a compiler for C++20 (g++ 12 or clang 14)
  Qt 6.4 (Core, Gui, LinguistTools, Network, PrintSupport, Svg, Widgets) with its headers, time zone data
  cmark-gfm 0.29 with its extensions, which makes the manual
and tested with
  GoogleTest 1.12, Google Benchmark 1.7, Qt Charts as what benchmarks compare with
  clang 14 with its sanitizer libraries, clang-format 14, clang-tidy 14
  Xvfb, openbox, xdotool and the DejaVu fonts, for a desktop that nobody sees
  xmllint, gpsbabel and Python 3, which read what is exported
  dpkg, fakeroot, lintian, desktop-file-validate, appstreamcli, update-mime-database and man, for Debian's package
or newer." >&2
    exit 1
}
