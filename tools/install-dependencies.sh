#!/usr/bin/env bash
# Installs the Debian packages that building and testing need. Does nothing, and needs neither network nor
# root, when all of them are there.
#   tools/install-dependencies.sh [EXTRA...]     also what only some need: clang (the preset of that name), lint, peer
#                                                (the document framework beside which tools/bench.sh measures),
#                                                browser (in which tests open reports), html (what
#                                                tells tests whether they are valid)
set -euo pipefail

packages=(
    g++ cmake ninja-build ccache clang-format gcovr
    libgtest-dev libgmock-dev libbenchmark-dev
    nlohmann-json3-dev
    libcli11-dev
    libutfcpp-dev
    libsqlite3-dev
    libudunits2-dev
    libyaml-cpp-dev
    libeigen3-dev
    libceres-dev
    locales
    gnuplot-nox
    librsvg2-bin
    libxml2-utils
    python3-jsonschema
    calculix-ccx
)

for extra in "$@"; do
    case "$extra" in
        clang) packages+=(clang) ;;
        lint) packages+=(clang-tidy) ;;
        peer) packages+=(libocct-ocaf-dev) ;;
        browser) packages+=(chromium) ;;
        html) packages+=(tidy python3-html5lib) ;;
        *) echo "install-dependencies.sh: unknown extra $extra; known: clang lint peer browser html" >&2; exit 2 ;;
    esac
done

missing=()
for package in "${packages[@]}"; do
    if [[ "$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null)" != installed ]]; then
        missing+=("$package")
    fi
done

if ((${#missing[@]} == 0)); then
    echo "dependencies: all ${#packages[@]} packages are installed"
    exit 0
fi

echo "dependencies: installing ${missing[*]}"
as_root=()
if ((EUID != 0)); then
    as_root=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
