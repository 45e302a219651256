#pragma once

#include "shell/MainWindow.h"
#include "support/Book.h"

/// What the main window knows and decides on a book, without a widget. A test fills the book and
/// opens the window.
class BookTest : public testing::Test {
protected:
    explicit BookTest(Book::Place place = Book::Place::Memory) : book(place) {}

    Book book;
    MainWindow window{book.app};
    Listbox &bookings = window.journal.CashList;
};
