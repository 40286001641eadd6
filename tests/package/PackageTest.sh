#!/usr/bin/env bash
# PackageTest.sh CMAKE ARCHIVE [RUNNER]: unpacks a package elsewhere and lets the packed viewer show the packed
# module. RUNNER is the script that runs a Windows program.
set -uo pipefail

cmake=$1
archive=$(realpath "$2") || exit 1
runner=${3-}
failures=0

# check NAME COMMAND...
check() {
    local name=$1
    shift
    if "$@"; then
        echo "PASS   : $name"
    else
        echo "FAIL!  : $name"
        failures=$((failures + 1))
    fi
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
"$cmake" -E tar xf "$archive" || exit 1

name=$(basename "$archive")
name=${name%.zip}
name=${name%.tar.gz}
check "is one folder of the package's name" [ "$(ls)" = "$name" ]
cd "$name" || exit 1
if [[ $archive == *.zip ]]; then
    viewer=viewer.exe
    expected=(plugins/tabextensionimgfmt.dll qt.conf Qt5Core.dll qt/plugins/platforms/qwindows.dll
        licenses/{sources.txt,qtbase/LICENSE.LGPL3,qtbase/copyright,qwt/COPYING,gcc/copyright}
        licenses/{mingw-w64,dejavu,qttranslations}/copyright qt/translations/qtbase_{de,fr,ja,zh_CN}.qm)
else
    viewer=viewer
    expected=(plugins/libtabextensionimgfmt.so)
fi
expected+=("$viewer" INSTALL.txt NOTICES.txt include/TabExtensionInterface.h include/ZebViewerLogCategory.h include/ZebCPP/ZebCPP.h
    qm/tabextensionimgfmt_de.qm qm/viewer_de.qm)
for file in "${expected[@]}"; do
    check "holds $file" [ -s "$file" ]
done

# Neither Qt's folders nor the build's may help; Qt would look for both in the environment.
unset QT_PLUGIN_PATH QT_QPA_FONTDIR QT_QPA_PLATFORM_PLUGIN_PATH LD_LIBRARY_PATH WINEPATH
export QT_QPA_PLATFORM=offscreen

# The viewer says on which platform it cannot write the picture, and why the module is missing. A click on
# the page's own check box succeeds only when the module has filled the page.
run_viewer() {
    if [[ -n $runner ]]; then
        "$runner" "${runner_options[@]}" - "./$viewer" "$@"
    else
        "./$viewer" "$@"
    fi
}
screenshot() {
    run_viewer --camera current --click chkReverseX --wait 300 --screenshot "$1"
}
is_picture() {
    [[ $(head -c 4 "$1" | tail -c 3) == PNG ]]
}

runner_options=()
check "shows the page" screenshot page.png
check "writes a picture" is_picture page.png
if [[ -n $runner ]]; then
    # The platform that people see.
    export QT_QPA_PLATFORM=windows
    runner_options=(--desktop)
    check "shows the page on a desktop" screenshot desktop.png
    check "writes a picture of it" is_picture desktop.png
    export QT_QPA_PLATFORM=offscreen
    runner_options=()
fi
mv plugins elsewhere
check "needs the module" [ "$(screenshot missing.png >/dev/null 2>&1 && echo shown)" != shown ]

[[ -z ${PACKAGE_SCREENSHOTS-} ]] || cp ./*.png "$PACKAGE_SCREENSHOTS"
exit "$((failures > 0))"
