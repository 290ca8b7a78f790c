#!/usr/bin/env bash
# build-qt.sh SOURCES PREFIX: builds the part of Qt that the window needs, static, for Windows, with
# the tools of this machine's Qt of the same version, beside the libraries of build-libraries.sh.
set -euo pipefail
sources=$1
prefix=$2
root=$(cd "$(dirname "$0")/../.." && pwd)
export ORBELLE_WINDOWS_PREFIX=$prefix

off=(opengl vulkan sql testlib dbus xml printsupport concurrent ssl schannel http udpsocket networkproxy socks5
    dnslookup topleveldomain networkdiskcache networklistmanager icu glib zstd brotli gssapi
    textmarkdownreader textmarkdownwriter textodfwriter pdf wizard mdiarea tabletevent direct2d1_1
    gif ico jpeg calendarwidget datetimeedit lcdnumber dial columnview fontcombobox fontdialog colordialog
    inputdialog errormessage splashscreen keysequenceedit toolbox undocommand undostack undogroup undoview
    syntaxhighlighter gestures graphicseffect graphicsview freetype
    treewidget tablewidget mimetype timezone systemtrayicon scroller whatsthis textedit spinbox dockwidget
    movie picture islamiccivilcalendar jalalicalendar sharedmemory systemsemaphore sortfilterproxymodel
    system_doubleconversion system_freetype system_harfbuzz system_jpeg system_pcre2)
features=("${off[@]/#/-DFEATURE_}")
features=("${features[@]/%/=OFF}")

# Parts that no feature leaves out and nothing here needs.
sed -i -E '/add_subdirectory\((minimal|offscreen|certonly|styles)\)/d' \
    "$sources"/qt6-base/src/plugins/{platforms/,tls/,}CMakeLists.txt
harfbuzz=$sources/qt6-base/src/3rdparty/harfbuzz-ng/CMakeLists.txt
sed -i '/hb-subset/d' "$harfbuzz"
# Most of each file is the same headers.
echo 'set_target_properties(BundledHarfbuzz PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 20)' >> "$harfbuzz"
# Without textedit its last "else" has only the return behind it.
sed -i '/^static quint64 extendedPseudoClass/,/^}/ s/^    return pc;/    {}\n    return pc;/' \
    "$sources/qt6-base/src/widgets/styles/qstylesheetstyle.cpp"
# What no pixel passes through is optimised less, which takes a third of the time away.
sed -i '1i add_compile_options(-O1 -Werror=return-type)' "$harfbuzz" \
    "$sources"/qt6-base/src/{widgets,network,plugins/platforms/windows}/CMakeLists.txt

cmake -S "$sources/qt6-base" -B "$sources/qt6-base-build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$root/cmake/windows_toolchain.cmake" -DCMAKE_INSTALL_PREFIX="$prefix" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -q DEB_HOST_MULTIARCH)/cmake" \
    -DBUILD_SHARED_LIBS=OFF -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
    -DINPUT_opengl=no -DINPUT_openssl=no -DFEATURE_system_png=ON -DFEATURE_system_zlib=ON \
    "${features[@]}"
cmake --build "$sources/qt6-base-build"
cmake --install "$sources/qt6-base-build"
