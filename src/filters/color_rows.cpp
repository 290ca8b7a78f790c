#include "filters/color_rows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/color_rows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include <hwy/contrib/algo/transform-inl.h>

HWY_BEFORE_NAMESPACE();
namespace orbelle::filters {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

using graphics::Argb;

template <class D>
HWY_INLINE hn::Vec<D> Channel(D d, hn::Vec<D> pixels, int number) {
    return hn::And(hn::ShiftRightSame(pixels, 8 * number), hn::Set(d, 0xFFu));
}

void MixChannelVectors(Argb* pixels, std::size_t count, const ChannelMix& mix, MixWeights weights) {
    const int shift = 8 * mix.Mixed;
    const hn::ScalableTag<Argb> whole;
    hn::Transform(whole, pixels, count, [=](auto d, auto old) HWY_ATTR {
        const hn::RebindToSigned<decltype(d)> numbers;
        const auto unmixed = Channel(d, old, mix.Sources[mix.Mixed]);
        const auto sum =
            hn::Add(hn::Mul(hn::BitCast(numbers, unmixed), hn::Set(numbers, weights.First)),
                    hn::Mul(hn::BitCast(numbers, Channel(d, old, mix.With)),
                            hn::Set(numbers, weights.Second)));
        // A shift rounds down; with 255 more, negative sums are rounded up, toward zero.
        const auto towardZero = hn::And(hn::BroadcastSignBit(sum), hn::Set(numbers, 255));
        const auto mixed = hn::BitCast(d, hn::ShiftRight<8>(hn::Add(sum, towardZero)));
        const auto fitting = hn::IfThenElse(hn::Lt(mixed, hn::Set(d, 256u)), mixed, unmixed);
        const auto exchanged = hn::Or(hn::Or(Channel(d, old, mix.Sources[0]),
                                             hn::ShiftLeft<8>(Channel(d, old, mix.Sources[1]))),
                                      hn::Or(hn::ShiftLeft<16>(Channel(d, old, mix.Sources[2])),
                                             hn::And(old, hn::Set(d, 0xFF000000u))));
        return hn::Or(hn::AndNot(hn::Set(d, 0xFFu << shift), exchanged),
                      hn::ShiftLeftSame(fitting, shift));
    });
}

void PushFromGreyVectors(Argb* pixels, std::size_t count, double factor) {
    // As many pixels as a vector of doubles holds.
    const hn::Rebind<Argb, hn::ScalableTag<double>> whole;
    hn::Transform(whole, pixels, count, [factor](auto d, auto old) HWY_ATTR {
        const hn::RebindToSigned<decltype(d)> numbers;
        const hn::Rebind<double, decltype(d)> doubles;
        const hn::RebindToUnsigned<decltype(doubles)> bits;
        const auto blue = hn::BitCast(numbers, Channel(d, old, 0));
        const auto green = hn::BitCast(numbers, Channel(d, old, 1));
        const auto red = hn::BitCast(numbers, Channel(d, old, 2));
        // 21846 / 65536 is a little more than a third: exact for the sums of three bytes.
        const auto grey =
            hn::PromoteTo(doubles, hn::ShiftRight<16>(hn::Mul(hn::Add(hn::Add(blue, green), red),
                                                              hn::Set(numbers, 21846))));
        const auto push = [&](auto value) HWY_ATTR {
            const auto c = hn::PromoteTo(doubles, value);
            const auto pushed = hn::Add(c, hn::Mul(hn::Set(doubles, factor), hn::Sub(c, grey)));
            const auto limited =
                hn::Min(hn::Max(pushed, hn::Zero(doubles)), hn::Set(doubles, 255.0));
            // Adding 2^52 rounds to a whole number, which is then the low half of the double.
            return hn::BitCast(bits, hn::Add(limited, hn::Set(doubles, 4503599627370496.0)));
        };
        const auto colors =
            hn::Or(hn::Or(push(blue), hn::ShiftLeft<8>(push(green))), hn::ShiftLeft<16>(push(red)));
        return hn::Or(hn::And(old, hn::Set(d, 0xFF000000u)), hn::TruncateTo(d, colors));
    });
}

}  // namespace HWY_NAMESPACE
}  // namespace orbelle::filters
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace orbelle::filters {

HWY_EXPORT(MixChannelVectors);
HWY_EXPORT(PushFromGreyVectors);

void MixChannels(std::span<graphics::Argb> pixels, const ChannelMix& mix, MixWeights weights) {
    HWY_DYNAMIC_DISPATCH(MixChannelVectors)(pixels.data(), pixels.size(), mix, weights);
}

void PushFromGrey(std::span<graphics::Argb> pixels, double factor) {
    HWY_DYNAMIC_DISPATCH(PushFromGreyVectors)(pixels.data(), pixels.size(), factor);
}

}  // namespace orbelle::filters
#endif  // HWY_ONCE
