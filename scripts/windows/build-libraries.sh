#!/usr/bin/env bash
# build-libraries.sh SOURCES PREFIX: builds what the core and orbelle-cli are linked with, static,
# for Windows, from the sources that fetch-sources.sh unpacked. What is headers alone is Debian's.
set -euo pipefail
sources=$1
prefix=$2
scripts=$(cd "$(dirname "$0")" && pwd)
export ORBELLE_WINDOWS_PREFIX=$prefix
triplet=x86_64-w64-mingw32
cc=$triplet-gcc-posix
cxx=$triplet-g++-posix
# The last as cmake/windows_toolchain.cmake has it.
optimized=(-O2 -fno-strict-aliasing -Wa,-muse-unaligned-vector-move)
mkdir -p "$prefix"/{include,lib/pkgconfig,lib/cmake}

with_cmake() { # PACKAGE OPTION...
    cmake -S "$sources/$1" -B "$sources/$1-build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$scripts/../../cmake/windows_toolchain.cmake" \
        -DCMAKE_INSTALL_PREFIX="$prefix" -DBUILD_SHARED_LIBS=OFF "${@:2}"
    cmake --build "$sources/$1-build"
    cmake --install "$sources/$1-build"
}

with_configure() { # PACKAGE OPTION...
    cd "$sources/$1"
    ./configure --host=$triplet CC=$cc CFLAGS="${optimized[*]}" --prefix="$prefix" --disable-shared --enable-static "${@:2}"
}

archive() { # NAME COMPILER SOURCE...: a library of few files, compiled in the current folder
    "$2" "${optimized[@]}" -I. -I"$prefix/include" -c "${@:3}"
    $triplet-ar rcs "$prefix/lib/lib$1.a" ./*.o
}

tell_pkg_config() { # NAME VERSION LIBS CFLAGS
    printf 'Name: %s\nDescription: %s\nVersion: %s\nLibs: -L%s/lib %s\nCflags: -I%s/include%s\n' \
        "$1" "$1" "$2" "$prefix" "$3" "$prefix" "$4" > "$prefix/lib/pkgconfig/$1.pc"
}

# Most of the time goes by with questions to the compiler, one after the other: two at a time.
{
    with_cmake libpng1.6 -DPNG_SHARED=OFF -DPNG_TESTS=OFF -DPNG_EXECUTABLES=OFF
    with_cmake libjpeg-turbo -DENABLE_SHARED=OFF -DWITH_TURBOJPEG=OFF
    with_cmake libwebp -DWEBP_BUILD_{ANIM_UTILS,CWEBP,DWEBP,GIF2WEBP,IMG2WEBP,VWEBP,WEBPINFO,WEBPMUX,EXTRAS}=OFF
    with_cmake googletest
} &
others=$!

with_configure pixman --disable-openmp --disable-libpng --disable-gtk
make -C pixman -j"$(nproc)" install
make install-pkgconfigDATA
with_configure lcms2 --without-jpeg --without-tiff --without-zlib
make -C src -j"$(nproc)" install
make -C include install
make install-pkgconfigDATA

cd "$sources/libdeflate"
make -j"$(nproc)" CC=$cc AR=$triplet-ar CFLAGS="${optimized[*]}" libdeflatestatic.lib
install -m 644 libdeflatestatic.lib "$prefix/lib/libdeflate.a"
install -m 644 libdeflate.h "$prefix/include"
tell_pkg_config libdeflate 1.14 -ldeflate ''

cd "$sources/giflib"
archive gif $cc {dgif_lib,egif_lib,gifalloc,gif_err,gif_hash,openbsd-reallocarray}.c
install -m 644 gif_lib.h "$prefix/include"

# Debian's headers with the two sources of theirs that we need, which another package carries: AGG's
# own is not to be had everywhere.
cp -r /usr/include/agg2 "$prefix/include"
mkdir -p "$sources/agg"
cd "$sources/agg"
archive agg $cxx -I"$prefix/include/agg2" "$sources"/mapnik/deps/agg/src/agg_{vcgen_stroke,vpgen_clip_polygon}.cpp
tell_pkg_config libagg 2.6.1 -lagg /agg2

cp -r /usr/include/hwy /usr/include/CLI /usr/include/nlohmann "$prefix/include"
tell_pkg_config libhwy 1.0.3 '' ''
cp -r /usr/share/cmake/{CLI11,nlohmann_json} "$prefix/lib/cmake"

wait "$others"
