#!/usr/bin/env bash
# Walks the tour with the build in BUILD: walk.sh BUILD. Pictures, the report and the program folder that it worked in
# go to build/tour/, made anew each time.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
source tools/setup/layout.sh

rm -rf build/tour
mkdir -p build/tour/screens/200
lay_out "$1" build/tour/Lyrebrook
QT_QPA_PLATFORM=offscreen "$1/bin/tour" build/tour
