#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
"$here/install-deps.sh"
"$here/build.sh"
cd "$here/../build"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j "$(nproc)" --timeout 600
