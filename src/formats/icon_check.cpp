#include "formats/icon_check.h"

#include <algorithm>
#include <iterator>
#include <tuple>

#include "document/outside_page.h"
#include "filters/edge_fringe.h"
#include "filters/outline_contrast.h"

namespace orbelle::formats {
namespace {

using document::Family;
using document::Page;
using graphics::Bitmap;

int LongerSide(const Page& page) {
    return std::max(page.Width, page.Height);
}

bool IsEmpty(const Bitmap& picture) {
    const auto count =
        static_cast<std::size_t>(picture.Width()) * static_cast<std::size_t>(picture.Height());
    return std::all_of(picture.Pixels(), picture.Pixels() + count,
                       [](graphics::Argb color) { return graphics::AlphaOf(color) == 0; });
}

bool IsEmptyAt(const std::vector<Finding>& findings, int size) {
    return std::ranges::any_of(findings, [size](const Finding& finding) {
        return finding.Kind == Fault::Empty && finding.Size == size;
    });
}

}  // namespace

std::vector<Finding> FindingsAt(int size, const Bitmap& picture, const Family& family) {
    if (IsEmpty(picture))
        return {{size, Fault::Empty}};
    std::vector<Finding> findings;
    for (const graphics::Argb ground : {filters::kLightGround, filters::kDarkGround}) {
        const auto contrast = filters::OutlineContrast(picture, ground);
        if (contrast && *contrast < filters::kLeastContrast)
            findings.push_back(
                {size, Fault::Contrast, ground, *contrast,
                 *filters::RimContrast(picture, ground) < filters::kLeastRimContrast});
    }
    if (filters::HasFringe(picture))
        findings.push_back({size, Fault::Fringe, 0, 0, filters::HasLightFringe(picture)});
    const Page* artwork = family.ArtworkOf(size);
    if (LongerSide(artwork ? *artwork : family.Master) < size)
        findings.push_back({size, Fault::Upscaled});
    return findings;
}

std::vector<Finding> FindingsOfPages(const Family& family) {
    std::vector<Finding> findings;
    for (const Page* page : family.Pages()) {
        if (ShowsOutside(*page))
            findings.push_back({LongerSide(*page), Fault::Clipped});
    }
    return findings;
}

std::vector<Finding> InOrder(std::vector<Finding> findings) {
    std::ranges::stable_sort(findings, {}, [](const Finding& finding) {
        return std::tuple(finding.Size, finding.Kind);
    });
    findings.erase(std::unique(findings.begin(), findings.end()), findings.end());
    std::vector<Finding> told;
    std::ranges::copy_if(findings, std::back_inserter(told), [&](const Finding& finding) {
        return finding.Kind == Fault::Empty || !IsEmptyAt(findings, finding.Size);
    });
    return told;
}

std::vector<Finding> CheckIcon(const Family& family, const FlatFamily& flat,
                               const std::vector<int>& iconSizes,
                               const std::vector<int>& setSizes) {
    std::vector<Finding> findings = FindingsOfPages(family);
    const auto look = [&](int size, const Bitmap& picture) {
        std::ranges::copy(FindingsAt(size, picture, family), std::back_inserter(findings));
    };
    for (const int size : iconSizes)
        look(size, PictureForSize(flat, size));
    for (const int size : setSizes) {
        if (std::ranges::find(iconSizes, size) == iconSizes.end())
            look(size, EnlargedPictureForSize(flat, size));
    }
    return InOrder(std::move(findings));
}

}  // namespace orbelle::formats
