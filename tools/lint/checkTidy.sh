#!/usr/bin/env bash
# clang-tidy over the sources that changed since the last landing: checkTidy.sh BUILD [BASE].
# With no BASE it is the newest commit that is older than a working session; on a first landing, everything.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
build=$1
base=${2:-$(git rev-list -1 --before='5 hours ago' HEAD)}

changed() {
    if [ -n "$base" ]; then git diff --name-only --diff-filter=d "$base" -- "$@"; else git ls-files -- "$@"; fi
}
changed 'src/*.cpp' 'tools/*.cpp' | xargs -r -n 1 -P "$(nproc)" clang-tidy-19 --quiet -p "$build" --extra-arg=-Wno-ignored-gch 2>&1 | { grep -vE "^[0-9]+ warnings? generated\.$" || true; }
