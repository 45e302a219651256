#pragma once

#include "desktop/windows/Form.h"

class BookingAccounts;
class CashBooks;
class CompanyProfile;
class Listbox;
class ListboxView;
class TLXPlusMinusButton;
class TextField;

/// The preferences page: company, cash books, booking accounts.
class PreferencesPageView : public Form {
    Q_OBJECT

public:
    struct Parts {
        CompanyProfile &companyProfile;
        CashBooks &cashBooks;
        BookingAccounts &bookingAccounts;
    };
    PreferencesPageView(const Parts &parts, QWidget *parent);

private:
    void AddCompany(CompanyProfile &profile);
    void AddContact(CompanyProfile &profile);
    void AddLists(const Parts &parts);
    /// Returns the view of a list in which the keys Insert and Delete do what the button does.
    ListboxView *CreateList(Listbox &list, TLXPlusMinusButton &button);
    void AddPlusMinus(TLXPlusMinusButton &button, const QString &what, const QRect &rect);
    QLabel *AddCaption(int index, const QString &text, const QPoint &position);
    /// Adds a caption and the text field to the right of it.
    void AddField(int index, const QString &text, const QPoint &position, TextField &field,
                  Qt::Edges locks = LT);
};
