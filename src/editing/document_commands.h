// The File menu but for its exports. Paths are given; asking the user for them, and whether a
// changed document may be given up, is the business of the program around the editor.
#pragma once

#include <filesystem>
#include <vector>

#include "editing/editor.h"
#include "formats/icon_reader.h"
#include "graphics/codecs/image_files.h"

namespace orbelle::editing {

inline constexpr char kPageSizeMessage[] = "Please input a integer from 1 to 512.";

// A page of that size, page pixels, with one empty layer. A side outside 1 to kMaxPageSide throws
// Error with kPageSizeMessage.
void NewDocument(Editor& editor, int pageWidth, int pageHeight);

// What a file can be read in several ways by.
struct ReadChoices {
    int IconImage = 0;  // of an icon file: its place in the file, where bad images count
    int SvgSide = graphics::kDefaultSvgSide;  // the longer side of a drawing, pixels
    bool FitsPage = false;  // an imported picture larger than the page is shrunk until it fits
};

// A document, or a picture that becomes the page, takes the place of the present document; the
// file's first bytes tell which. Throws Error when there is no such file or image, or it is bad. A
// damaged document opens with the layers that could be read, as a changed one without a path, and
// leaves word in Changes::Message.
void OpenFile(Editor& editor, const std::filesystem::path& path, const ReadChoices& choices = {});

// All images of an icon file take the place of the present document as a family
// (formats/icon_family.h), and others are left out with word in Changes::Message. Files that are no
// icons open as ever.
void OpenIconFamily(Editor& editor, const std::filesystem::path& path);

// A picture as a new layer above the selected one; with no document yet it makes the page. A
// document is opened.
void ImportFile(Editor& editor, const std::filesystem::path& path, const ReadChoices& choices = {});

// The same with a picture that has been read already, from a file if it has a `source`.
void OpenPicture(Editor& editor, const graphics::Bitmap& picture,
                 const std::filesystem::path& source = {});
void ImportPicture(Editor& editor, const graphics::Bitmap& picture,
                   const std::filesystem::path& source = {});

// The same with an image of an icon file, whose hot spot, if it is a pointer's, becomes that of
// exports.
void OpenIconImage(Editor& editor, const formats::IconEntryImage& image,
                   const std::filesystem::path& source);

// One layer for each picture, at least one, in this order from the bottom, in one undo step. With
// no document yet the largest makes the page, and only the others, if there are any, are a step.
void ImportPictures(Editor& editor, std::vector<graphics::Bitmap> pictures,
                    const std::filesystem::path& source = {}, bool fitsPage = false);

// A document that was kept safe takes the place of the present one. It counts as changed, and has
// the path that it had.
void RestoreDocument(Editor& editor, const document::Document& document);

// The picture of a file that is no document, as large as the document has room for.
graphics::Bitmap ReadPictureToImport(const Editor& editor, const std::filesystem::path& path,
                                     const ReadChoices& choices);

// The images of an icon file that can be read, in file order. Throws Error, with what is wrong with
// the first, when there are none.
std::vector<formats::IconEntryImage> ReadIconImages(const std::filesystem::path& path);

// Writes the document there; its path and the title follow. Throws Error when that fails.
void SaveTo(Editor& editor, const std::filesystem::path& path);

// What a file holds by its first bytes: a document, several pictures to choose from, or a drawing.
// None of these when it can't be read.
bool IsDocumentFile(const std::filesystem::path& path);
bool IsIconFile(const std::filesystem::path& path);
bool IsSvgFile(const std::filesystem::path& path);

}  // namespace orbelle::editing
