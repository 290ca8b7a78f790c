// What Highway's headers and our tests need of its library: the choice between the instruction sets
// that the processor has. The library itself is only to be had as a shared one, and that measures
// its timer whenever it is loaded, for longer than a short run of orbelle-cli takes.

#include <hwy/targets.h>

#include <cstdlib>

// The loader of glibc has asked the processor already. The compiler asks again whenever a program
// that has its question starts, which in a virtual machine takes as long as loading a library.
// (Clang cannot read that header as C++.)
#if __has_include(<sys/platform/x86.h>) && !defined(__clang__)
#include <sys/platform/x86.h>
#define ORBELLE_HAS(feature, name) CPU_FEATURE_ACTIVE(feature)
#else
#define ORBELLE_HAS(feature, name) __builtin_cpu_supports(name)
#endif

namespace hwy {

namespace {

// What a test asks for; 0 is what the processor has.
int64_t testTargets = 0;

int64_t DetectTargets() {
    int64_t targets = HWY_STATIC_TARGET;
#if HWY_ARCH_X86
    // Every processor with AVX2, FMA and BMI2 has the half floats and bit counts of that target.
    if (ORBELLE_HAS(SSSE3, "ssse3")) {
        targets |= HWY_SSSE3;
    }
    if (ORBELLE_HAS(SSE4_2, "sse4.2") && ORBELLE_HAS(PCLMULQDQ, "pclmul") &&
        ORBELLE_HAS(AES, "aes")) {
        targets |= HWY_SSE4;
    }
    if (ORBELLE_HAS(AVX2, "avx2") && ORBELLE_HAS(FMA, "fma") && ORBELLE_HAS(BMI1, "bmi") &&
        ORBELLE_HAS(BMI2, "bmi2")) {
        targets |= HWY_AVX2;
        if (ORBELLE_HAS(AVX512F, "avx512f") && ORBELLE_HAS(AVX512VL, "avx512vl") &&
            ORBELLE_HAS(AVX512DQ, "avx512dq") && ORBELLE_HAS(AVX512BW, "avx512bw") &&
            ORBELLE_HAS(AVX512CD, "avx512cd")) {
            targets |= HWY_AVX3;
        }
    }
#endif
    return targets;
}

}  // namespace

int64_t SupportedTargets() {
    return testTargets != 0 ? testTargets : DetectTargets();
}

void SetSupportedTargetsForTest(int64_t targets) {
    testTargets = targets;
    GetChosenTarget().DeInit();
}

ChosenTarget& GetChosenTarget() {
    static ChosenTarget chosen;
    return chosen;
}

// For a shift by a number of bytes that no vector has; some compilers leave that case in.
HWY_NORETURN void Abort(const char*, int, const char*, ...) {
    std::abort();
}

}  // namespace hwy
