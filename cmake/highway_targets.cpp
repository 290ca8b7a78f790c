// What Highway's headers and our tests need of its library: the choice between the instruction sets
// that the processor has. The library itself is only to be had as a shared one, and that measures
// its timer whenever it is loaded, for longer than a short run of orbelle-cli takes.

#include <hwy/targets.h>

namespace hwy {

namespace {

// What a test asks for; 0 is what the processor has.
int64_t testTargets = 0;

int64_t DetectTargets() {
    int64_t targets = HWY_STATIC_TARGET;
#if HWY_ARCH_X86
    // Every processor with AVX2, FMA and BMI2 has the half floats and bit counts of that target.
    if (__builtin_cpu_supports("ssse3")) {
        targets |= HWY_SSSE3;
    }
    if (__builtin_cpu_supports("sse4.2") && __builtin_cpu_supports("pclmul") &&
        __builtin_cpu_supports("aes")) {
        targets |= HWY_SSE4;
    }
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") &&
        __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2")) {
        targets |= HWY_AVX2;
        if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
            __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw") &&
            __builtin_cpu_supports("avx512cd")) {
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

}  // namespace hwy
