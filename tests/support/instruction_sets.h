// Vector code run with every instruction set.
#pragma once

#include <gtest/gtest.h>
#include <hwy/targets.h>

namespace orbelle::testing {

// Runs a check with each instruction set of this machine for which there is code.
template <class Check>
void WithEachInstructionSet(Check check) {
    for (std::int64_t left = hwy::SupportedTargets(); left != 0; left &= left - 1) {
        const std::int64_t target = left & -left;
        SCOPED_TRACE(hwy::TargetName(target));
        hwy::SetSupportedTargetsForTest(target);
        check();
    }
    hwy::SetSupportedTargetsForTest(0);
}

}  // namespace orbelle::testing
