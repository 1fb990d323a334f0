#!/usr/bin/env bash
# Fails when a tracked C++ file under src/, tests/ or bench/ is not laid out as the
# repository's .clang-format says. Exits 77 (a skip for ctest) without clang-format.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$here"

if ! command -v clang-format >/dev/null; then
    echo "clang-format is not installed: the layout of the sources was not checked."
    echo "Install the Debian package clang-format to check it."
    exit 77
fi

if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
    mapfile -t files < <(git ls-files -- 'src/*.cpp' 'src/*.h' 'tests/*.cpp' 'tests/*.h' \
                                         'bench/*.cpp' 'bench/*.h')
else
    mapfile -t files < <(find src tests bench -name '*.cpp' -o -name '*.h' | sort)
fi

clang-format --dry-run --Werror "${files[@]}"
echo "${#files[@]} files laid out as .clang-format says."
