// orbelle_measure LIST: how near the recipes for small sizes come to what designers drew.
//
// A line of LIST is SIZE, the file of the large picture and that of the drawn one, between tabs.
// Likeness is the mean structural similarity (SSIM) of brightness (0.299 R + 0.587 G + 0.114 B)
// with both pictures over mid grey (128), in all 7 x 7 windows that lie inside the picture, every
// pixel of a window weighing the same, with the usual constants (0.01 x 255)^2 and (0.03 x 255)^2.
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "filters/size_recipes.h"
#include "graphics/codecs/image_files.h"

namespace {

using namespace orbelle;
using graphics::Argb;
using graphics::Bitmap;

double kGround = std::getenv("GROUND") ? atof(std::getenv("GROUND")) : 128;
int kWindow = std::getenv("WINDOW") ? atoi(std::getenv("WINDOW")) : 7;

std::vector<double> BrightnessOf(const Bitmap& picture) {
    std::vector<double> brightness;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            const Argb color = picture.Row(y)[x];
            const double alpha = graphics::AlphaOf(color) / 255.0;
            const double own = 0.299 * graphics::RedOf(color) + 0.587 * graphics::GreenOf(color) +
                               0.114 * graphics::BlueOf(color);
            brightness.push_back(own * alpha + kGround * (1 - alpha));
        }
    }
    return brightness;
}

// Both of the same size.
double Likeness(const Bitmap& left, const Bitmap& right) {
    const double c1 = 0.01 * 255 * 0.01 * 255, c2 = 0.03 * 255 * 0.03 * 255;
    const std::vector<double> a = BrightnessOf(left), b = BrightnessOf(right);
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

struct Sum {
    int Pictures = 0;
    std::array<double, filters::kSizeRecipes.size()> Each = {};
    std::array<int, filters::kSizeRecipes.size()> Wins = {};
    double Best = 0;
};

void Print(const std::string& title, const Sum& sum) {
    std::printf("%-6s %5d", title.c_str(), sum.Pictures);
    for (std::size_t i = 0; i < sum.Each.size(); ++i)
        std::printf("   %.3f %4d", sum.Each[i] / sum.Pictures, sum.Wins[i]);
    std::printf("   %.3f  %+.3f\n", sum.Best / sum.Pictures,
                (sum.Best - sum.Each[0]) / sum.Pictures);
}

void Measure(std::istream& list) {
    std::map<int, Sum> sums;
    std::string line, loaded;
    Bitmap master;
    while (std::getline(list, line)) {
        std::istringstream fields(line);
        std::string number, masterFile, drawnFile;
        std::getline(fields, number, '\t');
        std::getline(fields, masterFile, '\t');
        std::getline(fields, drawnFile, '\t');
        const int size = std::stoi(number);
        if (masterFile != loaded)
            master = graphics::LoadImageFromFile(masterFile);
        loaded = masterFile;
        const Bitmap drawn = graphics::LoadImageFromFile(drawnFile);
        if (drawn.Width() != size || drawn.Height() != size)
            continue;
        Sum& sum = sums[size];
        std::array<double, filters::kSizeRecipes.size()> each;
        for (const auto recipe : filters::kSizeRecipes) {
            const auto i = static_cast<std::size_t>(recipe);
            each[i] = Likeness(filters::ApplyRecipe(recipe, master, size), drawn);
            sum.Each[i] += each[i];
        }
        const auto* best = std::ranges::max_element(each);
        ++sum.Wins[static_cast<std::size_t>(best - each.begin())];
        sum.Best += *best;
        ++sum.Pictures;
        if (std::getenv("EACH")) {
            std::printf("%d", size);
            for (double e : each)
                std::printf(" %.3f", e);
            std::printf(" %s\n", drawnFile.c_str());
        }
    }
    std::printf("size   icons");
    for (const auto recipe : filters::kSizeRecipes)
        std::printf(" %12s", std::string(filters::NameOf(recipe)).c_str());
    std::printf("    best  over plain\n");
    for (const auto& [size, sum] : sums)
        Print(std::to_string(size), sum);
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
