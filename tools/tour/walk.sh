#!/usr/bin/env bash
# Walks the tour with the build in BUILD: walk.sh BUILD. Pictures, the report and the program folder that it worked in
# go to build/tour/, made anew each time. A build with the tests on sound servers adds pictures of the mixer on these.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
source tools/setup/layout.sh

rm -rf build/tour
mkdir -p build/tour/screens/200
lay_out "$1" build/tour/Lyrebrook
QT_QPA_PLATFORM=offscreen "$1/bin/tour" build/tour
if [ -x "$1/bin/mixerOnServers" ]; then
    QT_QPA_PLATFORM=offscreen "$1/bin/mixerOnServers" build/tour/screens
fi
