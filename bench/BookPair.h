#pragma once

#include "BareBook.h"
#include "LargeBook.h"

/// The program on a book, and the bare library on a copy of it.
struct BookPair {
    explicit BookPair(int bookings) : ours(bookings), bare(ours.Copy()) {}

    LargeBook ours;
    BareBook bare;
};
