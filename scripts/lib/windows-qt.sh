# Qt and Qwt for 64-bit Windows, cross-built once from the distribution's source packages and kept
# outside the tree. Sourced, not run.

WINDOWS_QT_VERSION=5.15.8
WINDOWS_TRIPLET=x86_64-w64-mingw32
# Raise this when what is below builds something else than before.
WINDOWS_QT_RECIPE=1

WINDOWS_CACHE=${TABEXTENSION_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/tabextension-windows}
# Where Qt and Qwt are installed; the toolchain file reads it from the environment.
export WINDOWS_QT_PREFIX=$WINDOWS_CACHE/qt-$WINDOWS_QT_VERSION

# The toolchain's own release is part of what must fit: C++ libraries of two releases do not mix.
windows_qt_identity() {
    echo "qt $WINDOWS_QT_VERSION, recipe $WINDOWS_QT_RECIPE," \
        "gcc $("$WINDOWS_TRIPLET-g++-posix" -dumpfullversion)"
}

# require_windows_qt: builds what the cache lacks. Finished stages are not repeated, and an
# interrupted one goes on where make can.
require_windows_qt() {
    local identity
    identity=$(windows_qt_identity)
    mkdir -p "$WINDOWS_CACHE"
    # Two scripts at once would build into one folder.
    exec {windows_qt_lock}>"$WINDOWS_CACHE/lock"
    flock "$windows_qt_lock"
    if ! grep -qsxF "$identity" "$WINDOWS_QT_PREFIX/identity"; then
        windows_qt_build "$identity"
    fi
    exec {windows_qt_lock}>&-
}

windows_qt_build() {
    local identity=$1 work=$WINDOWS_CACHE/work
    if ! grep -qsxF "$identity" "$work/identity"; then
        rm -rf "$work" "$WINDOWS_QT_PREFIX"
        mkdir -p "$work"
        echo "$identity" >"$work/identity"
    fi
    echo "Building Qt $WINDOWS_QT_VERSION and Qwt for Windows, once; the logs are in $work."
    windows_stage "$work" sources windows_fetch_sources
    windows_stage "$work" qt-unpack windows_unpack_qt
    windows_stage "$work" qt-configure windows_configure_qt
    windows_stage "$work" qt-build windows_build_qt
    windows_stage "$work" qt-install windows_install_qt
    windows_stage "$work" qwt windows_build_qwt
    echo "$identity" >"$WINDOWS_QT_PREFIX/identity"
    rm -rf "$work"
}

# windows_stage WORK NAME FUNCTION: runs a stage that has not ended yet in the folder WORK.
windows_stage() {
    local work=$1 name=$2 function=$3 log=$1/$2.log
    [[ -e $work/$name.done ]] && return
    echo "    $name"
    # A condition would switch errexit off in the stage; a child of its own keeps it.
    set +e
    (
        set -euo pipefail
        cd "$work"
        "$function"
    ) >"$log" 2>&1
    local status=$?
    set -e
    if [[ $status -ne 0 ]]; then
        echo "The stage $name failed; the end of $log:" >&2
        tail -n 30 "$log" >&2
        exit 1
    fi
    touch "$work/$name.done"
}

