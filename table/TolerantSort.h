#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

/// An unstable sort that stays within its range whatever the predicate answers.
///
/// `std::sort` asks for a strict weak ordering and may run past the range without one. A host's relation, or its
/// complement, is none: with the complement of "less", each of two equal elements comes before the other. Introspective
/// quicksort (Musser, Introspective Sorting and Selection Algorithms, 1997): median of three, a ninther above 40
/// elements, insertion sort up to 32, and heap sort once the depth budget is spent. The budget starts at the element
/// count and shrinks to three quarters at each partition.
namespace TolerantSort {

inline constexpr std::ptrdiff_t kInsertionLimit = 32;
inline constexpr std::ptrdiff_t kNintherLimit = 40;
/// A partition whose left side is a smaller part of the whole than one in this is looked at for equal elements.
inline constexpr std::ptrdiff_t kLopsided = 8;

namespace Detail {

template <typename Iterator, typename Before>
void insertionSort(Iterator first, Iterator last, Before& before) {
    for (Iterator next = first; next != last; ++next) {
        auto value = std::move(*next);
        Iterator hole = next;
        while (hole != first && before(value, *std::prev(hole))) {
            *hole = std::move(*std::prev(hole));
            --hole;
        }
        *hole = std::move(value);
    }
}

template <typename Iterator, typename Before>
void siftDown(Iterator first, std::ptrdiff_t root, std::ptrdiff_t count, Before& before) {
    auto value = std::move(first[root]);
    for (std::ptrdiff_t child = 2 * root + 1; child < count; child = 2 * root + 1) {
        if (child + 1 < count && before(first[child], first[child + 1])) {
            ++child;
        }
        if (!before(value, first[child])) {
            break;
        }
        first[root] = std::move(first[child]);
        root = child;
    }
    first[root] = std::move(value);
}

template <typename Iterator, typename Before>
void heapSort(Iterator first, Iterator last, Before& before) {
    const std::ptrdiff_t count = last - first;
    for (std::ptrdiff_t root = count / 2; root-- > 0;) {
        siftDown(first, root, count, before);
    }
    for (std::ptrdiff_t end = count; end-- > 1;) {
        std::swap(first[0], first[end]);
        siftDown(first, 0, end, before);
    }
}

template <typename Iterator, typename Before>
void sortThree(Iterator a, Iterator b, Iterator c, Before& before) {
    if (before(*b, *a)) {
        std::iter_swap(a, b);
    }
    if (before(*c, *b)) {
        std::iter_swap(b, c);
        if (before(*b, *a)) {
            std::iter_swap(a, b);
        }
    }
}

/// Brings the pivot to the middle of the range.
template <typename Iterator, typename Before>
Iterator choosePivot(Iterator first, Iterator last, Before& before) {
    const std::ptrdiff_t count = last - first;
    const Iterator middle = first + count / 2;
    const Iterator back = std::prev(last);
    if (count > kNintherLimit) {
        const std::ptrdiff_t step = (count + 1) / 8;
        sortThree(first, first + step, first + 2 * step, before);
        sortThree(middle - step, middle, middle + step, before);
        sortThree(back - 2 * step, back - step, back, before);
        sortThree(first + step, middle, back - step, before);
    } else {
        sortThree(first, middle, back, before);
    }
    return middle;
}

/// Brings the elements that `belongs` holds for to the front and gives where they end. Each element is swapped whatever
/// the answer, so that no branch hangs on it: the answers are what no processor can foresee.
template <typename Iterator, typename Belongs>
Iterator gather(Iterator first, Iterator last, Belongs belongs) {
    Iterator end = first;
    for (Iterator next = first; next != last; ++next) {
        const bool takes = belongs(*next);
        std::iter_swap(next, end);
        end += takes ? 1 : 0;
    }
    return end;
}

template <typename Iterator, typename Before>
void introSort(Iterator first, Iterator last, std::ptrdiff_t budget, Before& before) {
    while (last - first > kInsertionLimit) {
        if (budget <= 0) {
            heapSort(first, last, before);
            return;
        }
        budget = budget / 2 + budget / 4;
        std::iter_swap(first, choosePivot(first, last, before));
        const auto pivot = *first;
        const Iterator place =
            std::prev(gather(std::next(first), last, [&](const auto& element) { return before(element, pivot); }));
        std::iter_swap(first, place);
        Iterator right = std::next(place);
        if (place - first < (last - first) / kLopsided) {
            // Many equal elements split like this: they are in their place and need no sorting any more.
            right = gather(right, last, [&](const auto& element) { return !before(pivot, element); });
        }
        if (place - first < last - right) {
            introSort(first, place, budget, before);
            first = right;
        } else {
            introSort(right, last, budget, before);
            last = place;
        }
    }
    insertionSort(first, last, before);
}

} // namespace Detail

/// Sorts [first, last). `before(a, b)` may hold for equal elements: the first is compared with itself, and a predicate
/// that puts an element before itself is read from its other side, so that equal elements do not unbalance the sort.
template <typename Iterator, typename Before>
void sort(Iterator first, Iterator last, Before before) {
    const std::ptrdiff_t count = last - first;
    if (count < 2) {
        return;
    }
    if (before(*first, *first)) {
        auto strictlyBefore = [&before](const auto& a, const auto& b) { return !before(b, a); };
        Detail::introSort(first, last, count, strictlyBefore);
    } else {
        Detail::introSort(first, last, count, before);
    }
}

} // namespace TolerantSort
