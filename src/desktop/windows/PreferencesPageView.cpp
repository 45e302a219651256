#include "desktop/windows/PreferencesPageView.h"

#include "desktop/drawing/CanvasView.h"
#include "desktop/fields/ComboBoxView.h"
#include "desktop/fields/Fields.h"
#include "desktop/lists/ListboxView.h"
#include "masterdata/BookingAccounts.h"
#include "masterdata/CashBooks.h"
#include "masterdata/CompanyProfile.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

PreferencesPageView::PreferencesPageView(const Parts &parts, QWidget *parent)
    : Form({1080, 770}, parent) {
    // In the order of the Tab key.
    AddCompany(parts.companyProfile);
    AddContact(parts.companyProfile);
    AddLists(parts);
}

QLabel *PreferencesPageView::AddCaption(int index, const QString &text, const QPoint &position) {
    return AddText(u"Prefs(%1)"_s.arg(index), text, {position, QSize(110, 20)}, Qt::AlignRight);
}

void PreferencesPageView::AddField(int index, const QString &text, const QPoint &position,
                                   TextField &field, Qt::Edges locks) {
    const QRect rect(position + QPoint(122, 0), QSize(300, 22));
    AddCaption(index, text, position)->setBuddy(Add(CreateTextField(field, this), rect, locks));
}

void PreferencesPageView::AddCompany(CompanyProfile &profile) {
    AddField(13, u"Firma:"_s, {66, 57}, profile.CompanyField);
    AddField(12, u"Zusatz:"_s, {66, 87}, profile.DepartmentField);
    AddField(11, u"Vorname:"_s, {66, 117}, profile.FirstnameField);
    AddField(10, u"Nachname:"_s, {66, 148}, profile.LastnameField);
    AddField(9, u"Strasse:"_s, {66, 180}, profile.StreetField);
    AddCaption(8, u"Plz, Ort:"_s, {66, 212})
        ->setBuddy(AddNamed(u"Plz"_s, CreateTextField(profile.ZipField, this), {188, 212, 51, 22}));
    AddNamed(u"Ort"_s, CreateTextField(profile.CityField, this), {247, 212, 241, 22});
    // The country and its caption, Prefs(7), do not show.
    Add(new ComboBoxView(profile.CountryCombo, this), {188, 246, 300, 20});
}

void PreferencesPageView::AddContact(CompanyProfile &profile) {
    AddField(6, u"Telefon:"_s, {521, 57}, profile.PhoneField, LTR);
    AddField(5, u"Fax:"_s, {521, 87}, profile.FaxField, LTR);
    AddField(4, u"E-Mail:"_s, {521, 117}, profile.EMailField, LTR);
    AddField(3, u"Homepage:"_s, {521, 148}, profile.HomepageField, LTR);
    AddField(2, u"Ust. Nr.:"_s, {521, 180}, profile.UIDField, LTR);
    AddCaption(0, u"Kontenrahmen:"_s, {521, 246})
        ->setBuddy(Add(new ComboBoxView(profile.AccountFrameCombo, this), {643, 246, 95, 20}));
}

void PreferencesPageView::AddLists(const Parts &parts) {
    CashBooks &cashBooks = parts.cashBooks;
    ListboxView &cashBookList = *CreateList(cashBooks.CashbookList, cashBooks.CashBookAdd);
    cashBookList.SetColumnWidths({110, 42, 0, 82});
    AddNamed(u"Kassen"_s, &cashBookList, {20, 353, 329, 340}, LTB);
    BookingAccounts &accounts = parts.bookingAccounts;
    ListboxView &accountList = *CreateList(accounts.CashaccountList, accounts.AccountsAdd);
    accountList.SetColumnWidths({0, 100, 50, 50});
    AddNamed(u"Buchungskonten"_s, &accountList, {361, 353, 699, 340}, LTRB);
    AddCaption(1, u"Währung:"_s, {521, 212})
        ->setBuddy(
            Add(new ComboBoxView(parts.companyProfile.CurrencyCombo, this), {643, 212, 95, 20}));
    AddPlusMinus(cashBooks.CashBookAdd, u"Kasse"_s, {20, 697, 60, 29});
    AddPlusMinus(accounts.AccountsAdd, u"Buchungskonto"_s, {361, 697, 60, 29});
}

ListboxView *PreferencesPageView::CreateList(Listbox &list, TLXPlusMinusButton &button) {
    auto *view = new ListboxView(list, this);
    connect(view, &ListboxView::AddRequested, &button, &TLXPlusMinusButton::PlusPressed);
    connect(view, &ListboxView::RemoveRequested, &button, &TLXPlusMinusButton::MinusPressed);
    return view;
}

void PreferencesPageView::AddPlusMinus(TLXPlusMinusButton &button, const QString &what,
                                       const QRect &rect) {
    auto *view = new CanvasView(button, this);
    const int side = rect.height();
    view->AddButton(what + u" hinzufügen"_s, {0, 0, side, side});
    view->AddButton(what + u" entfernen"_s, {side + 1, 0, side, side});
    view->setToolTip(u"Hinzufügen (Einfg) oder entfernen (Entf)"_s);
    Add(view, rect, LB);
}
