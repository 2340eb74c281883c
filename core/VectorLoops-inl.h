// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// Read once for every instruction set by the files with kernels; the guard turns over with each of them.
#if defined(ORNEVO_CORE_VECTORLOOPS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef ORNEVO_CORE_VECTORLOOPS_INL_H_
#undef ORNEVO_CORE_VECTORLOOPS_INL_H_
#else
#define ORNEVO_CORE_VECTORLOOPS_INL_H_
#endif

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace ornevo {
namespace HWY_NAMESPACE {

/// Calls work(tag, i) for blocks of consecutive elements from `from` to `to` - 1, each as long as a vector of
/// the tag: whole vectors as long as they fit, then ever narrower ones down to a single lane. So that the
/// tail of a row goes through the same code as the rest, and nothing is read or written past it.
template <typename T, int widest, typename Index, class Work>
HWY_INLINE void forEachVector(Index from, Index to, Work work)
{
    const hwy::HWY_NAMESPACE::CappedTag<T, widest> tag;
    const Index lanes = static_cast<Index>(hwy::HWY_NAMESPACE::Lanes(tag));
    for (; from + lanes <= to; from += lanes)
        work(tag, from);
    if constexpr (widest > 1)
        if (from < to)
            forEachVector<T, widest / 2>(from, to, work);
}

} // namespace HWY_NAMESPACE
} // namespace ornevo
HWY_AFTER_NAMESPACE();

/// For the lambdas given to forEachVector(): compiled for the same instruction set, and without a call.
#ifndef ORNEVO_VECTOR_LAMBDA
#define ORNEVO_VECTOR_LAMBDA HWY_ATTR __attribute__((always_inline))
#endif

#endif
