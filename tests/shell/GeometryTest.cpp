#include "setup/WelcomeWindow.h"
#include "shell/qt/WelcomeWindowView.h"
#include "support/MainWindowTest.h"

using namespace Qt::StringLiterals;

namespace {

// Where each control stands in its window of the design size: left, top, width and height, in
// points, and the edges that it keeps its distance to, where these are not the left and the top.
// What stands in a frame moves with it. Without a size only the place is given.

const QString journal =
    u"PagePanel1 0 0 1080 770 LTRB, YearRect 549 15 511 40 TR, Label1 560 24 46 20 TR, "
    "CashbookPopup 608 24 140 21 TR, Label2 783 24 74 20 TR, YearPopup 865 24 70 21 TR, "
    "MonthPopup 945 24 105 21 TR, CashLabel(6) 20 86 80 20, CashLabel(5) 141 86 62 20, "
    "CashLabel(4) 211 86 58 20, CashLabel(3) 281 86 58 20, CategoryLabel 370 86 148 20, "
    "CashLabel(1) 552 86 60 20, CashLabel(0) 626 86 137 20, CancelButton 978 110 82 20 TR, "
    "ChangeButton 915 110 59 20 TR, DateField 20 110 108 23, InputField 141 110 60 22, "
    "OutputField 211 110 60 22, TaxCombo 281 110 80 21, CategoryCombo 370 110 169 21, "
    "SaleNumberField 552 110 60 22, NoteField 626 110 277 22 LTR, SubmitButton 915 110 145 20 TR, "
    "ErrorRect 141 135 471 20, ErrorLabel 154 135 448 18, CashList 20 157 1040 533 LTRB, "
    "AmountRect 760 702 300 55 RB, AmountLabel(1) 805 707 130 20 RB, "
    "OpeningBalanceLabel 947 707 100 20 RB, AmountLabel(0) 805 729 130 20 RB, "
    "LastAmountLabel 947 729 100 20 RB"_s;

const QString preferences =
    u"Prefs(13) 66 57 110 20, CompanyField 188 57 300 22, Prefs(12) 66 87 110 20, "
    "DepartmentField 188 87 300 22, Prefs(11) 66 117 110 20, FirstnameField 188 117 300 22, "
    "Prefs(10) 66 148 110 20, LastnameField 188 148 300 22, Prefs(9) 66 180 110 20, "
    "StreetField 188 180 300 22, Prefs(8) 66 212 110 20, ZipField 188 212 51 22, "
    "CityField 247 212 241 22, CountryCombo 188 246 300 20, Prefs(6) 521 57 110 20, "
    "PhoneField 643 57 300 22 LTR, Prefs(5) 521 87 110 20, FaxField 643 87 300 22 LTR, "
    "Prefs(4) 521 117 110 20, EMailField 643 117 300 22 LTR, Prefs(3) 521 148 110 20, "
    "HomepageField 643 148 300 22 LTR, Prefs(2) 521 180 110 20, UIDField 643 180 300 22 LTR, "
    "Prefs(1) 521 212 110 20, CurrencyCombo 643 212 95 20, Prefs(0) 521 246 110 20, "
    "AccountFrameCombo 643 246 95 20, CashbookList 20 353 329 340 LTB, "
    "CashaccountList 361 353 699 340 LTRB, CashBookAdd 20 697 60 29 LB, "
    "AccountsAdd 361 697 60 29 LB"_s;

const QString welcomeWindow =
    u"DemoCanvas 565 0 245 100, Label4 640 12, Label9 640 35, NewCanvas 565 100 245 100, "
    "Label5 640 111, Label10 640 134, ManualCanvas 565 200 245 100, Label8 640 211, "
    "Label12 640 235, PagePanel1 -1 -1 566 303, Rectangle1 -1 -1 566 303, Label1 27 9 510 36, "
    "Label2 27 54 510 45, Canvas1 31 102 513 200, Rectangle2 -1 -1 566 303, "
    "Placard1 19 15 526 41, Label13 72 23 406 24, Label17 39 77 82 20, CompanyField 136 76 300 22, "
    "DepartmendField 136 106 300 22, Label3 41 138 80 20, StreetField 136 137 300 22, "
    "Label16 41 170 80 20, ZipField 136 169 51 22, CityField 192 169 244 22, "
    "Label15 39 200 82 20, PhoneField 136 200 300 22, Label14 136 232 293 53, "
    "ForwardButton 456 266 80 20, Rectangle3 -1 -1 566 303, AccountsPopup 171 19 372 20, "
    "Label11 171 48 365 53, Label20 40 126 120 20, AccountNameField 170 125 249 22, "
    "Label6 433 126 45 20, AccountField 487 125 58 22, Label19 40 156 120 20, "
    "OpeningBalanceField 170 155 100 22, CurrencyPopup 282 155 80 20, Label18 19 180 141 60, "
    "OpeningDate 171 188 100 23, Label21 171 223 373 34, BackButton 341 266 80 20, "
    "SaveButton 433 266 110 20"_s;

/// Expects each control where it belongs in an area that has grown.
void ExpectPlaces(const QWidget &area, const QString &table, QSize growth = {0, 0}) {
    QApplication::processEvents();
    for (const QString &entry : table.split(u", "_s)) {
        const QStringList words = entry.split(u' ');
        const auto *widget = area.window()->findChild<QWidget *>(words[0]);
        ASSERT_TRUE(widget) << qPrintable(entry);
        const auto number = [&words](int place) { return words.value(place).toInt(); };
        const QRect place(number(1), number(2), number(3), number(4));
        const QString locks = words.value(5, u"LT"_s);
        const int right = locks.contains(u'R') ? growth.width() : 0;
        const int bottom = locks.contains(u'B') ? growth.height() : 0;
        const int left = locks.contains(u'L') ? 0 : right;
        const int top = locks.contains(u'T') ? 0 : bottom;
        const QSize size = place.isEmpty() ? place.size() : widget->size();
        EXPECT_EQ(QDebug::toString(QRect(widget->mapTo(&area, QPoint()), size)),
                  QDebug::toString(place.adjusted(left, top, right, bottom)))
            << qPrintable(entry);
    }
}

using GeometryTest = MainWindowTest;

TEST_F(GeometryTest, StandsAsDesignedAndFollowsTheEdgesOfTheWindow) {
    Open();
    auto &pages = Find<QWidget>(u"PagePanel1"_s);
    for (const QSize growth : {QSize(0, 0), QSize(200, 100), QSize(-100, -50)}) {
        view.resize(view.size() + QSize(1080, 770) + growth - pages.size());
        window.PagePanel1.SetValue(0);
        ExpectPlaces(pages, journal, growth);
        window.PagePanel1.SetValue(1);
        ExpectPlaces(pages, preferences, growth);
    }
}

TEST_F(GeometryTest, StandsAsDesignedInTheWelcomeWindow) {
    WelcomeWindow welcome(book.app);
    WelcomeWindowView greeting(welcome, book.app.Locale());
    greeting.show();
    for (const int page : {1, 2}) {
        welcome.PagePanel1.SetValue(page); // Takes its size when it shows.
    }
    ExpectPlaces(*greeting.centralWidget(), welcomeWindow);
}

} // namespace
