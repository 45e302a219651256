#include "shell/qt/JournalPageView.h"

#include "shell/MainWindow.h"
#include "shell/qt/LabelView.h"
#include "shell/qt/ListboxView.h"
#include "shell/qt/MainWindowView.h"
#include "shell/qt/PopupMenuView.h"

using namespace Qt::StringLiterals;

namespace {

constexpr Sheet::Frame frameOfControls{0xffececec, 0xffcccccc};

} // namespace

JournalPageView::JournalPageView(MainWindow &window, QWidget *parent)
    : Sheet(MainWindowView::designSize, parent) {
    AddSelectors(window);
    AddCashList(window);
    AddBalances(window);
}

void JournalPageView::AddSelectors(MainWindow &window) {
    Selectors &selectors = window.selectors;
    auto *frame = new Sheet({511, 40}, this);
    frame->setObjectName(u"YearRect"_s);
    frame->SetFrame(frameOfControls);
    frame->AddCaption(u"Label1"_s, u"Kasse"_s, {11, 9, 46, 20});
    frame->Add(new PopupMenuView(selectors.CashbookPopup, frame), {59, 9, 140, 21});
    frame->AddCaption(u"Label2"_s, u"Jahr/Monat"_s, {234, 9, 74, 20});
    frame->Add(new PopupMenuView(selectors.YearPopup, frame), {316, 9, 70, 21});
    frame->Add(new PopupMenuView(selectors.MonthPopup, frame), {396, 9, 105, 21});
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
