#!/usr/bin/env bash
# Makes the first pictures of the corpus: one of each kind that the formats know. Needs ImageMagick.
set -euo pipefail
cd "$(dirname "$0")/corpus"

picture=$(mktemp --suffix=.miff)
trap 'rm -f "$picture"' EXIT
convert -size 21x13 gradient:'#D04010FF'-'#1030E040' -swirl 90 "$picture"

make() {  # FORMAT:FILE OPTION...
    local output=$1
    shift
    convert "$picture" -strip "$@" "$output"
}

make PNG32:png/rgba.png
make PNG24:png/rgb.png
make PNG64:png/rgba-16-bits.png
make PNG32:png/interlaced.png -interlace PNG
make PNG8:png/palette.png -colors 200
make PNG8:png/palette-interlaced.png -colors 16 -interlace PNG
for bits in 1 2 4 8 16; do
    make PNG:png/grey-$bits.png -alpha off -colorspace Gray -depth $bits \
        -define png:color-type=0 -define png:bit-depth=$bits
done
make PNG:png/grey-alpha.png -colorspace Gray -define png:color-type=4

make JPEG:jpeg/colour.jpg -quality 80
make JPEG:jpeg/full-chroma.jpg -quality 95 -sampling-factor 4:4:4
make JPEG:jpeg/progressive.jpg -interlace JPEG
make JPEG:jpeg/grey.jpg -colorspace Gray
make JPEG:jpeg/cmyk.jpg -colorspace CMYK
make JPEG:jpeg/cmyk-progressive.jpg -colorspace CMYK -interlace JPEG
make JPEG:jpeg/arithmetic.jpg -define jpeg:arithmetic-coding=true

make GIF:gif/plain.gif
make GIF87:gif/old.gif -alpha off
make GIF:gif/interlaced.gif -interlace GIF
make GIF:gif/two-colours.gif -alpha off -monochrome
make GIF:gif/animated.gif '(' +clone -negate ')' -delay 10
make GIF:gif/local-palette.gif '(' +clone -negate -colors 7 ')' -set dispose Background -delay 10
make GIF:gif/offset.gif -repage 40x30+9+5

make BMP2:bmp/core-24.bmp -alpha off
make BMP2:bmp/core-4.bmp -alpha off -colors 16 -type Palette
make BMP3:bmp/info-24.bmp -alpha off
make BMP3:bmp/info-8.bmp -alpha off -colors 200 -type Palette -compress None
make BMP3:bmp/info-4.bmp -alpha off -colors 13 -type Palette -compress None
make BMP3:bmp/info-1.bmp -alpha off -monochrome -compress None
make BMP3:bmp/runs-8.bmp -alpha off -colors 9 -type Palette -compress RLE
make BMP:bmp/alpha-32.bmp
for layout in ARGB1555 ARGB4444; do
    make BMP:bmp/${layout,,}.bmp -define bmp:subtype=$layout
done
for layout in RGB565 RGB555; do
    make BMP:bmp/${layout,,}.bmp -alpha off -define bmp:subtype=$layout
done

make ICO:ico/deep.ico
make ICO:ico/palette.ico -alpha off -colors 200 -type Palette
make ICO:ico/sizes.ico -resize 16x16! '(' +clone -resize 8x12! ')' '(' +clone -monochrome ')'
