// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What Highway's header asks of its library for choosing the kernels that suit the processor, for
// x86-64. The library itself is not linked there: its start measures the clock's resolution, for
// benchmarks, which takes some 3 ms of every start of a program, half of what varnel-convert takes
// until it looks at its first photo. Elsewhere the library is linked.
//
// Hidden, so that libjxl, which is linked with the library, goes on using that.
#define HWY_DLLEXPORT __attribute__((visibility("hidden")))
#include <cpuid.h>
#include <hwy/targets.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace hwy {

namespace {

std::atomic<std::int64_t>& SetForTest() {
    static std::atomic<std::int64_t> targets{0};
    return targets;
}

// The bits of the processor's answers that the compiler's own question does not know everywhere.
bool HasHalfFloatsAndZeroCounts() {
    unsigned a = 0;
    unsigned b = 0;
    unsigned c = 0;
    unsigned d = 0;
    constexpr unsigned halfFloats = 1U << 29U;
    constexpr unsigned zeroCounts = 1U << 5U;
    return __get_cpuid(1, &a, &b, &c, &d) != 0 && (c & halfFloats) != 0 &&
           __get_cpuid(0x80000001U, &a, &b, &c, &d) != 0 && (c & zeroCounts) != 0;
}

// Each set of instructions as the compiler uses it for that target; __builtin_cpu_supports also
// asks whether the system saves the registers.
std::int64_t Detected() {
    __builtin_cpu_init();
    std::int64_t targets = HWY_ENABLED_BASELINE;
    if (!__builtin_cpu_supports("ssse3")) {
        return targets;
    }
    targets |= HWY_SSSE3;
    if (!__builtin_cpu_supports("sse4.1") || !__builtin_cpu_supports("sse4.2") ||
        !__builtin_cpu_supports("pclmul") || !__builtin_cpu_supports("aes")) {
        return targets;
    }
    targets |= HWY_SSE4;
    if (!__builtin_cpu_supports("avx2") || !__builtin_cpu_supports("fma") ||
        !__builtin_cpu_supports("bmi") || !__builtin_cpu_supports("bmi2") ||
        !HasHalfFloatsAndZeroCounts()) {
        return targets;
    }
    targets |= HWY_AVX2;
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
        __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw")) {
        targets |= HWY_AVX3;
    }
    return targets;
}

}  // namespace

std::int64_t SupportedTargets() {
    const std::int64_t test = SetForTest();
    return test == 0 ? Detected() : test;
}

void SetSupportedTargetsForTest(std::int64_t targets) {
    SetForTest() = targets;
    GetChosenTarget().DeInit();
}

ChosenTarget& GetChosenTarget() {
    static ChosenTarget chosen;
    return chosen;
}

void Abort(const char* file, int line, const char* format, ...) {
    std::va_list values;
    va_start(values, format);
    std::fprintf(stderr, "%s:%d: ", file, line);
    std::vfprintf(stderr, format, values);
    std::fputc('\n', stderr);
    va_end(values);
    std::abort();
}

}  // namespace hwy
