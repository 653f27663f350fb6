#!/bin/sh
# What can be told from the files alone: format, pictures against their sources, the ledger of
# assets, and the list of odd rules.
set -eu
find . -path ./build -prune -o -name '*.cpp' -print -o -name '*.h' -print | xargs clang-format --dry-run -Werror
python3 assets/pictures/render.py --check
python3 tools/checks/assets.py
python3 tools/checks/quirks.py
python3 tools/checks/test_names.py
