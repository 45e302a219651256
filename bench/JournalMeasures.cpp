#include "BookPair.h"
#include "Measures.h"

using namespace Qt::StringLiterals;

namespace {

using Pair = std::shared_ptr<BookPair>;

/// The journal of a month, or for 0 of the year.
void LoadJournal(benchmark::State &state, LargeBook &env, int month) {
    env.window.selectors.MonthPopup.SetListIndex(month);
    for (auto _ : state) {
        env.window.journal.Reload();
    }
}

Measure JournalOf(const std::string &name, const Pair &books, int month) {
    const std::string tag = month == 0 ? "" : "0" + std::to_string(month);
    return {.name = name,
            .goal = 1.25,
            .ours = [=](auto &state) { LoadJournal(state, books->ours, month); },
            .bare =
                [=](auto &state) {
                    for (auto _ : state) {
                        StepJournal(books->bare, tag);
                    }
                }};
}

/// How the time for a year grows from a book to one of ten times its size, whose bare side is the
/// smaller book ten times.
Measure Growth(const std::string &name, const Pair &large, const Pair &small) {
    return {.name = name,
            .goal = 1.1,
            .ours = [=](auto &state) { LoadJournal(state, large->ours, 0); },
            .bare =
                [=](auto &state) {
                    for (auto _ : state) {
                        for (int times = 0; times < 10; ++times) {
                            small->ours.window.journal.Reload();
                        }
                    }
                }};
}

/// A booking that a measure adds to a book, and takes out again.
constexpr auto removeAdded = "DELETE FROM cash_journal WHERE id > 200000";
constexpr auto addOne =
    "INSERT INTO cash_journal (vdate, tax, category, salesnumber, note, account, amount, output, "
    "type, bdate, cashbookID) VALUES ('2026-03-15', '9', 'Porto', '', '', '4910', '12.50', "
    "'12.50', 'A', '2026-03-15 12:00:00', '1')";

/// From the filled entry row to the journal that shows the booking.
Measure SaveBooking(const Pair &books) {
    const auto ours = [=](benchmark::State &state) {
        EntryRow &row = books->ours.window.entryRow;
        for (auto _ : state) {
            state.PauseTiming();
            books->ours.env.Run(QString::fromLatin1(removeAdded));
            books->ours.window.selectors.MonthPopup.SetListIndex(0);
            row.OutputField.SetText(u"12,50"_s);
            row.pickLists.CategoryCombo.SetText(u"Porto"_s);
            state.ResumeTiming();
            row.SubmitButton.Press();
        }
    };
    const auto bare = [=](benchmark::State &state) {
        for (auto _ : state) {
            state.PauseTiming();
            books->bare.Run(removeAdded);
            state.ResumeTiming();
            books->bare.Run(addOne);
            StepJournal(books->bare);
        }
    };
    return {.name = "save_booking", .goal = 1.2, .ours = ours, .bare = bare};
}

/// The selected booking of the year, to the journal without it.
Measure DeleteBooking(const Pair &books) {
    const auto ours = [=](benchmark::State &state) {
        MainWindow &window = books->ours.window;
        window.selectors.MonthPopup.SetListIndex(0);
        for (auto _ : state) {
            state.PauseTiming();
            books->ours.env.Run(QString::fromLatin1(addOne));
            window.journal.Reload();
            Listbox &list = window.journal.CashList;
            list.SetListIndex(
                list.FindRow(QString::number(books->ours.env.app.kvoDB().LastRowID())));
            state.ResumeTiming();
            window.MenuAction(u"delete"_s);
        }
    };
    const auto bare = [=](benchmark::State &state) {
        for (auto _ : state) {
            state.PauseTiming();
            books->bare.Run(addOne);
            state.ResumeTiming();
            books->bare.Run(removeAdded);
            StepJournal(books->bare);
        }
    };
    return {.name = "delete_booking", .goal = 1.2, .ours = ours, .bare = bare};
}

/// Another digit in the amount field, which loads both pick lists.
Measure Keystroke(const Pair &books) {
    const auto ours = [=](benchmark::State &state) {
        TextField &amount = books->ours.window.entryRow.OutputField;
        int digit = 0;
        for (auto _ : state) {
            amount.SetText(QString::number(++digit % 9 + 1));
        }
        amount.SetText({});
    };
    const auto bare = [=](benchmark::State &state) {
        for (auto _ : state) {
            books->bare.Step("SELECT * FROM cash_tax WHERE type = 'A' AND active = 1 ORDER BY name",
                             {1, 2});
            books->bare.Step(
                "SELECT * FROM cash_accounts WHERE type = 'A' AND active = 1 ORDER BY name",
                {1, 2});
        }
    };
    return {.name = "keystroke", .goal = 1.15, .ours = ours, .bare = bare};
}

} // namespace

std::vector<Measure> JournalMeasures(const Books &books) {
    return {JournalOf("journal_year", books.large, 0),
            JournalOf("journal_month", books.large, 3),
            SaveBooking(books.large),
            DeleteBooking(books.large),
            Keystroke(books.large),
            Growth("growth_to_20000", books.middle, books.small),
            Growth("growth_to_200000", books.large, books.middle)};
}
