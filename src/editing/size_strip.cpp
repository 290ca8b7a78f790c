#include "editing/size_strip.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "editing/export_commands.h"

namespace orbelle::editing {

std::vector<int> StripSizes(const EditorState& editor) {
    std::vector<int> sizes = IconSizesOf(editor);
    std::ranges::copy(kAlwaysShownSizes, std::back_inserter(sizes));
    for (const document::SizePage& page : editor.Document.Sizes)
        sizes.push_back(page.Size);
    std::ranges::sort(sizes, std::greater());
    sizes.erase(std::unique(sizes.begin(), sizes.end()), sizes.end());
    return sizes;
}

std::vector<int> SizesThatFit(std::vector<int> sizes, int editedSize, int sideAtMost, int room,
                              const std::function<int(int)>& widthOf) {
    const auto mayGo = [&](int size) {
        return size != editedSize &&
               std::ranges::find(kAlwaysShownSizes, size) == std::end(kAlwaysShownSizes);
    };
    std::erase_if(sizes, [&](int size) { return mayGo(size) && size > sideAtMost; });
    int width = 0;
    for (const int size : sizes)
        width += widthOf(size);
    std::erase_if(sizes, [&](int size) {
        const bool goes = width > room && mayGo(size);
        if (goes)
            width -= widthOf(size);
        return goes;
    });
    return sizes;
}

}  // namespace orbelle::editing
