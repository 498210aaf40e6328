#!/usr/bin/env bash
# Installs what is missing, builds and starts Tarvelle-Forge. Arguments go to the program:
# none starts the desktop program, a sub-command runs the command line.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
"$here/install-deps.sh"
"$here/build.sh" --target tarvelle-forge
exec "$here/../build/src/tarvelle-forge" "$@"
