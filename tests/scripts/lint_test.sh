#!/usr/bin/env bash
# What scripts/lint.py finds in a small project of its own: all that is wrong in a source and in the project's headers,
# and nothing of the system's headers.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
mkdir -p "$root/build"
# Inside the project, where its rules hold.
work=$(mktemp -d "$root/build/lint_test.XXXXXX")
trap 'rm -rf "$work"' EXIT
failures=0
cases=0

# In a folder of the names that the project's headers have.
mkdir "$work/table" "$work/system"
cat >"$work/table/Bad.h" <<'END'
#pragma once
#include <string>
#include "system_bad.h"
typedef int InHeader;
template <class T>
struct InTemplate {
    T part;
    bool isEmpty(const std::string& text) const { return text.size() == 0; }
};
namespace deeper {
inline bool isEmpty(const std::string& text) {
    return text.size() == 0;
}
} // namespace deeper
END
cat >"$work/system/system_bad.h" <<'END'
#pragma once
typedef int InSystem;
#define SYSTEM_FUNCTION(name) inline int* name()
SYSTEM_FUNCTION(inSystem) { return 0; }
END
cat >"$work/table/Bad.cpp" <<'END'
#include <utility>
#include "Bad.h"
SYSTEM_FUNCTION(byMacro) { return 0; }
namespace {
int lengthAfterMove(std::string text) {
    const std::string moved = std::move(text);
    return static_cast<int>(text.size() + moved.size());
}
} // namespace
int length() {
    int unused;
    return lengthAfterMove("a");
}
class Base {
public:
    virtual ~Base() = default;
    virtual void run() {}
};
class Derived : public Base {
public:
    virtual void run() {}
};
END
cat >"$work/table/Good.cpp" <<'END'
#include <string>
#include "system_bad.h"
std::string good() {
    return "good";
}
END

: >"$work/build.ninja" # where lint.py asks which headers a source has
{
    separator='['
    for source in Bad Good; do
        printf '%s{"directory": "%s", "file": "%s", "command": "c++ -std=c++20 -Wall -isystem %s -o %s -c %s"}' \
            "$separator" "$work" "$work/table/$source.cpp" "$work/system" "$source.o" "$work/table/$source.cpp"
        separator=,
    done
    printf ']\n'
} >"$work/compile_commands.json"

report() { # report TITLE IS_AS_IT_SHOULD
    cases=$((cases + 1))
    if [ "$2" = yes ]; then
        echo "ok      $1"
    else
        failures=$((failures + 1))
        echo "FAILED  $1"
    fi
}

finds() { # finds TITLE PLACE CHECK
    local answer=no
    ! grep -q "/table/$2:[0-9]*: error: .*\[$3,-warnings-as-errors\]" <<<"$findings" || answer=yes
    report "$1" "$answer"
}

findings=$("$root/scripts/lint.py" "$work" "$work/table/Bad.cpp") && answer=no || answer=yes
report "a source with findings fails" "$answer"
finds "a finding of flow in a function of the source" Bad.cpp:7 bugprone-use-after-move
finds "a finding in a class of the source" Bad.cpp:21 modernize-use-override
finds "a finding in a function that a macro of the system begins, as tests do" Bad.cpp:3 modernize-use-nullptr
finds "a warning of the compiler" Bad.cpp:11 clang-diagnostic-unused-variable
finds "a finding in a header of the project" Bad.h:4 modernize-use-using
finds "a finding in a template of a header" Bad.h:8 readability-container-size-empty
finds "a finding in a namespace of a header" Bad.h:12 readability-container-size-empty
answer=yes
! grep -q 'system_bad\.h:[0-9:]* error' <<<"$findings" || answer=no
report "nothing of a system's header" "$answer"

"$root/scripts/lint.py" "$work" "$work/table/Good.cpp" >/dev/null && answer=yes || answer=no
report "a source without findings passes" "$answer"

[ "$failures" = 0 ] || printf '%s\n' "$findings"
echo "$((cases - failures)) of $cases cases hold"
[ "$failures" = 0 ]
