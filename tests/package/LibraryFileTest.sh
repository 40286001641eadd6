#!/usr/bin/env bash
# LibraryFileTest.sh OBJDUMP LIBRARY VERSION: what Windows reads of the module's file.
set -uo pipefail

objdump=$1
library=$2
version=$3
failures=0

# expect NAME EXPECTED ACTUAL
expect() {
    if [[ $2 == "$3" ]]; then
        echo "PASS   : $1"
    else
        printf 'FAIL!  : %s\n   expected: %s\n   actual:   %s\n' "$1" "$2" "$3"
        failures=$((failures + 1))
    fi
}

headers=$("$objdump" -p "$library") || exit 1

exports=$(sed -n '/\[Ordinal\/Name Pointer\]/,/^$/s/^\t\[ *[0-9]*\] \(.*\)$/\1/p' <<<"$headers" | sort)
expect "exports the two entry points" $'qt_plugin_instance\nqt_plugin_query_metadata' "$exports"

system='^(KERNEL32|USER32|ADVAPI32|SHELL32|msvcrt|ucrtbase|VCRUNTIME140(_1)?|MSVCP140|api-ms-win-crt-.*)\.dll$'
imports=$(sed -n 's/^\tDLL Name: //p' <<<"$headers" | sort -u)
others=$(grep -viE "$system" <<<"$imports")
expect "imports Qt and the system" $'Qt5Core.dll\nQt5Gui.dll\nQt5Widgets.dll' "$others"

# HIGH_ENTROPY_VA 0x20, DYNAMIC_BASE 0x40, NX_COMPAT 0x100
characteristics=$(sed -n 's/^DllCharacteristics\t*//p' <<<"$headers")
expect "high entropy, ASLR and NX" $((0x160)) $((16#$characteristics & 0x160))
# A loader cannot move a file without relocations.
expect "is relocatable" no "$(grep -q 'Relocations stripped\|relocations stripped' <<<"$headers" && echo yes || echo no)"
relocations=$(sed -n 's/^Entry 5 [0-9a-f]* \([0-9a-f]*\) Base Relocation.*/\1/p' <<<"$headers")
expect "has relocations" yes "$( ((16#${relocations:-0} > 0)) && echo yes || echo no)"

texts=$(strings "$library")
expect "checks its stack" yes "$(grep -q 'stack smashing detected' <<<"$texts" && echo yes || echo no)"

# Names and values follow one another in the version information.
information=$(strings -e l "$library")
value() { grep -A1 -x "$1" <<<"$information" | sed -n 2p; }
expect "file version" "$version" "$(value FileVersion)"
expect "product version" "$version" "$(value ProductVersion)"
expect "product" tabextensionimgfmt "$(value ProductName)"
expect "file name" tabextensionimgfmt.dll "$(value OriginalFilename)"

exit "$((failures > 0))"
