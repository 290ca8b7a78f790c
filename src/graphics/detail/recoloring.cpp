#include "graphics/detail/recoloring.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/detail/recoloring.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include <hwy/contrib/algo/transform-inl.h>

HWY_BEFORE_NAMESPACE();
namespace orbelle::graphics {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

template <int kShift, class D>
HWY_INLINE hn::Vec<hn::Rebind<double, D>> Channel(D d, hn::Vec<D> pixels) {
    const auto channel = hn::And(hn::ShiftRight<kShift>(pixels), hn::Set(d, 0xFFu));
    return hn::PromoteTo(hn::Rebind<double, D>(), hn::BitCast(hn::RebindToSigned<D>(), channel));
}

template <class D>
HWY_INLINE hn::Vec<D> Rounded(D d, hn::Vec<hn::Rebind<double, D>> value) {
    const hn::Rebind<double, D> doubles;
    const auto raised = hn::Add(value, hn::Set(doubles, 0.5));
    // Not-a-number becomes 0 on every machine; what is left is not negative, so that dropping the
    // fraction is rounding down.
    const auto limited =
        hn::Min(hn::Max(hn::IfThenElseZero(hn::Eq(raised, raised), raised), hn::Zero(doubles)),
                hn::Set(doubles, 255.0));
    return hn::BitCast(d, hn::DemoteTo(hn::RebindToSigned<D>(), limited));
}

void ApplyMatrixVectors(const MatrixCells& cells, Argb* pixels, std::size_t count) {
    // As many pixels as a vector of doubles holds.
    const hn::Rebind<Argb, hn::ScalableTag<double>> whole;
    hn::Transform(whole, pixels, count, [&cells](auto d, auto old) HWY_ATTR {
        const hn::Rebind<double, decltype(d)> doubles;
        const auto red = Channel<16>(d, old);
        const auto green = Channel<8>(d, old);
        const auto blue = Channel<0>(d, old);
        const auto alpha = Channel<24>(d, old);
        const auto column = [&](std::size_t i) HWY_ATTR {
            auto sum = hn::Mul(red, hn::Set(doubles, cells[0][i]));
            sum = hn::Add(sum, hn::Mul(green, hn::Set(doubles, cells[1][i])));
            sum = hn::Add(sum, hn::Mul(blue, hn::Set(doubles, cells[2][i])));
            sum = hn::Add(sum, hn::Mul(alpha, hn::Set(doubles, cells[3][i])));
            return Rounded(d, hn::Add(sum, hn::Set(doubles, cells[4][i])));
        };
        return hn::Or(hn::Or(hn::ShiftLeft<24>(column(3)), hn::ShiftLeft<16>(column(0))),
                      hn::Or(hn::ShiftLeft<8>(column(1)), column(2)));
    });
}

}  // namespace HWY_NAMESPACE
}  // namespace orbelle::graphics
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace orbelle::graphics {

HWY_EXPORT(ApplyMatrixVectors);

namespace {

MatrixCells CellsOf(const ColorMatrix& matrix) {
    MatrixCells cells;
    for (std::size_t row = 0; row < 5; ++row) {
        for (std::size_t column = 0; column < 4; ++column)
            cells[row][column] = (row == 4 ? 255 : 1) * double{matrix[row][column]};
    }
    return cells;
}

}  // namespace

Recoloring::Recoloring(const ImageAttributes& attributes) {
    if (attributes.Gamma)
        gamma_ = GammaTable(*attributes.Gamma);
    if (!attributes.Matrix)
        return;
    const float opacity = (*attributes.Matrix)[3][3];
    if (!gamma_ && opacity >= 0 && opacity <= 1 && *attributes.Matrix == OpacityMatrix(opacity))
        factor_.emplace(opacity);
    else
        cells_ = CellsOf(*attributes.Matrix);
}

void Recoloring::Apply(std::span<Argb> pixels) const {
    if (factor_) {
        for (Argb& pixel : pixels)
            pixel = SetAlphaByte(pixel, factor_->Apply(AlphaOf(pixel)));
    }
    if (cells_)
        HWY_DYNAMIC_DISPATCH(ApplyMatrixVectors)(*cells_, pixels.data(), pixels.size());
    if (gamma_)
        ApplyToColors(*gamma_, pixels);
}

}  // namespace orbelle::graphics
#endif  // HWY_ONCE
