#pragma once

#include "shell/qt/Sheet.h"

class CompanyProfile;
class MainWindow;
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
    void AddField(TextField &field, const QRect &place, Locks locks = LT);
    void AddCaptionOf(int index, const QString &text, const QPoint &place);
};
