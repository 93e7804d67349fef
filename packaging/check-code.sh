#!/usr/bin/env bash
# Checks the source tree without running it. Both checks print what is wrong and end with a status other than 0.
#   check-code.sh --format            clang-format over all C++ files
#   check-code.sh --tidy [REVISION]   clang-tidy over all sources, or over those that changed since the revision
# The second one needs a finished build in build/, because it reads how each file is compiled.
set -eu
cd "$(dirname "$0")/.."

case ${1:-} in
  --format)
    packaging/install-packages.sh check
    git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror
    ;;
  --tidy)
    packaging/install-packages.sh check
    [ -e build/compile_commands.json ] || { echo "check-code: there is no build in build/; ./test.sh makes one" >&2; exit 2; }
    if [ -n "${2:-}" ]; then
      changed=$(git diff --name-only --diff-filter=d "$2" -- '*.cpp')
      [ -n "$changed" ] || exit 0
      pattern="/($(printf '%s\n' $changed | sed 's/[.]/[.]/g' | paste -sd '|'))\$"
    else
      pattern="^$PWD/(src|blitzcc|tools|bench|tests)/"
    fi
    report=$(mktemp)
    trap 'rm -f "$report"' EXIT
    run-clang-tidy -p build -quiet -j "$(nproc)" "$pattern" >"$report" 2>&1 && exit 0
    # One line of progress is printed for each file; the faults are what matters.
    grep -v -e '^clang-tidy' -e 'warnings generated' "$report" >&2
    exit 1
    ;;
  *)
    sed -n '2,5s/^# \{0,1\}//p' "$0" >&2
    exit 2
    ;;
esac
