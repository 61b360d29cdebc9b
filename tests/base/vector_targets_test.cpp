// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <hwy/targets.h>

namespace {

TEST(VectorTargets, AreWhatTheVectorLibraryItselfFinds) {
    void* const library = dlopen("libhwy.so.1", RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        GTEST_SKIP() << dlerror();
    }
    using Targets = std::int64_t (*)();
    const auto theirs = reinterpret_cast<Targets>(dlsym(library, "_ZN3hwy16SupportedTargetsEv"));
    ASSERT_NE(theirs, nullptr);
    ASSERT_NE(theirs, &hwy::SupportedTargets);
    // Only those for which kernels are made; the others are in nobody's table.
    EXPECT_EQ(hwy::SupportedTargets() & HWY_ATTAINABLE_TARGETS, theirs() & HWY_ATTAINABLE_TARGETS);
}

TEST(VectorTargets, ATestsChoiceHoldsUntilItIsTakenBack) {
    const std::int64_t before = hwy::SupportedTargets();
    hwy::GetChosenTarget().Update(before);
    hwy::SetSupportedTargetsForTest(HWY_STATIC_TARGET);
    EXPECT_EQ(hwy::SupportedTargets(), HWY_STATIC_TARGET);
    EXPECT_FALSE(hwy::GetChosenTarget().IsInitialized()) << "kernels would stay as they are";
    hwy::SetSupportedTargetsForTest(0);
    EXPECT_EQ(hwy::SupportedTargets(), before);
}

}  // namespace
