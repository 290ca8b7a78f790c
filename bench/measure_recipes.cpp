// orbelle_measure LIST: how near the recipes for small sizes come to what designers drew.
//
// A line of LIST is SIZE, the file of the large picture and that of the drawn one, between tabs.
// Likeness is the mean structural similarity (SSIM) of brightness (0.299 R + 0.587 G + 0.114 B), in
// all windows of 7 x 7 pixels that lie inside the picture, every pixel of a window weighing the
// same, with the usual constants (0.01 x 255)^2 and (0.03 x 255)^2. It is told twice, with both
// pictures over mid grey (128) and over white: each recipe's mean and on how many icons it is the
// best, the mean of the best of each icon, and how far that is above plain.
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "filters/size_recipes.h"
#include "graphics/codecs/image_files.h"
#include "graphics/path_text.h"

namespace {

using namespace orbelle;
using graphics::Argb;
using graphics::Bitmap;

constexpr int kWindow = 7;

std::vector<double> BrightnessOf(const Bitmap& picture, double ground) {
    std::vector<double> brightness;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            const Argb color = picture.Row(y)[x];
            const double alpha = graphics::AlphaOf(color) / 255.0;
            const double own = 0.299 * graphics::RedOf(color) + 0.587 * graphics::GreenOf(color) +
                               0.114 * graphics::BlueOf(color);
            brightness.push_back(own * alpha + ground * (1 - alpha));
        }
    }
    return brightness;
}

// Both of the same size.
double Likeness(const Bitmap& left, const Bitmap& right, double ground) {
    const double c1 = 0.01 * 255 * 0.01 * 255, c2 = 0.03 * 255 * 0.03 * 255;
    const std::vector<double> a = BrightnessOf(left, ground), b = BrightnessOf(right, ground);
    const int width = left.Width();
    const double count = kWindow * kWindow;
    double total = 0;
    int windows = 0;
    for (int top = 0; top + kWindow <= left.Height(); ++top) {
        for (int from = 0; from + kWindow <= width; ++from, ++windows) {
            double sumA = 0, sumB = 0, sumAA = 0, sumBB = 0, sumAB = 0;
            for (int y = top; y < top + kWindow; ++y) {
                for (int x = from; x < from + kWindow; ++x) {
                    const double p = a[y * width + x], q = b[y * width + x];
                    sumA += p;
                    sumB += q;
                    sumAA += p * p;
                    sumBB += q * q;
                    sumAB += p * q;
                }
            }
            const double meanA = sumA / count, meanB = sumB / count;
            const double varianceA = sumAA / count - meanA * meanA;
            const double varianceB = sumBB / count - meanB * meanB;
            const double covariance = sumAB / count - meanA * meanB;
            total += (2 * meanA * meanB + c1) * (2 * covariance + c2) /
                     ((meanA * meanA + meanB * meanB + c1) * (varianceA + varianceB + c2));
        }
    }
    return windows > 0 ? total / windows : 1;
}

constexpr std::size_t kRecipes = filters::kSizeRecipes.size();

// What is known of one size.
struct Sum {
    int Icons = 0;
    std::array<double, kRecipes> Each = {};
    std::array<int, kRecipes> Wins = {};
    double Best = 0;

    void Add(const std::array<double, kRecipes>& likenesses) {
        ++Icons;
        for (std::size_t i = 0; i < kRecipes; ++i)
            Each[i] += likenesses[i];
        const auto* best = std::ranges::max_element(likenesses);
        ++Wins[static_cast<std::size_t>(best - likenesses.begin())];
        Best += *best;
    }
};

using Sums = std::map<int, Sum>;

struct Ground {
    const char* Name;
    double Brightness;
    Sums BySize;
};

struct Pair {
    int Size = 0;
    std::string Large, Drawn;
};

std::istream& operator>>(std::istream& list, Pair& pair) {
    std::string size;
    std::getline(list, size, '\t');
    std::getline(list, pair.Large, '\t');
    std::getline(list, pair.Drawn);
    pair.Size = std::atoi(size.c_str());
    return list;
}

void Print(const Ground& ground) {
    std::printf("over %s\n%4s %6s", ground.Name, "size", "icons");
    for (const auto recipe : filters::kSizeRecipes)
        std::printf("%13s", std::string(filters::NameOf(recipe)).c_str());
    std::printf("%8s%12s\n", "best", "over plain");
    for (const auto& [size, sum] : ground.BySize) {
        std::printf("%4d %6d", size, sum.Icons);
        for (std::size_t i = 0; i < kRecipes; ++i)
            std::printf("%8.3f%5d", sum.Each[i] / sum.Icons, sum.Wins[i]);
        std::printf("%8.3f%+12.3f\n", sum.Best / sum.Icons, (sum.Best - sum.Each[0]) / sum.Icons);
    }
}

void Measure(std::istream& list) {
    Ground grounds[] = {{"grey", 128, {}}, {"white", 255, {}}};
    std::string loaded;
    Bitmap large;
    for (Pair pair; list >> pair;) {
        if (pair.Large != loaded)
            large = graphics::LoadImageFromFile(graphics::PathOfUtf8(pair.Large));
        loaded = pair.Large;
        const Bitmap drawn = graphics::LoadImageFromFile(graphics::PathOfUtf8(pair.Drawn));
        if (drawn.Width() != pair.Size || drawn.Height() != pair.Size)
            continue;
        std::array<Bitmap, kRecipes> made;
        std::ranges::transform(filters::kSizeRecipes, made.begin(), [&](auto recipe) {
            return filters::ApplyRecipe(recipe, large, pair.Size);
        });
        for (Ground& ground : grounds) {
            std::array<double, kRecipes> likenesses;
            std::ranges::transform(made, likenesses.begin(), [&](const Bitmap& picture) {
                return Likeness(picture, drawn, ground.Brightness);
            });
            ground.BySize[pair.Size].Add(likenesses);
        }
    }
    std::ranges::for_each(grounds, Print);
}

}  // namespace

int main(int count, char** arguments) {
    try {
        std::ifstream list(count == 2 ? arguments[1] : "");
        if (!list) {
            std::cerr << "orbelle_measure LIST\n";
            return 2;
        }
        Measure(list);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
