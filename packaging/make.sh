#!/usr/bin/env bash
# Makes the Debian package of the program, in build/package.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/setup.sh

need build package
cmake --preset package
cmake --build --preset package
(cd build/package && cpack)
