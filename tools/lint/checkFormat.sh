#!/usr/bin/env bash
# Every C++ file is as clang-format leaves it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
git ls-files -z -- '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror
