#include "desktop/windows/JournalPageView.h"

#include "desktop/fields/Announcement.h"
#include "desktop/fields/ComboBoxView.h"
#include "desktop/fields/ControlBinding.h"
#include "desktop/fields/DateControlView.h"
#include "desktop/fields/Fields.h"
#include "desktop/lists/ListboxView.h"
#include "desktop/look/LightPalette.h"
#include "journal/Balances.h"
#include "journal/EntryRow.h"
#include "journal/Journal.h"
#include "journal/Selectors.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr Form::Frame frameOfControls{0xffececec, 0xffcccccc};

} // namespace

JournalPageView::JournalPageView(const Parts &parts, const UserLocale &locale, QWidget *parent)
    : Form({1080, 770}, parent) {
    // In the order of the Tab key.
    AddEntryRow(parts.entryRow, locale);
    AddButtons(parts.entryRow);
    AddErrorBar(parts.entryRow);
    AddCashList(parts.journal);
    AddSelectors(parts.selectors);
    AddBalances(parts.balances);
}

void JournalPageView::AddEntryRow(EntryRow &row, const UserLocale &locale) {
    AddText(u"CashLabel(6)"_s, u"Datum"_s, {20, 86, 80, 20})
        ->setBuddy(Add(new DateControlView(row.DateField, locale, this), {20, 110, 108, 23}));
    AddText(u"CashLabel(5)"_s, u"Einnahme"_s, {141, 86, 62, 20})
        ->setBuddy(AddAmountField(row.InputField, {141, 110, 60, 22}));
    AddText(u"CashLabel(4)"_s, u"Ausgabe"_s, {211, 86, 58, 20})
        ->setBuddy(AddAmountField(row.OutputField, {211, 110, 60, 22}));
    AddText(u"CashLabel(3)"_s, u"Steuer"_s, {281, 86, 58, 20})
        ->setBuddy(Add(new ComboBoxView(row.pickLists.TaxCombo, this), {281, 110, 80, 21}));
    auto *kind = CreateLabel(row.CategoryLabel, this);
    Add(kind, {370, 86, 148, 20});
    auto *category = new ComboBoxView(row.pickLists.CategoryCombo, this);
    Add(category, {370, 110, 169, 21});
    kind->setBuddy(category);
    AddText(u"CashLabel(1)"_s, u"Beleg-Nr."_s, {552, 86, 60, 20})
        ->setBuddy(Add(CreateTextField(row.SaleNumberField, this), {552, 110, 60, 22}));
    AddText(u"CashLabel(0)"_s, u"Notiz"_s, {626, 86, 137, 20})
        ->setBuddy(Add(CreateTextField(row.NoteField, this), {626, 110, 277, 22}, LTR));
}

QWidget *JournalPageView::AddAmountField(TextField &field, const QRect &rect) {
    auto *view = CreateAmountField(field, this);
    view->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    view->setPlaceholderText(u"in €"_s);
    return Add(view, rect);
}

void JournalPageView::AddButtons(EntryRow &row) {
    // The last two show instead of the first.
    AddButton(row.SubmitButton, {915, 110, 145, 20}, TR);
    AddButton(row.CancelButton, {978, 110, 82, 20}, TR);
    AddButton(row.ChangeButton, {915, 110, 59, 20}, TR);
}

void JournalPageView::AddErrorBar(EntryRow &row) {
    auto *bar = new Form({471, 20}, this);
    bar->SetFrame({0xffff0000, 0xffff0000});
    BindControl(row.ErrorRect, *bar);
    auto *message = CreateLabel(row.ErrorLabel, bar);
    SetTextColour(*message, 0xffffffff);
    bar->Add(message, {13, 0, 448, 18});
    Add(bar, {141, 135, 471, 20});
    // Connected after the row's own handlers: the label has the result of this press.
    for (const PushButton *button : {&row.SubmitButton, &row.ChangeButton}) {
        connect(button, &PushButton::Action, this, [this, &row] {
            if (!row.ErrorLabel.Text().isEmpty()) {
                Announce(*window(), row.ErrorLabel.Text());
            }
        });
    }
}

void JournalPageView::AddSelectors(Selectors &selectors) {
    auto *frame = new Form({511, 40}, this);
    frame->setObjectName(u"YearRect"_s);
    frame->SetFrame(frameOfControls);
    frame->AddText(u"Label2"_s, u"Jahr/Monat"_s, {234, 9, 74, 20})
        ->setBuddy(frame->Add(CreatePopupMenu(selectors.YearPopup, frame), {316, 9, 70, 21}));
    frame->AddNamed(u"Monat"_s, CreatePopupMenu(selectors.MonthPopup, frame), {396, 9, 105, 21});
    auto *cashBook = CreatePopupMenu(selectors.CashbookPopup, frame);
    // Its rows are texts of the user, which may be longer than the box.
    cashBook->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    frame->AddText(u"Label1"_s, u"Kasse"_s, {11, 9, 46, 20})
        ->setBuddy(frame->Add(cashBook, {59, 9, 140, 21}));
    Add(frame, {549, 15, 511, 40}, TR);
}

void JournalPageView::AddCashList(Journal &journal) {
    // The list shows no headings; assistive tools read them.
    const QStringList headings = {u"Belegdatum"_s,   u"Einnahmen"_s, u"Ausgaben"_s, u"Steuer"_s,
                                  u"Buchungstext"_s, u"Bel.Nr."_s,   u"Notiz"_s,    u"Bestand"_s};
    for (int column = 0; column < headings.size(); ++column) {
        journal.CashList.SetHeading(column, headings[column]);
    }
    auto *list = new ListboxView(journal.CashList, this);
    list->SetColumnWidths({115, 70, 72, 90, 185, 70, 160});
    AddNamed(u"Buchungen"_s, list, {20, 157, 1040, 533}, LTRB);
}

void JournalPageView::AddBalances(Balances &balances) {
    auto *frame = new Form({300, 55}, this);
    frame->setObjectName(u"AmountRect"_s);
    frame->SetFrame(frameOfControls);
    const auto add = [frame](const QString &name, const QString &text, Label &balance, int top) {
        frame->AddText(name, text, {45, top, 130, 20}, Qt::AlignRight)
            ->setBuddy(
                frame->Add(CreateLabel(balance, frame, Qt::AlignRight), {187, top, 100, 20}));
    };
    add(u"AmountLabel(1)"_s, u"Anfangsbestand:"_s, balances.OpeningBalanceLabel, 5);
    add(u"AmountLabel(0)"_s, u"Aktueller Bestand:"_s, balances.LastAmountLabel, 27);
    Add(frame, {760, 702, 300, 55}, RB);
}
