#!/usr/bin/env bash
# What clang-tidy and cppcheck say of the program's own code: nothing, or it fails.
#   tools/lint/lint.sh            all of src/, about an hour of one core
#   tools/lint/lint.sh FOLDER...  these folders of src/
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
source tools/setup.sh
packages=(clang-tidy-14 cppcheck)
install_packages

folders=("${@:-.*}")
configure sanitizers
build sanitizers programs

say "cppcheck"
roots=()
for root in build/sanitizers/include/*/; do roots+=(-I "$root"); done
sources=(src)
[[ $# -eq 0 ]] || sources=("${@/#/src/}")
cppcheck -j "$(nproc)" --quiet --error-exitcode=1 --enable=warning,performance,portability --std=c++20 --language=c++ \
  --library=qt --inline-suppr --suppressions-list=tools/lint/cppcheck-suppressions.txt \
  --template='{file}:{line}: {severity}: {message} [{id}]' "${roots[@]}" "${sources[@]}"

say "clang-tidy"
names=$(IFS='|' && echo "${folders[*]}")
run-clang-tidy-14 -p build/sanitizers -j "$(nproc)" -quiet "$PWD/src/($names)/" >build/sanitizers/clang-tidy.log 2>/dev/null || true
if grep -E '(warning|error): .*\[' build/sanitizers/clang-tidy.log | sort -u; then exit 1; fi
say "nothing found"