# Source entries are rarely configured. Ours name the archives that the binary packages come from, in
# lists of their own: the machine's configuration stays as it is, and no root is needed.
windows_fetch_sources() {
    local apt=$PWD/apt entries package versions version
    rm -rf "$apt"
    mkdir -p "$apt/lists/partial" "$apt/cache/archives/partial"
    entries=$(apt-get indextargets --format '$(ORIGIN) deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Component: main' | sed -n 's/^Debian //p' | sort -u)
    if [[ -z $entries ]]; then # apt knows the origin of what it has lists of
        entries=$(apt-get indextargets --no-release-info --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' \
            'Created-By: Packages' 'Component: main' | sort -u)
    fi
    if [[ -z $entries ]]; then
        echo "apt knows no archive of Debian to take the sources from." >&2
        return 1
    fi
    echo "$entries" | tee "$apt/sources.list"
    local options=(-q -o Dir::Etc::SourceList="$apt/sources.list" -o Dir::Etc::SourceParts=/dev/null
        -o Dir::State::Lists="$apt/lists" -o Dir::Cache="$apt/cache" -o APT::Sandbox::User=root)
    apt-get "${options[@]}" update || apt-get "${options[@]}" update

    versions=$(apt-cache "${options[@]}" showsrc qtbase-opensource-src | sed -n 's/^Version: //p')
    version=$(grep "^$WINDOWS_QT_VERSION[+-]" <<<"$versions" | sort -V | tail -n 1)
    if [[ -z $version ]]; then
        echo "Debian 12 has Qt $WINDOWS_QT_VERSION; this machine's archive has: $versions" >&2
        return 1
    fi
    for package in "qtbase-opensource-src=$version" qwt; do
        apt-get "${options[@]}" source --download-only "$package"
    done
}

windows_unpack_qt() {
    local windows_plugin=qtbase/src/plugins/platforms/windows
    rm -rf qtbase
    dpkg-source -x qtbase-opensource-src_*.dsc qtbase
    # The distribution's tarball lacks wintab.h. Only the platform plug-in's tablet driver goes: the
    # feature itself must stay, it is part of QWidget's virtual table.
    sed -i 's/QT_CONFIG(tabletevent)/0/' $windows_plugin/qwindowscontext.cpp
    sed -i '/^qtConfig(tabletevent) {/,/^}/d' $windows_plugin/windows.pri
}

windows_configure_qt() {
    rm -rf qtbase-build
    mkdir qtbase-build
    cd qtbase-build
    # The variable is for the making of qmake, the longest part of it.
    MAKEFLAGS=-j$(nproc) ../qtbase/configure -opensource -confirm-license -release -shared -silent \
        -prefix "$WINDOWS_QT_PREFIX" -xplatform win32-g++ \
        -device-option CROSS_COMPILE="$WINDOWS_TRIPLET-" \
        -nomake examples -nomake tests -nomake tools \
        -no-opengl -no-vulkan -no-openssl -no-dbus -no-icu -no-avx \
        -qt-zlib -qt-pcre -qt-libpng -qt-libjpeg -qt-freetype -qt-harfbuzz -qt-doubleconversion \
        -no-feature-network -no-feature-sql -no-feature-concurrent -no-feature-xml \
        -no-feature-printer -no-feature-direct2d
}

windows_build_qt() {
    make -C qtbase-build -j"$(nproc)"
}

windows_install_qt() {
    rm -rf "$WINDOWS_QT_PREFIX"
    make -C qtbase-build -j1 install
    local prefix=$WINDOWS_QT_PREFIX gcc
    (
        cd "$prefix"
        rm -rf doc bin/*.pl bin/qlalr bin/qvkgen bin/tracegen lib/libQt5Bootstrap.* \
            lib/*Qt5*Support.a lib/Qt5*Support.prl lib/libqt[!m]* lib/qt[!m]*
    )
    # The compiler's run-time libraries, which Qt's own depend on.
    gcc=$(dirname "$("$WINDOWS_TRIPLET-g++-posix" -print-libgcc-file-name)")
    cp "$gcc/libgcc_s_seh-1.dll" "$gcc/libstdc++-6.dll" "/usr/$WINDOWS_TRIPLET/lib/libwinpthread-1.dll" \
        "$prefix/bin/"
    strip "$prefix"/bin/{moc,rcc,uic,qmake}
    "$WINDOWS_TRIPLET-strip" "$prefix"/bin/*.dll
    # The offscreen platform knows no fonts but those beside Qt's libraries. One family only: it takes
    # whichever it finds first.
    mkdir -p "$prefix/lib/fonts"
    cp /usr/share/fonts/truetype/dejavu/DejaVuSans{,-Bold}.ttf "$prefix/lib/fonts/"
    # The texts that whoever passes these libraries on must pass on too.
    mkdir -p "$prefix/licenses/qtbase" "$prefix/licenses/gcc" "$prefix/licenses/mingw-w64"
    cp qtbase/LICENSE.LGPL3 qtbase/LICENSE.GPL3 "$prefix/licenses/qtbase/"
    cp qtbase/debian/copyright "$prefix/licenses/qtbase/copyright"
    cp /usr/share/doc/g++-mingw-w64-x86-64-posix/copyright "$prefix/licenses/gcc/"
    cp /usr/share/doc/mingw-w64-x86-64-dev/copyright "$prefix/licenses/mingw-w64/"
    mkdir -p "$prefix/licenses/dejavu"
    cp /usr/share/doc/fonts-dejavu-core/copyright "$prefix/licenses/dejavu/"
    awk '/^Source:/ { name = $2 } /^Version:/ { print name, $2 }' ./*.dsc >"$prefix/licenses/sources.txt"
    printf '[Paths]\nPrefix=..\n' >"$prefix/bin/qt.conf" # the folder may be moved
}

# A static Qwt of widgets alone, without plots. Of the distribution's patches only the one that builds
# need is taken; the others rename the library.
windows_build_qwt() {
    rm -rf qwt qwt-build
    dpkg-source --skip-patches -x qwt_*.dsc qwt
    patch -s -d qwt -p1 <qwt/debian/patches/06_ftbs.patch
    sed -i 's/QT += printsupport/QT += widgets/; /QT += concurrent/d' qwt/src/src.pri
    sed -i -e '/^QWT_CONFIG *+= *Qwt\(Plot\|Svg\|OpenGL\|Dll\)/d' \
        -e 's|C:/Qwt-.*|$$[QT_INSTALL_PREFIX]|; s|}/include$|&/qwt|' qwt/qwtconfig.pri
    mkdir -p qwt-build/src
    (
        cd qwt-build/src
        "$WINDOWS_QT_PREFIX/bin/qmake" ../../qwt/src/src.pro \
            -after CONFIG-=debug_and_release CONFIG-=build_all CONFIG+=silent
        make -j"$(nproc)" install
    )
    mkdir -p "$WINDOWS_QT_PREFIX/licenses/qwt"
    cp qwt/COPYING "$WINDOWS_QT_PREFIX/licenses/qwt/"
}
