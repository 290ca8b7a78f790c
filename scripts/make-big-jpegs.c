// Makes the large JPEG and GIF files of memory-of-open.sh: make-big-jpegs FOLDER
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <jpeglib.h>
#include <gif_lib.h>

enum { kWidth = 8192, kHeight = 6144 };

static unsigned char row[kWidth * 4];

// Slopes with a little noise.
static void FillRow(int y, int channels) {
    for (int x = 0; x < kWidth; ++x)
        for (int c = 0; c < channels; ++c)
            row[x * channels + c] = (unsigned char)((x / 40 + y / 30 * (c + 1)) % 200 + rand() % 12);
}

static void MakeJpeg(const char* folder, const char* name, int channels, int scans, int fullChroma,
                     int arithmetic, int orientation) {
    char path[4096];
    snprintf(path, sizeof path, "%s/%s", folder, name);
    FILE* file = fopen(path, "wb");
    if (!file)
        exit(1);
    struct jpeg_compress_struct jpeg;
    struct jpeg_error_mgr errors;
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    jpeg_stdio_dest(&jpeg, file);
    jpeg.image_width = kWidth;
    jpeg.image_height = kHeight;
    jpeg.input_components = channels;
    jpeg.in_color_space = channels == 4 ? JCS_CMYK : JCS_RGB;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, 90, TRUE);
    jpeg.arith_code = arithmetic;
    if (fullChroma)
        jpeg.comp_info[0].h_samp_factor = jpeg.comp_info[0].v_samp_factor = 1;
    jpeg_scan_info many[16];
    if (scans == 1) {
        jpeg_simple_progression(&jpeg);
    } else if (scans > 1) {  // the last bits of one channel over and over, as far as they go
        memset(many, 0, sizeof many);
        for (int i = 0; i < scans; ++i) {
            many[i].comps_in_scan = i == 0 ? channels : 1;
            for (int c = 0; c < channels && i == 0; ++c)
                many[i].component_index[c] = c;
            many[i].Ss = i == 0 ? 0 : 1;
            many[i].Se = i == 0 ? 0 : 63;
            many[i].Ah = i < 2 ? 0 : scans - i;
            many[i].Al = i == 0 ? 0 : scans - 1 - i;
        }
        jpeg.scan_info = many;
        jpeg.num_scans = scans;
    }
    jpeg_start_compress(&jpeg, TRUE);
    if (orientation != 1) {
        unsigned char exif[] = "Exif\0\0II*\0\10\0\0\0\1\0\22\1\3\0\1\0\0\0\6\0\0\0\0\0\0";
        exif[24] = (unsigned char)orientation;
        jpeg_write_marker(&jpeg, JPEG_APP0 + 1, exif, sizeof exif);
    }
    for (int y = 0; y < kHeight; ++y) {
        FillRow(y, channels);
        JSAMPROW rows = row;
        jpeg_write_scanlines(&jpeg, &rows, 1);
    }
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    fclose(file);
}

static void MakeGif(const char* folder, const char* name, int interlaced) {
    char path[4096];
    snprintf(path, sizeof path, "%s/%s", folder, name);
    GifFileType* gif = EGifOpenFileName(path, 0, NULL);
    if (!gif)
        exit(1);
    ColorMapObject* map = GifMakeMapObject(256, NULL);
    for (int i = 0; i < 256; ++i)
        map->Colors[i].Red = map->Colors[i].Green = map->Colors[i].Blue = (GifByteType)i;
    EGifPutScreenDesc(gif, kWidth, kHeight, 8, 0, map);
    EGifPutImageDesc(gif, 0, 0, kWidth, kHeight, interlaced, NULL);
    for (int y = 0; y < kHeight; ++y) {
        FillRow(y, 1);
        EGifPutLine(gif, row, kWidth);
    }
    EGifCloseFile(gif, NULL);
}

int main(int count, char** arguments) {
    if (count != 2)
        return 2;
    const char* folder = arguments[1];
    MakeJpeg(folder, "baseline.jpg", 3, 0, 0, 0, 1);
    MakeJpeg(folder, "turned.jpg", 3, 0, 0, 0, 6);
    MakeJpeg(folder, "progressive.jpg", 3, 1, 0, 0, 1);
    MakeJpeg(folder, "progressive-full.jpg", 3, 1, 1, 0, 1);
    MakeJpeg(folder, "progressive-full-turned.jpg", 3, 1, 1, 0, 6);
    MakeJpeg(folder, "progressive-inks.jpg", 4, 1, 1, 0, 1);
    MakeJpeg(folder, "arithmetic.jpg", 3, 1, 0, 1, 1);
    MakeJpeg(folder, "scans.jpg", 3, 12, 1, 0, 1);
    MakeGif(folder, "plain.gif", 0);
    MakeGif(folder, "interlaced.gif", 1);
    return 0;
}
