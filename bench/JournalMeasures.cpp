#include "Measures.h"

using namespace Qt::StringLiterals;

namespace {

/// A booking that a measure adds and removes again.
constexpr auto removeAdded = "DELETE FROM cash_journal WHERE id > 200000";
constexpr auto addOne =
    "INSERT INTO cash_journal (vdate, tax, category, salesnumber, note, account, amount, output, "
    "type, bdate, cashbookID) VALUES ('2026-03-15', '9', 'Porto', '', '', '4910', '12.50', "
    "'12.50', 'A', '2026-03-15 12:00:00', '1')";

/// Runs `prepare` untimed before each call of the function.
Side RepeatPrepared(const std::function<void()> &prepare, const std::function<void()> &function) {
    return [=](benchmark::State &state) {
        for (auto _ : state) {
            state.PauseTiming();
            prepare();
            state.ResumeTiming();
            function();
        }
    };
}

/// From the filled entry row to the journal that shows the booking.
void AddSaveBooking(const Pair &pair) {
    AddMeasure("save",
               RepeatPrepared(
                   [=] {
                       EntryRow &row = pair->ours.window.entryRow;
                       pair->ours.env.Run(QString::fromLatin1(removeAdded));
                       pair->ours.window.selectors.MonthPopup.SetListIndex(0);
                       row.OutputField.SetText(u"12,50"_s);
                       row.pickLists.CategoryCombo.SetText(u"Porto"_s);
                   },
                   [=] { pair->ours.window.entryRow.SubmitButton.Press(); }),
               RepeatPrepared([=] { pair->bare.Run(removeAdded); },
                              [=] {
                                  pair->bare.Run(addOne);
                                  StepJournal(pair->bare);
                              }));
}

/// From the command to the journal without the booking.
void AddDeleteBooking(const Pair &pair) {
    AddMeasure("delete",
               RepeatPrepared(
                   [=] {
                       MainWindow &window = pair->ours.window;
                       window.selectors.MonthPopup.SetListIndex(0);
                       pair->ours.env.Run(QString::fromLatin1(addOne));
                       const qint64 id = pair->ours.env.app.kvoDB().LastRowID();
                       window.journal.Reload();
                       Listbox &list = window.journal.CashList;
                       list.SetListIndex(list.FindRow(QString::number(id)));
                   },
                   [=] { pair->ours.window.MenuAction(u"delete"_s); }),
               RepeatPrepared([=] { pair->bare.Run(addOne); },
                              [=] {
                                  pair->bare.Run(removeAdded);
                                  StepJournal(pair->bare);
                              }));
}

/// Another digit in the amount field, which loads both pick lists.
void AddKeystroke(const Pair &pair) {
    const auto digit = std::make_shared<int>(0);
    AddMeasure("keystroke", Repeat([=] {
                   *digit = *digit % 9 + 1;
                   pair->ours.window.entryRow.OutputField.SetText(QString::number(*digit));
               }),
               Repeat([=] {
                   for (const char *table : {"cash_tax", "cash_accounts"}) {
                       pair->bare.Step("SELECT * FROM " + std::string(table) +
                                           " WHERE type = 'A' AND active = 1 ORDER BY name",
                                       {1, 2});
                   }
               }));
}

} // namespace

void AddJournalMeasures(const Pair &large, const Pair &small) {
    const auto loadLarge = [=] { large->ours.window.journal.Reload(); };
    AddMeasure("journal_year", Repeat(loadLarge), Repeat([=] { StepJournal(large->bare); }));
    // Linear growth: as long as ten loads from a file of a tenth of the size.
    AddMeasure("growth", Repeat(loadLarge), Repeat([=] {
                   for (int times = 0; times < 10; ++times) {
                       small->ours.window.journal.Reload();
                   }
               }));
    AddSaveBooking(large);
    AddDeleteBooking(large);
    AddKeystroke(large);
}
