#pragma once

#include "desktop/windows/Sheet.h"

class CompanyProfile;
class Listbox;
class ListboxView;
class MainWindow;
class TLXPlusMinusButton;
class TextField;

/// The preferences page: company, cash books, booking accounts.
class PreferencesPageView : public Sheet {
    Q_OBJECT

public:
    PreferencesPageView(MainWindow &window, QWidget *parent);

private:
    void AddCompany(CompanyProfile &profile);
    void AddContact(CompanyProfile &profile);
    void AddLists(MainWindow &window);
    /// The view of a list in which the keys Insert and Delete do what the button does.
    ListboxView *ListWithKeys(Listbox &list, TLXPlusMinusButton &button);
    void AddPlusMinus(TLXPlusMinusButton &button, const QString &what, const QRect &place);
    QWidget *AddField(TextField &field, const QRect &place, Qt::Edges locks = LT);
    QLabel *AddCaptionOf(int index, const QString &text, const QPoint &place);
};
