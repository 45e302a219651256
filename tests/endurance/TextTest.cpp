#include "core/TLXModule.h"
#include "endurance/Endurance.h"
#include "endurance/Program.h"

using namespace Qt::StringLiterals;

namespace {

/// Texts that hardly anybody would type, in every field and cell.
class OddTexts : public Endurance {
protected:
    Book book;
    MainWindow window{book.app};
};

TEST_F(OddTexts, ComeBackFromTheJournal) {
    window.Event_Open();
    EntryRow &row = window.entryRow;
    Listbox &list = window.journal.CashList;
    book.desktop.fileToSave = FolderItem(book.desktop.Path(u"export.txt"_s));
    Run(300, [&] {
        const QStringList texts{OddText(), OddText(), OddText()};
        const QString amount = u"%1,%2"_s.arg(Any(1000)).arg(OddText());
        row.InputField.SetText(amount);
        row.pickLists.CategoryCombo.SetText(texts[0]);
        row.SaleNumberField.SetText(texts[1]);
        row.NoteField.SetText(texts[2]);
        row.SubmitButton.Press();
        EXPECT_EQ(book.Value(u"SELECT input FROM cash_journal"_s),
                  TLXModule::AmountText2SQL(amount));
        list.SetListIndex(0);
        window.MenuAction(u"edit"_s);
        row.ChangeButton.Press();
        EXPECT_EQ(QStringList({list.Cell(0, Journal::Category), list.Cell(0, Journal::SaleNumber),
                               list.Cell(0, Journal::Note)}),
                  texts);
        if (Any(20) == 0) { // A long text takes a while.
            book.desktop.paper.emplace();
            window.MenuAction(u"print"_s);
            window.MenuAction(u"export"_s);
        }
        EXPECT_EQ(book.desktop.TakeMessages() + row.ErrorLabel.Text(), QString());
        book.Run(u"DELETE FROM cash_journal"_s);
    });
}

TEST_F(OddTexts, ComeBackFromThePreferences) {
    window.Event_Open();
    CompanyProfile &company = window.companyProfile;
    const std::array fields = {
        &company.CompanyField,  &company.DepartmentField, &company.FirstnameField,
        &company.LastnameField, &company.StreetField,     &company.ZipField,
        &company.CityField,     &company.PhoneField,      &company.FaxField,
        &company.EMailField,    &company.HomepageField,   &company.UIDField};
    const std::pair<Listbox *, int> cells[] = {{&window.cashBooks.CashbookList, 0},
                                               {&window.cashBooks.CashbookList, 1},
                                               {&window.cashBooks.CashbookList, 2},
                                               {&window.bookingAccounts.CashaccountList, 0},
                                               {&window.bookingAccounts.CashaccountList, 1}};
    Run(100, [&] {
        window.MenuAction(u"preferences"_s);
        QStringList texts;
        for (TextField *field : fields) {
            texts.append(OddText());
            field->SetText(texts.last());
        }
        for (const auto &[list, column] : cells) {
            texts.append(u'x' + OddText()); // A number would be kept as one.
            list->EditCell(list->FindRow(u"1"_s), column);
            list->SetEditText(texts.last());
        }
        window.MenuAction(u"cashbook"_s);
        window.MenuAction(u"preferences"_s); // Reads all of it anew.
        QStringList read;
        for (const TextField *field : fields) {
            read.append(field->Text());
        }
        for (const auto &[list, column] : cells) {
            read.append(list->Cell(list->FindRow(u"1"_s), column));
        }
        EXPECT_EQ(read, texts);
    });
}

TEST_F(OddTexts, ComeBackFromTheWelcomeWindowOrAreRefused) {
    Run(40, [&] {
        FakeDesktop desktop;
        App app(desktop, UserLocale(QLocale()));
        WelcomeWindow welcome(app);
        QString texts;
        for (TextField *field :
             {&welcome.CompanyField, &welcome.DepartmendField, &welcome.StreetField,
              &welcome.ZipField, &welcome.CityField, &welcome.PhoneField, &welcome.AccountNameField,
              &welcome.AccountField}) {
            field->SetText(OddText().remove(u'\'').remove(QChar(0)) + u'x');
            texts += field->Text();
        }
        // They are joined into the statement, which an apostrophe ends too early.
        const bool refused = Any(4) == 0;
        if (refused) {
            welcome.CityField.SetText(u"O'Neill"_s);
        }
        welcome.SaveButton.Press();
        EXPECT_EQ(desktop.TakeMessages().startsWith(u"Error: "_s), refused);
        const auto record = app.kvoDB().SQLSelect(
            u"SELECT company || lastname || street || zipcode || city || phone || name || account "
            "FROM core_company, cash_book"_s);
        EXPECT_EQ(record ? record->IdxField(1).StringValue() : QString(),
                  refused ? QString() : texts);
    });
}

} // namespace
