#include "shell/qt/JournalPageView.h"

#include "shell/MainWindow.h"
#include "shell/qt/AmountFieldView.h"
#include "shell/qt/ComboBoxView.h"
#include "shell/qt/ControlBinding.h"
#include "shell/qt/DateControlView.h"
#include "shell/qt/GivenColours.h"
#include "shell/qt/LabelView.h"
#include "shell/qt/ListboxView.h"
#include "shell/qt/MainWindowView.h"
#include "shell/qt/PopupMenuView.h"
#include "shell/qt/TextFieldView.h"

using namespace Qt::StringLiterals;

namespace {

constexpr Sheet::Frame frameOfControls{0xffececec, 0xffcccccc};

} // namespace

JournalPageView::JournalPageView(MainWindow &window, const UserLocale &locale, QWidget *parent)
    : Sheet(MainWindowView::designSize, parent) {
    // In the order of the Tab key.
    AddCaptions(window.entryRow);
    AddEntryRow(window.entryRow, locale);
    AddButtons(window.entryRow);
    AddErrorBar(window.entryRow);
    AddCashList(window);
    AddSelectors(window);
    AddBalances(window);
}

void JournalPageView::AddCaptions(EntryRow &row) {
    AddCaption(u"CashLabel(6)"_s, u"Datum"_s, {20, 86, 80, 20});
    AddCaption(u"CashLabel(5)"_s, u"Einnahme"_s, {141, 86, 62, 20});
    AddCaption(u"CashLabel(4)"_s, u"Ausgabe"_s, {211, 86, 58, 20});
    AddCaption(u"CashLabel(3)"_s, u"Steuer"_s, {281, 86, 58, 20});
    Add(new LabelView(row.CategoryLabel, this), {370, 86, 148, 20});
    AddCaption(u"CashLabel(1)"_s, u"Beleg-Nr."_s, {552, 86, 60, 20});
    AddCaption(u"CashLabel(0)"_s, u"Notiz"_s, {626, 86, 137, 20});
}

void JournalPageView::AddEntryRow(EntryRow &row, const UserLocale &locale) {
    Add(new DateControlView(row.DateField, locale, this), {20, 110, 108, 23});
    AddAmountField(row.InputField, {141, 110, 60, 22});
    AddAmountField(row.OutputField, {211, 110, 60, 22});
    Add(new ComboBoxView(row.pickLists.TaxCombo, this), {281, 110, 80, 21});
    Add(new ComboBoxView(row.pickLists.CategoryCombo, this), {370, 110, 169, 21});
    Add(new TextFieldView(row.SaleNumberField, this), {552, 110, 60, 22});
    Add(new TextFieldView(row.NoteField, this), {626, 110, 277, 22}, LTR);
}

void JournalPageView::AddAmountField(TextField &field, const QRect &place) {
    auto *view = new AmountFieldView(field, this);
    view->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    view->setPlaceholderText(u"in €"_s);
    Add(view, place);
}

void JournalPageView::AddButtons(EntryRow &row) {
    // The last two share the place of the first; only it or they show.
    AddButton(row.SubmitButton, {915, 110, 145, 20}, TR);
    AddButton(row.CancelButton, {978, 110, 82, 20}, TR);
    AddButton(row.ChangeButton, {915, 110, 59, 20}, TR);
}

void JournalPageView::AddErrorBar(EntryRow &row) {
    auto *bar = new Sheet({471, 20}, this);
    bar->SetFrame({0xffff0000, 0xffff0000});
    BindControl(row.ErrorRect, *bar);
    auto *message = new LabelView(row.ErrorLabel, bar);
    SetTextColour(*message, 0xffffffff);
    bar->Add(message, {13, 0, 448, 18});
    Add(bar, {141, 135, 471, 20});
}

void JournalPageView::AddSelectors(MainWindow &window) {
    Selectors &selectors = window.selectors;
    auto *frame = new Sheet({511, 40}, this);
    frame->setObjectName(u"YearRect"_s);
    frame->SetFrame(frameOfControls);
    frame->AddCaption(u"Label1"_s, u"Kasse"_s, {11, 9, 46, 20});
    frame->AddCaption(u"Label2"_s, u"Jahr/Monat"_s, {234, 9, 74, 20});
    frame->Add(new PopupMenuView(selectors.YearPopup, frame), {316, 9, 70, 21});
    frame->Add(new PopupMenuView(selectors.MonthPopup, frame), {396, 9, 105, 21});
    frame->Add(new PopupMenuView(selectors.CashbookPopup, frame), {59, 9, 140, 21});
    Add(frame, {549, 15, 511, 40}, TR);
}

void JournalPageView::AddCashList(MainWindow &window) {
    auto *list = new ListboxView(window.journal.CashList, this);
    list->SetColumnWidths({115, 70, 72, 90, 185, 70, 160});
    Add(list, {20, 157, 1040, 533}, LTRB);
}

void JournalPageView::AddBalances(MainWindow &window) {
    Balances &balances = window.balances;
    auto *frame = new Sheet({300, 55}, this);
    frame->setObjectName(u"AmountRect"_s);
    frame->SetFrame(frameOfControls);
    frame->AddCaption(u"AmountLabel(1)"_s, u"Anfangsbestand:"_s, {45, 5, 130, 20}, LT,
                      Qt::AlignRight);
    frame->Add(new LabelView(balances.OpeningBalanceLabel, frame, Qt::AlignRight),
               {187, 5, 100, 20});
    frame->AddCaption(u"AmountLabel(0)"_s, u"Aktueller Bestand:"_s, {45, 27, 130, 20}, LT,
                      Qt::AlignRight);
    frame->Add(new LabelView(balances.LastAmountLabel, frame, Qt::AlignRight), {187, 27, 100, 20});
    Add(frame, {760, 702, 300, 55}, RB);
}
