#!/usr/bin/env bash
# An installation of a build: the program works from wherever the folder lies, without the tree that it was built in.
#   tests/tools/install_test.sh CMAKE BUILD_DIR
set -euo pipefail
cmake=$1
build=$(cd "$2" && pwd)
samples=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../samples" && pwd)
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT

fail() {
    echo "$1"
    exit 1
}

"$cmake" --install "$build" --prefix "$place/first" >/dev/null
mv "$place/first" "$place/moved"
zelmat=$place/moved/bin/zelmat
cd "$place"

said=$("$zelmat" show "$samples/steel_s355.json") || fail "the program does not show a card"
[[ "$said" == *"210000"* ]] || fail "it shows a card without its Young's modulus: $said"
[[ "$said" == *MPa* ]] || fail "it shows a card without its units: $said"

libraries=$(ldd "$zelmat")
[[ "$libraries" == *"$place/moved/"* ]] || fail "it does not take the libraries beside it: $libraries"
[[ "$libraries" != *"$build"* ]] || fail "it takes libraries of the build: $libraries"
for catalog in ZELMaterialPropertiesCatalog ZELSharedCatalog ZelmatCardCatalog; do
    [[ -s "moved/share/zelmat/catalog/$catalog.KORfct" ]] || fail "there is no catalog $catalog"
done

grep -q '^\.TH' moved/share/man/man1/zelmat.1 || fail "the manual page is none"
bash -n moved/share/bash-completion/completions/zelmat || fail "bash cannot read its completion"
grep -q '^#compdef zelmat' moved/share/zsh/site-functions/_zelmat || fail "the completion of zsh is none"
grep -q '^complete ' moved/share/fish/vendor_completions.d/zelmat.fish || fail "the completion of fish is none"
