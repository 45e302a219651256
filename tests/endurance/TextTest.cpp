#include "platform/Text.h"

#include "core/TLXModule.h"
#include "endurance/Endurance.h"
#include "endurance/Program.h"
#include "platform/Encodings.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Texts that hardly anybody would type, in every field and cell.
class OddTexts : public Endurance {
protected:
    template <typename Fields>
    QStringList Fill(const Fields &fields) {
        QStringList texts;
        for (auto *field : fields) {
            texts.append(OddText());
            field->SetText(texts.last());
        }
        return texts;
    }
    /// Half of a surrogate pair is no character and comes back as a question mark.
    void ExpectBack(const QStringList &given, const QStringList &read) {
        const auto isBack = [](QChar a, QChar b) {
            return a == b || (a.isSurrogate() && b == u'?');
        };
        EXPECT_TRUE(std::ranges::equal(given.join(u'|'), read.join(u'|'), isBack))
            << qPrintable(given.join(u'|')) << "\nbecame " << qPrintable(read.join(u'|'));
        counts["texts"] += int(given.size());
    }

    Book book;
    MainWindow window{book.app};
};

TEST_F(OddTexts, ComeBackFromTheJournal) {
    window.Event_Open();
    EntryRow &row = window.entryRow;
    Listbox &list = window.journal.CashList;
    const auto shown = [&list] {
        return QStringList{list.Cell(0, Journal::SaleNumber), list.Cell(0, Journal::Note),
                           list.Cell(0, Journal::Category)};
    };
    Run(300, [&] {
        const QString amount = u"%1,%2"_s.arg(Any(1000)).arg(OddText());
        row.InputField.SetText(amount);
        QStringList texts = Fill(std::array{&row.SaleNumberField, &row.NoteField});
        texts.append(OddText());
        row.pickLists.CategoryCombo.SetText(texts.last());
        row.SubmitButton.Press();
        ExpectBack({TLXModule::AmountText2SQL(amount)},
                   {book.Value(u"SELECT input FROM cash_journal"_s)});
        ExpectBack(texts, shown());
        list.SetListIndex(0);
        window.MenuAction(u"edit"_s);
        row.ChangeButton.Press();
        ExpectBack(texts, shown());
        EXPECT_EQ(row.ErrorLabel.Text(), QString());
        book.Run(u"DELETE FROM cash_journal"_s);
    });
}

TEST_F(OddTexts, ComeBackFromThePreferences) {
    const auto fields = [](CompanyProfile &of) {
        return std::array{&of.CompanyField,  &of.DepartmentField, &of.FirstnameField,
                          &of.LastnameField, &of.StreetField,     &of.ZipField,
                          &of.CityField,     &of.PhoneField,      &of.FaxField,
                          &of.EMailField,    &of.HomepageField,   &of.UIDField};
    };
    const auto cells = [](MainWindow &of) {
        Listbox *books = &of.cashBooks.CashbookList;
        Listbox *accounts = &of.bookingAccounts.CashaccountList;
        const int row = accounts->FindRow(u"1"_s);
        return std::array{std::tuple(books, 0, 0), std::tuple(books, 0, 1), std::tuple(books, 0, 2),
                          std::tuple(accounts, row, 0), std::tuple(accounts, row, 1)};
    };
    window.Event_Open();
    Run(100, [&] {
        window.MenuAction(u"preferences"_s);
        QStringList texts = Fill(fields(window.companyProfile));
        for (const auto &[list, row, column] : cells(window)) {
            texts.append(u'x' + OddText()); // A number would be kept as one.
            list->EditCell(row, column);
            list->SetEditText(texts.last());
        }
        window.MenuAction(u"cashbook"_s);
        MainWindow anew(book.app);
        anew.Event_Open();
        anew.MenuAction(u"preferences"_s);
        QStringList read;
        for (const TextField *field : fields(anew.companyProfile)) {
            read.append(field->Text());
        }
        for (const auto &[list, row, column] : cells(anew)) {
            read.append(list->Cell(row, column));
        }
        ExpectBack(texts, read);
    });
}

TEST_F(OddTexts, ComeBackFromTheWelcomeWindowOrAreRefused) {
    Run(40, [&] {
        FakeDesktop desktop;
        App app(desktop, UserLocale(QLocale()));
        WelcomeWindow welcome(app);
        const std::array fields = {&welcome.CompanyField,     &welcome.DepartmendField,
                                   &welcome.StreetField,      &welcome.ZipField,
                                   &welcome.CityField,        &welcome.PhoneField,
                                   &welcome.AccountNameField, &welcome.AccountField};
        QStringList texts;
        for (TextField *field : fields) {
            texts.append(OddText().remove(u'\'').remove(QChar(0)));
            field->SetText(u'x' + texts.last());
        }
        // They are joined into the statement, which an apostrophe and a zero end too early.
        const bool refused = Any(4) == 0;
        if (refused) {
            fields[size_t(Any(8))]->SetText(Any(2) == 0 ? u"O'Neill"_s : u"\0"_s);
        }
        welcome.SaveButton.Press();
        EXPECT_EQ(desktop.TakeMessages().startsWith(u"Error: "_s), refused);
        const auto record = app.kvoDB().SQLSelect(
            u"SELECT company, lastname, street, zipcode, city, phone, name, account "
            "FROM core_company, cash_book"_s);
        EXPECT_EQ(record == nullptr, refused);
        for (int column = 0; record && column < texts.size(); ++column) {
            ExpectBack({texts[column]}, {record->IdxField(column + 1).StringValue().mid(1)});
        }
        ++counts[refused ? "refused" : "made"];
    });
}

TEST_F(OddTexts, AreTakenByEveryConversion) {
    Run(100, [this] {
        const QString text = OddText();
        EXPECT_EQ(Val(text + u'x'), Val(text));
        EXPECT_TRUE(std::isfinite(Val(QString::number(Any(1000)) + text)));
        EXPECT_EQ(TLXModule::PadAmount8(text).size(), 8);
        EXPECT_EQ(ReplaceLineEndings(text, u"\r\n"_s).remove(u"\r\n"_s),
                  QString(text).remove(u'\r').remove(u'\n'));
        EXPECT_TRUE(Encodings::WindowsANSI(text + u'x').endsWith('x'));
        EXPECT_EQ(TLXModule::DateSQL2German(u"2026-03-15"_s + text), u"15.03.2026"_s + text);
    });
}

} // namespace
